#include "accounts/registrations.h"
#include "core/connection.h"
#include "reports/printing.h"
#include "reports/template.h"
#include "shell/session.h"
#include "tests/ui/keyboard.h"
#include "tests/ui/previews.h"
#include "tests/ui/uitest.h"
#include "ui/accounts/ledgerscreen.h"
#include "ui/accounts/registrationscreen.h"
#include "ui/common/datefield.h"
#include "ui/common/texts.h"
#include "ui/reports/designer.h"
#include "ui/reports/designscene.h"
#include "ui/reports/pageview.h"
#include "ui/reports/previewdialog.h"
#include "ui/reports/printing.h"
#include "ui/reports/propertypanel.h"
#include "ui/reports/reportdesignscreen.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGraphicsView>
#include <QInputDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>
#include <QTimer>

using namespace medistock;

namespace {

// A checked sale of `lines` lines of 阿莫西林胶囊 at 12 to the first customer, written as a save
// and a check leave it; the templates are those of the source tree.
class PrintingScreens : public test::UiTest
{
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        qputenv("MEDISTOCK_REPORT_DIR", MEDISTOCK_SOURCE_DIR "/report");
        db().exec(QStringLiteral("insert into jxc_goods (g_sn,g_name,gg_name,dw_name,g_sj) values "
                                 "('200001','阿莫西林胶囊','0.25g*24粒','盒',12)"));
    }
    void TearDown() override
    {
        // Windows opened during the test; one may own another.
        QList<QPointer<QWidget>> opened;
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (qobject_cast<ui::PreviewDialog *>(widget)
                || qobject_cast<ui::ReportDesigner *>(widget))
                opened.append(widget);
        for (const QPointer<QWidget> &widget : opened)
            delete widget.data();
        qunsetenv("MEDISTOCK_REPORT_DIR");
        UiTest::TearDown();
    }

    QString sale(int lines)
    {
        const QString number = QStringLiteral("XS25031410001");
        db().exec(
            QStringLiteral("insert into jxc_lsxsd (gl_djh,kh_sn,ck_sn,ls_xsrq,ls_yfje,ls_sfje,"
                           "ls_status,a_name,ls_jsfs) values (?,'100001','100001',"
                           "'2025-03-14',?,0,1,'admin','1')"),
            { number, 12.0 * lines });
        for (int i = 0; i < lines; ++i)
            db().exec(
                QStringLiteral("insert into jxc_lsxssp (gl_djh,g_sn,dw_name,ls_sl,ls_dj,ls_taxdj,"
                               "ls_je,ls_zje,ls_dzl,t_ph) values (?,'200001','盒',1,12,12,12,12,"
                               "1,'B1')"),
                { number });
        return number;
    }

    // Answers the next modal dialog (the style choice) by picking an item, or cancels it.
    static void answerStyle(const QString &item)
    {
        QTimer::singleShot(0, [item] {
            auto *dialog = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->windowTitle(), QStringLiteral("选择打印单据样式"));
            EXPECT_EQ(dialog->labelText(), QStringLiteral("请选择需要的单据样式："));
            if (item.isEmpty()) {
                dialog->reject();
                return;
            }
            dialog->setTextValue(item);
            dialog->accept();
        });
    }

    QString userCopy(const QString &name) const
    {
        return ui::templateFolders(const_cast<PrintingScreens *>(this)->workspace())
            .userPathOf(name);
    }
};

TEST_F(PrintingScreens, ASalePrintsIntoAPreviewThatTurnsItsPages)
{
    const QString number = sale(30);
    ui::PreviewDialog *preview
        = ui::printWithPreview(workspace(), QStringLiteral("spxs"), number, nullptr);
    ASSERT_NE(preview, nullptr);
    EXPECT_TRUE(preview->isVisible());
    EXPECT_EQ(preview->windowTitle(), QStringLiteral("打印预览 - 销售单 XS25031410001"));
    // 12 lines a page.
    ASSERT_EQ(preview->pageCount(), 3);
    EXPECT_EQ(preview->currentPage(), 0);
    test::buttonNamed(preview, QStringLiteral("下一页"))->click();
    EXPECT_EQ(preview->currentPage(), 1);
    test::buttonNamed(preview, QStringLiteral("末页"))->click();
    EXPECT_EQ(preview->currentPage(), 2);
    test::buttonNamed(preview, QStringLiteral("首页"))->click();
    EXPECT_EQ(preview->currentPage(), 0);
    QTest::keyClick(preview->view(), Qt::Key_PageDown);
    EXPECT_EQ(preview->currentPage(), 1);
    preview->setZoom(2);
    EXPECT_DOUBLE_EQ(preview->zoom(), 2);
    EXPECT_TRUE(preview->report().allText().contains(QStringLiteral("阿莫西林胶囊")));

    const QString pdf = QDir(folder()).filePath(QStringLiteral("saved.pdf"));
    ASSERT_TRUE(preview->saveAsPdf(pdf));
    EXPECT_GT(QFileInfo(pdf).size(), 1000);
    QTest::keyClick(preview, Qt::Key_Escape);
    EXPECT_FALSE(preview->isVisible());
}

TEST_F(PrintingScreens, TheStyleIsAskedWhenItsParameterIsOn)
{
    const QString number = sale(1);
    setParameter(QStringLiteral("cs_cs010"), 1);
    answerStyle(QStringLiteral("销售单(不含售价)"));
    ui::PreviewDialog *preview
        = ui::printWithPreview(workspace(), QStringLiteral("spxs"), number, nullptr);
    ASSERT_NE(preview, nullptr);
    EXPECT_EQ(preview->windowTitle(), QStringLiteral("打印预览 - 销售单(不含售价) XS25031410001"));
    answerStyle(QString());
    EXPECT_EQ(ui::printWithPreview(workspace(), QStringLiteral("spxs"), number, nullptr), nullptr);
}

TEST_F(PrintingScreens, PrintAllAsksAndHandsEachDocumentOverWithoutPreview)
{
    const QString number = sale(2);
    QStringList printed;
    ui.answerNext(true);
    EXPECT_EQ(ui::printAllDirect(workspace(), { { QStringLiteral("spxs"), number } }, nullptr,
                  [&](const reports::PrintedDocument &document) {
                      printed.append(document.number);
                      return true;
                  }),
        1);
    EXPECT_EQ(printed, QStringList { number });
    EXPECT_EQ(ui.asked.size(), 1);
    ui.clear();
    ui.answerNext(true);
    EXPECT_EQ(ui::printAllDirect(
                  workspace(), {}, nullptr, [&](const reports::PrintedDocument &) { return true; }),
        0);
    EXPECT_EQ(ui.asked.size(), 1);
}

TEST_F(PrintingScreens, AReportScreenPrintsTheRowsOfItsGrid)
{
    QStandardItemModel grid(2, 4);
    const QVariant rows[2][4] = { { QStringLiteral("主仓库"), QStringLiteral("200001"),
                                      QStringLiteral("阿莫西林胶囊"), 150.0 },
        { QStringLiteral("城西门店"), QStringLiteral("200001"), QStringLiteral("阿莫西林胶囊"),
            30.0 } };
    for (int r = 0; r < 2; ++r)
        for (int c = 0; c < 4; ++c)
            grid.setData(grid.index(r, c), rows[r][c], Qt::EditRole);
    const reports::ReportData data = ui::gridData(workspace(), grid,
        { QStringLiteral("ck_name"), QStringLiteral("g_sn"), QStringLiteral("g_name"),
            QStringLiteral("kc_sl") },
        QStringLiteral("仓库：所有仓库"));
    ui::PreviewDialog *preview
        = ui::printRowsWithPreview(workspace(), QStringLiteral("kccx"), data, nullptr);
    ASSERT_NE(preview, nullptr);
    const reports::PreparedPage &page = preview->report().pages.first();
    EXPECT_EQ(page.textsOf(QStringLiteral("Cell1")),
        (QStringList { QStringLiteral("主仓库"), QStringLiteral("城西门店") }));
    // The stock column adds up; the company and the filter head the page.
    EXPECT_TRUE(page.textsOf(QStringLiteral("Total9")).contains(QStringLiteral("180")))
        << page.texts().join(QLatin1Char('|')).toStdString();
    EXPECT_TRUE(preview->report().allText().contains(QStringLiteral("康宁大药房  库存查询表")))
        << preview->report().allText().left(80).toStdString();
    EXPECT_TRUE(preview->report().allText().contains(QStringLiteral("仓库：所有仓库")));

    // Through the screens' handler: the rows before the grid's totals row, columns by field.
    grid.appendRow({ new QStandardItem(QStringLiteral("合计")), new QStandardItem,
        new QStandardItem, new QStandardItem(QStringLiteral("180")) });
    QWidget screen;
    ui::printRequested(workspace(), &screen,
        { QStringLiteral("kccx"), {}, &grid,
            { QStringLiteral("ck_name"), QString(), QStringLiteral("g_name"),
                QStringLiteral("kc_sl") },
            1, QStringLiteral("查找：阿莫") });
    auto *printed = screen.findChild<ui::PreviewDialog *>();
    ASSERT_NE(printed, nullptr);
    const reports::PreparedPage &first = printed->report().pages.first();
    EXPECT_EQ(first.textsOf(QStringLiteral("Cell1")), QStringList { QStringLiteral("主仓库") });
    EXPECT_TRUE(first.textsOf(QStringLiteral("Total9")).contains(QStringLiteral("150")))
        << first.texts().join(QLatin1Char('|')).toStdString();
    EXPECT_TRUE(printed->report().allText().contains(QStringLiteral("查找：阿莫")));
}

TEST_F(PrintingScreens, TheDesignerMovesAMemoSavesItAndTheNextPrintShowsItMoved)
{
    const QString number = sale(1);
    const Result<reports::PrintedDocument> before = reports::prepareDocument(
        session(), ui::templateFolders(workspace()), QStringLiteral("spxs"), number);
    ASSERT_TRUE(before.ok());
    const double left
        = before->report.pages.first().first(QStringLiteral("DocumentTitle"))->rect.left();

    ui::ReportDesigner *designer = ui::ReportDesigner::open(workspace(), QStringLiteral("spxs"));
    ASSERT_NE(designer, nullptr);
    designer->show();
    ui::DesignScene *scene = designer->scene();
    scene->selectNamed(QStringLiteral("DocumentTitle"));
    QGraphicsView *view = designer->view();
    view->setFocus();
    for (int i = 0; i < 10; ++i)
        QTest::keyClick(view->viewport(), Qt::Key_Right);
    QTest::keyClick(view->viewport(), Qt::Key_Down, Qt::ControlModifier);
    // The run of arrow keys is one step to undo.
    EXPECT_EQ(designer->document().undoStack()->count(), 1);
    EXPECT_TRUE(designer->windowTitle().endsWith(QStringLiteral(" *")));
    EXPECT_EQ(designer->properties()->node()->name(), QStringLiteral("DocumentTitle"));
    ASSERT_TRUE(designer->save());
    EXPECT_TRUE(QFileInfo::exists(userCopy(QStringLiteral("spxs"))));
    EXPECT_FALSE(designer->windowTitle().endsWith(QStringLiteral(" *")));

    const Result<reports::PrintedDocument> after = reports::prepareDocument(
        session(), ui::templateFolders(workspace()), QStringLiteral("spxs"), number);
    ASSERT_TRUE(after.ok());
    const reports::PreparedItem *moved
        = after->report.pages.first().first(QStringLiteral("DocumentTitle"));
    EXPECT_NEAR(moved->rect.left(), left + 10, 1e-6);
    EXPECT_NEAR(moved->rect.top()
            - before->report.pages.first().first(QStringLiteral("DocumentTitle"))->rect.top(),
        reports::pixelsPerMillimetre, 1e-3);
}

TEST_F(PrintingScreens, TheDesignerDragsResizesAddsDeletesAndUndoesEachStep)
{
    ui::ReportDesigner *designer = ui::ReportDesigner::open(workspace(), QStringLiteral("spxs"));
    ASSERT_NE(designer, nullptr);
    designer->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(designer));
    ui::DesignScene *scene = designer->scene();
    ui::DesignDocument &document = designer->document();
    reports::TemplateNode *title = document.model().find(QStringLiteral("DocumentTitle"));
    const QString left = title->property(QStringLiteral("Left"));

    // A drag with the mouse moves the memo by whole template pixels.
    QGraphicsView *view = designer->view();
    QGraphicsItem *item = scene->itemNamed(QStringLiteral("DocumentTitle"));
    const QPoint start = view->mapFromScene(item->sceneBoundingRect().center());
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, start);
    QTest::mouseMove(view->viewport(), start + QPoint(20, 0));
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, start + QPoint(20, 0));
    EXPECT_DOUBLE_EQ(title->number(QStringLiteral("Left")), left.toDouble() + 20);
    document.undoStack()->undo();
    EXPECT_EQ(title->property(QStringLiteral("Left")), left);

    // Shift+arrows size it; the property panel writes its text.
    scene->selectNamed(QStringLiteral("DocumentTitle"));
    const double width = title->number(QStringLiteral("Width"));
    QTest::keyClick(view->viewport(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_DOUBLE_EQ(title->number(QStringLiteral("Width")), width + 1);
    designer->properties()->textField()->setPlainText(QStringLiteral("销售清单"));
    designer->properties()->textField()->moveCursor(QTextCursor::End);
    EXPECT_EQ(reports::memoText(*title), QStringLiteral("销售清单"));
    designer->properties()->variableList()->setCurrentIndex(
        designer->properties()->variableList()->findText(QStringLiteral("djh")));
    emit designer->properties()->variableList()->activated(
        designer->properties()->variableList()->currentIndex());
    EXPECT_EQ(reports::memoText(*title), QStringLiteral("销售清单[djh]"));

    // A memo added to the selected object's band, then deleted with Del, each undone.
    scene->selectNamed(QStringLiteral("Cell2"));
    const QString memo = document.freeName(QStringLiteral("Memo"));
    designer->addMemo();
    EXPECT_TRUE(view->hasFocus());
    reports::TemplateNode *added = document.model().find(memo);
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->parent()->name(), QStringLiteral("MasterData1"));
    EXPECT_EQ(reports::memoText(*added), QStringLiteral("文本"));
    EXPECT_NE(scene->itemNamed(memo), nullptr);
    QTest::keyClick(view->viewport(), Qt::Key_Delete);
    EXPECT_EQ(document.model().find(memo), nullptr);
    EXPECT_EQ(scene->itemNamed(memo), nullptr);
    document.undoStack()->undo();
    EXPECT_NE(document.model().find(memo), nullptr);
    EXPECT_NE(scene->itemNamed(memo), nullptr);
    document.undoStack()->undo();
    EXPECT_EQ(document.model().find(memo), nullptr);
    designer->addBarcode();
    designer->addLine();
    EXPECT_EQ(document.model().find(QStringLiteral("BarCode1"))->tag(),
        QStringLiteral("TfrxBarCodeView"));
    EXPECT_EQ(
        document.model().find(QStringLiteral("Line1"))->tag(), QStringLiteral("TfrxLineView"));

    // Everything undone, the template is the file it was read from.
    while (document.undoStack()->canUndo())
        document.undoStack()->undo();
    QFile shipped(QStringLiteral(MEDISTOCK_SOURCE_DIR "/report/spxs.fr3"));
    ASSERT_TRUE(shipped.open(QIODevice::ReadOnly));
    EXPECT_EQ(reports::writeTemplate(document.model()), shipped.readAll());

    // The preview fills the template with sample data.
    ui::PreviewDialog *preview = designer->preview();
    ASSERT_NE(preview, nullptr);
    EXPECT_TRUE(preview->report().allText().contains(QStringLiteral("华康药店")));
}

TEST_F(PrintingScreens, TheDesignScreenOffersEveryTemplateByTitleAndRestoresAnEditedOne)
{
    ui::ReportDesignScreen screen(workspace());
    EXPECT_EQ(screen.findChildren<QPushButton *>().size(), 66);
    EXPECT_EQ(
        screen.buttonOf(QStringLiteral("possyymx58"))->text(), QStringLiteral("POS收银员明细58)"));
    screen.show();
    test::typeInto(screen.filterField(), QStringLiteral("退货"));
    int shown = 0;
    for (QPushButton *button : screen.findChildren<QPushButton *>())
        shown += button->isVisible() ? 1 : 0;
    // 采购退货单 and its form, 销售退货单 and its two forms, 销售退货明细表, 进退货明细表,
    // POS销售退货单.
    EXPECT_EQ(shown, 8);

    ui::ReportDesigner *designer = screen.openDesigner(QStringLiteral("kccx"));
    ASSERT_NE(designer, nullptr);
    designer->scene()->selectNamed(QStringLiteral("Cell2"));
    designer->scene()->nudge(5, 0, false);
    ASSERT_TRUE(designer->save());
    EXPECT_EQ(
        screen.buttonOf(QStringLiteral("kccx"))->text(), QStringLiteral("库存查询表（已修改）"));
    ui.answerNext(true);
    EXPECT_TRUE(screen.restoreShipped(QStringLiteral("kccx")));
    EXPECT_FALSE(QFileInfo::exists(userCopy(QStringLiteral("kccx"))));
    EXPECT_EQ(screen.buttonOf(QStringLiteral("kccx"))->text(), QStringLiteral("库存查询表"));
}

} // namespace

namespace {

// F8 on a registration list prints the row the clerk is on, on its kind's form; with no row
// nothing opens.
TEST_F(PrintingScreens, F8OnARegistrationListPrintsTheCurrentRowOnItsForm)
{
    ui::installPrinting(workspace());
    shell::Session &session = workspace().session;
    ui::RegistrationScreen collections(workspace(), accounts::RegistrationKind::Collection);
    collections.show();
    collections.run();
    test::Keyboard keys;
    keys.setWindow(&collections);
    collections.setFocus();
    keys.press(Qt::Key_F8);
    EXPECT_TRUE(test::visiblePreviews().isEmpty());

    accounts::RegistrationDraft draft;
    draft.kind = accounts::RegistrationKind::Collection;
    draft.party = QStringLiteral("100001");
    draft.date = QStringLiteral("2025-03-14");
    draft.paid = 1500.4;
    draft.changeWrittenOff = 0.6;
    draft.account = QStringLiteral("现金");
    draft.note = QStringLiteral("收三月货款");
    const Result<QString> number = accounts::saveRegistration(session, draft);
    ASSERT_TRUE(number.ok()) << number.message().toStdString();
    ASSERT_TRUE(accounts::checkRegistration(session, number.value()));
    collections.run();
    collections.grid()->selectRow(0);
    collections.setFocus();
    keys.press(Qt::Key_F8);
    const QList<ui::PreviewDialog *> previews = test::visiblePreviews();
    ASSERT_EQ(previews.size(), 1);
    EXPECT_EQ(previews.first()->windowTitle(),
        QStringLiteral("打印预览 - 客户收款单 ") + number.value());
    const QString text = previews.first()->report().allText();
    EXPECT_TRUE(text.contains(QStringLiteral("1,500.40"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("壹仟伍佰元肆角整"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("收三月货款")));
}

} // namespace

namespace {

// 仁和诊所 owes 1000 from an entry, pays 400 and has 0.5 written off, all checked on 2025-03-14.
class StatementPrints : public PrintingScreens
{
protected:
    void SetUp() override
    {
        PrintingScreens::SetUp();
        ui::installPrinting(workspace());
        db().exec(QStringLiteral("insert into jxc_khxx (kh_sn,kh_name,kh_lwje,kh_forbid) values "
                                 "('100009','仁和诊所',0,0)"));
        register_(accounts::RegistrationKind::Receivable, 1000, 0, 0, QStringLiteral("上月欠款"));
        register_(accounts::RegistrationKind::Collection, 0, 400, 0.5, QStringLiteral("收货款"));
        db().exec(QStringLiteral("insert into jxc_ghsxx (ghs_sn,ghs_name,ghs_lwje,ghs_forbid) "
                                 "values ('100009','华北制药',0,0)"));
        register_(accounts::RegistrationKind::Payable, 5600, 0, 0, QStringLiteral("期初应付"));
    }

    void register_(accounts::RegistrationKind kind, double due, double paid, double change,
        const QString &note)
    {
        accounts::RegistrationDraft draft;
        draft.kind = kind;
        draft.party = QStringLiteral("100009");
        draft.date = QStringLiteral("2025-03-14");
        draft.due = due;
        draft.paid = paid;
        draft.changeWrittenOff = change;
        draft.account = QStringLiteral("现金");
        draft.note = note;
        const Result<QString> number = accounts::saveRegistration(workspace().session, draft);
        ASSERT_TRUE(number.ok()) << number.message().toStdString();
        ASSERT_TRUE(accounts::checkRegistration(workspace().session, number.value()));
    }

    // The texts of the objects named `prefix`N on the page, N = 1..9, row by row.
    static QStringList cells(const reports::PreparedPage &page)
    {
        QStringList texts;
        for (const reports::PreparedItem &item : page.items)
            if (item.source.startsWith(QLatin1String("Cell")))
                texts.append(item.text);
        return texts;
    }
};

// The statement prints the chosen customer's ledger rows of the range, each cell filled, with
// his name and the range in the heading; F8 from the list of balances prints the same.
TEST_F(StatementPrints, TheCustomersStatementPrintsHisLedgerRowsOfTheRange)
{
    ui::LedgerScreen ledger(workspace(), accounts::PartyKind::Customer);
    ledger.show();
    ledger.ledger()->fromField()->setText(QStringLiteral("2025-03-01"));
    ledger.ledger()->toField()->setText(QStringLiteral("2025-03-31"));
    ledger.run();
    for (int r = 0; r < ledger.model()->dataRows(); ++r)
        if (ledger.model()->text(r, 0) == QStringLiteral("100009"))
            ledger.grid()->selectRow(r);
    ASSERT_EQ(ledger.ledger()->model()->dataRows(), 3);
    ledger.grid()->setFocus();
    test::Keyboard keys;
    keys.setWindow(&ledger);
    keys.press(Qt::Key_F8);
    const QList<ui::PreviewDialog *> previews = test::visiblePreviews();
    ASSERT_EQ(previews.size(), 1);
    const reports::PreparedReport &report = previews.first()->report();
    ASSERT_EQ(report.pages.size(), 1);
    const QString text = report.allText();
    EXPECT_TRUE(text.contains(QStringLiteral("客户：仁和诊所"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("2025-03-01"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("合计：3条"))) << text.toStdString();
    const QStringList printed = cells(report.pages.first());
    ASSERT_EQ(printed.size(), 27);
    // Date, number, kind, due, paid, balance, account, salesman, note.
    EXPECT_EQ(printed.mid(0, 9),
        (QStringList { "2025-03-14", "YS25031410001", "增加应收款", "1,000.00", "0.00",
            "1,000.00", "现金", "默认员工", "上月欠款" }));
    EXPECT_EQ(printed.mid(9, 9),
        (QStringList { "2025-03-14", "SK25031410001", "收款单", "0.00", "400.00", "600.00",
            "现金", "默认员工", "收货款" }));
    EXPECT_EQ(printed.mid(18, 3), (QStringList { "2025-03-14", "YS25031410002", "增加应收款(抹零)" }));
    EXPECT_EQ(printed.mid(21, 3), (QStringList { "-0.50", "0.00", "599.50" }));
    EXPECT_EQ(printed[25], QStringLiteral("默认员工"));
    QStringList blank;
    for (int i = 0; i < printed.size(); ++i)
        if (printed[i].isEmpty())
            blank.append(QString::number(i));
    EXPECT_EQ(blank, QStringList());
    delete previews.first();

    // A range without his rows prints an empty statement, still with his name.
    ledger.ledger()->fromField()->setText(QStringLiteral("2025-04-01"));
    ledger.ledger()->toField()->setText(QStringLiteral("2025-04-30"));
    ledger.ledger()->run();
    for (QPushButton *button : ledger.findChildren<QPushButton *>())
        if (button->text() == ui::texts::printButton() && button->isVisible())
            button->click();
    ASSERT_EQ(test::visiblePreviews().size(), 1);
    EXPECT_TRUE(cells(test::visiblePreviews().first()->report().pages.first()).isEmpty());
    EXPECT_TRUE(test::visiblePreviews().first()->report().allText().contains(
        QStringLiteral("仁和诊所")));
}

// The supplier's statement is its own form, with his payable rows.
TEST_F(StatementPrints, TheSuppliersStatementPrintsHisPayableRows)
{
    ui::LedgerScreen ledger(workspace(), accounts::PartyKind::Supplier);
    ledger.show();
    ledger.ledger()->fromField()->setText(QStringLiteral("2025-03-01"));
    ledger.run();
    for (int r = 0; r < ledger.model()->dataRows(); ++r)
        if (ledger.model()->text(r, 0) == QStringLiteral("100009"))
            ledger.grid()->selectRow(r);
    ledger.grid()->setFocus();
    test::Keyboard keys;
    keys.setWindow(&ledger);
    keys.press(Qt::Key_F8);
    ASSERT_EQ(test::visiblePreviews().size(), 1);
    const reports::PreparedReport &report = test::visiblePreviews().first()->report();
    EXPECT_TRUE(report.allText().contains(QStringLiteral("供货商对帐单")));
    EXPECT_TRUE(report.allText().contains(QStringLiteral("华北制药")));
    EXPECT_EQ(cells(report.pages.first()),
        (QStringList { "2025-03-14", "YF25031410001", "增加应付款", "5,600.00", "0.00",
            "5,600.00", "现金", "默认员工", "期初应付" }));
}

} // namespace
