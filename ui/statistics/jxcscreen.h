#pragma once

#include "ui/statistics/reportscreen.h"

namespace medistock::ui::stats {

class MovementDialog;

// "进销存统计": per goods the opening stock, inward and outward quantity and amount, and the
// ledger's own closing stock over the range, built into the operator's rows of jxc_jxchz on the
// worker thread. "差额核对(F9)" narrows the grid to the goods whose opening + inward - outward
// differs from the closing amount and tells them; "出库成本价同步" rewrites the outward costs of
// the range (asked first, with progress and a cancel, on this thread so that its question and
// messages are the window's) and builds the summary again. A double-click or Enter opens the
// goods' movement view.
class JxcScreen : public ReportScreen
{
    Q_OBJECT
public:
    explicit JxcScreen(Workspace &workspace, QWidget *parent = nullptr);

    QPushButton *checkButton() const { return m_check; }
    QPushButton *syncButton() const { return m_sync; }
    // The movement view of the current row's goods, shown; nullptr when no goods row is chosen.
    MovementDialog *openMovements();

public slots:
    void checkDifferences();
    void syncCosts();

private:
    statistics::ReportFilter currentFilter() const;
    void showDifferences();

    QPushButton *m_check;
    QPushButton *m_sync;
    bool m_checkAfterRun = false;
};

} // namespace medistock::ui::stats
