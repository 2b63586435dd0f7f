#pragma once

#include "documents/listing.h"
#include "ui/documents/linemodel.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace medistock::ui {

class CodeNameField;
class DateField;
class DocumentScreenKind;
class LineGrid;
struct Workspace;

// The screen of one kind of goods document: the header (party, warehouse, date, number,
// employee, note and the kind's own fields), the editable line grid, the totals with the amount
// in Chinese capitals, and the button bar:
//   F2 新增  F3 保存  F5 审核  F6 取消审核  F7 删除单据  F8 打印  Ins 插行  Del 删行
//   F9 待审核单据  F4 picker of the field or cell  Esc 关闭
// Every action calls the kind's operation and shows what it says; a refusal leaves everything
// typed on the screen. A checked document opens read-only. Enter in the party field goes to the
// goods cell of the first free line, so that a document is keyed header to lines without Tab.
class DocumentScreen : public QWidget
{
    Q_OBJECT
public:
    DocumentScreen(
        Workspace &workspace, std::unique_ptr<DocumentScreenKind> kind, QWidget *parent = nullptr);
    ~DocumentScreen() override;

    Workspace &workspace() const { return m_workspace; }
    DocumentScreenKind &kind() const { return *m_kind; }
    // The number of the document shown; empty while it is new.
    QString number() const { return m_number; }
    bool isChecked() const { return m_checked; }
    bool isModified() const { return m_modified; }

    // What the header holds now.
    QString date() const;
    QString partyCode() const;
    QString warehouseCode() const;
    // Chooses the header's warehouse (lines taken from a receipt of another warehouse).
    void setWarehouse(const QString &code);

    QLineEdit *numberField() const { return m_numberField; }
    DateField *dateField() const { return m_date; }
    CodeNameField *partyField() const { return m_party; }
    QComboBox *warehouseBox() const { return m_warehouse; }
    QComboBox *employeeBox() const { return m_employee; }
    QLineEdit *noteField() const { return m_note; }
    QLineEdit *discountField() const { return m_discount; }
    LineGrid *grid() const { return m_grid; }
    LineModel *lines() const { return m_lines; }
    QLabel *statusLabel() const { return m_status; }
    QLabel *totalsLabel() const { return m_totals; }
    QLabel *capitalsLabel() const { return m_capitals; }
    QPushButton *saveButton() const { return m_saveButton; }
    QPushButton *checkButton() const { return m_checkButton; }
    QPushButton *uncheckButton() const { return m_uncheckButton; }
    QPushButton *deleteButton() const { return m_deleteButton; }
    QPushButton *printButton() const { return m_printButton; }

    // For a kind's own actions: a button on the bar that `key` presses from anywhere in the
    // screen, enabled only while the document can be edited.
    void addEditingAction(QPushButton *button, const QKeySequence &key);
    // Likewise, enabled only while a checked document is shown (a return taken from a loan).
    void addCheckedAction(QPushButton *button, const QKeySequence &key);
    // Likewise, always enabled (a list of the kind's documents).
    void addBarAction(QPushButton *button, const QKeySequence &key);
    // Lines taken from elsewhere (a receipt's lines onto a return), after the lines entered.
    void appendLines(const QList<LineEntry> &lines);
    // A line of the goods as a clerk picking it would get it: its unit, stock, proposed price
    // and, for an outgoing line, the proposed batch.
    LineEntry lineFor(const documents::GoodsChoice &goods) const;

public slots:
    // Starts a new document (asks first when the one shown has unsaved changes).
    void newDocument();
    // Saves and shows the document as stored; false when refused (everything typed stays).
    bool save();
    // Saves first when needed, then checks through the kind (its dialog, its questions).
    void check();
    void uncheck();
    void removeDocument();
    // Shows a stored document (asks first when the one shown has unsaved changes).
    void openDocument(const QString &number);
    // "待审核单据": the unchecked documents of the kind, to open, check or delete.
    void showUnchecked();
    void insertLine(int row);
    void deleteLine(int row);
    void pickFor(int row, LineField field);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void saveAction() { save(); }
    QWidget *buildHeader();
    QWidget *buildButtons();
    void bindKey(const QKeySequence &key, void (DocumentScreen::*slot)());
    bool mayDiscard();
    void resetHeader();
    void loadStored(const QString &number);
    LineEntry storedLine(const documents::DocumentLineRow &stored) const;
    void setReadOnly(bool readOnly);
    void refreshButtons();
    void refreshTotals();
    void refreshStock();
    void markModified();
    void lookUpGoods(int row, const QString &text);
    void checkNumber(int row, LineField field, const QString &text);
    void fillLine(int row, const documents::GoodsChoice &goods);
    void proposePrice(int row);
    void pickBatch(int row);
    void pickDate(int row, LineField field);
    bool allows(int position) const;
    void allowIf(QPushButton *button, int position, bool enabled);
    documents::DocumentDraft draft(bool &valid) const;

    Workspace &m_workspace;
    std::unique_ptr<DocumentScreenKind> m_kind;
    QString m_number;
    bool m_checked = false;
    bool m_modified = false;
    bool m_loading = false;

    QLineEdit *m_numberField = nullptr;
    DateField *m_date = nullptr;
    CodeNameField *m_party = nullptr;
    QComboBox *m_warehouse = nullptr;
    QComboBox *m_employee = nullptr;
    QLineEdit *m_note = nullptr;
    QLineEdit *m_discount = nullptr;
    QLabel *m_status = nullptr;
    LineModel *m_lines = nullptr;
    LineGrid *m_grid = nullptr;
    QLabel *m_totals = nullptr;
    QLabel *m_capitals = nullptr;
    QHBoxLayout *m_bar = nullptr;
    QPushButton *m_newButton = nullptr;
    QPushButton *m_saveButton = nullptr;
    QPushButton *m_checkButton = nullptr;
    QPushButton *m_uncheckButton = nullptr;
    QPushButton *m_deleteButton = nullptr;
    QPushButton *m_insertButton = nullptr;
    QPushButton *m_deleteLineButton = nullptr;
    QPushButton *m_printButton = nullptr;
    QList<QPushButton *> m_editingActions;
    QList<QPushButton *> m_checkedActions;
};

} // namespace medistock::ui
