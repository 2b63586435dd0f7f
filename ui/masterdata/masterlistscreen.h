#pragma once

#include "ui/masterdata/importdialog.h"

#include <QList>
#include <QSqlRecord>
#include <QWidget>

#include <functional>
#include <memory>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSplitter;
class QTableView;

namespace medistock::masterdata {
struct MasterKind;
}

namespace medistock::ui {

struct Workspace;
class MasterRowDialog;
class RecordModel;

// The screen of one master list: a search field that narrows the grid as one types (code, name,
// mnemonic, barcode), the grid (Enter or F2 edits the current row, Insert adds), and the buttons
// to add, change, delete, disable or enable, export to and import from a spreadsheet, and open
// the small lists the rows draw on ("基础资料").
class MasterListScreen : public QWidget
{
    Q_OBJECT
public:
    MasterListScreen(
        Workspace &workspace, const masterdata::MasterKind &kind, QWidget *parent = nullptr);
    ~MasterListScreen() override;

    QLineEdit *searchField() const { return m_search; }
    QTableView *grid() const { return m_grid; }
    QLabel *countLabel() const { return m_count; }
    QPushButton *disableButton() const { return m_disable; }
    QPushButton *basicListsButton() const { return m_basicLists; }
    int rowCount() const;
    QSqlRecord recordAt(int row) const;
    // The key (code, or name for lists without codes) of the current row; empty when none.
    QString currentKey() const;
    void selectKey(const QString &key);

public slots:
    void reload();
    void addRow();
    void editCurrent();
    void deleteCurrent();
    void toggleDisabled();
    void exportTo(const QString &path);
    void importFrom(const QString &path);
    void openBasicList(const QString &key);

protected:
    // The rows for the search text; the goods screen narrows them to the chosen class.
    virtual QList<QSqlRecord> fetch(const QString &text);
    // The dialog that adds (empty key) or changes a row.
    virtual std::unique_ptr<MasterRowDialog> editor(const QString &key);
    // Puts a panel left of the grid.
    void setSidePanel(QWidget *panel);
    // A further button after the list's own, for what a module does with its rows (no action:
    // a button that opens the menu the caller gives it).
    QPushButton *addButton(const QString &text, const std::function<void()> &action);
    // How the list is imported; the master list's own import by default.
    virtual ImportSteps importSteps();
    bool eventFilter(QObject *watched, QEvent *event) override;

    Workspace &m_workspace;
    const masterdata::MasterKind &m_kind;

private:
    QWidget *buildButtons();
    void chooseExportFile();
    void chooseImportFile();
    void refreshDisableButton();
    void setColumnWidths();
    QString keyOf(const QSqlRecord &row) const;

    QLineEdit *m_search;
    QLabel *m_count;
    QTableView *m_grid;
    RecordModel *m_model;
    QSplitter *m_split;
    QPushButton *m_disable = nullptr;
    QPushButton *m_basicLists = nullptr;
    QHBoxLayout *m_buttonRow = nullptr;
};

} // namespace medistock::ui
