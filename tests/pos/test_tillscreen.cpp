// The till on screen, driven from the keyboard as a cashier works it: goods typed or scanned,
// the function keys, a member, the payment split, a return of the receipt; and the POS report
// screens on what it sold.
#include "core/interaction.h"
#include "tests/pos/tillscreentest.h"
#include "tests/ui/previews.h"
#include "ui/common/application.h"
#include "ui/common/gridlayouts.h"
#include "ui/common/picker.h"
#include "ui/common/workspace.h"
#include "ui/pos/reportscreen.h"
#include "ui/pos/tilldialogs.h"
#include "ui/pos/tillscreen.h"
#include "ui/reports/printing.h"

#include <QApplication>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace medistock;

using test::TillScreenTest;

TEST_F(TillScreenTest, ASaleWithAMemberAndASplitPaymentThenAReturnOfOneLine)
{
    ringUpThreeLines();
    EXPECT_EQ(shownLines(),
        (QStringList { "200001|盒|3.00|12.00|1.00|36.00|", "200002|瓶|2.00|8.00|1.00|16.00|",
            "200003|盒|1.00|3.50|1.00|0.00|(赠品)" }));
    EXPECT_EQ(till->memberLabel()->text(),
        QStringLiteral("会员：张敏  卡号：%1  等级：普通会员  积分：0.00  卡余额：100.00")
            .arg(card));
    EXPECT_EQ(till->totalsLabel()->text(), QStringLiteral("共 3 行  数量 6.00  应收金额 52.00"));

    // 20 off the card, 10 by WeChat, 30 in cash: 8 change.
    onDialog([](QWidget *w) {
        auto *pay = qobject_cast<ui::PaymentDialog *>(w);
        ASSERT_NE(pay, nullptr);
        EXPECT_EQ(pay->field(0)->value(), 52);
        pay->field(1)->setValue(20);
        pay->field(4)->setValue(10);
        pay->field(0)->setValue(30);
        EXPECT_EQ(pay->changeLabel()->text(), "8.00");
        pay->accept();
    });
    key(Qt::Key_Equal);
    const QString sold = till->lastNumber();
    ASSERT_EQ(sold, "XS25031410001") << ui.informed.join('\n').toStdString();
    EXPECT_EQ(till->statusLabel()->text(), QStringLiteral("收款完成：XS25031410001  找零 8.00"));
    EXPECT_EQ(till->lines()->rowCount(), 0);
    EXPECT_EQ(till->memberLabel()->text(), QStringLiteral("非会员"));
    EXPECT_EQ(rows(QStringLiteral("jxc_kcsp"), QStringLiteral("g_sn,kc_sl"),
                  QStringLiteral("g_sn in ('200001','200002','200003') and ck_sn='100001'")),
        (QStringList { "200001|97", "200002|48", "200003|39" }));
    EXPECT_EQ(rows(QStringLiteral("jxc_xjyh"), QStringLiteral("xj_dlx,xj_kmmc,xj_je"),
                  QStringLiteral("gl_djh=?"), { sold }),
        (QStringList { "商品销售|现金|22", "商品销售|微信|10" }));
    // 10 points for the two bottles of special-points goods, 3 for the other 36 yuan.
    EXPECT_EQ(rows(QStringLiteral("jxc_hyxx"), QStringLiteral("hy_jf,hy_zje,hy_cs,hy_zhje"),
                  QStringLiteral("hy_sn=?"), { member }),
        QStringList { "13|52|1|80" });

    // One box of amoxicillin comes back, refunded in cash at the sale's price.
    onDialog([](QWidget *w) {
        auto *input = qobject_cast<QInputDialog *>(w);
        ASSERT_NE(input, nullptr);
        input->setTextValue(QStringLiteral("XS25031410001"));
        onDialog([](QWidget *next) {
            auto *back = qobject_cast<ui::ReturnDialog *>(next);
            ASSERT_NE(back, nullptr);
            EXPECT_EQ(back->grid()->rowCount(), 3);
            back->grid()->item(0, 6)->setText(QStringLiteral("1"));
            back->accept();
        });
        input->accept();
    });
    key(Qt::Key_F5);
    const QString returned = till->lastNumber();
    ASSERT_EQ(returned, "XT25031410001") << ui.informed.join('\n').toStdString();
    EXPECT_EQ(till->statusLabel()->text(), QStringLiteral("退货完成：XT25031410001  退款 12.00"));
    EXPECT_EQ(rows(QStringLiteral("jxc_kcsp"), QStringLiteral("kc_sl"),
                  QStringLiteral("g_sn='200001' and ck_sn='100001'")),
        QStringList { "98" });
    EXPECT_EQ(rows(QStringLiteral("jxc_xjyh"), QStringLiteral("xj_dlx,xj_kmmc,xj_je"),
                  QStringLiteral("gl_djh=?"), { returned }),
        QStringList { "顾客退货|现金|-12" });
    // The 12 yuan take one point back and the visit; the card keeps what was paid from it.
    EXPECT_EQ(rows(QStringLiteral("jxc_hyxx"), QStringLiteral("hy_jf,hy_zje,hy_cs,hy_zhje"),
                  QStringLiteral("hy_sn=?"), { member }),
        QStringList { "12|40|0|80" });
}

TEST_F(TillScreenTest, RefusalsAreToldAndLoseNothingTyped)
{
    ringUpThreeLines();
    const QStringList before = shownLines();
    scan(QStringLiteral("zzz"));
    EXPECT_EQ(ui.informed, QStringList { "没有找到商品：zzz" });
    EXPECT_EQ(till->goodsField()->text(), "zzz");
    // The function keys work from the warehouse box too.
    onDialog([](QWidget *w) { qobject_cast<QDialog *>(w)->reject(); });
    QTest::keyClick(till->warehouseBox(), Qt::Key_F2);
    EXPECT_TRUE(till->memberLabel()->text().startsWith(QStringLiteral("会员：张敏")));
    answer(Qt::Key_F2, QStringLiteral("999999"));
    EXPECT_EQ(ui.informed.last(), "没有找到会员：999999");
    EXPECT_TRUE(till->memberLabel()->text().startsWith(QStringLiteral("会员：张敏")));
    answer(Qt::Key_F4, QStringLiteral("0"));
    EXPECT_EQ(ui.informed.last(), "数量应大于0");

    // Short by 2: the payment stays open until it is cancelled; nothing is posted.
    onDialog([this](QWidget *w) {
        auto *pay = qobject_cast<ui::PaymentDialog *>(w);
        ASSERT_NE(pay, nullptr);
        pay->field(0)->setValue(50);
        pay->accept();
        EXPECT_EQ(ui.informed.last(), "付款不足，还差 2.00");
        EXPECT_TRUE(pay->isVisible());
        pay->reject();
    });
    const QString snapshotBefore = snapshot();
    key(Qt::Key_Equal);
    EXPECT_EQ(snapshot(), snapshotBefore);
    EXPECT_EQ(shownLines(), before);
    EXPECT_EQ(till->goodsField()->text(), "zzz");
}

TEST_F(TillScreenTest, AHeldSaleComesBackWithItsMemberAndIsSoldUnderItsNumber)
{
    ringUpThreeLines();
    // Up to the first line and 10% off it.
    key(Qt::Key_Up);
    key(Qt::Key_Up);
    answer(Qt::Key_F7, QStringLiteral("0.9"));
    const QStringList rungUp = shownLines();
    EXPECT_EQ(rungUp.first(), "200001|盒|3.00|12.00|0.90|32.40|");
    key(Qt::Key_F8);
    const QString held = till->lastNumber();
    EXPECT_EQ(held, "XS25031410001");
    EXPECT_EQ(till->lines()->rowCount(), 0);
    onDialog([](QWidget *w) {
        auto *picker = qobject_cast<ui::PickerDialog *>(w);
        ASSERT_NE(picker, nullptr);
        EXPECT_EQ(picker->rowCount(), 1);
        picker->takeCurrent();
    });
    key(Qt::Key_F9);
    EXPECT_EQ(shownLines(), rungUp);
    EXPECT_TRUE(till->memberLabel()->text().startsWith(QStringLiteral("会员：张敏")));
    onDialog([](QWidget *w) { qobject_cast<QDialog *>(w)->accept(); });
    key(Qt::Key_Equal);
    EXPECT_EQ(till->lastNumber(), held);
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxssptemp"), QStringLiteral("gl_djh")), QStringList {});
}

// The reports on screen show what the till sold, the totals row last.
TEST_F(TillScreenTest, TheRankingByCashierShowsTheSaleWithItsProfitRate)
{
    ringUpThreeLines();
    onDialog([](QWidget *w) { qobject_cast<QDialog *>(w)->accept(); });
    key(Qt::Key_Equal);
    ASSERT_EQ(till->lastNumber(), "XS25031410001");
    ui::PosReportScreen ranking(*workspace, ui::posReportKinds().at(2));
    ranking.viewBox()->setCurrentIndex(2);
    QStringList shown;
    for (int r = 0; r < ranking.model()->rowCount(); ++r) {
        QStringList cells;
        for (int c = 0; c < ranking.model()->columnCount(); ++c)
            cells.append(ranking.model()->text(r, c));
        shown.append(cells.join(QLatin1Char('|')));
    }
    // Cost 3 x 5 + 2 x 2 + 1 x 3 (the gift counts) = 22 against 52: 30 profit, 57.69 %.
    EXPECT_EQ(shown, (QStringList { "1|admin|6.00|52.00|30.00|57.69", "合计||6.00|52.00|30.00|" }));
}

// The shift of the sale above: 52 taken, 22 of it in cash; the cashier hands 20 up and leaves 2.
TEST_F(TillScreenTest, TheHandoverWritesTheShiftsTakingsAndTheCountedSplit)
{
    sellWithSplit();
    onDialog([](QWidget *w) {
        auto *handover = qobject_cast<ui::HandoverDialog *>(w);
        ASSERT_NE(handover, nullptr);
        // Nothing to print on without printing: the slip is not offered.
        EXPECT_FALSE(handover->slipBox()->isEnabled());
        EXPECT_EQ(handover->slipKey(), QString());
        EXPECT_EQ(handover->handedUpField()->value(), 22);
        handover->handedUpField()->setValue(20);
        handover->leftField()->setValue(2);
        handover->accept();
    });
    key(Qt::Key_F3);
    EXPECT_EQ(till->statusLabel()->text(), QStringLiteral("交班完成，交接金额 22.00"));
    EXPECT_EQ(rows(QStringLiteral("jxc_jbgl"),
                  QStringLiteral("jb_curruser,jb_nextuser,jb_bbskzje,jb_sjyyk,jb_xfyyk,jb_jjzje")),
        QStringList { "admin|admin|52|20|2|22" });
}

// With negative stock forbidden a shortage refuses the payment, and the sale waits on the screen
// to be corrected; the quantity put right, it sells.
TEST_F(TillScreenTest, AShortageRefusesThePaymentAndKeepsTheSale)
{
    setParameter(QStringLiteral("cs_kc"), 0);
    scan(QStringLiteral("200002"));
    answer(Qt::Key_F4, QStringLiteral("51"));
    const QString before = snapshot();
    onDialog([](QWidget *w) { qobject_cast<QDialog *>(w)->accept(); });
    key(Qt::Key_Equal);
    EXPECT_EQ(
        ui.informed, QStringList { "商品“维生素C片”库存不足：库存50瓶，本次销售51瓶，不能销售！" });
    EXPECT_EQ(snapshot(), before);
    EXPECT_EQ(shownLines(), QStringList { "200002|瓶|51.00|8.00|1.00|408.00|" });
    answer(Qt::Key_F4, QStringLiteral("50"));
    onDialog([](QWidget *w) { qobject_cast<QDialog *>(w)->accept(); });
    key(Qt::Key_Equal);
    EXPECT_EQ(till->lastNumber(), "XS25031410001");
    EXPECT_EQ(rows(QStringLiteral("jxc_kcsp"), QStringLiteral("kc_sl"),
                  QStringLiteral("g_sn='200002' and ck_sn='100001'")),
        QStringList { "0" });
}

// Before anything is sold there is no receipt to print; after the sale, the 58 mm button prints
// that sale's receipt into the preview, and a held sale leaves the receipt of the last sale.
TEST_F(TillScreenTest, TheLastReceiptPrintsOnTheChosenPaper)
{
    qputenv("MEDISTOCK_REPORT_DIR", MEDISTOCK_SOURCE_DIR "/report");
    ui::installPrinting(*workspace);
    till = std::make_unique<ui::TillScreen>(*workspace);
    QPushButton *print58 = nullptr;
    for (QPushButton *button : till->findChildren<QPushButton *>())
        if (button->text() == QStringLiteral("打印小票(58)"))
            print58 = button;
    ASSERT_NE(print58, nullptr);
    ASSERT_TRUE(print58->isEnabled());
    print58->click();
    EXPECT_EQ(ui.informed, QStringList { "还没有结账或退货的小票可以打印" });

    ringUpThreeLines();
    onDialog([](QWidget *w) { qobject_cast<QDialog *>(w)->accept(); });
    key(Qt::Key_Equal);
    ASSERT_EQ(till->lastNumber(), "XS25031410001");
    scan(QStringLiteral("200001"));
    key(Qt::Key_F8);
    EXPECT_NE(till->lastNumber(), "XS25031410001");
    print58->click();
    const QList<ui::PreviewDialog *> previews = test::visiblePreviews();
    ASSERT_EQ(previews.size(), 1);
    EXPECT_TRUE(previews.first()->windowTitle().contains(QStringLiteral("POS小票(58)")))
        << previews.first()->windowTitle().toStdString();
    const QString text = previews.first()->report().allText();
    for (const QString &wanted : { QStringLiteral("XS25031410001"), QStringLiteral("52.00") })
        EXPECT_TRUE(text.contains(wanted)) << wanted.toStdString();
    delete previews.first();
    qunsetenv("MEDISTOCK_REPORT_DIR");
}
