// The stock documents keyed on their screens (a transfer, a count sheet, a loss) and checked and
// unchecked there, the count sheet through .xlsx and back, and the stock lists exported.
#include "core/spreadsheet.h"
#include "stock/documents/entry.h"
#include "stock/documents/kinds.h"
#include "stock/documents/openingstock.h"
#include "stock/documents/transfer.h"
#include "tests/support/documentrows.h"
#include "tests/ui/keyboard.h"
#include "tests/ui/uitest.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/documents/documentlist.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/linegrid.h"
#include "ui/stock/alarmscreen.h"
#include "ui/stock/averagescreen.h"
#include "ui/stock/countkind.h"
#include "ui/stock/ledgerscreen.h"
#include "ui/stock/stockkinds.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

using namespace medistock;
using medistock::test::Keyboard;

namespace {

documents::LineDraft line(
    const char *goods, const char *quantity, const char *batch, const char *expiry)
{
    documents::LineDraft l;
    l.goods = QString::fromLatin1(goods);
    l.quantity = QString::fromLatin1(quantity);
    l.price = QStringLiteral("10");
    l.batch = QString::fromLatin1(batch);
    l.expiry = QString::fromLatin1(expiry);
    return l;
}

QStringList sheetRows(const QString &path)
{
    QStringList rows;
    const auto read = core::readXlsx(path);
    for (const QStringList &row : read.value())
        rows.append(row.join(QLatin1Char('|')));
    return rows;
}

} // namespace

// In 主仓库 (100001) on 03-01 at 10 a box: 阿莫西林胶囊 (10000001) 10 in A1 expiring
// 2026-06-30 and 5 in A2 expiring 2027-06-30, 感冒灵颗粒 (10000002) 4 in G1; 分店仓库 (100002)
// holds nothing. Today is 2025-03-14.
class StockDocumentScreensTest : public test::UiTest
{
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        if (HasFatalFailure())
            return;
        test::addBoxedGoods(
            session(), { QStringLiteral("阿莫西林胶囊"), QStringLiteral("感冒灵颗粒") });
        test::addWarehouse(db(), QStringLiteral("100002"), QStringLiteral("分店仓库"));
        const QString main = QStringLiteral("100001");
        stock::OpeningDraft opening { QStringLiteral("2025-03-01"),
            { { main, line("10000001", "10", "A1", "2026-06-30") },
                { main, line("10000001", "5", "A2", "2027-06-30") },
                { main, line("10000002", "4", "G1", "2026-12-31") } } };
        ASSERT_TRUE(stock::postOpeningStock(session(), opening).ok());
        ui.clear();
    }

    void open(ui::DocumentScreen &screen)
    {
        screen.resize(1366, 700);
        screen.show();
        screen.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
        keys.setWindow(&screen);
        screen.grid()->goToNewLine();
        Keyboard::settle();
    }

    // Each batch with stock or once held: goods, warehouse, batch and quantity.
    QStringList batches()
    {
        return test::queryRows(db(),
            QStringLiteral("select g_sn,ck_sn,t_ph,t_sl from jxc_tkc order by g_sn,ck_sn,t_ph"));
    }

    QString goodsTotals()
    {
        return test::queryRows(db(),
            QStringLiteral("select g_kc from jxc_goods where g_sn in (?,?) order by g_sn"),
            { QStringLiteral("10000001"), QStringLiteral("10000002") })
            .join(QLatin1Char('|'));
    }

    Keyboard keys;
};

// 3 boxes of the proposed batch A1 (the earliest expiry) go from 主仓库 to 分店仓库 at the cost
// 10; the goods totals stay; the uncheck (asked first) takes them back.
TEST_F(StockDocumentScreensTest, ATransferKeyedAndCheckedMovesTheBatchBetweenWarehouses)
{
    ui::DocumentScreen screen(workspace(), std::make_unique<ui::TransferScreenKind>());
    open(screen);
    auto &kind = static_cast<ui::TransferScreenKind &>(screen.kind());
    EXPECT_EQ(kind.receivingBox()->currentData().toString(), QStringLiteral("100002"));
    for (const char *typed : { "amx", "", "3", "" }) {
        keys.type(QString::fromLatin1(typed));
        keys.press(Qt::Key_Return);
    }
    ASSERT_EQ(screen.lines()->line(0).batch, QStringLiteral("A1"));
    EXPECT_EQ(screen.lines()->line(0).price, QStringLiteral("10.00"));
    keys.press(Qt::Key_F3);
    keys.press(Qt::Key_F5);
    EXPECT_TRUE(ui.informed.isEmpty()) << ui.informed.join(QLatin1Char('|')).toStdString();
    ASSERT_TRUE(screen.isChecked());
    EXPECT_EQ(screen.number(), QStringLiteral("DB25031410001"));
    EXPECT_EQ(test::tableRows(
                  db(), QStringLiteral("jxc_kcdbd"), QStringLiteral("ck_out,ck_in,db_status")),
        QStringList { QStringLiteral("100001|100002|1") });
    EXPECT_EQ(batches(),
        (QStringList { QStringLiteral("10000001|100001|A1|7"),
            QStringLiteral("10000001|100001|A2|5"), QStringLiteral("10000001|100002|A1|3"),
            QStringLiteral("10000002|100001|G1|4") }));
    EXPECT_EQ(goodsTotals(), QStringLiteral("15|4"));
    EXPECT_FALSE(kind.receivingBox()->isEnabled());

    ui.answerNext(true);
    keys.press(Qt::Key_F6);
    EXPECT_EQ(ui.asked,
        QStringList {
            QStringLiteral("您的操作将取消当前选中的已审核单据：DB25031410001，确认吗？") });
    EXPECT_FALSE(screen.isChecked());
    EXPECT_EQ(batches().value(0), QStringLiteral("10000001|100001|A1|10"));
    EXPECT_EQ(batches().value(2), QStringLiteral("10000001|100002|A1|0"));
    EXPECT_EQ(goodsTotals(), QStringLiteral("15|4"));
}

// The sheet of 主仓库 starts with the book quantities; a scan of 感冒灵颗粒's code opens its
// count, 3 is typed for 4: exactly that difference of -1 is posted, and the uncheck restores it.
TEST_F(StockDocumentScreensTest, ACountSheetPostsExactlyItsOneDifferenceAndUncheckRestoresIt)
{
    ui::DocumentScreen screen(workspace(), std::make_unique<ui::CountScreenKind>());
    open(screen);
    auto &kind = static_cast<ui::CountScreenKind &>(screen.kind());
    keys.press(Qt::Key_F10);
    ASSERT_EQ(screen.lines()->rowCount(), 4); // three batches and the blank line
    const auto cells = [&](int row) {
        QStringList texts;
        for (int column = 0; column < screen.lines()->columnCount(); ++column)
            texts.append(screen.lines()->index(row, column).data().toString());
        return texts.join(QLatin1Char('|'));
    };
    EXPECT_EQ(cells(2),
        QStringLiteral("3|10000002|感冒灵颗粒||盒|G1||2026-12-31|4.00|4|0.00|10.00|40.00"));
    EXPECT_EQ(screen.lines()->headerData(9, Qt::Horizontal, Qt::DisplayRole).toString(),
        QStringLiteral("盘点数量"));

    // The scanner types into its field and ends with Enter.
    kind.scanField()->setFocus();
    test::typeInto(kind.scanField(), QStringLiteral("10000002"));
    QTest::keyClick(kind.scanField(), Qt::Key_Return);
    Keyboard::settle();
    EXPECT_EQ(screen.grid()->currentIndex().row(), 2);
    keys.type(QStringLiteral("3"));
    keys.press(Qt::Key_Return);
    EXPECT_EQ(cells(2),
        QStringLiteral("3|10000002|感冒灵颗粒||盒|G1||2026-12-31|4.00|3|-1.00|10.00|30.00"));
    const auto background = [&](int row) {
        return screen.lines()->index(row, 1).data(Qt::BackgroundRole).value<QColor>();
    };
    EXPECT_TRUE(background(2).isValid());
    EXPECT_FALSE(background(0).isValid());

    keys.press(Qt::Key_F3);
    keys.press(Qt::Key_F5);
    EXPECT_TRUE(ui.informed.isEmpty()) << ui.informed.join(QLatin1Char('|')).toStdString();
    ASSERT_TRUE(screen.isChecked());
    const QString number = screen.number();
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_goodslist"),
                  QStringLiteral("gl_flag,g_sn,t_ph,gl_sl,gl_zje"), QStringLiteral("gl_djh=?"),
                  { number }),
        QStringList { QStringLiteral("pd|10000002|G1|-1|-10") });
    EXPECT_EQ(batches().value(2), QStringLiteral("10000002|100001|G1|3"));
    EXPECT_EQ(goodsTotals(), QStringLiteral("15|3"));

    ui.answerNext(true);
    keys.press(Qt::Key_F6);
    EXPECT_FALSE(screen.isChecked());
    EXPECT_EQ(batches().value(2), QStringLiteral("10000002|100001|G1|4"));
    EXPECT_EQ(goodsTotals(), QStringLiteral("15|4"));
    EXPECT_EQ(db().firstText(QStringLiteral("select count(*) from jxc_goodslist where gl_flag=?"),
                  { QStringLiteral("pd") }),
        QStringLiteral("0"));
}

// The sheet goes out to .xlsx with its book and counted quantities; counts typed into such a
// file come back onto their lines; a row naming a batch the sheet lacks refuses the whole file.
TEST_F(StockDocumentScreensTest, TheCountSheetGoesToXlsxAndTheCountsComeBack)
{
    ui::DocumentScreen screen(workspace(), std::make_unique<ui::CountScreenKind>());
    open(screen);
    auto &kind = static_cast<ui::CountScreenKind &>(screen.kind());
    kind.makeSheet();
    QTemporaryDir dir;
    const QString sheet = dir.filePath(QStringLiteral("sheet.xlsx"));
    ASSERT_TRUE(kind.exportSheet(sheet));
    EXPECT_EQ(sheetRows(sheet),
        (QStringList {
            QStringLiteral("商品编号|商品名称|规格|单位|批号|生产日期|有效期至|帐面数量|盘点数量"),
            QStringLiteral("10000001|阿莫西林胶囊||盒|A1||2026-06-30|10|10"),
            QStringLiteral("10000001|阿莫西林胶囊||盒|A2||2027-06-30|5|5"),
            QStringLiteral("10000002|感冒灵颗粒||盒|G1||2026-12-31|4|4") }));

    const QStringList header { QStringLiteral("商品编号"), QStringLiteral("商品名称"),
        QStringLiteral("规格"), QStringLiteral("单位"), QStringLiteral("批号"),
        QStringLiteral("生产日期"), QStringLiteral("有效期至"), QStringLiteral("帐面数量"),
        QStringLiteral("盘点数量") };
    const QString wrong = dir.filePath(QStringLiteral("wrong.xlsx"));
    ASSERT_TRUE(core::writeXlsx(wrong, QStringLiteral("盘点"), header,
        { { QStringLiteral("10000001"), QString(), QString(), QString(), QStringLiteral("A1"),
              QString(), QStringLiteral("2026-06-30"), 10, 8 },
            { QStringLiteral("10000001"), QString(), QString(), QString(), QStringLiteral("A9"),
                QString(), QStringLiteral("2026-06-30"), 0, 1 } })
                    .ok());
    ui.clear();
    EXPECT_FALSE(kind.importCounts(wrong));
    EXPECT_EQ(ui.informed,
        QStringList {
            QStringLiteral("盘点数量未导入：\r\n第3行：商品“10000001”批号“A9”不在盘点表中") });
    EXPECT_EQ(screen.lines()->line(0).quantity, QStringLiteral("10"));

    const QString counted = dir.filePath(QStringLiteral("counted.xlsx"));
    ASSERT_TRUE(core::writeXlsx(counted, QStringLiteral("盘点"), header,
        { { QStringLiteral("10000001"), QString(), QString(), QString(), QStringLiteral("A2"),
            QString(), QStringLiteral("2027-06-30"), 5,
            6.5 } }).ok());
    ui.clear();
    EXPECT_TRUE(kind.importCounts(counted));
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("已导入 1 行盘点数量") });
    EXPECT_EQ(screen.lines()->line(1).quantity, QStringLiteral("6.5"));
    EXPECT_EQ(screen.lines()->line(0).quantity, QStringLiteral("10"));
}

// A loss of 2 boxes of G1 keyed on its page lowers the stock; the overflow page is its own.
TEST_F(StockDocumentScreensTest, ALossKeyedOnItsPageLowersTheStock)
{
    ui::LossOverflowScreen screens(workspace());
    ui::DocumentScreen &loss = *screens.lossScreen();
    screens.resize(1366, 700);
    screens.show();
    screens.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screens));
    keys.setWindow(&screens);
    loss.grid()->goToNewLine();
    Keyboard::settle();
    for (const char *typed : { "gml", "", "2", "" }) {
        keys.type(QString::fromLatin1(typed));
        keys.press(Qt::Key_Return);
    }
    keys.press(Qt::Key_F3);
    keys.press(Qt::Key_F5);
    EXPECT_TRUE(ui.informed.isEmpty()) << ui.informed.join(QLatin1Char('|')).toStdString();
    ASSERT_TRUE(loss.isChecked());
    EXPECT_EQ(loss.number(), QStringLiteral("BS25031410001"));
    EXPECT_EQ(batches().value(2), QStringLiteral("10000002|100001|G1|2"));
    EXPECT_EQ(goodsTotals(), QStringLiteral("15|2"));
    EXPECT_FALSE(screens.overflowScreen()->isChecked());
    EXPECT_TRUE(screens.overflowScreen()->number().isEmpty());
}

// The lists export what they show: the transfers found by the query and the stock alarms.
TEST_F(StockDocumentScreensTest, TheStockListsExportWhatTheyShow)
{
    QTemporaryDir dir;
    db().exec(QStringLiteral("update jxc_goods set g_zdkc=20 where g_sn='10000001'"));
    ui::StockAlarmScreen alarms(workspace());
    EXPECT_EQ(test::gridRows(alarms),
        (QStringList { QStringLiteral("10000001|阿莫西林胶囊||盒||所有仓库|15.00|20.00|5.00"),
            QStringLiteral("合计||||||15.00||5.00") }));
    const QString alarmFile = dir.filePath(QStringLiteral("alarms.xlsx"));
    alarms.exportTo(alarmFile);
    EXPECT_EQ(sheetRows(alarmFile),
        (QStringList {
            QStringLiteral("商品编号|商品名称|规格|单位|生产厂商|仓库|库存数量|最低库存|短缺数量"),
            QStringLiteral("10000001|阿莫西林胶囊||盒||所有仓库|15|20|5"),
            QStringLiteral("合计||||||15||5") }));

    documents::DocumentDraft transfer;
    transfer.date = QStringLiteral("2025-03-14");
    transfer.warehouse = QStringLiteral("100001");
    transfer.secondWarehouse = QStringLiteral("100002");
    transfer.lines = { line("10000001", "2", "A2", "2027-06-30") };
    ASSERT_TRUE(stock::saveTransfer(session(), transfer).ok());
    ui::DocumentScreen screen(workspace(), std::make_unique<ui::TransferScreenKind>());
    ui::TransferListDialog dialog(screen);
    ui::DocumentListScreen &list = *dialog.list();
    ASSERT_EQ(list.model()->dataRows(), 1);
    const QString listFile = dir.filePath(QStringLiteral("transfers.xlsx"));
    list.exportTo(listFile);
    // The party and the amount, which a transfer does not keep, are neither shown nor exported;
    // numbers go out as numbers, so that 2.00 reads back as 2.
    EXPECT_EQ(sheetRows(listFile),
        (QStringList {
            QStringLiteral("单据号|日期|仓库|业务员|品种数|数量|状态|审核人|审核日期|操作员|备注"),
            QStringLiteral("DB25031410001|2025-03-14|主仓库|默认员工|1|2|未审核|||admin"),
            QStringLiteral("合计||||1|2") }));
    EXPECT_EQ(list.model()->text(0, 6), QStringLiteral("2.00"));
}

// A sheet counted on 03-10 cannot be unchecked once a counted goods moved in its warehouse on a
// later day; the refusal is shown and the sheet stays checked with its difference.
TEST_F(StockDocumentScreensTest, ACountSheetIsNotUncheckedAfterLaterBusiness)
{
    ui::DocumentScreen screen(workspace(), std::make_unique<ui::CountScreenKind>());
    open(screen);
    screen.dateField()->setText(QStringLiteral("2025-03-10"));
    auto &kind = static_cast<ui::CountScreenKind &>(screen.kind());
    kind.makeSheet();
    ui::LineEntry counted = screen.lines()->line(2);
    counted.quantity = QStringLiteral("5");
    screen.lines()->replaceLine(2, counted);
    ASSERT_TRUE(screen.save());
    screen.check();
    ASSERT_TRUE(screen.isChecked());
    const QString number = screen.number();

    documents::DocumentDraft transfer;
    transfer.date = QStringLiteral("2025-03-12");
    transfer.warehouse = QStringLiteral("100001");
    transfer.secondWarehouse = QStringLiteral("100002");
    transfer.lines = { line("10000002", "1", "G1", "2026-12-31") };
    const auto saved = stock::saveTransfer(session(), transfer);
    ASSERT_TRUE(saved.ok()) << saved.message().toStdString();
    ASSERT_TRUE(stock::checkTransfer(session(), saved.value()).ok());
    ui.clear();
    ui.setDefaultAnswer(true);
    screen.uncheck();
    EXPECT_EQ(ui.informed.value(0),
        QStringLiteral(
            "在【2025-03-10】日期之后盘点商品已发生业务，\r\n\r\n单号为：【%1】，\r\n\r\n"
            "该盘点单 %2 不能撤销！")
            .arg(saved.value(), number));
    EXPECT_TRUE(screen.isChecked());
    EXPECT_EQ(batches().value(2), QStringLiteral("10000002|100001|G1|4"));
}

// The average of 阿莫西林胶囊 in 主仓库 goes from 10 to 9.5 after the question; its ledger below
// shows the new running figures.
TEST_F(StockDocumentScreensTest, TheAverageIsChangedOnItsScreenAfterTheQuestion)
{
    ui::AverageScreen screen(workspace());
    screen.goodsField()->setChoice(QStringLiteral("10000001"), QStringLiteral("阿莫西林胶囊"));
    screen.warehouseBox()->setCurrentIndex(
        screen.warehouseBox()->findData(QStringLiteral("100001")));
    screen.refresh();
    EXPECT_EQ(screen.nowLabel()->text(), QStringLiteral("10.00（帐面库存 15 盒）"));
    test::typeInto(screen.averageField(), QStringLiteral("9.5"));
    ui.answerNext(true);
    screen.change();
    ASSERT_EQ(ui.asked.size(), 1);
    EXPECT_TRUE(ui.asked[0].startsWith(
        QStringLiteral("确认将商品“阿莫西林胶囊”的成本均价由 10 改为 9.5 吗？")));
    EXPECT_EQ(screen.nowLabel()->text(), QStringLiteral("9.50（帐面库存 15 盒）"));
    EXPECT_EQ(db().firstText(QStringLiteral("select g_pjjj from jxc_goods where g_sn=?"),
                  { QStringLiteral("10000001") }),
        QStringLiteral("9.5"));
    const ui::GoodsLedgerScreen &ledger = *screen.ledger();
    EXPECT_EQ(ledger.model()->text(ledger.model()->dataRows() - 1, 12), QStringLiteral("9.50"));
    EXPECT_TRUE(screen.averageField()->text().isEmpty());
}
