// A loan keyed on the document screen, checked, and its goods brought back through "整单还货"
// with a lowered quantity; loaned goods sold through "新增借货转销售" and found in the customer
// statement.
#include "loans/entry.h"
#include "loans/loancheck.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "purchasing/entry.h"
#include "purchasing/receipt.h"
#include "tests/support/businessrows.h"
#include "tests/ui/keyboard.h"
#include "tests/ui/uitest.h"
#include "ui/accounts/statementscreen.h"
#include "ui/common/codenamefield.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/linegrid.h"
#include "ui/loans/loankind.h"
#include "ui/loans/returndialog.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

using namespace medistock;
using medistock::test::Keyboard;

class LoanScreenTest : public test::UiTest
{
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        if (HasFatalFailure())
            return;
        // 10000001 阿莫西林胶囊, 10 boxes in batch A2401 at 12.5 in warehouse 100001; the
        // customer 100002 仁和诊所 (RHZS).
        test::addBoxedGoods(session(), { QStringLiteral("阿莫西林胶囊") });
        masterdata::addMasterRow(session(), *masterdata::findMasterKind(QStringLiteral("customer")),
            { { QStringLiteral("kh_name"), QStringLiteral("仁和诊所") } });
        masterdata::addMasterRow(session(), *masterdata::findMasterKind(QStringLiteral("supplier")),
            { { QStringLiteral("ghs_name"), QStringLiteral("华东医药") } });
        purchasing::PurchaseDraft draft;
        draft.entry.date = QStringLiteral("2025-03-01");
        draft.entry.party = QStringLiteral("100002");
        draft.entry.warehouse = QStringLiteral("100001");
        documents::LineDraft line;
        line.goods = QStringLiteral("10000001");
        line.quantity = QStringLiteral("10");
        line.price = QStringLiteral("12.5");
        line.batch = QStringLiteral("A2401");
        line.expiry = QStringLiteral("2026-01-01");
        draft.entry.lines = { line };
        const QString receipt = purchasing::savePurchaseReceipt(session(), draft).value();
        ASSERT_TRUE(purchasing::checkPurchaseReceipt(session(), receipt).ok());
        ui.clear();
        screen = std::make_unique<ui::DocumentScreen>(
            workspace(), std::make_unique<ui::LoanScreenKind>());
        screen->resize(1366, 700);
        screen->show();
        screen->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(screen.get()));
        screen->setFocus();
        Keyboard::settle();
        keys.setWindow(screen.get());
    }

    QString stores()
    {
        const QStringList found = test::queryRows(db(),
            QStringLiteral("select a.kc_sl,g.g_kc,t.t_sl from jxc_kcsp a,jxc_goods g,jxc_tkc t "
                           "where a.g_sn='10000001' and a.ck_sn='100001' and g.g_sn=a.g_sn and "
                           "t.g_sn=a.g_sn and t.ck_sn=a.ck_sn and t.t_ph='A2401'"));
        return found.isEmpty() ? QString() : found.first();
    }

    QLineEdit *headerField(const QString &label)
    {
        for (QLabel *caption : screen->findChildren<QLabel *>())
            if (caption->text() == label + QStringLiteral("：") && caption->buddy())
                return qobject_cast<QLineEdit *>(caption->buddy());
        return nullptr;
    }

    // The loan keyed: the customer by mnemonic, 6 boxes of amoxicillin from its proposed batch,
    // a deposit of 10 per box and a rent of 0.5 per box and day; saved (F3, the question
    // answered yes) and checked (F5).
    QString keyLoan()
    {
        keys.type(QStringLiteral("rhzs"));
        keys.press(Qt::Key_Return);
        keys.type(QStringLiteral("amx"));
        keys.press(Qt::Key_Return);
        keys.press(Qt::Key_Return);
        keys.type(QStringLiteral("6"));
        keys.press(Qt::Key_Return);
        test::typeInto(deposit, QStringLiteral("10"));
        test::typeInto(rent, QStringLiteral("0.5"));
        ui.answerNext(true);
        keys.press(Qt::Key_F3);
        keys.press(Qt::Key_F5);
        return screen->number();
    }

    std::unique_ptr<ui::DocumentScreen> screen;
    QLineEdit *deposit = nullptr;
    QLineEdit *rent = nullptr;
    Keyboard keys;
};

// 6 of 10 boxes lent at the average 12.5 with 60 of deposit; 7 coming back is refused and
// changes nothing; 4 come back the same day (one day's rent 0.5 x 4 = 2 out of the share 40 of
// the deposit, 38 refunded); stock goes 10 -> 4 -> 8 and the rent is income.
TEST_F(LoanScreenTest, ALoanKeyedAndCheckedThenPartlyReturnedOnScreen)
{
    deposit = headerField(QStringLiteral("押金/单位"));
    rent = headerField(QStringLiteral("日租金/单位"));
    ASSERT_TRUE(deposit && rent);
    QPushButton *whole = qobject_cast<QPushButton *>(
        test::buttonNamed(screen.get(), QStringLiteral("整单还货(F11)")));
    ASSERT_TRUE(whole);
    EXPECT_FALSE(whole->isEnabled());
    const QString loan = keyLoan();
    EXPECT_EQ(loan, QStringLiteral("JH25031410001"));
    EXPECT_TRUE(ui.informed.isEmpty()) << ui.informed.join(QLatin1Char('|')).toStdString();
    ASSERT_TRUE(screen->isChecked());
    EXPECT_TRUE(whole->isEnabled());
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_khjhsp"),
                  QStringLiteral("g_sn,t_ph,jh_sl,jh_dj,jh_zje,jh_yj,jh_zj,jh_kmmc")),
        QStringList { QStringLiteral("10000001|A2401|6|12.5|75|60|0.5|现金") });
    EXPECT_EQ(stores(), QStringLiteral("4|4|4"));

    // The dialog "整单还货" (F11) opens, driven here without its modal loop.
    ui::LoanReturnDialog dialog(
        workspace(), loan, std::nullopt, ui::LoanReturnDialog::Mode::Return, screen.get());
    ASSERT_TRUE(dialog.loaded());
    QTableWidget *grid = dialog.linesGrid();
    ASSERT_EQ(grid->rowCount(), 1);
    EXPECT_EQ(grid->item(0, ui::LoanReturnDialog::quantityColumn)->text(), QStringLiteral("6"));
    EXPECT_EQ(grid->item(0, 11)->text(), QStringLiteral("57.00"));
    grid->item(0, ui::LoanReturnDialog::quantityColumn)->setText(QStringLiteral("7"));
    dialog.confirm();
    EXPECT_EQ(ui.informed.size(), 1);
    EXPECT_EQ(stores(), QStringLiteral("4|4|4"));
    ui.clear();
    grid->item(0, ui::LoanReturnDialog::quantityColumn)->setText(QStringLiteral("4"));
    EXPECT_EQ(grid->item(0, 9)->text(), QStringLiteral("40.00"));
    EXPECT_EQ(grid->item(0, 10)->text(), QStringLiteral("2.00"));
    EXPECT_EQ(grid->item(0, 11)->text(), QStringLiteral("38.00"));
    dialog.confirm();
    EXPECT_EQ(dialog.written(), QStringList { QStringLiteral("HH25031410001") });
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("已保存并审核还货单：HH25031410001") });
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_khjhsp"),
                  QStringLiteral("gl_djh,jh_flag,jh_hhsl,jh_yj,jh_yj2,jh_ts,jh_zzj,jh_thyj")),
        (QStringList { QStringLiteral("JH25031410001|借货|4|60|40|0|0|0"),
            QStringLiteral("HH25031410001|还货|4|40|0|1|2|38") }));
    EXPECT_EQ(stores(), QStringLiteral("8|8|8"));
    EXPECT_EQ(
        test::tableRows(db(), QStringLiteral("jxc_yyfy"), QStringLiteral("fy_lx,fy_je,fy_kmmc")),
        QStringList { QStringLiteral("收入|2|现金") });
}

// "新增借货转销售" of 2 of the 6 boxes at 20: the return part brings them back, the sale takes
// them out again (stock stays at 4) and the customer's statement lists the sale with its line
// under the issuing warehouse, the totals row summing it, and the grid exports.
TEST_F(LoanScreenTest, LoanedGoodsSoldOnScreenShowInTheCustomerStatement)
{
    ui.setDefaultAnswer(true);
    loans::LoanDraft draft;
    draft.entry.date = QStringLiteral("2025-03-14");
    draft.entry.party = QStringLiteral("100002");
    draft.entry.warehouse = QStringLiteral("100001");
    documents::LineDraft line;
    line.goods = QStringLiteral("10000001");
    line.quantity = QStringLiteral("6");
    line.batch = QStringLiteral("A2401");
    line.expiry = QStringLiteral("2026-01-01");
    draft.entry.lines = { line };
    draft.terms = { { QStringLiteral("60"), QStringLiteral("0.5"), QString() } };
    const QString loan = loans::saveLoan(session(), draft).value();
    ASSERT_TRUE(loans::checkLoan(session(), loan).ok());
    ui.clear();
    screen->openDocument(loan);
    ASSERT_TRUE(screen->isChecked());
    EXPECT_TRUE(
        test::buttonNamed(screen.get(), QStringLiteral("新增借货转销售(F12)"))->isEnabled());
    // "新增借货转销售" (F12), driven without its modal loop.
    ui::LoanReturnDialog dialog(
        workspace(), loan, std::nullopt, ui::LoanReturnDialog::Mode::Sale, screen.get());
    QTableWidget *grid = dialog.linesGrid();
    grid->item(0, ui::LoanReturnDialog::quantityColumn)->setText(QStringLiteral("2"));
    grid->item(0, ui::LoanReturnDialog::priceColumn)->setText(QStringLiteral("20"));
    EXPECT_EQ(grid->item(0, 10)->text(), QStringLiteral("1.00"));
    dialog.paidField()->setText(QStringLiteral("40"));
    dialog.confirm();
    EXPECT_EQ(ui.informed,
        QStringList { QStringLiteral("已保存并审核还货单：HH25031410001，销售单：XS25031410001") });
    EXPECT_EQ(stores(), QStringLiteral("4|4|4"));
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_khjhsp"),
                  QStringLiteral("gl_djh,jh_flag,jh_hhsl,jh_xssl,jh_yj2,jh_zzj,jh_thyj")),
        (QStringList { QStringLiteral("JH25031410001|借货|0|2|20|0|0"),
            QStringLiteral("HH25031410001|销售|2|0|0|1|19") }));

    std::unique_ptr<QTabWidget> statements(ui::customerStatements(workspace()));
    auto *documents = qobject_cast<ui::StatementScreen *>(statements->widget(0));
    ASSERT_TRUE(documents);
    EXPECT_EQ(statements->tabText(1), QStringLiteral("客户消费情况表"));
    documents->run();
    EXPECT_EQ(test::gridColumn(*documents, 0),
        (QStringList { QStringLiteral("XS25031410001"), QStringLiteral("合计") }));
    EXPECT_EQ(documents->model()->value(0, 4).toDouble(), 40);
    EXPECT_EQ(documents->model()->value(0, 8).toDouble(), 0);
    documents->grid()->selectRow(0);
    ASSERT_EQ(documents->linesModel()->dataRows(), 1);
    EXPECT_EQ(documents->linesModel()->value(0, 6).toDouble(), 2);
    EXPECT_EQ(documents->linesModel()->value(0, 8).toDouble(), 40);
    const QString file = QDir(folder()).filePath(QStringLiteral("statement.xlsx"));
    documents->exportTo(file);
    EXPECT_TRUE(QFileInfo(file).size() > 0);
}
