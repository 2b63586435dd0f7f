#include "ui/statistics/jxcscreen.h"

#include "core/interaction.h"
#include "statistics/costsync.h"
#include "statistics/jxc.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/statistics/filterbar.h"
#include "ui/statistics/movementscreen.h"
#include "ui/statistics/texts.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableView>

namespace medistock::ui::stats {

namespace {

using statistics::JxcRow;

// A message box holds this many goods; the grid shows them all.
constexpr int listedInMessage = 30;

QList<ReportColumn> jxcColumns()
{
    const auto c = [](const char *caption, CellKind kind, bool summed = false, bool cost = false) {
        return ReportColumn { QString::fromUtf8(caption), kind, summed, cost };
    };
    return { c("商品编号", CellKind::Text), c("商品名称", CellKind::Text, false, false),
        c("规格", CellKind::Text), c("单位", CellKind::Text), c("类别", CellKind::Text),
        c("期初数量", CellKind::Quantity, true), c("期初金额", CellKind::Amount, true, true),
        c("入库数量", CellKind::Quantity, true), c("入库金额", CellKind::Amount, true, true),
        c("出库数量", CellKind::Quantity, true), c("出库金额", CellKind::Amount, true, true),
        c("结存数量", CellKind::Quantity, true), c("结存金额", CellKind::Amount, true, true),
        c("差额", CellKind::Amount, true, true) };
}

RunResult tableOf(const QList<JxcRow> &rows)
{
    RunResult result { true, {}, {} };
    for (const JxcRow &r : rows) {
        result.table.rows.append({ r.goods, r.name, r.packing, r.unit, r.className,
            r.openingQuantity, r.openingAmount, r.inQuantity, r.inAmount, r.outQuantity,
            r.outAmount, r.closingQuantity, r.closingAmount, r.difference });
        result.table.keys.append(r.goods);
    }
    return result;
}

QString differenceText(const QList<JxcRow> &rows)
{
    if (rows.size() <= listedInMessage)
        return statistics::differenceMessage(rows);
    return statistics::differenceMessage(rows.mid(0, listedInMessage))
        + texts::moreDifferences(int(rows.size()));
}

} // namespace

JxcScreen::JxcScreen(Workspace &workspace, QWidget *parent)
    : ReportScreen(workspace, QStringLiteral("进销存统计"), jxcColumns(), parent)
{
    FilterBar *f = filters();
    f->addRange();
    f->addWarehouse();
    f->addClass();
    f->addKeyword();
    f->addChoice(QStringLiteral("计价"), QStringLiteral("valuation"),
        { QStringLiteral("成本价"), QStringLiteral("售价") });
    grid()->setColumnWidth(1, 160);
    m_check = addButton(texts::checkButton(), [this] { checkDifferences(); });
    m_check->setShortcut(QKeySequence(Qt::Key_F9));
    m_sync = addButton(texts::syncButton(), [this] { syncCosts(); });
    setJobMaker([this]() -> ReportRunner::Job {
        const statistics::ReportFilter filter = currentFilter();
        const statistics::JxcRequest request { filter.range, filter.warehouse,
            filters()->choice(QStringLiteral("valuation"))->currentIndex() == 1
                ? statistics::Valuation::Price
                : statistics::Valuation::Cost };
        const statistics::JxcFilter narrowing { filter.classCode, filter.keyword };
        return [request, narrowing](const shell::Session &session,
                   const statistics::Progress &progress) -> RunResult {
            if (!statistics::buildJxcSummary(session, request, progress))
                return {};
            return tableOf(statistics::jxcRows(session, narrowing));
        };
    });
    setOpener([this](const QString &) { openMovements(); });
    connect(this, &ReportScreen::finished, this, [this](bool shown) {
        if (m_checkAfterRun && shown)
            showDifferences();
        m_checkAfterRun = false;
    });
    rememberColumns();
}

statistics::ReportFilter JxcScreen::currentFilter() const
{
    return filters()->filter();
}

MovementDialog *JxcScreen::openMovements()
{
    const int row = grid()->currentIndex().row();
    if (row < 0 || row >= model()->dataRows())
        return nullptr;
    const QString goods = model()->table().keys.value(row);
    const statistics::Valuation valuation
        = filters()->choice(QStringLiteral("valuation"))->currentIndex() == 1
        ? statistics::Valuation::Price
        : statistics::Valuation::Cost;
    auto *dialog = new MovementDialog(
        workspace(), goods, model()->text(row, 1), currentFilter(), valuation, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    return dialog;
}

void JxcScreen::checkDifferences()
{
    if (running())
        return;
    if (model()->dataRows() == 0) {
        m_checkAfterRun = true;
        run();
        return;
    }
    showDifferences();
}

// The check reads the rows the last run built; the grid keeps only the goods with a difference.
void JxcScreen::showDifferences()
{
    const statistics::ReportFilter filter = currentFilter();
    const QList<JxcRow> rows
        = statistics::jxcDifferences(workspace().session, { filter.classCode, filter.keyword });
    model()->setTable(tableOf(rows).table);
    countLabel()->setText(ui::texts::rowCount(model()->dataRows()));
    workspace().session.ui().inform(differenceText(rows));
}

void JxcScreen::syncCosts()
{
    if (running())
        return;
    QProgressDialog progress(texts::syncing(), texts::cancelButton(), 0, 0, this);
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumDuration(300);
    const Result<statistics::CostSyncSummary> synced = statistics::syncOutwardCosts(
        workspace().session, currentFilter().range, [&](int done, int total) {
            progress.setMaximum(total);
            progress.setValue(done);
            QApplication::processEvents();
            return !progress.wasCanceled();
        });
    const bool cancelled = progress.wasCanceled();
    progress.close();
    if (!synced) {
        // Refusals were told by the operation; a cancel is told here.
        if (cancelled)
            workspace().session.ui().inform(synced.message());
        return;
    }
    workspace().session.ui().inform(texts::synced(synced->rowsChanged, synced->linesChanged));
    run();
}

} // namespace medistock::ui::stats
