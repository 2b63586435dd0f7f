// The purchase receipt and return keyed as a clerk keys them, and what the database holds
// afterwards compared with the same documents saved and checked on the command line.
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "purchasing/receipt.h"
#include "tests/support/businessrows.h"
#include "tests/support/cli.h"
#include "tests/support/documentrows.h"
#include "tests/ui/keyboard.h"
#include "tests/ui/previews.h"
#include "tests/ui/uitest.h"
#include "ui/common/codenamefield.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/linegrid.h"
#include "ui/documents/pickers.h"
#include "ui/documents/sourcelinesdialog.h"
#include "ui/purchasing/checkdialog.h"
#include "ui/purchasing/purchasekinds.h"
#include "ui/reports/previewdialog.h"
#include "ui/reports/printing.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QInputDialog>
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
    const QStringList copy = copySet(cliFolder);

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
    const QStringList global
        = copy + QStringList { QStringLiteral("--today"), QStringLiteral("2025-03-14") };
    const test::CliRun saved
        = test::runCli(global + QStringList { QStringLiteral("save"), json.fileName() });
    ASSERT_EQ(saved.status, 0) << saved.err.toStdString();
    EXPECT_EQ(saved.out.trimmed(), number);
    const test::CliRun checked = test::runCli(global
        + QStringList {
            QStringLiteral("check"), number, QStringLiteral("--paid"), QStringLiteral("500") });
    ASSERT_EQ(checked.status, 0) << checked.err.toStdString();

    auto cli = openCopy(cliFolder);
    const QStringList keyed = test::businessRows(db());
    EXPECT_EQ(test::rowDifferences(test::businessRows(*cli), keyed), QStringList());
    EXPECT_EQ(db().firstText(
                  QStringLiteral("select count(*) from jxc_goodslist where gl_djh=?"), { number }),
        QStringLiteral("3"));
}

class CheckedReceiptTest : public ReceiptScreenTest
{
protected:
    void SetUp() override
    {
        ReceiptScreenTest::SetUp();
        if (HasFatalFailure())
            return;
        purchasing::PurchaseDraft draft;
        draft.entry.date = QStringLiteral("2025-03-14");
        draft.entry.party = QStringLiteral("100002");
        draft.entry.warehouse = QStringLiteral("100001");
        for (const auto &[goods, quantity, batch] :
            { std::tuple { "10000001", "10", "A2401" }, { "10000002", "5", "D2402" } }) {
            documents::LineDraft line;
            line.goods = QString::fromLatin1(goods);
            line.quantity = QString::fromLatin1(quantity);
            line.price = QStringLiteral("12.5");
            line.batch = QString::fromLatin1(batch);
            line.expiry = QStringLiteral("2026-01-01");
            draft.entry.lines.append(line);
        }
        receipt = purchasing::savePurchaseReceipt(session(), draft).value();
        ASSERT_TRUE(purchasing::checkPurchaseReceipt(session(), receipt).ok());
        ui.clear();
    }

    double stockOf(const QString &goods)
    {
        return db()
            .firstValue(QStringLiteral("select kc_sl from jxc_kcsp where g_sn=? and ck_sn=?"),
                { goods, QStringLiteral("100001") })
            .toDouble();
    }

    QString receipt;
};

// F8 prints the open receipt through cgjh with preview; with "打印采购单时选择打印格式" on it
// asks for the style first and prints with the one chosen. Before a document is open F8 does
// nothing.
TEST_F(CheckedReceiptTest, F8PrintsTheReceiptWithPreviewInTheChosenStyle)
{
    qputenv("MEDISTOCK_REPORT_DIR", MEDISTOCK_SOURCE_DIR "/report");
    ui::installPrinting(workspace());
    const auto previews = test::visiblePreviews;
    auto screen = openReceipt();
    keys.setWindow(screen.get());
    QPushButton *print = screen->printButton();
    EXPECT_TRUE(print->isEnabled());
    EXPECT_TRUE(print->toolTip().isEmpty());
    keys.press(Qt::Key_F8);
    EXPECT_TRUE(previews().isEmpty());

    screen->openDocument(receipt);
    keys.press(Qt::Key_F8);
    ASSERT_EQ(previews().size(), 1);
    ui::PreviewDialog *preview = previews().first();
    EXPECT_EQ(preview->windowTitle(), QStringLiteral("打印预览 - 采购进货单 ") + receipt);
    const QString text = preview->report().allText();
    for (const QString &wanted : { receipt, QStringLiteral("华东医药"),
             QStringLiteral("阿莫西林胶囊"), QStringLiteral("阿莫地喹片"), QStringLiteral("187.50"),
             QStringLiteral("壹佰捌拾柒元伍角整") })
        EXPECT_TRUE(text.contains(wanted)) << wanted.toStdString();
    delete preview;

    setParameter(QStringLiteral("cs_cs011"), 1);
    keys.onDialog<QInputDialog>([](QInputDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("选择打印单据样式"));
        EXPECT_EQ(dialog.labelText(), QStringLiteral("请选择需要的单据样式："));
        dialog.setTextValue(QStringLiteral("采购进货单(无进价)"));
        dialog.accept();
    });
    keys.press(Qt::Key_F8);
    ASSERT_EQ(previews().size(), 1);
    EXPECT_EQ(previews().first()->windowTitle(),
        QStringLiteral("打印预览 - 采购进货单(无进价) ") + receipt);
    EXPECT_FALSE(previews().first()->report().allText().contains(QStringLiteral("12.50")));
    delete previews().first();
    qunsetenv("MEDISTOCK_REPORT_DIR");
}

// Unchecked with F6 (after the question) and checked again with F5; then a return taken from
// the receipt's lines: more than the line holds is refused with the limit's words and the grid
// keeps the quantity typed; what it holds goes through. A free return of more than the batch
// holds is refused by the check with the batch check's words, and the check writes nothing.
TEST_F(CheckedReceiptTest, UncheckedCheckedAgainAndReturnedFromItsLines)
{
    auto screen = openReceipt();
    keys.setWindow(screen.get());
    screen->openDocument(receipt);
    ASSERT_TRUE(screen->isChecked());
    ui.answerNext(true);
    keys.press(Qt::Key_F6);
    EXPECT_EQ(ui.asked,
        QStringList {
            QStringLiteral("您的操作将取消当前选中的已审核单据：CJ25031410001，确认吗？") });
    EXPECT_FALSE(screen->isChecked());
    EXPECT_EQ(stockOf(QStringLiteral("10000001")), 0);
    EXPECT_TRUE(screen->lines()->flags(screen->lines()->index(0, 8)) & Qt::ItemIsEditable);
    approveWith(QStringLiteral("0"));
    EXPECT_TRUE(screen->isChecked());
    EXPECT_EQ(stockOf(QStringLiteral("10000001")), 10);

    auto back = openReturn();
    keys.setWindow(back.get());
    keys.type(QStringLiteral("hdyy"));
    keys.press(Qt::Key_Return);
    keys.onDialog<ui::SourceLinesDialog>([this](ui::SourceLinesDialog &dialog) {
        EXPECT_EQ(dialog.sourceGrid()->item(0, 0)->text(), QStringLiteral("CJ25031410001"));
        keys.press(Qt::Key_Return);
        keys.press(Qt::Key_Space);
        keys.press(Qt::Key_Return);
    });
    keys.press(Qt::Key_F10);
    EXPECT_FALSE(keys.waiting());
    ASSERT_EQ(back->lines()->rowCount(), 2);
    EXPECT_EQ(cell(*back, 0, ui::LineField::Quantity), QStringLiteral("10"));
    EXPECT_EQ(cell(*back, 0, ui::LineField::Batch), QStringLiteral("A2401"));
    EXPECT_EQ(back->lines()->line(0).columns.value(QStringLiteral("id2")).toLongLong(),
        db().firstValue(
                QStringLiteral("select id2 from jxc_jhsp where j_sn=? order by id"), { receipt })
            .toLongLong());

    back->grid()->editCell(0, ui::LineField::Quantity);
    keys.type(QStringLiteral("11"));
    keys.press(Qt::Key_Return);
    keys.press(Qt::Key_F3);
    EXPECT_EQ(ui.informed,
        QStringList {
            QStringLiteral("第1行：退货数量超过进货单CJ25031410001中该商品尚可退货的数量10！") });
    EXPECT_EQ(cell(*back, 0, ui::LineField::Quantity), QStringLiteral("11"));
    EXPECT_EQ(back->number(), QString());
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_thd")), 0);

    back->grid()->editCell(0, ui::LineField::Quantity);
    keys.type(QStringLiteral("4"));
    keys.press(Qt::Key_Return);
    keys.press(Qt::Key_F3);
    EXPECT_EQ(back->number(), QStringLiteral("CT25031410001"));
    approveWith(QStringLiteral("0"));
    EXPECT_TRUE(back->isChecked());
    EXPECT_EQ(stockOf(QStringLiteral("10000001")), 6);

    ui.clear();
    setParameter(QStringLiteral("cs_kc"), 0); // a batch shortage is refused, not asked
    keys.press(Qt::Key_F2);
    keys.type(QStringLiteral("hdyy"));
    keys.press(Qt::Key_Return);
    keys.type(QStringLiteral("amd"));
    keys.press(Qt::Key_Return);
    EXPECT_EQ(cell(*back, 0, ui::LineField::Batch), QStringLiteral("D2402"));
    keys.press(Qt::Key_Return);
    keys.type(QStringLiteral("9"));
    keys.press(Qt::Key_Return);
    keys.press(Qt::Key_F3);
    ASSERT_EQ(back->number(), QStringLiteral("CT25031410002"));
    const QStringList before = test::businessRows(db());
    approveWith(QStringLiteral("0"));
    EXPECT_EQ(ui.informed,
        QStringList {
            QStringLiteral("该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“10000002”："
                           "不能退货！") });
    EXPECT_FALSE(back->isChecked());
    EXPECT_EQ(test::rowDifferences(before, test::businessRows(db())), QStringList());
}

// Without "采购进货取消审核" (cggl 10) the button is disabled with the reason, F6 does nothing,
// and the operation itself refuses with its own words.
TEST_F(CheckedReceiptTest, AClerkWithoutTheUncheckRightCannotUncheck)
{
    addOperatorWithRights(
        QStringLiteral("小王"), { { QStringLiteral("cggl"), QStringLiteral("111111111") } });
    switchOperator(QStringLiteral("小王"));
    auto screen = openReceipt();
    keys.setWindow(screen.get());
    screen->openDocument(receipt);
    ASSERT_TRUE(screen->isChecked());
    EXPECT_FALSE(screen->uncheckButton()->isEnabled());
    EXPECT_EQ(
        screen->uncheckButton()->toolTip(), QStringLiteral("您没有“采购进货取消审核”的权限！"));
    keys.press(Qt::Key_F6);
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_TRUE(screen->isChecked());
    ui::ReceiptScreenKind kind;
    EXPECT_FALSE(kind.uncheck(session(), receipt).ok());
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("您没有取消审核采购进货单的权限！") });
    EXPECT_EQ(
        db().firstText(QStringLiteral("select j_status from jxc_jhd where j_sn=?"), { receipt }),
        QStringLiteral("1"));
}

// Typed work is never lost by a key: a goods text not found stays red in its cell, a save the
// entry refuses keeps every line, and closing or starting anew with unsaved lines asks first.
TEST_F(ReceiptScreenTest, NothingTypedIsLostOnARefusalOrAClose)
{
    auto screen = openReceipt();
    keys.setWindow(screen.get());
    keys.type(QStringLiteral("hdyy"));
    keys.press(Qt::Key_Return);
    keys.type(QStringLiteral("xyz"));
    keys.press(Qt::Key_Return);
    EXPECT_EQ(ui.informed,
        QStringList { QStringLiteral("没有找到商品：xyz\r\n请输入商品编号、条码、简码或名称。") });
    EXPECT_EQ(cell(*screen, 0, ui::LineField::Code), QStringLiteral("xyz"));
    EXPECT_EQ(
        screen->lines()->index(0, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::red));

    ui.clear();
    screen->grid()->finishEditing();
    screen->lines()->setData(screen->lines()->index(0, 1), QStringLiteral("amx"), Qt::EditRole);
    Keyboard::settle();
    screen->grid()->editCell(0, ui::LineField::Quantity);
    keys.type(QStringLiteral("0"));
    keys.press(Qt::Key_Return);
    keys.press(Qt::Key_F3);
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("第1行：数量不能为零！") });
    EXPECT_EQ(cell(*screen, 0, ui::LineField::Name), QStringLiteral("阿莫西林胶囊"));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_jhd")), 0);

    ui.answerNext(false);
    EXPECT_FALSE(screen->close());
    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral("当前单据已修改但尚未保存，确定要放弃这些修改吗？") });
    ui.answerNext(false);
    keys.press(Qt::Key_F2);
    EXPECT_EQ(cell(*screen, 0, ui::LineField::Code), QStringLiteral("10000001"));
    ui.answerNext(true);
    keys.press(Qt::Key_F2);
    EXPECT_EQ(screen->lines()->rowCount(), 1);
    EXPECT_TRUE(screen->lines()->line(0).isBlank());
}

// "cggl" 16, 17 and 18 guard adding goods to a saved unchecked receipt, deleting it, and adding
// a new goods from the picker.
TEST_F(ReceiptScreenTest, TheFinerRightsOfTheReceiptGuardTheirActions)
{
    const auto newGoodsButton = [&] {
        ui::GoodsPickerDialog picker(
            workspace(), QString(), QStringLiteral("100001"), QStringLiteral("cggl"), 18);
        return test::buttonNamed(&picker, QStringLiteral("新增商品(F7)")) != nullptr;
    };
    EXPECT_TRUE(newGoodsButton());
    purchasing::PurchaseDraft draft;
    draft.entry.date = QStringLiteral("2025-03-14");
    draft.entry.party = QStringLiteral("100002");
    draft.entry.warehouse = QStringLiteral("100001");
    documents::LineDraft l;
    l.goods = QStringLiteral("10000003");
    l.quantity = QStringLiteral("2");
    l.price = QStringLiteral("8");
    draft.entry.lines = { l };
    const QString number = purchasing::savePurchaseReceipt(session(), draft).value();

    addOperatorWithRights(
        QStringLiteral("小王"), { { QStringLiteral("cggl"), QStringLiteral("111111111111111") } });
    switchOperator(QStringLiteral("小王"));
    EXPECT_FALSE(newGoodsButton());
    auto screen = openReceipt();
    EXPECT_TRUE(screen->lines()->isAddingAllowed());
    screen->openDocument(number);
    EXPECT_FALSE(screen->lines()->isAddingAllowed());
    EXPECT_FALSE(screen->deleteButton()->isEnabled());
    EXPECT_EQ(screen->deleteButton()->toolTip(),
        QStringLiteral("您没有“允许删除采购进货待审核单据”的权限！"));
    screen->grid()->goToNewLine();
    EXPECT_EQ(screen->lines()->rowCount(), 1);
    EXPECT_FALSE(screen->lines()->flags(screen->lines()->index(0, 1)) & Qt::ItemIsEditable);
    // What the receipt holds may still be changed.
    EXPECT_TRUE(screen->lines()->flags(screen->lines()->index(0, 8)) & Qt::ItemIsEditable);
}

// Absurd numbers typed on the receipt screen get the refusals the command line gives (the entry's
// and the check's own checks), keep what was typed, and write nothing.
TEST_F(ReceiptScreenTest, AbsurdNumbersAreRefusedAsOnTheCommandLine)
{
    auto kind = std::make_unique<ui::ReceiptScreenKind>();
    ui::ReceiptScreenKind *receiptKind = kind.get();
    ui::DocumentScreen screen(workspace(), std::move(kind));
    showActive(screen);
    keys.setWindow(&screen);
    keys.type(QStringLiteral("hdyy"));
    keys.press(Qt::Key_Return);
    keyLine(QStringLiteral("amx"), QStringLiteral("A2401"), QStringLiteral("20240102"),
        QStringLiteral("20260101"), QStringLiteral("1e+20"), QStringLiteral("12.5"));
    screen.grid()->finishEditing();
    Keyboard::settle();
    // A cell's number is told as the cell is left, and again by the save.
    EXPECT_EQ(ui.informed,
        QStringList { QStringLiteral("第1行：数量“1e+20”超出范围，应在 0 到 100000000 之间！") });
    const auto setCell = [&](ui::LineField field, const QString &text) {
        ui.clear();
        screen.lines()->setData(
            screen.lines()->index(0, screen.lines()->columnOf(field)), text, Qt::EditRole);
        Keyboard::settle();
        return ui.informed.join(QLatin1Char('|'));
    };
    const auto refusalOfSave = [&] {
        ui.clear();
        keys.press(Qt::Key_F3);
        EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_jhd")), 0);
        return ui.informed.join(QLatin1Char('|'));
    };
    EXPECT_EQ(
        refusalOfSave(), QStringLiteral("第1行：数量“1e+20”超出范围，应在 0 到 100000000 之间！"));
    EXPECT_EQ(cell(screen, 0, ui::LineField::Quantity), QStringLiteral("1e+20"));
    EXPECT_EQ(setCell(ui::LineField::Quantity, QStringLiteral("2")), QString());
    EXPECT_EQ(setCell(ui::LineField::Price, QStringLiteral("NaN")),
        QStringLiteral("第1行：单价“NaN”不是数字！"));
    EXPECT_EQ(refusalOfSave(), QStringLiteral("第1行：单价“NaN”不是数字！"));
    EXPECT_EQ(setCell(ui::LineField::Price, QStringLiteral("12.5")), QString());
    EXPECT_EQ(setCell(ui::LineField::TaxRate, QStringLiteral("1000")),
        QStringLiteral("第1行：税率“1000”超出范围，应在 0 到 100 之间！"));
    EXPECT_EQ(setCell(ui::LineField::TaxRate, QString()), QString());
    screen.discountField()->setText(QStringLiteral("-5"));
    EXPECT_EQ(refusalOfSave(), QStringLiteral("优惠金额不能为负数！"));
    screen.discountField()->setText(QStringLiteral("inf"));
    EXPECT_EQ(refusalOfSave(), QStringLiteral("优惠金额“inf”不是数字！"));
    screen.discountField()->clear();
    receiptKind->freightField()->setText(QStringLiteral("1e308"));
    EXPECT_EQ(
        refusalOfSave(), QStringLiteral("运费“1e308”超出范围，应在 0 到 1000000000000 之间！"));
    receiptKind->freightField()->clear();
    keys.press(Qt::Key_F3);
    ASSERT_EQ(screen.number(), QStringLiteral("CJ25031410001"));

    // The check dialog keeps itself open on an amount paid that is no amount.
    const QString saved = test::dumpDatabase(db());
    ui.clear();
    keys.onDialog<ui::PurchaseCheckDialog>([this](ui::PurchaseCheckDialog &dialog) {
        keys.type(QStringLiteral("1e13"));
        keys.press(Qt::Key_F5);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !ui.informed.isEmpty(); }, 2000));
        EXPECT_TRUE(dialog.isVisible());
        keys.press(Qt::Key_Escape);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible(); }, 2000));
    });
    keys.press(Qt::Key_F5);
    EXPECT_FALSE(keys.waiting());
    EXPECT_EQ(ui.informed,
        QStringList { QStringLiteral("实付金额“1e13”超出范围，应在 0 到 1000000000000 之间！") });
    EXPECT_FALSE(screen.isChecked());
    EXPECT_EQ(test::dumpDatabase(db()), saved);
}
