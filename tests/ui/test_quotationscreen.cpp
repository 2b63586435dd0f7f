// "报价管理" keyed as a clerk keys it, and what it changes on a sale: the customer's latest
// quotation is the price the sale proposes, until it is changed or deleted.
#include "tests/ui/salescreentest.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/screenregistry.h"
#include "ui/sales/quotationscreen.h"
#include "ui/sales/registration.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <QTableWidget>

using namespace medistock;
using medistock::test::SaleScreenTest;

class QuotationScreenTest : public SaleScreenTest
{
protected:
    // The price a new sale to 华康药店 proposes for 阿莫西林胶囊.
    QString proposedPrice()
    {
        auto screen = openSale();
        keys.setWindow(screen.get());
        keys.type(QStringLiteral("hkyd"));
        keys.press(Qt::Key_Return);
        keys.type(QStringLiteral("amx"));
        keys.press(Qt::Key_Return);
        return screen->lines()
            ->index(0, screen->lines()->columnOf(ui::LineField::Price))
            .data()
            .toString();
    }
};

// F2 opens "我方报价": the customer by mnemonic, the goods by mnemonic priced in "我方报价：
// 阿莫西林胶囊", F3 adds it; the query lists it and a sale to that customer then proposes 10.80
// instead of the level-1 11.50. Enter on the row changes it to 10.6 (the sale follows); Del
// deletes it after the question, and the level-1 price is back.
TEST_F(QuotationScreenTest, AQuotationKeyedOnScreenIsWhatTheSaleProposes)
{
    ui::ScreenRegistry registry;
    ui::registerSalesScreens(registry);
    const ui::ScreenRegistry::Entry *entry = registry.find(QStringLiteral("rcgl"), 14);
    ASSERT_NE(entry, nullptr);
    std::unique_ptr<QWidget> tab(entry->tab(workspace()));
    auto *screen = qobject_cast<ui::QuotationScreen *>(tab.get());
    ASSERT_NE(screen, nullptr);
    screen->resize(1366, 700);
    screen->show();
    screen->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen));
    screen->setFocus();
    test::Keyboard::settle();
    EXPECT_EQ(screen->focusWidget(), screen->sideBox());
    keys.setWindow(screen);

    keys.onDialog<ui::QuotationDialog>([this](ui::QuotationDialog &dialog) {
        EXPECT_EQ(dialog.focusWidget(), dialog.partyField());
        EXPECT_EQ(dialog.dateField()->text(), QStringLiteral("2025-03-14"));
        keys.type(QStringLiteral("hkyd"));
        keys.press(Qt::Key_Return);
        EXPECT_EQ(dialog.focusWidget(), dialog.goodsField());
        keys.onDialog<ui::QuotationPriceDialog>([this](ui::QuotationPriceDialog &price) {
            EXPECT_EQ(price.windowTitle(), QStringLiteral("我方报价：阿莫西林胶囊"));
            keys.type(QStringLiteral("10.8"));
            keys.press(Qt::Key_Return);
        });
        keys.type(QStringLiteral("amx"));
        keys.press(Qt::Key_Return);
        EXPECT_FALSE(keys.waiting());
        ASSERT_EQ(dialog.linesGrid()->rowCount(), 1);
        EXPECT_EQ(dialog.linesGrid()->item(0, 2)->text(), QStringLiteral("10.8"));
        keys.press(Qt::Key_F3);
    });
    keys.press(Qt::Key_F2);
    EXPECT_FALSE(keys.waiting());
    EXPECT_TRUE(ui.informed.isEmpty()) << ui.informed.join(QLatin1Char('|')).toStdString();
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_khbj"),
                  QStringLiteral("g_sn,kb_bj,kh_sn,kb_bjrq,a_name")),
        QStringList { QStringLiteral("10000001|10.8|100002|2025-03-14|admin") });
    EXPECT_EQ(test::gridRows(*screen),
        QStringList { QStringLiteral("10000001|阿莫西林胶囊|10.80|2025-03-14|华康药店||") });

    EXPECT_EQ(proposedPrice(), QStringLiteral("10.80"));

    keys.setWindow(screen);
    screen->grid()->setFocus();
    screen->grid()->selectRow(0);
    keys.onDialog<ui::QuotationPriceDialog>([this](ui::QuotationPriceDialog &price) {
        EXPECT_EQ(price.priceField()->text(), QStringLiteral("10.80"));
        keys.type(QStringLiteral("10.6"));
        keys.press(Qt::Key_Return);
    });
    keys.press(Qt::Key_Return);
    EXPECT_FALSE(keys.waiting());
    EXPECT_EQ(proposedPrice(), QStringLiteral("10.60"));

    keys.setWindow(screen);
    screen->grid()->setFocus();
    screen->grid()->selectRow(0);
    ui.setDefaultAnswer(true);
    keys.press(Qt::Key_Delete);
    EXPECT_EQ(ui.asked, QStringList { QStringLiteral("确定要删除“阿莫西林胶囊”的这条报价吗？") });
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_khbj")), 0);
    EXPECT_EQ(screen->model()->dataRows(), 0);
    EXPECT_EQ(proposedPrice(), QStringLiteral("11.50"));
}

// A supplier quotation goes into the suppliers' table and never touches what a sale proposes;
// the list then heads its party column "供货商". Leaving the dialog with Esc adds nothing and
// leaves no goods waiting in the operator's work rows.
TEST_F(QuotationScreenTest, ASupplierQuotationStaysApartFromSales)
{
    ui::QuotationScreen screen(workspace());
    screen.resize(1366, 700);
    screen.show();
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    screen.sideBox()->setCurrentIndex(1);
    EXPECT_EQ(screen.model()->headerData(4, Qt::Horizontal, Qt::DisplayRole).toString(),
        QStringLiteral("供货商"));
    keys.setWindow(&screen);
    screen.setFocus();
    const auto keyQuotation = [this](bool save) {
        keys.onDialog<ui::QuotationDialog>([this, save](ui::QuotationDialog &) {
            keys.type(QStringLiteral("hdyy"));
            keys.press(Qt::Key_Return);
            keys.onDialog<ui::QuotationPriceDialog>([this](ui::QuotationPriceDialog &price) {
                EXPECT_EQ(price.windowTitle(), QStringLiteral("供货商报价：阿莫西林胶囊"));
                keys.type(QStringLiteral("4.5"));
                keys.press(Qt::Key_Return);
            });
            keys.type(QStringLiteral("amx"));
            keys.press(Qt::Key_Return);
            keys.press(save ? Qt::Key_F3 : Qt::Key_Escape);
        });
        keys.press(Qt::Key_F2);
        EXPECT_FALSE(keys.waiting());
    };
    keyQuotation(false);
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_ghsbj")), 0);
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_tempspxf")), 0);
    keyQuotation(true);
    EXPECT_EQ(
        test::tableRows(db(), QStringLiteral("jxc_ghsbj"), QStringLiteral("g_sn,gb_bj,ghs_sn")),
        QStringList { QStringLiteral("10000001|4.5|100002") });
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_khbj")), 0);
    EXPECT_EQ(proposedPrice(), QStringLiteral("11.50"));
}
