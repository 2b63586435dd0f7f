#include "ui/statistics/movementscreen.h"

#include "ui/common/workspace.h"
#include "ui/statistics/documentdialog.h"
#include "ui/statistics/filterbar.h"
#include "ui/statistics/reportscreen.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QTableView>
#include <QVBoxLayout>

namespace medistock::ui::stats {

namespace {

using statistics::MovementRow;

QList<ReportColumn> movementColumns()
{
    const auto c = [](const char *caption, CellKind kind, bool summed = false, bool cost = false) {
        return ReportColumn { QString::fromUtf8(caption), kind, summed, cost };
    };
    return { c("商品编号", CellKind::Text), c("商品名称", CellKind::Text),
        c("日期", CellKind::Text), c("单据号", CellKind::Text), c("类型", CellKind::Text),
        c("仓库", CellKind::Text), c("往来单位", CellKind::Text), c("批号", CellKind::Text),
        c("入库单价", CellKind::Price, false, true), c("入库数量", CellKind::Quantity, true),
        c("入库金额", CellKind::Amount, true, true), c("出库单价", CellKind::Price, false, true),
        c("出库数量", CellKind::Quantity, true), c("出库金额", CellKind::Amount, true, true),
        c("结存数量", CellKind::Quantity), c("结存金额", CellKind::Amount, false, true) };
}

QVariant optional(const std::optional<double> &value)
{
    return value ? QVariant(*value) : QVariant();
}

QVariantList cellsOf(const MovementRow &r)
{
    return { r.goods, r.goodsName, r.date, r.number, statistics::kindName(r.kind), r.warehouseName,
        r.partyName, r.batch, optional(r.inPrice), optional(r.inQuantity), optional(r.inAmount),
        optional(r.outPrice), optional(r.outQuantity), optional(r.outAmount), r.stock,
        r.stockValue };
}

RunResult tableOf(const Result<QList<MovementRow>> &rows)
{
    if (!rows)
        return {};
    RunResult result { true, {}, {} };
    for (const MovementRow &r : rows.value()) {
        result.table.rows.append(cellsOf(r));
        result.table.keys.append(r.number);
    }
    return result;
}

} // namespace

ReportScreen *makeMovementScreen(Workspace &workspace, const QString &goods, QWidget *parent)
{
    auto *screen = new ReportScreen(workspace,
        goods.isEmpty() ? QStringLiteral("库存变动查询") : QStringLiteral("商品进销存明细"),
        movementColumns(), parent);
    FilterBar *f = screen->filters();
    f->addRange();
    f->addWarehouse();
    if (goods.isEmpty()) {
        f->addClass();
        f->addKeyword();
    }
    f->addChoice(QStringLiteral("排序"), QStringLiteral("order"),
        { QStringLiteral("按商品"), QStringLiteral("按仓库") });
    f->addChoice(QStringLiteral("计价"), QStringLiteral("valuation"),
        { QStringLiteral("成本价"), QStringLiteral("售价") });
    screen->setJobMaker([f, goods, right = goods.isEmpty() ? 7 : 13]() -> ReportRunner::Job {
        statistics::MovementQuery query;
        query.filter = f->filter();
        query.filter.goods = goods;
        query.byWarehouse = f->choice(QStringLiteral("order"))->currentIndex() == 1;
        query.valuation = f->choice(QStringLiteral("valuation"))->currentIndex() == 1
            ? statistics::Valuation::Price
            : statistics::Valuation::Cost;
        return [query, right](const shell::Session &session, const statistics::Progress &) {
            return tableOf(statistics::movementRows(session, query, right));
        };
    });
    screen->setOpener([&workspace, screen](const QString &number) {
        DocumentDialog::open(workspace, number, screen);
    });
    screen->rememberColumns();
    if (!goods.isEmpty()) {
        screen->grid()->setColumnHidden(0, true);
        screen->grid()->setColumnHidden(1, true);
        screen->model()->setTotalsLabelColumn(2);
    }
    return screen;
}

MovementDialog::MovementDialog(Workspace &workspace, const QString &goods, const QString &name,
    const statistics::ReportFilter &filter, statistics::Valuation valuation, QWidget *parent)
    : QDialog(parent)
    , m_screen(makeMovementScreen(workspace, goods, this))
{
    setWindowTitle(QStringLiteral("商品进销存明细 - %1 %2").arg(goods, name));
    FilterBar *f = m_screen->filters();
    f->from()->setDate(QDate::fromString(filter.range.from, QStringLiteral("yyyy-MM-dd")));
    f->to()->setDate(QDate::fromString(filter.range.to, QStringLiteral("yyyy-MM-dd")));
    f->warehouses()->setCurrentIndex(qMax(0, f->warehouses()->findData(filter.warehouse)));
    f->choice(QStringLiteral("valuation"))
        ->setCurrentIndex(valuation == statistics::Valuation::Price ? 1 : 0);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_screen);
    resize(1280, 600);
    m_screen->run();
}

} // namespace medistock::ui::stats
