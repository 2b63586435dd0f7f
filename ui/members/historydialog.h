#pragma once

#include <QDialog>

class QTableWidget;

namespace medistock::ui {

struct Workspace;

// "会员记录": a member's retail sales and returns, top-ups, gifts released, redemptions and
// changes by hand, newest first, with export to a spreadsheet.
class HistoryDialog : public QDialog
{
    Q_OBJECT
public:
    HistoryDialog(Workspace &workspace, const QString &member, QWidget *parent = nullptr);

    QTableWidget *grid() const { return m_grid; }

private:
    void exportGrid();

    Workspace &m_workspace;
    QTableWidget *m_grid;
};

} // namespace medistock::ui
