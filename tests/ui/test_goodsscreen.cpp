#include "masterdata/goodsclass.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "tests/ui/uitest.h"
#include "ui/masterdata/classtree.h"
#include "ui/masterdata/goodsdialog.h"
#include "ui/masterdata/goodsscreen.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlRecord>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

using namespace medistock;
using medistock::test::buttonNamed;
using medistock::test::dumpDatabase;
using medistock::test::typeInto;

namespace {

QStringList listed(const ui::MasterListScreen &screen, const char *column = "g_name")
{
    QStringList texts;
    for (int row = 0; row < screen.rowCount(); ++row)
        texts.append(screen.recordAt(row).value(QString::fromLatin1(column)).toString());
    return texts;
}

// The "添加" button of one tab of the goods dialog.
QAbstractButton *addOnPage(const ui::GoodsDialog &dialog, const QString &title)
{
    for (int i = 0; i < dialog.pages()->count(); ++i)
        if (dialog.pages()->tabText(i) == title)
            return buttonNamed(dialog.pages()->widget(i), QStringLiteral("添加"));
    return nullptr;
}

// Runs `step` on the modal dialog that the next action opens.
template<class Dialog, class Step> void onNextDialog(Step step)
{
    QTimer::singleShot(0, [step] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        step(*dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
}

} // namespace

class GoodsScreenTest : public test::UiTest
{
protected:
    QString addGoods(const QString &name, const QString &classCode = QStringLiteral("1000"))
    {
        return masterdata::addMasterRow(session(), masterdata::goodsKind(),
            { { QStringLiteral("g_name"), name }, { QStringLiteral("gc_sn"), classCode },
                { QStringLiteral("dw_name"), QStringLiteral("盒") } })
            .value();
    }
};

TEST_F(GoodsScreenTest, AGoodsAddedWithAUnitAndABarcodeIsFoundAgainByItsMnemonic)
{
    ui::GoodsDialog dialog(session(), {});
    dialog.show();
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("增加商品"));
    typeInto(dialog.lineEdit(QStringLiteral("g_name")), QStringLiteral("阿莫西林胶囊"));
    EXPECT_EQ(dialog.lineEdit(QStringLiteral("g_jm"))->text(), QStringLiteral("AMXLJN"));
    dialog.lookup(QStringLiteral("dw_name"))->setValue(QStringLiteral("盒"));
    typeInto(dialog.lineEdit(QStringLiteral("g_jj")), QStringLiteral("6.8"));
    dialog.unitNameField()->setEditText(QStringLiteral("箱"));
    typeInto(dialog.unitFactorField(), QStringLiteral("200"));
    typeInto(dialog.unitBarcodeField(), QStringLiteral("16901234500014"));
    addOnPage(dialog, QStringLiteral("辅助单位"))->click();
    typeInto(dialog.barcodeField(), QStringLiteral("6901234500024"));
    addOnPage(dialog, QStringLiteral("多条码"))->click();
    ASSERT_EQ(dialog.unitGrid()->rowCount(), 1);
    EXPECT_EQ(dialog.unitGrid()->item(0, 1)->text(), QStringLiteral("200"));
    buttonNamed(&dialog, QStringLiteral("保存(&S)"))->click();

    EXPECT_TRUE(ui.informed.isEmpty()) << ui.informed.join(QLatin1Char('|')).toStdString();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.savedKey(), QStringLiteral("10000001"));
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_goodsdw"),
                  QStringLiteral("dw_name,g_zhxs,g_sptm"), QStringLiteral("g_sn=?"),
                  { QStringLiteral("10000001") }),
        QStringList { QStringLiteral("箱|200|16901234500014") });
    EXPECT_EQ(
        db().firstText(QStringLiteral("select g_sptm from jxc_goodstm where g_sn='10000001'")),
        QStringLiteral("6901234500024"));

    addGoods(QStringLiteral("阿莫地喹片"));
    ui::GoodsScreen screen(workspace());
    EXPECT_EQ(screen.rowCount(), 2);
    typeInto(screen.searchField(), QStringLiteral("amxl"));
    EXPECT_EQ(listed(screen), QStringList { QStringLiteral("阿莫西林胶囊") });
    EXPECT_EQ(screen.countLabel()->text(), QStringLiteral("记录数：1"));
    for (const QString &barcode :
        { QStringLiteral("16901234500014"), QStringLiteral("6901234500024") }) {
        screen.searchField()->setText(barcode);
        EXPECT_EQ(listed(screen), QStringList { QStringLiteral("阿莫西林胶囊") });
    }
    screen.searchField()->clear();
    EXPECT_EQ(screen.rowCount(), 2);
}

TEST_F(GoodsScreenTest, TheMnemonicFollowsTheNameUntilTypedByHandAndTheCodeStaysOnEdit)
{
    const QString code = addGoods(QStringLiteral("维生素C片"));
    ui::GoodsDialog dialog(session(), code);
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("修改商品：维生素C片"));
    EXPECT_TRUE(dialog.lineEdit(QStringLiteral("g_sn"))->isReadOnly());
    dialog.lineEdit(QStringLiteral("g_name"))->setText(QStringLiteral("维生素E软胶囊"));
    EXPECT_EQ(dialog.lineEdit(QStringLiteral("g_jm"))->text(), QStringLiteral("WSSERJN"));
    dialog.lineEdit(QStringLiteral("g_jm"))->clear();
    typeInto(dialog.lineEdit(QStringLiteral("g_jm")), QStringLiteral("VE"));
    dialog.lineEdit(QStringLiteral("g_name"))->setText(QStringLiteral("维生素E软胶囊100mg"));
    EXPECT_EQ(dialog.lineEdit(QStringLiteral("g_jm"))->text(), QStringLiteral("VE"));
    dialog.save();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(db().firstText(QStringLiteral("select g_sn||'|'||g_name||'|'||g_jm from jxc_goods "
                                            "where id=(select max(id) from jxc_goods)")),
        code + QStringLiteral("|维生素E软胶囊100mg|VE"));
}

TEST_F(GoodsScreenTest, WhatTheFieldsCannotTakeIsToldAndNothingIsWritten)
{
    const QString before = dumpDatabase(db());
    ui::GoodsDialog dialog(session(), {});
    dialog.show();
    typeInto(dialog.unitFactorField(), QStringLiteral("二十"));
    dialog.unitNameField()->setEditText(QStringLiteral("箱"));
    dialog.addUnit();
    dialog.save();
    typeInto(dialog.lineEdit(QStringLiteral("g_name")), QStringLiteral("感冒灵颗粒"));
    typeInto(dialog.lineEdit(QStringLiteral("g_jj")), QStringLiteral("abc"));
    dialog.save();
    dialog.lineEdit(QStringLiteral("g_jj"))->clear();
    typeInto(dialog.lineEdit(QStringLiteral("g_ks")), QStringLiteral("2025-02-30"));
    dialog.save();
    EXPECT_EQ(ui.informed,
        (QStringList { QStringLiteral("转换系数“二十”不是数字！"),
            QStringLiteral("商品名称必须填写！"), QStringLiteral("预设进价“abc”不是数字！"),
            QStringLiteral("开始日期不是正确的日期（yyyy-MM-dd）：2025-02-30") }));
    EXPECT_EQ(dialog.unitGrid()->rowCount(), 0);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dumpDatabase(db()), before);
}

TEST_F(GoodsScreenTest, ARefusedDeleteShowsItsMessageWhileDisablingWorks)
{
    addGoods(QStringLiteral("布洛芬缓释胶囊"));
    const QString sold = addGoods(QStringLiteral("阿莫西林胶囊"));
    db().exec(QStringLiteral("insert into jxc_lsxssp (gl_djh,g_sn) values (?,?)"),
        { QStringLiteral("XS25031410001"), sold });
    ui::GoodsScreen screen(workspace());
    screen.selectKey(sold);
    ui.answerNext(true);
    buttonNamed(&screen, QStringLiteral("删除(&D)"))->click();
    EXPECT_EQ(ui.asked, QStringList { QStringLiteral("确实要删除商品：阿莫西林胶囊 吗？") });
    EXPECT_EQ(ui.informed,
        QStringList {
            QStringLiteral("商品“阿莫西林胶囊”已有销售单记录，不能删除！可以将它设为禁用。") });
    EXPECT_EQ(screen.rowCount(), 2);

    EXPECT_EQ(screen.disableButton()->text(), QStringLiteral("禁用"));
    screen.disableButton()->click();
    EXPECT_EQ(screen.currentKey(), sold);
    EXPECT_EQ(screen.disableButton()->text(), QStringLiteral("启用"));
    EXPECT_EQ(db().firstText(QStringLiteral("select g_jy from jxc_goods where g_sn=?"), { sold }),
        QStringLiteral("1"));
    EXPECT_EQ(screen.grid()->model()->index(1, 12).data().toString(), QStringLiteral("是"));

    screen.selectKey(QStringLiteral("10000001"));
    ui.answerNext(false);
    screen.deleteCurrent();
    EXPECT_EQ(screen.rowCount(), 2);
    ui.answerNext(true);
    screen.deleteCurrent();
    EXPECT_EQ(listed(screen), QStringList { QStringLiteral("阿莫西林胶囊") });
}

TEST_F(GoodsScreenTest, TheClassTreeNarrowsTheListAndNewGoodsStartInTheChosenClass)
{
    ui::GoodsScreen screen(workspace());
    screen.show();
    ui::ClassTreePanel &classes = *screen.classes();
    ASSERT_TRUE(classes.addClass(QStringLiteral("感冒用药")));
    ASSERT_TRUE(classes.addClass(QStringLiteral("儿童感冒药")));
    EXPECT_EQ(classes.tree()->currentItem()->text(0), QStringLiteral("儿童感冒药"));
    EXPECT_EQ(classes.currentCode(), QStringLiteral("100101"));
    addGoods(QStringLiteral("阿莫西林胶囊"));

    onNextDialog<ui::GoodsDialog>([](ui::GoodsDialog &dialog) {
        EXPECT_EQ(
            dialog.lookup(QStringLiteral("gc_sn"))->currentText(), QStringLiteral("儿童感冒药"));
        dialog.lineEdit(QStringLiteral("g_name"))->setText(QStringLiteral("小儿感冒颗粒"));
        dialog.save();
    });
    buttonNamed(&screen, QStringLiteral("增加(&A)"))->click();
    EXPECT_EQ(listed(screen), QStringList { QStringLiteral("小儿感冒颗粒") });
    EXPECT_EQ(screen.currentKey(), QStringLiteral("1001010001"));
    classes.choose(1);
    EXPECT_EQ(screen.rowCount(), 2);

    classes.choose(3);
    ui.answerNext(true);
    EXPECT_FALSE(classes.deleteClass());
    EXPECT_EQ(
        ui.informed.last(), QStringLiteral("商品类别“感冒用药”下还有子类别或商品，不能删除！"));
    ASSERT_TRUE(classes.renameClass(QStringLiteral("感冒药")));
    EXPECT_EQ(classes.itemOf(3)->text(0), QStringLiteral("感冒药"));
    classes.choose(4);
    ASSERT_TRUE(classes.moveClass(2));
    EXPECT_EQ(classes.itemOf(4)->parent()->text(0), QStringLiteral("默认类别"));
    classes.choose(3);
    ui.answerNext(true);
    EXPECT_TRUE(classes.deleteClass());
    EXPECT_EQ(classes.itemOf(3), nullptr);
    EXPECT_EQ(classes.currentCid(), 1);
}

TEST_F(GoodsScreenTest, EnterInTheSearchReachesTheGridAndEnterThereEditsTheRow)
{
    addGoods(QStringLiteral("感冒灵颗粒"));
    const QString code = addGoods(QStringLiteral("复方甘草片"));
    ui::GoodsScreen screen(workspace());
    screen.show();
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    typeInto(screen.searchField(), QStringLiteral("甘草"));
    QTest::keyClick(screen.searchField(), Qt::Key_Return);
    EXPECT_TRUE(screen.grid()->hasFocus());
    EXPECT_EQ(screen.currentKey(), code);
    QString title;
    onNextDialog<ui::GoodsDialog>([&](ui::GoodsDialog &dialog) { title = dialog.windowTitle(); });
    QTest::keyClick(screen.grid(), Qt::Key_Return);
    EXPECT_EQ(title, QStringLiteral("修改商品：复方甘草片"));
    title.clear();
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    onNextDialog<ui::GoodsDialog>([&](ui::GoodsDialog &dialog) { title = dialog.windowTitle(); });
    QTest::keyClick(screen.searchField(), Qt::Key_F2);
    EXPECT_EQ(title, QStringLiteral("修改商品：复方甘草片"));
}

TEST_F(GoodsScreenTest, WithoutThePriceAndCommissionRightsThoseFieldsStayAsTheyAre)
{
    const QString code = addGoods(QStringLiteral("感冒灵颗粒"));
    addOperatorWithRights(
        QStringLiteral("小王"), { { QStringLiteral("qtcz"), QStringLiteral("1") } });
    switchOperator(QStringLiteral("小王"));
    ui::GoodsDialog dialog(session(), code);
    EXPECT_TRUE(dialog.lineEdit(QStringLiteral("g_jj"))->isReadOnly());
    EXPECT_TRUE(dialog.lineEdit(QStringLiteral("g_tc"))->isReadOnly());
    EXPECT_FALSE(dialog.lookup(QStringLiteral("g_tclb"))->isEnabled());
    EXPECT_FALSE(dialog.lineEdit(QStringLiteral("g_lsj"))->isReadOnly());
    dialog.lineEdit(QStringLiteral("g_jj"))->setText(QStringLiteral("99"));
    dialog.lineEdit(QStringLiteral("g_lsj"))->setText(QStringLiteral("15"));
    dialog.save();
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_goods"), QStringLiteral("g_jj,g_lsj"),
                  QStringLiteral("g_sn=?"), { code }),
        QStringList { QStringLiteral("0|15") });
    ui::GoodsDialog fresh(session(), {});
    EXPECT_FALSE(fresh.lineEdit(QStringLiteral("g_jj"))->isReadOnly());
}
