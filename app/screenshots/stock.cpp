#include "app/screenshots/stock.h"

#include "documents/goodslookup.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "shell/session.h"
#include "ui/common/codenamefield.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentlist.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/linegrid.h"
#include "ui/documents/pickers.h"
#include "ui/shell/mainwindow.h"
#include "ui/stock/alarmscreen.h"
#include "ui/stock/averagescreen.h"
#include "ui/stock/countkind.h"
#include "ui/stock/stockkinds.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableView>

using namespace medistock;

namespace {

ui::DocumentScreen *openStockScreen(ui::MainWindow &window, int position)
{
    window.openOperation(QStringLiteral("kcgl"), position);
    return qobject_cast<ui::DocumentScreen *>(window.tabs()->currentWidget());
}

// A line of the goods as picking it gives it (an outgoing line with its proposed batch).
ui::LineEntry pickedLine(ui::DocumentScreen &screen, const char *goods, const char *quantity)
{
    ui::LineEntry line = screen.lineFor(*documents::goodsChoice(
        screen.workspace().session, QString::fromLatin1(goods), screen.warehouseCode()));
    line.quantity = QString::fromLatin1(quantity);
    return line;
}

void shootTransfer(const Shots &shots, ui::MainWindow &window)
{
    ui::DocumentScreen *screen = openStockScreen(window, 1);
    screen->appendLines(
        { pickedLine(*screen, "10020001", "5"), pickedLine(*screen, "10010001", "4") });
    screen->noteField()->setText(QStringLiteral("城西分店补货"));
    screen->grid()->setCurrentIndex(
        screen->lines()->index(0, screen->lines()->columnOf(ui::LineField::Batch)));
    shots.shoot(&window, QStringLiteral("160-transfer"));
    const auto picker = ui::makeBatchPicker(
        screen->kind().batchChoices(screen->workspace().session, QStringLiteral("10020001"),
            screen->warehouseCode(), screen->date()),
        &window);
    shots.shootOver(&window, picker.get(), QStringLiteral("161-transfer-batch-picker"));
    picker->hide();
    screen->save();
    screen->check();
    shots.shoot(&window, QStringLiteral("162-transfer-checked"));
    ui::TransferListDialog list(*screen);
    list.list()->grid()->selectRow(0);
    shots.shootOver(&window, &list, QStringLiteral("163-transfer-query"));
    list.hide();
}

void shootCount(const Shots &shots, ui::MainWindow &window)
{
    ui::DocumentScreen *screen = openStockScreen(window, 2);
    auto &kind = static_cast<ui::CountScreenKind &>(screen->kind());
    kind.makeSheet();
    screen->grid()->finishEditing();
    ui::LineEntry counted = screen->lines()->line(1);
    counted.quantity = QStringLiteral("3");
    screen->lines()->replaceLine(1, counted);
    screen->noteField()->setText(QStringLiteral("月末盘点"));
    screen->grid()->setCurrentIndex(
        screen->lines()->index(1, screen->lines()->columnOf(ui::LineField::Quantity)));
    shots.shoot(&window, QStringLiteral("164-stock-taking"));
}

void shootLossOverflow(const Shots &shots, ui::MainWindow &window)
{
    window.openOperation(QStringLiteral("kcgl"), 3);
    auto *pages = qobject_cast<ui::LossOverflowScreen *>(window.tabs()->currentWidget());
    ui::DocumentScreen *loss = pages->lossScreen();
    loss->appendLines({ pickedLine(*loss, "10010001", "2") });
    loss->noteField()->setText(QStringLiteral("包装破损"));
    shots.shoot(&window, QStringLiteral("165-loss"));
    pages->setCurrentWidget(pages->overflowScreen());
    ui::DocumentScreen *overflow = pages->overflowScreen();
    ui::LineEntry found = pickedLine(*overflow, "10020001", "1");
    found.batch = QStringLiteral("A2411");
    found.expiry = QStringLiteral("2028-10-31");
    overflow->appendLines({ found });
    overflow->noteField()->setText(QStringLiteral("盘点发现"));
    shots.shoot(&window, QStringLiteral("166-overflow"));
}

void shootQueries(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    // Minimums for the alarm, set as the goods dialog sets them.
    const masterdata::MasterKind &goodsKind = *masterdata::findMasterKind(QStringLiteral("goods"));
    for (const auto &[goods, minimum] :
        { std::pair { "10020001", 1500 }, std::pair { "10010001", 600 } })
        masterdata::updateMasterRow(workspace.session, goodsKind, QString::fromLatin1(goods),
            { { QStringLiteral("g_zdkc"), minimum } });
    window.openOperation(QStringLiteral("kcgl"), 4);
    auto *alarms = qobject_cast<ui::StockAlarmScreen *>(window.tabs()->currentWidget());
    alarms->run();
    shots.shoot(&window, QStringLiteral("167-stock-alarm"));
    window.openOperation(QStringLiteral("kcgl"), 18);
    auto *average = qobject_cast<ui::AverageScreen *>(window.tabs()->currentWidget());
    average->goodsField()->setChoice(QStringLiteral("10020001"), QStringLiteral("阿莫西林胶囊"));
    average->warehouseBox()->setCurrentIndex(
        average->warehouseBox()->findData(QStringLiteral("100001")));
    average->refresh();
    average->averageField()->setText(QStringLiteral("6.50"));
    shots.shoot(&window, QStringLiteral("169-average"));
}

} // namespace

void shootStock(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    window.resize(1366, 768);
    shootTransfer(shots, window);
    shootCount(shots, window);
    shootLossOverflow(shots, window);
    shootQueries(shots, window, workspace);
}
