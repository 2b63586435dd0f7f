#pragma once

#include "statistics/filters.h"
#include "statistics/movements.h"

#include <QDialog>

namespace medistock::ui {
struct Workspace;
}

namespace medistock::ui::stats {

class ReportScreen;

// The ledger rows with their inward and outward price, quantity and amount by the kind table,
// and the stock after each row; a double-click opens the row's document. "库存变动查询" lists
// every goods of the filters; the summary's movement view one goods (`goods` given), with the
// choice to order by warehouse first.
ReportScreen *makeMovementScreen(
    Workspace &workspace, const QString &goods = {}, QWidget *parent = nullptr);

// The movement view of one goods over the summary's range, warehouse and valuation, run at once.
class MovementDialog : public QDialog
{
    Q_OBJECT
public:
    MovementDialog(Workspace &workspace, const QString &goods, const QString &name,
        const statistics::ReportFilter &filter, statistics::Valuation valuation,
        QWidget *parent = nullptr);

    ReportScreen *screen() const { return m_screen; }

private:
    ReportScreen *m_screen;
};

} // namespace medistock::ui::stats
