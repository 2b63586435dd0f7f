// What a sale's lines show and let a clerk change besides goods, batch and quantity: the price and
// cost proposed again for another unit, the cost column under its two rights, the most per sale;
// and "审核所有" on the unchecked sales.
#include "tests/ui/salescreentest.h"
#include "ui/common/codenamefield.h"
#include "ui/documents/documentlist.h"
#include "ui/documents/linegrid.h"
#include "ui/documents/uncheckeddialog.h"

#include <QPushButton>
#include <QTableView>

using namespace medistock;
using medistock::test::Keyboard;
using medistock::test::SaleScreenTest;

namespace {

QString text(const ui::DocumentScreen &screen, int row, ui::LineField field)
{
    return screen.lines()->index(row, screen.lines()->columnOf(field)).data().toString();
}

void setUnit(ui::DocumentScreen &screen, int row, const QString &unit)
{
    screen.lines()->setData(
        screen.lines()->index(row, screen.lines()->columnOf(ui::LineField::Unit)), unit,
        Qt::EditRole);
}

} // namespace

// 阿莫西林胶囊 also comes by the 件 of 10 boxes, 110 at level 1. Picked by the box, the line
// offers the level-1 box price and the box's cost (bought in at 5); changed to 件 it offers the
// 件's own level-1 price and ten boxes' cost; a price the clerk typed stays through the next
// change while the cost follows the unit. A goods limited to 3 per sale says so on its line.
TEST_F(SaleScreenTest, AUnitChangeProposesThePriceAndCostOfThatUnit)
{
    test::addGoodsUnit(db(), QStringLiteral("10000001"), QStringLiteral("件"), 10, {});
    db().exec(QStringLiteral("update jxc_goodsdw set g_sj=120,g_sj1=110 where g_sn=?"),
        { QStringLiteral("10000001") });
    db().exec(QStringLiteral("update jxc_goods set g_xzsl=3 where g_sn=?"),
        { QStringLiteral("10000002") });
    auto screen = openSale();
    keys.setWindow(screen.get());
    keys.type(QStringLiteral("hkyd"));
    keys.press(Qt::Key_Return);
    keyLine(QStringLiteral("amx"), QStringLiteral("2"));
    EXPECT_EQ(text(*screen, 0, ui::LineField::Price), QStringLiteral("11.50"));
    EXPECT_EQ(text(*screen, 0, ui::LineField::Cost), QStringLiteral("5.00"));
    EXPECT_EQ(text(*screen, 0, ui::LineField::Limit), QString());

    setUnit(*screen, 0, QStringLiteral("件"));
    EXPECT_EQ(text(*screen, 0, ui::LineField::Price), QStringLiteral("110.00"));
    EXPECT_EQ(text(*screen, 0, ui::LineField::Cost), QStringLiteral("50.00"));
    EXPECT_EQ(text(*screen, 0, ui::LineField::Amount), QStringLiteral("220.00"));

    screen->grid()->finishEditing();
    Keyboard::settle();
    screen->grid()->editCell(0, ui::LineField::Price);
    keys.type(QStringLiteral("105"));
    keys.press(Qt::Key_Return);
    setUnit(*screen, 0, QStringLiteral("盒"));
    EXPECT_EQ(text(*screen, 0, ui::LineField::Price), QStringLiteral("105"));
    EXPECT_EQ(text(*screen, 0, ui::LineField::Cost), QStringLiteral("5.00"));

    keys.type(QStringLiteral("6901234500021"));
    keys.press(Qt::Key_Return);
    EXPECT_EQ(text(*screen, 1, ui::LineField::Limit), QStringLiteral("3.00"));
    EXPECT_TRUE(ui.informed.isEmpty()) << ui.informed.join(QLatin1Char('|')).toStdString();
}

// The cost column: the administrator types a cost, which the sale then carries (ls_cbj2 per box,
// ls_zcb for the line); a cost that is no number is told with its row and nothing is saved. A
// clerk with "显示商品成本价" but without "允许修改销售成本价" sees the cost and cannot change
// it; without "显示商品成本价" the column is not there.
TEST_F(SaleScreenTest, TheCostColumnFollowsItsTwoRights)
{
    auto screen = openSale();
    keys.setWindow(screen.get());
    keys.type(QStringLiteral("hkyd"));
    keys.press(Qt::Key_Return);
    keyLine(QStringLiteral("amx"), QStringLiteral("2"));
    const QModelIndex cost
        = screen->lines()->index(0, screen->lines()->columnOf(ui::LineField::Cost));
    ASSERT_TRUE(screen->lines()->flags(cost) & Qt::ItemIsEditable);
    screen->grid()->editCell(0, ui::LineField::Cost);
    keys.type(QStringLiteral("x"));
    keys.press(Qt::Key_Return);
    Keyboard::settle();
    ui.setDefaultAnswer(true);
    keys.press(Qt::Key_F3);
    EXPECT_EQ(ui.informed,
        (QStringList { QStringLiteral("第1行：成本价“x”不是数字！"),
            QStringLiteral("第1行：成本价“x”不是数字！") }));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_lsxsd")), 0);

    ui.clear();
    screen->grid()->editCell(0, ui::LineField::Cost);
    keys.type(QStringLiteral("6.2"));
    keys.press(Qt::Key_Return);
    keys.press(Qt::Key_F3);
    ASSERT_EQ(screen->number(), QStringLiteral("XS25031410001"));
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_lsxssp"),
                  QStringLiteral("ls_cbj2,ls_cbj,ls_zcb"), QStringLiteral("gl_djh=? and g_sn=?"),
                  { screen->number(), QStringLiteral("10000001") }),
        QStringList { QStringLiteral("6.2|6.2|12.4") });
    EXPECT_EQ(text(*screen, 0, ui::LineField::Cost), QStringLiteral("6.20"));

    addOperatorWithRights(QStringLiteral("小李"),
        { { QStringLiteral("xsgl"), QStringLiteral("1111111111111011111") },
            { QStringLiteral("qtcz"), QStringLiteral("111111111") } });
    switchOperator(QStringLiteral("小李"));
    auto clerk = openSale();
    keys.setWindow(clerk.get());
    keys.type(QStringLiteral("hkyd"));
    keys.press(Qt::Key_Return);
    keyLine(QStringLiteral("amx"), QStringLiteral("2"));
    ASSERT_GE(clerk->lines()->columnOf(ui::LineField::Cost), 0);
    EXPECT_EQ(text(*clerk, 0, ui::LineField::Cost), QStringLiteral("5.00"));
    EXPECT_FALSE(clerk->lines()->flags(
                     clerk->lines()->index(0, clerk->lines()->columnOf(ui::LineField::Cost)))
        & Qt::ItemIsEditable);

    addOperatorWithRights(QStringLiteral("小王"),
        { { QStringLiteral("xsgl"), QStringLiteral("1111111111111111111") },
            { QStringLiteral("qtcz"), QStringLiteral("111111011") } });
    switchOperator(QStringLiteral("小王"));
    auto blind = openSale();
    EXPECT_EQ(blind->lines()->columnOf(ui::LineField::Cost), -1);
    EXPECT_GE(blind->lines()->columnOf(ui::LineField::Price), 0);
}

// "审核所有(F6)" on the unchecked sales checks every sale the list shows after the question, and
// only those: with the list narrowed to 华康药店 the other customer's sale stays unchecked. A
// clerk without "商品销售审核" finds the button disabled with the reason.
TEST_F(SaleScreenTest, CheckAllChecksTheListedSalesOnly)
{
    masterdata::addMasterRow(session(), *masterdata::findMasterKind(QStringLiteral("customer")),
        { { QStringLiteral("kh_name"), QStringLiteral("仁和大药房") } });
    QStringList numbers;
    ui.setDefaultAnswer(true);
    for (const char *customer : { "100002", "100003", "100002" }) {
        sales::SaleDraft draft;
        draft.entry.date = QStringLiteral("2025-03-14");
        draft.entry.party = QString::fromLatin1(customer);
        draft.entry.warehouse = QStringLiteral("100001");
        documents::LineDraft line;
        line.goods = QStringLiteral("10000002");
        line.quantity = QStringLiteral("1");
        draft.entry.lines = { line };
        draft.header.paid = 7.6;
        numbers.append(sales::saveSale(session(), draft).value());
    }
    ui.clear();
    ui.setDefaultAnswer(true);
    const auto status = [this](const QString &number) {
        return db().firstText(
            QStringLiteral("select ls_status from jxc_lsxsd where gl_djh=?"), { number });
    };

    auto screen = openSale();
    keys.setWindow(screen.get());
    keys.onDialog<ui::UncheckedDialog>([this](ui::UncheckedDialog &dialog) {
        ui::DocumentListScreen *list = dialog.list();
        EXPECT_EQ(list->model()->dataRows(), 3);
        QAbstractButton *all = test::buttonNamed(&dialog, QStringLiteral("审核所有(F6)"));
        ASSERT_NE(all, nullptr);
        EXPECT_TRUE(all->isEnabled());
        // The clerk narrows the list to 华康药店 (Enter runs it) and checks all it shows.
        list->partyField()->setFocus();
        keys.type(QStringLiteral("hkyd"));
        keys.press(Qt::Key_Return);
        ASSERT_EQ(list->model()->dataRows(), 2);
        keys.press(Qt::Key_F6);
        EXPECT_EQ(list->model()->dataRows(), 0);
        keys.press(Qt::Key_Escape);
    });
    keys.press(Qt::Key_F9);
    EXPECT_FALSE(keys.waiting());
    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral("您的操作将审核当前列表中所有未审核的单据，确认吗？\r\n\r\n"
                                     "（如需审核某个单据，请按右键！）") });
    EXPECT_EQ(status(numbers[0]), QStringLiteral("1"));
    EXPECT_EQ(status(numbers[1]), QStringLiteral("0"));
    EXPECT_EQ(status(numbers[2]), QStringLiteral("1"));

    addOperatorWithRights(QStringLiteral("小李"),
        { { QStringLiteral("xsgl"), QStringLiteral("100000") },
            { QStringLiteral("qtcz"), QStringLiteral("111111111") } });
    switchOperator(QStringLiteral("小李"));
    auto clerk = openSale();
    keys.setWindow(clerk.get());
    keys.onDialog<ui::UncheckedDialog>([this](ui::UncheckedDialog &dialog) {
        QAbstractButton *all = test::buttonNamed(&dialog, QStringLiteral("审核所有(F6)"));
        ASSERT_NE(all, nullptr);
        EXPECT_FALSE(all->isEnabled());
        EXPECT_EQ(all->toolTip(), QStringLiteral("您没有“商品销售审核”的权限！"));
        keys.press(Qt::Key_Escape);
    });
    keys.press(Qt::Key_F9);
    EXPECT_FALSE(keys.waiting());
}
