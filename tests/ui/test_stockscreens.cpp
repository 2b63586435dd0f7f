// The stock a clerk sees after postings, read back from the grids, and the opening stock keyed
// on its screen.
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "purchasing/entry.h"
#include "purchasing/purchasereturn.h"
#include "purchasing/receipt.h"
#include "stock/documents/openingstock.h"
#include "tests/ui/keyboard.h"
#include "tests/ui/uitest.h"
#include "ui/common/datefield.h"
#include "ui/common/queryscreen.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/linegrid.h"
#include "ui/stock/ledgerscreen.h"
#include "ui/stock/openingkind.h"
#include "ui/stock/stockqueryscreen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableView>
#include <QTest>

using namespace medistock;

namespace {

QStringList captions(const ui::QueryScreen &screen)
{
    QStringList names;
    for (const ui::QueryColumn &column : screen.model()->columns())
        names.append(column.caption);
    return names;
}

documents::LineDraft line(const char *goods, const char *quantity, const char *price,
    const char *batch, const char *expiry)
{
    documents::LineDraft l;
    l.goods = QString::fromLatin1(goods);
    l.quantity = QString::fromLatin1(quantity);
    l.price = QString::fromLatin1(price);
    l.batch = QString::fromLatin1(batch);
    l.expiry = QString::fromLatin1(expiry);
    return l;
}

} // namespace

// 10000001 阿莫西林胶囊: 10 at 10 in B1 (expires 2025-04-30, 47 days after the fixture's today)
// on 03-10, 10 at 16 in B2 (2027-12-31) on 03-12, 4 of B1 returned on 03-13; 10000002 感冒灵颗粒:
// 3 at 8 in G0 expired on 2025-01-31, as opening stock of 03-01.
class StockScreensTest : public test::UiTest
{
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        if (HasFatalFailure())
            return;
        test::addBoxedGoods(
            session(), { QStringLiteral("阿莫西林胶囊"), QStringLiteral("感冒灵颗粒") });
        post(false, QStringLiteral("2025-03-10"), line("10000001", "10", "10", "B1", "2025-04-30"));
        post(false, QStringLiteral("2025-03-12"), line("10000001", "10", "16", "B2", "2027-12-31"));
        documents::LineDraft back = line("10000001", "4", "10", "B1", "2025-04-30");
        post(true, QStringLiteral("2025-03-13"), back);
        stock::OpeningDraft opening { QStringLiteral("2025-03-01"),
            { { QStringLiteral("100001"), line("10000002", "3", "8", "G0", "2025-01-31") } } };
        ASSERT_TRUE(stock::postOpeningStock(session(), opening).ok());
        ui.clear();
    }

    void post(bool isReturn, const QString &date, const documents::LineDraft &l)
    {
        purchasing::PurchaseDraft draft;
        draft.entry.date = date;
        draft.entry.party = QStringLiteral("100001");
        draft.entry.warehouse = QStringLiteral("100001");
        draft.entry.lines = { l };
        const auto saved = isReturn ? purchasing::savePurchaseReturn(session(), draft)
                                    : purchasing::savePurchaseReceipt(session(), draft);
        ASSERT_TRUE(saved.ok()) << saved.message().toStdString();
        const Outcome checked = isReturn
            ? purchasing::checkPurchaseReturn(session(), saved.value())
            : purchasing::checkPurchaseReceipt(session(), saved.value());
        ASSERT_TRUE(checked.ok()) << checked.message().toStdString();
    }
};

TEST_F(StockScreensTest, TheStockQueryShowsWarehouseAndBatchStockWithTheirExpiry)
{
    ui::StockQueryScreen screen(workspace());
    EXPECT_EQ(test::gridRows(screen),
        (QStringList { QStringLiteral("10000001|阿莫西林胶囊||盒||主仓库|16.00|16.00|13.75|220.00"),
            QStringLiteral("10000002|感冒灵颗粒||盒||主仓库|3.00|3.00|8.00|24.00"),
            QStringLiteral("合计||||||19.00|19.00||244.00") }));
    EXPECT_EQ(screen.countLabel()->text(), QStringLiteral("记录数：2"));

    screen.batchBox()->setChecked(true);
    EXPECT_EQ(test::gridRows(screen),
        (QStringList {
            QStringLiteral("10000001|阿莫西林胶囊||盒|主仓库|B1||2025-04-30|47|6.00|13.75|82.50"),
            QStringLiteral(
                "10000001|阿莫西林胶囊||盒|主仓库|B2||2027-12-31|1022|10.00|13.75|137.50"),
            QStringLiteral("10000002|感冒灵颗粒||盒|主仓库|G0||2025-01-31|-42|3.00|8.00|24.00"),
            QStringLiteral("合计|||||||||19.00||244.00") }));
    const auto colour = [&](int row) {
        return screen.model()->index(row, 0).data(Qt::ForegroundRole).value<QColor>();
    };
    EXPECT_EQ(colour(0), QColor(0xd0, 0x70, 0x00));
    EXPECT_FALSE(colour(1).isValid());
    EXPECT_EQ(colour(2), QColor(Qt::red));

    screen.expiringBox()->setValue(47);
    screen.run();
    EXPECT_EQ(screen.model()->dataRows(), 2);
    EXPECT_EQ(screen.model()->text(0, 5), QStringLiteral("B1"));
    EXPECT_EQ(screen.model()->text(1, 5), QStringLiteral("G0"));
    screen.expiringBox()->setValue(46);
    screen.run();
    EXPECT_EQ(screen.model()->dataRows(), 1);

    screen.expiringBox()->setValue(-1);
    screen.searchField()->setText(QStringLiteral("gml"));
    screen.run();
    EXPECT_EQ(screen.model()->dataRows(), 1);
    EXPECT_EQ(screen.model()->text(0, 1), QStringLiteral("感冒灵颗粒"));
}

TEST_F(StockScreensTest, TheLedgerShowsEachMovementWithItsRunningFigures)
{
    ui::GoodsLedgerScreen ledger(workspace());
    ledger.showGoods(QStringLiteral("10000001"), QStringLiteral("100001"));
    EXPECT_EQ(test::gridRows(ledger),
        (QStringList {
            QStringLiteral("主仓库|2025-03-10|采购入库单|CJ25031010001|普通供货商|B1|2025-04-30|"
                           "10.00|0.00|10.00|100.00|10.00|10.00|100.00"),
            QStringLiteral(
                "主仓库|2025-03-12|采购入库单|CJ25031210001|普通供货商|B2|2027-12-31|10.00|"
                "0.00|16.00|160.00|20.00|13.00|260.00"),
            QStringLiteral(
                "主仓库|2025-03-13|采购退货单|CT25031310001|普通供货商|B1|2025-04-30|0.00|"
                "4.00|10.00|-40.00|16.00|13.75|220.00"),
            QStringLiteral("合计|||||||20.00|4.00|||||") }));
    ledger.fromField()->setText(QStringLiteral("2025-03-12"));
    ledger.toField()->setText(QStringLiteral("2025-03-12"));
    ledger.run();
    EXPECT_EQ(ledger.model()->dataRows(), 1);
    EXPECT_EQ(ledger.model()->text(0, 12), QStringLiteral("13.00"));

    // The returns alone, with the running figures of the whole ledger.
    ledger.fromField()->setText(QString());
    ledger.toField()->setText(QString());
    ledger.kindBox()->setCurrentIndex(ledger.kindBox()->findText(QStringLiteral("采购退货单")));
    ledger.run();
    ASSERT_EQ(ledger.model()->dataRows(), 1);
    EXPECT_EQ(ledger.model()->text(0, 3), QStringLiteral("CT25031310001"));
    EXPECT_EQ(ledger.model()->text(0, 11), QStringLiteral("16.00"));
}

// Costs, averages and stock values are not shown (not even as blanks) without "显示商品成本价".
TEST_F(StockScreensTest, CostColumnsAreThereOnlyWithTheCostRight)
{
    addOperatorWithRights(
        QStringLiteral("小王"), { { QStringLiteral("cggl"), QStringLiteral("00001") } });
    switchOperator(QStringLiteral("小王"));
    ui::StockQueryScreen screen(workspace());
    EXPECT_EQ(captions(screen),
        (QStringList { QStringLiteral("商品编号"), QStringLiteral("商品名称"),
            QStringLiteral("规格"), QStringLiteral("单位"), QStringLiteral("生产厂商"),
            QStringLiteral("仓库"), QStringLiteral("库存数量"), QStringLiteral("帐面库存") }));
    ui::GoodsLedgerScreen ledger(workspace());
    EXPECT_FALSE(captions(ledger).contains(QStringLiteral("结存均价")));
    EXPECT_FALSE(captions(ledger).contains(QStringLiteral("单价")));
    EXPECT_TRUE(captions(ledger).contains(QStringLiteral("结存数量")));
}

// The opening stock keyed on its screen is posted by F3 and can be removed again from its list.
TEST_F(StockScreensTest, OpeningStockIsKeyedPostedAndRemoved)
{
    ui::DocumentScreen screen(workspace(), std::make_unique<ui::OpeningScreenKind>());
    screen.show();
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    test::Keyboard keys;
    keys.setWindow(&screen);
    EXPECT_EQ(screen.partyField(), nullptr);
    screen.grid()->goToNewLine();
    test::Keyboard::settle();
    for (const char *typed : { "gml", "G1", "", "20261231", "12", "5.5" }) {
        keys.type(QString::fromLatin1(typed));
        keys.press(Qt::Key_Return);
    }
    keys.press(Qt::Key_F3);
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("已建账：QC25031410001") });
    EXPECT_TRUE(screen.lines()->line(0).isBlank());
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_goodslist"),
                  QStringLiteral("gl_flag,gl_sl,gl_dj,t_ph,t_yxq,gl_kc"),
                  QStringLiteral("gl_djh=?"), { QStringLiteral("QC25031410001") }),
        QStringList { QStringLiteral("qc|12|5.5|G1|2026-12-31|15") });

    ui.clear();
    ui::OpeningEntriesDialog entries(workspace(), &screen);
    ASSERT_EQ(entries.list()->model()->dataRows(), 2);
    entries.list()->grid()->selectRow(1);
    ui.answerNext(true);
    entries.removeChosen();
    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral(
            "您的操作将删除期初建账单据：QC25031410001，其中的库存将被冲回，确认吗？") });
    EXPECT_EQ(entries.list()->model()->dataRows(), 1);
    EXPECT_EQ(db().firstText(QStringLiteral("select kc_sl from jxc_kcsp where g_sn=? and ck_sn=?"),
                  { QStringLiteral("10000002"), QStringLiteral("100001") }),
        QStringLiteral("3"));
}
