#pragma once

#include "ui/gsp/recordscreen.h"

#include <QDialog>

namespace medistock::ui {

// "含麻药品查询": the ledger of the restricted drugs, or with "汇总" its summary per goods. A
// double-click on a movement opens the lines its document posted.
class RestrictedScreen : public RecordScreen
{
    Q_OBJECT
public:
    explicit RestrictedScreen(Workspace &workspace, QWidget *parent = nullptr);

    bool showsSummary() const { return m_summary; }
    void setSummary(bool summary);
    // The lines the document of a ledger row posted, in a dialog.
    void openDocument(int row);

private:
    QPushButton *m_toggle = nullptr;
    bool m_summary = false;
};

// A read-only list of rows in a dialog of its own.
class TableDialog : public QDialog
{
    Q_OBJECT
public:
    TableDialog(Workspace &workspace, const gsp::RecordTable &table, QWidget *parent = nullptr);
    QTableView *grid() const { return m_grid; }

private:
    QTableView *m_grid;
};

} // namespace medistock::ui
