// The purchase receipt and return keyed as a clerk keys them, and what the database holds
// afterwards compared with the same documents saved and checked on the command line.
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "purchasing/receipt.h"
#include "tests/support/businessrows.h"
#include "tests/support/cli.h"
#include "tests/support/documentrows.h"
#include "tests/ui/keyboard.h"
#include "tests/ui/uitest.h"
#include "ui/common/codenamefield.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/linegrid.h"
#include "ui/documents/pickers.h"
#include "ui/purchasing/checkdialog.h"
#include "ui/purchasing/purchasekinds.h"
#include "ui/purchasing/receiptlinesdialog.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

using namespace medistock;
using medistock::test::Keyboard;

namespace {

QString addGoods(
    shell::Session &session, const QString &name, const QString &unit, const QString &presetPrice)
{
    return masterdata::addMasterRow(session, masterdata::goodsKind(),
        { { QStringLiteral("g_name"), name }, { QStringLiteral("dw_name"), unit },
            { QStringLiteral("g_jj"), presetPrice } })
        .value();
}

} // namespace

class ReceiptScreenTest : public test::UiTest
{
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        if (HasFatalFailure())
            return;
        // 10000001 阿莫西林胶囊 (AMXLJN, also 件 of 20 with its own barcode), 10000002 阿莫地喹片
        // (AMDKP), 10000003 感冒灵颗粒 (GMLKL); the supplier 100002 华东医药 (HDYY).
        addGoods(
            session(), QStringLiteral("阿莫西林胶囊"), QStringLiteral("盒"), QStringLiteral("6.8"));
        addGoods(
            session(), QStringLiteral("阿莫地喹片"), QStringLiteral("盒"), QStringLiteral("9"));
        addGoods(
            session(), QStringLiteral("感冒灵颗粒"), QStringLiteral("盒"), QStringLiteral("8.2"));
        test::addGoodsUnit(db(), QStringLiteral("10000001"), QStringLiteral("件"), 20,
            QStringLiteral("16901234500014"));
        masterdata::addMasterRow(session(), *masterdata::findMasterKind(QStringLiteral("supplier")),
            { { QStringLiteral("ghs_name"), QStringLiteral("华东医药") } });
        ui.clear();
    }

    std::unique_ptr<ui::DocumentScreen> openReceipt()
    {
        auto screen = std::make_unique<ui::DocumentScreen>(
            workspace(), std::make_unique<ui::ReceiptScreenKind>());
        showActive(*screen);
        return screen;
    }

    std::unique_ptr<ui::DocumentScreen> openReturn()
    {
        auto screen = std::make_unique<ui::DocumentScreen>(
            workspace(), std::make_unique<ui::ReturnScreenKind>());
        showActive(*screen);
        return screen;
    }

    static void showActive(QWidget &screen)
    {
        screen.resize(1366, 700);
        screen.show();
        screen.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
        screen.setFocus();
        Keyboard::settle();
    }

    // A line keyed cell by cell: the goods text, then Enter through batch, production date,
    // expiry, quantity and price.
    void keyLine(const QString &goods, const QString &batch, const QString &produced,
        const QString &expiry, const QString &quantity, const QString &price)
    {
        keys.type(goods);
        keys.press(Qt::Key_Return);
        for (const QString &cell : { batch, produced, expiry, quantity, price }) {
            keys.type(cell);
            keys.press(Qt::Key_Return);
        }
    }

    // The check dialog answered with the paid amount and F5.
    void approveWith(const QString &paid)
    {
        keys.onDialog<ui::PurchaseCheckDialog>([this, paid](ui::PurchaseCheckDialog &dialog) {
            EXPECT_EQ(dialog.focusWidget(), dialog.paidField());
            keys.type(paid);
            keys.press(Qt::Key_F5);
            // The shortcut presses its button visibly; the click follows a moment later.
            EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible(); }, 2000));
        });
        keys.press(Qt::Key_F5);
        EXPECT_FALSE(keys.waiting());
    }

    QString cell(const ui::DocumentScreen &screen, int row, ui::LineField field)
    {
        return screen.lines()->index(row, screen.lines()->columnOf(field)).data().toString();
    }

    QStringList statusRows(const QString &table, const QString &number, const QString &key)
    {
        QStringList rows;
        for (const QSqlRecord &row :
            db().rows(QStringLiteral("select * from %1 where %2=?").arg(table, key), { number }))
            rows.append(row.value(0).toString());
        return rows;
    }

    Keyboard keys;
};

// The clerk keys a three-line receipt (a mnemonic with one match, one with two picked in the
// picker, a barcode of the 件 unit), saves with F3 and checks with F5 through the dialog; the
// file then holds exactly what the command line's save and check of the same document write.
TEST_F(ReceiptScreenTest, AKeyedReceiptWritesWhatTheCommandLineWrites)
{
    const QString cliFolder = QDir(folder()).filePath(QStringLiteral("cli"));
    ASSERT_TRUE(QDir().mkpath(cliFolder));
    db().execDirect(
        QStringLiteral("vacuum into '%1'").arg(QDir(cliFolder).filePath(QStringLiteral("jxc.db"))));

    auto screen = openReceipt();
    keys.setWindow(screen.get());
    EXPECT_EQ(QApplication::focusWidget(), screen->partyField());
    keys.type(QStringLiteral("hdyy"));
    keys.press(Qt::Key_Return);
    EXPECT_EQ(screen->partyCode(), QStringLiteral("100002"));
    keyLine(QStringLiteral("amx"), QStringLiteral("A2401"), QStringLiteral("20240102"),
        QStringLiteral("20260101"), QStringLiteral("10"), QStringLiteral("12.5"));
    keys.onDialog<ui::GoodsPickerDialog>([this](ui::GoodsPickerDialog &picker) {
        EXPECT_EQ(picker.rowCount(), 2);
        keys.press(Qt::Key_Down);
        keys.press(Qt::Key_Return);
    });
    keyLine(QStringLiteral("am"), QStringLiteral("D2402"), QString(), QStringLiteral("2026-6-30"),
        QStringLiteral("5"), QStringLiteral("9"));
    EXPECT_FALSE(keys.waiting());
    keyLine(QStringLiteral("16901234500014"), QStringLiteral("A2401"), QStringLiteral("20240102"),
        QStringLiteral("20260101"), QStringLiteral("2"), QStringLiteral("240"));
    ASSERT_EQ(screen->lines()->rowCount(), 4);
    EXPECT_EQ(cell(*screen, 1, ui::LineField::Name), QStringLiteral("阿莫地喹片"));
    EXPECT_EQ(cell(*screen, 1, ui::LineField::Expiry), QStringLiteral("2026-06-30"));
    EXPECT_EQ(cell(*screen, 2, ui::LineField::Unit), QStringLiteral("件"));
    EXPECT_EQ(cell(*screen, 2, ui::LineField::Amount), QStringLiteral("480.00"));
    EXPECT_EQ(screen->capitalsLabel()->text(), QStringLiteral("大写：陆佰伍拾元整"));

    keys.press(Qt::Key_F3);
    const QString number = screen->number();
    EXPECT_EQ(number, QStringLiteral("CJ25031410001"));
    approveWith(QStringLiteral("500"));
    // 5 for the supplier; 36, 26 and 45 for the lines (a full date is 8 keys, the barcode 14);
    // F3, F5, the paid amount and F5 in the dialog.
    EXPECT_EQ(keys.count(), 118);
    EXPECT_TRUE(ui.informed.isEmpty()) << ui.informed.join(QLatin1Char('|')).toStdString();
    EXPECT_TRUE(screen->isChecked());
    EXPECT_EQ(screen->statusLabel()->text(),
        QStringLiteral("状态：已审核　审核人：admin　审核日期：2025-03-14"));
    EXPECT_FALSE(screen->lines()->flags(screen->lines()->index(0, 8)) & Qt::ItemIsEditable);

    QFile json(QDir(folder()).filePath(QStringLiteral("receipt.json")));
    ASSERT_TRUE(json.open(QIODevice::WriteOnly));
    json.write(R"({"kind":"CJ","j_jhrq":"2025-03-14","ghs_sn":"100002","ck_sn":"100001","lines":[
        {"g_sn":"10000001","jh_sl":10,"jh_dj":12.5,"t_ph":"A2401","t_scrq":"2024-01-02","t_yxq":"2026-01-01"},
        {"g_sn":"10000002","jh_sl":5,"jh_dj":9,"t_ph":"D2402","t_yxq":"2026-06-30"},
        {"g_sn":"10000001","dw_name":"件","jh_sl":2,"jh_dj":240,"t_ph":"A2401","t_scrq":"2024-01-02","t_yxq":"2026-01-01"}]})");
    json.close();
    const QStringList global { QStringLiteral("--data"), cliFolder, QStringLiteral("--today"),
        QStringLiteral("2025-03-14") };
    const test::CliRun saved
        = test::runCli(global + QStringList { QStringLiteral("save"), json.fileName() });
    ASSERT_EQ(saved.status, 0) << saved.err.toStdString();
    EXPECT_EQ(saved.out.trimmed(), number);
    const test::CliRun checked = test::runCli(global
        + QStringList {
            QStringLiteral("check"), number, QStringLiteral("--paid"), QStringLiteral("500") });
    ASSERT_EQ(checked.status, 0) << checked.err.toStdString();

    auto cli = core::Connection::openSqlite(QDir(cliFolder).filePath(QStringLiteral("jxc.db")));
    const QStringList keyed = test::businessRows(db());
    EXPECT_EQ(test::rowDifferences(test::businessRows(*cli), keyed), QStringList());
    EXPECT_EQ(db().firstText(
                  QStringLiteral("select count(*) from jxc_goodslist where gl_djh=?"), { number }),
        QStringLiteral("3"));
}
