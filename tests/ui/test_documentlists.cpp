// The lists of a document kind: the query of receipts and returns, and the unchecked list of
// the document screen.
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "purchasing/entry.h"
#include "purchasing/kinds.h"
#include "purchasing/purchasereturn.h"
#include "purchasing/receipt.h"
#include "tests/ui/uitest.h"
#include "ui/common/datefield.h"
#include "ui/documents/documentlist.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/uncheckeddialog.h"
#include "ui/purchasing/purchasekinds.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <QTableWidget>

using namespace medistock;

// Receipts of 03-10 (checked, 10 阿莫西林胶囊 at 10) and 03-14 (unchecked, 5 感冒灵颗粒 at 8), and
// a checked return of 03-13 of 4 阿莫西林胶囊 against the first receipt's line.
class DocumentListsTest : public test::UiTest
{
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        if (HasFatalFailure())
            return;
        test::addBoxedGoods(
            session(), { QStringLiteral("阿莫西林胶囊"), QStringLiteral("感冒灵颗粒") });
        first = save(false, QStringLiteral("2025-03-10"), QStringLiteral("10000001"),
            QStringLiteral("10"), 0);
        ASSERT_TRUE(purchasing::checkPurchaseReceipt(session(), first).ok());
        const qint64 line
            = db().firstValue(QStringLiteral("select id2 from jxc_jhsp where j_sn=?"), { first })
                  .toLongLong();
        back = save(true, QStringLiteral("2025-03-13"), QStringLiteral("10000001"),
            QStringLiteral("4"), line);
        ASSERT_TRUE(purchasing::checkPurchaseReturn(session(), back).ok());
        second = save(false, QStringLiteral("2025-03-14"), QStringLiteral("10000002"),
            QStringLiteral("5"), 0);
        ui.clear();
    }

    QString save(bool isReturn, const QString &date, const QString &goods, const QString &quantity,
        qint64 receiptLine)
    {
        purchasing::PurchaseDraft draft;
        draft.entry.date = date;
        draft.entry.party = QStringLiteral("100001");
        draft.entry.warehouse = QStringLiteral("100001");
        documents::LineDraft l;
        l.goods = goods;
        l.quantity = quantity;
        l.price = goods == QLatin1String("10000001") ? QStringLiteral("10") : QStringLiteral("8");
        l.batch = QStringLiteral("B1");
        if (receiptLine)
            l.columns.set(QStringLiteral("id2"), receiptLine);
        draft.entry.lines = { l };
        const auto saved = isReturn ? purchasing::savePurchaseReturn(session(), draft)
                                    : purchasing::savePurchaseReceipt(session(), draft);
        EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
        return saved.ok() ? saved.value() : QString();
    }

    std::unique_ptr<ui::DocumentListScreen> query()
    {
        const QString area = QStringLiteral("cggl");
        return std::make_unique<ui::DocumentListScreen>(workspace(), QStringLiteral("进退货查询"),
            QList<ui::ListedKind> {
                { &purchasing::purchaseReceipt().entry, area, 1, QStringLiteral("cgjh"), 1 },
                { &purchasing::purchaseReturn().entry, area, 2, QStringLiteral("cgth"), -1 } },
            ui::ListFilters {});
    }

    QString first;
    QString back;
    QString second;
};

TEST_F(DocumentListsTest, ReceiptsAndReturnsAreListedTogetherAndNarrowedByTheFilters)
{
    auto screen = query();
    EXPECT_EQ(screen->fromField()->text(), QStringLiteral("2025-03-01"));
    screen->run();
    EXPECT_EQ(test::gridColumn(*screen, 1), (QStringList { first, back, second, QString() }));
    EXPECT_EQ(test::gridColumn(*screen, 0),
        (QStringList { QStringLiteral("采购进货单"), QStringLiteral("采购退货单"),
            QStringLiteral("采购进货单"), QStringLiteral("合计") }));
    EXPECT_EQ(test::gridColumn(*screen, 8),
        (QStringList { QStringLiteral("100.00"), QStringLiteral("-40.00"), QStringLiteral("40.00"),
            QStringLiteral("100.00") }));
    EXPECT_EQ(test::gridColumn(*screen, 9),
        (QStringList { QStringLiteral("已审核"), QStringLiteral("已审核"), QStringLiteral("未审核"),
            QString() }));

    screen->grid()->selectRow(1);
    ASSERT_EQ(screen->linesGrid()->rowCount(), 1);
    EXPECT_EQ(screen->linesGrid()->item(0, 2)->text(), QStringLiteral("阿莫西林胶囊"));
    EXPECT_EQ(screen->linesGrid()->item(0, 8)->text(), QStringLiteral("4.00"));

    screen->statusBox()->setCurrentIndex(screen->statusBox()->findData(0));
    screen->run();
    EXPECT_EQ(test::gridColumn(*screen, 1), (QStringList { second, QString() }));
    screen->statusBox()->setCurrentIndex(0);
    screen->goodsField()->setText(QStringLiteral("amx"));
    screen->run();
    EXPECT_EQ(test::gridColumn(*screen, 1), (QStringList { first, back, QString() }));
    screen->kindBox()->setCurrentIndex(2);
    screen->toField()->setText(QStringLiteral("2025-03-12"));
    screen->run();
    EXPECT_EQ(screen->model()->dataRows(), 0);
}

// F9 on the receipt screen: only unchecked receipts; opening one shows it on the screen to
// change, deleting one asks first.
TEST_F(DocumentListsTest, TheUncheckedListOpensAndDeletes)
{
    ui::DocumentScreen screen(workspace(), std::make_unique<ui::ReceiptScreenKind>());
    ui::UncheckedDialog dialog(screen);
    EXPECT_EQ(
        test::gridColumn(*dialog.list(), 0), (QStringList { second, QStringLiteral("合计") }));
    dialog.list()->grid()->selectRow(0);
    dialog.openChosen();
    EXPECT_EQ(screen.number(), second);
    EXPECT_FALSE(screen.isChecked());
    EXPECT_EQ(screen.lines()->line(0).goods, QStringLiteral("10000002"));

    ui::UncheckedDialog again(screen);
    again.list()->grid()->selectRow(0);
    ui.answerNext(true);
    again.deleteChosen();
    EXPECT_EQ(
        ui.asked, QStringList { QStringLiteral("确定要删除采购进货单：%1 吗？").arg(second) });
    EXPECT_EQ(again.list()->model()->dataRows(), 0);
    EXPECT_EQ(screen.number(), QString());
    EXPECT_EQ(db().firstText(QStringLiteral("select count(*) from jxc_jhd")), QStringLiteral("1"));
}
