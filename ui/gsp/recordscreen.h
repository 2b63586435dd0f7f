#pragma once

#include "core/outcome.h"
#include "gsp/tables.h"
#include "ui/common/printing.h"

#include <QKeySequence>
#include <QWidget>

#include <functional>

class QComboBox;
class QDialog;
class QDateEdit;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QSplitter;
class QTableView;

namespace medistock::ui {

struct Workspace;
class RecordTableModel;

// The screen of one GSP record or query: the filters on top (a date range defaulting to
// 2000-01-01 .. 9999-12-31, a warehouse, a keyword, and where the record has them the days or
// the sex), Enter or F5 runs the query, the grid below with a totals row, "记录数：N" at the
// bottom, export of the grid to .xlsx, and "打印(F8)" where the record has a report template:
// the rows listed (not the totals row, the template sums itself) through the template, each
// column as the field the table names, the filters as the heading. A screen that enters records
// adds its buttons; double-click or Enter on a row activates it.
class RecordScreen : public QWidget
{
    Q_OBJECT
public:
    struct Filters
    {
        bool dates = true;
        bool warehouse = true;
        bool key = true;
        bool days = false;
        bool sex = false;
        QString keyHint {};
    };
    // The record's table for the screen's filters; a refusal has been told.
    using Fetch = std::function<Result<gsp::RecordTable>(const RecordScreen &)>;

    RecordScreen(Workspace &workspace, const QString &name, Filters filters, Fetch fetch,
        QWidget *parent = nullptr);

    gsp::RecordFilter filter() const;
    int days() const;
    QString sex() const;
    QDateEdit *fromField() const { return m_from; }
    QDateEdit *toField() const { return m_to; }
    QComboBox *warehouseBox() const { return m_warehouse; }
    QLineEdit *keyField() const { return m_key; }
    QSpinBox *daysBox() const { return m_days; }
    QTableView *grid() const { return m_grid; }
    RecordTableModel *model() const { return m_model; }
    QLabel *countLabel() const { return m_count; }
    // A text beside the count (the expiry query's title).
    QLabel *captionLabel() const { return m_caption; }
    QPushButton *exportButton() const { return m_export; }
    QPushButton *printButton() const { return m_print; }
    // What F8 prints: the listed rows under the record's template; no key when it cannot print.
    virtual PrintRequest printRequest() const;
    // The filters with what they hold, for the printed heading: "仓库：所有仓库  关键字：阿莫".
    QString filterText() const;
    // The record row under the cursor, -1 when none (or the totals row).
    int currentRow() const;
    // The key of the current record row; invalid when none.
    QVariant currentKey() const;

public slots:
    void reload();
    void exportTo(const QString &path);

signals:
    void rowActivated(int row);
    void currentRowChanged(int row);

protected:
    // A button of the screen's own, before export and print, with its key.
    QPushButton *addButton(
        const QString &text, const QKeySequence &key, std::function<void()> action);
    // Puts a panel below the grid (a record's lines) or beside it (a chart).
    void setBelow(QWidget *panel);
    void setBeside(QWidget *panel);
    // A filter widget of the screen's own, after the standard ones (an empty label: none).
    void addFilter(const QString &label, QWidget *field);
    bool eventFilter(QObject *watched, QEvent *event) override;

    Workspace &m_workspace;

private:
    void buildFilters(const Filters &filters);
    void chooseExportFile();

    QString m_name;
    Fetch m_fetch;
    QHBoxLayout *m_bar;
    QPushButton *m_query = nullptr;
    QDateEdit *m_from = nullptr;
    QDateEdit *m_to = nullptr;
    QComboBox *m_warehouse = nullptr;
    QLineEdit *m_key = nullptr;
    QSpinBox *m_days = nullptr;
    QComboBox *m_sex = nullptr;
    QTableView *m_grid;
    RecordTableModel *m_model;
    QSplitter *m_split;
    QLabel *m_count;
    QLabel *m_caption;
    QPushButton *m_export;
    QPushButton *m_print;
    QList<QPair<QString, QWidget *>> m_filterFields; // label and field
    QStringList m_headers; // of the table the columns were laid out for
};

// A warehouse drop-down: "所有仓库" first when `withAll`, then every warehouse by code.
QComboBox *makeWarehouseBox(Workspace &workspace, bool withAll, QWidget *parent);
// A date field "yyyy-MM-dd" with a calendar.
QDateEdit *makeDateField(const QDate &date, QWidget *parent);
// The row of a dialog's buttons: 保存 running `save` (Enter too, when `byEnter`; a dialog
// whose grids take Enter leaves it off) and 取消 rejecting.
QHBoxLayout *saveCancelRow(QDialog *dialog, const std::function<void()> &save, bool byEnter);

} // namespace medistock::ui
