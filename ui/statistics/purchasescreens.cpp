// 进货月报, 出库月报, 商品采购统计 and 业务员采购统计.
#include "statistics/reports.h"
#include "ui/common/workspace.h"
#include "ui/statistics/filterbar.h"
#include "ui/statistics/reportscreen.h"
#include "ui/statistics/screens.h"

#include <QComboBox>

namespace medistock::ui::stats {

namespace {

using statistics::PeriodMovementRow;
using statistics::PurchaseRow;

ReportColumn column(const QString &caption, CellKind kind, bool summed = false, bool cost = false)
{
    return { caption, kind, summed, cost };
}

ReportScreen *makePeriodScreen(Workspace &workspace, bool inward)
{
    const QStringList groups = inward
        ? QStringList { QStringLiteral("采购入库"), QStringLiteral("销售退货"),
              QStringLiteral("其他入库") }
        : QStringList { QStringLiteral("销售出库"), QStringLiteral("采购退货"),
              QStringLiteral("其他出库") };
    QList<ReportColumn> columns { column(QStringLiteral("日期"), CellKind::Text) };
    for (const QString &group : groups + QStringList { QStringLiteral("合计") })
        columns << column(group + QStringLiteral("数量"), CellKind::Quantity, true)
                << column(group + QStringLiteral("金额"), CellKind::Amount, true, true);
    auto *screen = new ReportScreen(
        workspace, inward ? QStringLiteral("进货月报") : QStringLiteral("出库月报"), columns);
    FilterBar *f = screen->filters();
    f->addRange();
    f->addWarehouse();
    f->addClass();
    f->addKeyword();
    f->addChoice(QStringLiteral("统计方式"), QStringLiteral("unit"),
        { QStringLiteral("日报"), QStringLiteral("月报") });
    screen->setJobMaker([f, inward]() -> ReportRunner::Job {
        const statistics::ReportFilter filter = f->filter();
        const statistics::PeriodUnit unit = f->choice(QStringLiteral("unit"))->currentIndex() == 1
            ? statistics::PeriodUnit::Month
            : statistics::PeriodUnit::Day;
        return [filter, unit, inward](const shell::Session &session, const statistics::Progress &) {
            return tableFrom(inward ? statistics::inwardByPeriod(session, filter, unit)
                                    : statistics::outwardByPeriod(session, filter, unit),
                [](const PeriodMovementRow &r) {
                    QVariantList cells { r.period };
                    for (int g = 0; g < 3; ++g)
                        cells << r.quantity[g] << r.amount[g];
                    return cells << r.totalQuantity << r.totalAmount;
                });
        };
    });
    screen->rememberColumns();
    return screen;
}

QList<ReportColumn> purchaseColumns()
{
    return { column(QStringLiteral("编号"), CellKind::Text),
        column(QStringLiteral("名称"), CellKind::Text),
        column(QStringLiteral("规格"), CellKind::Text),
        column(QStringLiteral("单位"), CellKind::Text),
        column(QStringLiteral("单据数"), CellKind::Count, true),
        column(QStringLiteral("进货数量"), CellKind::Quantity, true),
        column(QStringLiteral("进货金额"), CellKind::Amount, true),
        column(QStringLiteral("退货数量"), CellKind::Quantity, true),
        column(QStringLiteral("退货金额"), CellKind::Amount, true),
        column(QStringLiteral("净进货数量"), CellKind::Quantity, true),
        column(QStringLiteral("净进货金额"), CellKind::Amount, true) };
}

QVariantList purchaseCells(const PurchaseRow &r)
{
    return { r.key, r.name, r.packing, r.unit, r.documents, r.quantity, r.amount, r.returnQuantity,
        r.returnAmount, r.netQuantity, r.netAmount };
}

ReportScreen *purchaseScreen(Workspace &workspace, bool byEmployee)
{
    auto *screen = new ReportScreen(workspace,
        byEmployee ? QStringLiteral("业务员采购统计") : QStringLiteral("商品采购统计"),
        purchaseColumns());
    FilterBar *f = screen->filters();
    f->addRange();
    f->addWarehouse();
    f->addClass();
    f->addKeyword();
    if (!byEmployee)
        f->addChoice(QStringLiteral("统计方式"), QStringLiteral("grouping"),
            { QStringLiteral("按商品"), QStringLiteral("按类别"), QStringLiteral("按供货商") });
    else {
        screen->model()->setCaption(0, QStringLiteral("业务员"));
        screen->model()->setCaption(1, QStringLiteral("姓名"));
    }
    screen->setJobMaker([f, screen, byEmployee]() -> ReportRunner::Job {
        const statistics::ReportFilter filter = f->filter();
        statistics::PurchaseGrouping grouping = statistics::PurchaseGrouping::Employee;
        if (!byEmployee) {
            const int chosen = f->choice(QStringLiteral("grouping"))->currentIndex();
            grouping = statistics::PurchaseGrouping(chosen);
            screen->model()->setCaption(0,
                QStringList { QStringLiteral("商品编号"), QStringLiteral("类别编号"),
                    QStringLiteral("供货商编号") }
                    .value(chosen));
        }
        return [filter, grouping](const shell::Session &session, const statistics::Progress &) {
            return tableFrom(statistics::purchasesBy(session, filter, grouping), purchaseCells);
        };
    });
    screen->rememberColumns();
    return screen;
}

} // namespace

ReportScreen *makeInwardScreen(Workspace &workspace)
{
    return makePeriodScreen(workspace, true);
}

ReportScreen *makeOutwardScreen(Workspace &workspace)
{
    return makePeriodScreen(workspace, false);
}

ReportScreen *makePurchaseScreen(Workspace &workspace)
{
    return purchaseScreen(workspace, false);
}

ReportScreen *makeBuyerScreen(Workspace &workspace)
{
    return purchaseScreen(workspace, true);
}

} // namespace medistock::ui::stats
