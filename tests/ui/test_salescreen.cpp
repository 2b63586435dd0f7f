// The sale keyed as a clerk keys it (customer, goods by mnemonic and barcode, a batch picked
// over the one proposed), and what the database holds afterwards compared with the same sale
// saved and checked on the command line; the rights that shape the sale screen; its print.
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "purchasing/entry.h"
#include "purchasing/receipt.h"
#include "sales/entry.h"
#include "sales/orders.h"
#include "sales/salecheck.h"
#include "tests/support/businessrows.h"
#include "tests/support/cli.h"
#include "tests/support/documentrows.h"
#include "tests/ui/keyboard.h"
#include "tests/ui/previews.h"
#include "tests/ui/salescreentest.h"
#include "tests/ui/uitest.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/picker.h"
#include "ui/common/screenregistry.h"
#include "ui/documents/documentlist.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/linegrid.h"
#include "ui/documents/sourcelinesdialog.h"
#include "ui/reports/printing.h"
#include "ui/sales/orderlinesdialog.h"
#include "ui/sales/registration.h"
#include "ui/sales/salekinds.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

using namespace medistock;
using medistock::test::Keyboard;

using medistock::test::SaleScreenTest;

// The clerk keys a three-line sale to a level-1 customer: a mnemonic whose line shows the
// level-1 price and the batch expiring first, overridden from the batch picker (F4), then two
// barcodes. F3 asks the prepayment question (nothing was paid, nothing is prepaid) and the save
// text, F5 the prepayment question again. The file then holds exactly what the command line
// writes for the same sale typed without prices.
TEST_F(SaleScreenTest, AKeyedSaleWritesWhatTheCommandLineWrites)
{
    const QString cliFolder = QDir(folder()).filePath(QStringLiteral("cli"));
    ASSERT_TRUE(QDir().mkpath(cliFolder));
    const QStringList copy = copySet(cliFolder);

    auto screen = openSale();
    keys.setWindow(screen.get());
    EXPECT_EQ(QApplication::focusWidget(), screen->partyField());
    keys.type(QStringLiteral("hkyd"));
    keys.press(Qt::Key_Return);
    EXPECT_EQ(screen->partyCode(), QStringLiteral("100002"));

    keys.type(QStringLiteral("amx"));
    keys.press(Qt::Key_Return);
    EXPECT_EQ(cell(*screen, 0, ui::LineField::Price), QStringLiteral("11.50"));
    EXPECT_EQ(cell(*screen, 0, ui::LineField::Batch), QStringLiteral("A1"));
    keys.onDialog<ui::PickerDialog>([this](ui::PickerDialog &picker) {
        EXPECT_EQ(picker.rowCount(), 2);
        EXPECT_EQ(picker.grid()->currentRow(), 0);
        keys.press(Qt::Key_Down);
        keys.press(Qt::Key_Return);
    });
    keys.press(Qt::Key_F4);
    EXPECT_FALSE(keys.waiting());
    EXPECT_EQ(cell(*screen, 0, ui::LineField::Batch), QStringLiteral("A2"));
    EXPECT_EQ(cell(*screen, 0, ui::LineField::Expiry), QStringLiteral("2026-12-31"));
    keys.type(QStringLiteral("10"));
    keys.press(Qt::Key_Return);
    keys.press(Qt::Key_Return);
    keyLine(QStringLiteral("6901234500021"), QStringLiteral("5"));
    keyLine(QStringLiteral("6901234500038"), QStringLiteral("2"));
    ASSERT_EQ(screen->lines()->rowCount(), 4);
    EXPECT_EQ(cell(*screen, 1, ui::LineField::Price), QStringLiteral("7.60"));
    EXPECT_EQ(cell(*screen, 1, ui::LineField::Batch), QStringLiteral("B1"));
    EXPECT_EQ(cell(*screen, 2, ui::LineField::Amount), QStringLiteral("28.00"));
    // 115 + 38 + 28
    EXPECT_EQ(screen->capitalsLabel()->text(), QStringLiteral("大写：壹佰捌拾壹元整"));

    ui.setDefaultAnswer(true);
    keys.press(Qt::Key_F3);
    const QString number = screen->number();
    EXPECT_EQ(number, QStringLiteral("XS25031410001"));
    const QString prepayment = QStringLiteral(
        "该客户当前的预付款余额为：0，\r\n\r\n不足以支付本单的金额。\r\n\r\n继续保存吗？");
    EXPECT_EQ(ui.asked,
        (QStringList { prepayment,
            QStringLiteral("单据保存后处于“未审核”状态，是否确认保存？\r\n\r\n处于“未审核”状态的"
                           "销售单，可以在“待审核销\r\n\r\n售单”面板中，进行修改及审核操作！") }));
    ui.clear();
    keys.press(Qt::Key_F5);
    EXPECT_EQ(ui.asked, QStringList { prepayment });
    // 5 for the customer; 4 for the mnemonic, F4, Down and Enter in the batch picker, 4 for the
    // quantity and the price kept; 18 for each barcode line (13 digits and Enter, Enter keeping
    // the batch, a digit and Enter, Enter keeping the price); F3 and F5.
    EXPECT_EQ(keys.count(), 54);
    EXPECT_TRUE(ui.informed.isEmpty()) << ui.informed.join(QLatin1Char('|')).toStdString();
    EXPECT_TRUE(screen->isChecked());
    EXPECT_EQ(screen->statusLabel()->text(),
        QStringLiteral("状态：已审核　审核人：admin　审核日期：2025-03-14"));
    EXPECT_EQ(batchStock(QStringLiteral("10000001"), QStringLiteral("A1")), 20);
    EXPECT_EQ(batchStock(QStringLiteral("10000001"), QStringLiteral("A2")), 10);

    QFile json(QDir(folder()).filePath(QStringLiteral("sale.json")));
    ASSERT_TRUE(json.open(QIODevice::WriteOnly));
    json.write(R"({"kind":"XS","ls_xsrq":"2025-03-14","kh_sn":"100002","ck_sn":"100001","lines":[
        {"g_sn":"10000001","ls_sl":10,"t_ph":"A2","t_yxq":"2026-12-31"},
        {"g_sn":"10000002","ls_sl":5,"t_ph":"B1","t_yxq":"2026-06-30"},
        {"g_sn":"10000003","ls_sl":2,"t_ph":"G1","t_yxq":"2026-03-31"}]})");
    json.close();
    const QStringList global = copy
        + QStringList { QStringLiteral("--today"), QStringLiteral("2025-03-14"),
              QStringLiteral("--yes") };
    const test::CliRun saved
        = test::runCli(global + QStringList { QStringLiteral("save"), json.fileName() });
    ASSERT_EQ(saved.status, 0) << saved.err.toStdString();
    EXPECT_EQ(saved.out.trimmed(), number);
    const test::CliRun checked
        = test::runCli(global + QStringList { QStringLiteral("check"), number });
    ASSERT_EQ(checked.status, 0) << checked.err.toStdString();

    auto cli = openCopy(cliFolder);
    EXPECT_EQ(
        test::rowDifferences(test::businessRows(*cli), test::businessRows(db())), QStringList());
    EXPECT_EQ(db().firstText(
                  QStringLiteral("select count(*) from jxc_goodslist where gl_djh=?"), { number }),
        QStringLiteral("3"));
}

// Without "显示商品销售价" the price, amount and total columns are not there at all; without
// "商品销售审核", "商品销售取消审核" and "允许删除商品销售待审核单据" their buttons are disabled
// with the reason, and the check key does nothing; without "允许在商品销售待审核界面添加商品" a
// saved sale's goods stay as they are.
TEST_F(SaleScreenTest, RightsShapeTheSaleScreen)
{
    addOperatorWithRights(QStringLiteral("小李"),
        { { QStringLiteral("xsgl"), QStringLiteral("100000") },
            { QStringLiteral("qtcz"), QStringLiteral("11111111") } });
    switchOperator(QStringLiteral("小李"));
    auto screen = openSale();
    keys.setWindow(screen.get());
    for (ui::LineField hidden :
        { ui::LineField::Price, ui::LineField::Amount, ui::LineField::Total })
        EXPECT_EQ(screen->lines()->columnOf(hidden), -1);
    EXPECT_GE(screen->lines()->columnOf(ui::LineField::Quantity), 0);
    EXPECT_FALSE(screen->checkButton()->isEnabled());
    EXPECT_EQ(screen->checkButton()->toolTip(), QStringLiteral("您没有“商品销售审核”的权限！"));

    keys.type(QStringLiteral("hkyd"));
    keys.press(Qt::Key_Return);
    keyLine(QStringLiteral("6901234500021"), QStringLiteral("5"));
    ui.setDefaultAnswer(true);
    keys.press(Qt::Key_F3);
    ASSERT_EQ(screen->number(), QStringLiteral("XS25031410001"));
    // The price the screen could not show was still proposed and saved.
    EXPECT_EQ(db().firstText(QStringLiteral("select ls_dj from jxc_lsxssp where gl_djh=?"),
                  { screen->number() }),
        QStringLiteral("7.6"));
    EXPECT_FALSE(screen->deleteButton()->isEnabled());
    EXPECT_EQ(screen->deleteButton()->toolTip(),
        QStringLiteral("您没有“允许删除商品销售待审核单据”的权限！"));
    // Without "允许在商品销售待审核界面添加商品" the saved sale takes no further goods.
    EXPECT_FALSE(screen->lines()->isAddingAllowed());
    EXPECT_FALSE(screen->lines()->flags(
                     screen->lines()->index(0, screen->lines()->columnOf(ui::LineField::Code)))
        & Qt::ItemIsEditable);
    ui.clear();
    keys.press(Qt::Key_F5);
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_FALSE(screen->isChecked());
    EXPECT_EQ(db().firstText(QStringLiteral("select ls_status from jxc_lsxsd where gl_djh=?"),
                  { screen->number() }),
        QStringLiteral("0"));
}

// A return taken from the checked sale's lines (F10, Enter, Space, Enter) is limited to what was
// sold: 11 of the 10 sold is refused with the limit and the grid keeps the 11; 4 goes through,
// comes back into the batch sold, and leaves 6 to return on the next return taken from the sale.
TEST_F(SaleScreenTest, AReturnFromASaleIsLimitedToWhatWasSold)
{
    const QString sale = checkedSale();
    ASSERT_EQ(batchStock(QStringLiteral("10000001"), QStringLiteral("A2")), 10);
    auto back = openReturn();
    keys.setWindow(back.get());
    keys.type(QStringLiteral("hkyd"));
    keys.press(Qt::Key_Return);
    const auto takeFirstLine = [this, sale](const QString &left) {
        keys.onDialog<ui::SourceLinesDialog>([this, sale, left](ui::SourceLinesDialog &dialog) {
            EXPECT_EQ(dialog.sourceGrid()->item(0, 0)->text(), sale);
            keys.press(Qt::Key_Return);
            EXPECT_EQ(dialog.lineGrid()->item(0, 9)->text(), left);
            keys.press(Qt::Key_Space);
            keys.press(Qt::Key_Return);
        });
        keys.press(Qt::Key_F10);
        EXPECT_FALSE(keys.waiting());
    };
    takeFirstLine(QStringLiteral("10"));
    ASSERT_EQ(back->lines()->rowCount(), 2);
    EXPECT_EQ(cell(*back, 0, ui::LineField::Quantity), QStringLiteral("10"));
    EXPECT_EQ(cell(*back, 0, ui::LineField::Batch), QStringLiteral("A2"));
    EXPECT_EQ(cell(*back, 0, ui::LineField::Price), QStringLiteral("11.50"));

    back->grid()->editCell(0, ui::LineField::Quantity);
    keys.type(QStringLiteral("11"));
    keys.press(Qt::Key_Return);
    ui.setDefaultAnswer(true);
    keys.press(Qt::Key_F3);
    EXPECT_EQ(ui.informed,
        QStringList { QStringLiteral("第1行：退货数量超过销售单“%1”的可退数量 10！").arg(sale) });
    EXPECT_EQ(cell(*back, 0, ui::LineField::Quantity), QStringLiteral("11"));
    EXPECT_EQ(back->number(), QString());
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_xsthd")), 0);

    ui.clear();
    back->grid()->editCell(0, ui::LineField::Quantity);
    keys.type(QStringLiteral("4"));
    keys.press(Qt::Key_Return);
    keys.press(Qt::Key_F3);
    EXPECT_EQ(back->number(), QStringLiteral("XT25031410001"));
    EXPECT_EQ(ui.asked,
        QStringList {
            QStringLiteral("单据保存后处于“未审核”状态，是否确认保存？\r\n\r\n处于“未审核”"
                           "状态的退货单，可以在“待审核\r\n\r\n退货单”面板中，进行修改及"
                           "审核操作！") });
    keys.press(Qt::Key_F5);
    EXPECT_TRUE(back->isChecked());
    EXPECT_TRUE(ui.informed.isEmpty()) << ui.informed.join(QLatin1Char('|')).toStdString();
    EXPECT_EQ(batchStock(QStringLiteral("10000001"), QStringLiteral("A2")), 14);
    // 4 at 11.50, stored negated.
    EXPECT_EQ(db().firstText(QStringLiteral("select th_yfje from jxc_xsthd where gl_djh=?"),
                  { back->number() }),
        QStringLiteral("-46"));

    keys.press(Qt::Key_F2);
    keys.type(QStringLiteral("hkyd"));
    keys.press(Qt::Key_Return);
    takeFirstLine(QStringLiteral("6"));
    EXPECT_EQ(cell(*back, 0, ui::LineField::Quantity), QStringLiteral("6"));
}

// An order of 10 of which a checked sale delivered 4 is offered on "导入销售订单" (F10) with 6;
// taken over, the sale gets 6 at the order's price with the customer of the order, and its check
// delivers the rest of the order line.
TEST_F(SaleScreenTest, AnOrderPartlyDeliveredOffersWhatIsLeft)
{
    ui.setDefaultAnswer(true);
    sales::SaleDraft order;
    order.entry.date = QStringLiteral("2025-03-10");
    order.entry.party = QStringLiteral("100002");
    order.entry.warehouse = QStringLiteral("100001");
    documents::LineDraft line;
    line.goods = QStringLiteral("10000001");
    line.quantity = QStringLiteral("10");
    line.price = QStringLiteral("11");
    order.entry.lines = { line };
    const QString number = sales::saveSalesOrder(session(), order).value();
    ASSERT_TRUE(sales::checkSalesOrder(session(), number).ok());
    sales::SaleDraft first;
    first.entry.date = QStringLiteral("2025-03-14");
    ASSERT_TRUE(sales::takeOverOrder(session(), number, first).ok());
    first.entry.lines[0].quantity = QStringLiteral("4");
    first.entry.lines[0].batch = QStringLiteral("A1");
    first.entry.lines[0].expiry = QStringLiteral("2025-10-31");
    const QString sale = sales::saveSale(session(), first).value();
    ASSERT_TRUE(sales::checkSale(session(), sale).ok());
    const auto delivered = [&] {
        return db().firstText(
            QStringLiteral("select ls_cksl from jxc_xssp where gl_djh=?"), { number });
    };
    ASSERT_EQ(delivered(), QStringLiteral("4"));
    ui.clear();

    auto screen = openSale();
    keys.setWindow(screen.get());
    keys.onDialog<ui::OrderLinesDialog>([this, number](ui::OrderLinesDialog &dialog) {
        ASSERT_EQ(dialog.lineGrid()->rowCount(), 1);
        EXPECT_EQ(dialog.lineGrid()->item(0, 1)->text(), number);
        EXPECT_EQ(dialog.lineGrid()->item(0, 9)->text(), QStringLiteral("6"));
        keys.press(Qt::Key_Space);
        keys.press(Qt::Key_Return);
    });
    keys.press(Qt::Key_F10);
    EXPECT_FALSE(keys.waiting());
    EXPECT_EQ(screen->partyCode(), QStringLiteral("100002"));
    ASSERT_EQ(screen->lines()->rowCount(), 2);
    EXPECT_EQ(cell(*screen, 0, ui::LineField::Quantity), QStringLiteral("6"));
    EXPECT_EQ(cell(*screen, 0, ui::LineField::Price), QStringLiteral("11"));
    EXPECT_EQ(cell(*screen, 0, ui::LineField::Batch), QStringLiteral("A1"));
    keys.press(Qt::Key_F3);
    keys.press(Qt::Key_F5);
    EXPECT_TRUE(screen->isChecked());
    EXPECT_EQ(delivered(), QStringLiteral("10"));
    EXPECT_EQ(
        test::tableRows(db(), QStringLiteral("jxc_lsxssp"), QStringLiteral("ls_zsl,id3,gl_djh2"),
            QStringLiteral("gl_djh=?"), { screen->number() }),
        QStringList { QStringLiteral("6|%1|%2").arg(
            db().firstText(QStringLiteral("select id2 from jxc_xssp where gl_djh=?"), { number }),
            number) });
}

// An order keyed on its screen takes no batch and posts nothing: F3 saves it, F5 checks it, and
// a checked order offers no uncheck. The query of sales and returns then lists the sale and the
// return of the sale made from it, the return's amount negative.
TEST_F(SaleScreenTest, AnOrderIsKeyedAndTheQueryListsSalesWithReturns)
{
    ui::ScreenRegistry registry;
    ui::registerSalesScreens(registry);
    std::unique_ptr<QWidget> tab(registry.find(QStringLiteral("xsgl"), 15)->tab(workspace()));
    auto *order = qobject_cast<ui::DocumentScreen *>(tab.get());
    ASSERT_NE(order, nullptr);
    order->resize(1366, 700);
    order->show();
    order->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(order));
    order->setFocus();
    Keyboard::settle();
    keys.setWindow(order);
    keys.type(QStringLiteral("hkyd"));
    keys.press(Qt::Key_Return);
    keys.type(QStringLiteral("amx"));
    keys.press(Qt::Key_Return);
    keys.type(QStringLiteral("30"));
    keys.press(Qt::Key_Return);
    keys.press(Qt::Key_Return);
    EXPECT_EQ(cell(*order, 0, ui::LineField::Batch), QString());
    ui.setDefaultAnswer(true);
    keys.press(Qt::Key_F3);
    ASSERT_EQ(order->number(), QStringLiteral("XD25031410001"));
    keys.press(Qt::Key_F5);
    EXPECT_TRUE(order->isChecked());
    EXPECT_FALSE(order->uncheckButton()->isVisible());
    EXPECT_EQ(
        test::tableRows(db(), QStringLiteral("jxc_xssp"), QStringLiteral("ls_sl,ls_dj,ls_cksl"),
            QStringLiteral("gl_djh=?"), { order->number() }),
        QStringList { QStringLiteral("30|11.5|0") });
    EXPECT_EQ(batchStock(QStringLiteral("10000001"), QStringLiteral("A1")), 20);

    sales::SaleDraft sale;
    sale.entry.date = QStringLiteral("2025-03-14");
    ASSERT_TRUE(sales::takeOverOrder(session(), order->number(), sale).ok());
    const QString sold = sales::saveSale(session(), sale).value();
    ASSERT_TRUE(sales::checkSale(session(), sold).ok());
    sales::SaleDraft back;
    back.entry.date = QStringLiteral("2025-03-14");
    back.entry.party = QStringLiteral("100002");
    back.entry.warehouse = QStringLiteral("100001");
    documents::LineDraft line;
    line.goods = QStringLiteral("10000001");
    line.quantity = QStringLiteral("2");
    back.entry.lines = { line };
    ASSERT_TRUE(sales::saveSalesReturn(session(), back).ok());

    std::unique_ptr<QWidget> queryTab(registry.find(QStringLiteral("xsgl"), 4)->tab(workspace()));
    auto *query = qobject_cast<ui::DocumentListScreen *>(queryTab.get());
    ASSERT_NE(query, nullptr);
    query->fromField()->setText(QStringLiteral("2025-03-01"));
    query->run();
    EXPECT_EQ(test::gridColumn(*query, 1).mid(0, 2),
        (QStringList { sold, QStringLiteral("XT25031410001") }));
    // 30 at 11.5 sold, 2 at 11.5 back.
    EXPECT_EQ(test::gridColumn(*query, 8),
        (QStringList {
            QStringLiteral("345.00"), QStringLiteral("-23.00"), QStringLiteral("322.00") }));
}

// F8 on a checked sale prints it through its template into the preview: the customer, every
// goods, the total and the total in capitals as the clerk will see them on paper.
TEST_F(SaleScreenTest, F8PrintsTheSaleWithPreview)
{
    qputenv("MEDISTOCK_REPORT_DIR", MEDISTOCK_SOURCE_DIR "/report");
    ui::installPrinting(workspace());
    const QString sale = checkedSale();
    auto screen = openSale();
    keys.setWindow(screen.get());
    screen->openDocument(sale);
    keys.press(Qt::Key_F8);
    const QList<ui::PreviewDialog *> previews = test::visiblePreviews();
    ASSERT_EQ(previews.size(), 1);
    EXPECT_TRUE(previews.first()->windowTitle().endsWith(sale))
        << previews.first()->windowTitle().toStdString();
    const QString text = previews.first()->report().allText();
    for (const QString &wanted : { sale, QStringLiteral("华康药店"), QStringLiteral("阿莫西林胶囊"),
             QStringLiteral("板蓝根颗粒"), QStringLiteral("153.00"),
             QStringLiteral("壹佰伍拾叁元整") })
        EXPECT_TRUE(text.contains(wanted)) << wanted.toStdString();
    delete previews.first();
    qunsetenv("MEDISTOCK_REPORT_DIR");
}
