#include "app/screenshots/loans.h"

#include "loans/entry.h"
#include "loans/loancheck.h"
#include "loans/loanreturn.h"
#include "loans/loansale.h"
#include "sales/entry.h"
#include "sales/salecheck.h"
#include "sales/salesreturn.h"
#include "shell/session.h"
#include "ui/accounts/statementscreen.h"
#include "ui/common/datefield.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentscreen.h"
#include "ui/loans/loanlist.h"
#include "ui/loans/returndialog.h"
#include "ui/shell/mainwindow.h"

#include <QComboBox>
#include <QDate>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>

using namespace medistock;

namespace {

QString day(const shell::Session &session, int back)
{
    return session.clock().today().addDays(-back).toString(Qt::ISODate);
}

// A line from a batch the purchases of shootDocuments brought in, with its dates.
documents::LineDraft line(const shell::Session &session, const char *goods, const char *quantity,
    const char *batch, int produced, int expiry)
{
    documents::LineDraft l;
    l.goods = QString::fromLatin1(goods);
    l.quantity = QString::fromLatin1(quantity);
    l.batch = QString::fromLatin1(batch);
    l.produced = day(session, -produced);
    l.expiry = day(session, -expiry);
    return l;
}

template<class T> T required(const Result<T> &result, const char *what)
{
    if (!result)
        qFatal("sample %s refused: %s", what, qPrintable(result.message()));
    return result.value();
}

// A loan to 仁心诊所 eight days ago, four boxes back two days ago, three sold today; a sale to
// the health station five days ago (freight paid by us) with part of it returned two days later.
QString seedLoans(shell::Session &admin)
{
    loans::LoanDraft loan;
    loan.entry.date = day(admin, 8);
    loan.entry.party = QStringLiteral("100002");
    loan.entry.warehouse = QStringLiteral("100001");
    loan.entry.note = QStringLiteral("义诊借用");
    loan.entry.lines = { line(admin, "10020001", "10", "A2405", -200, 520),
        line(admin, "10010001", "5", "GML2409", -80, 640) };
    loan.terms = { { QStringLiteral("200"), QStringLiteral("0.3"), QString() },
        { QStringLiteral("150"), QStringLiteral("0.2"), QString() } };
    const QString number = required(loans::saveLoan(admin, loan), "loan");
    if (!loans::checkLoan(admin, number))
        qFatal("sample loan not checked");
    const qint64 first = loans::openLines(admin, number).first().line;
    required(loans::saveReturn(admin,
                 { number, day(admin, 2), QStringLiteral("部分归还"),
                     { { first, QStringLiteral("4") } } }),
        "loan return");
    loans::LoanSaleDraft sale;
    sale.loan = number;
    sale.lines = { { first, QStringLiteral("3"), QString() } };
    sale.header.settlementMode = QStringLiteral("2");
    required(loans::sellLoanedGoods(admin, sale), "loan sale");

    sales::SaleDraft direct;
    direct.entry.date = day(admin, 5);
    direct.entry.party = QStringLiteral("100003");
    direct.entry.warehouse = QStringLiteral("100001");
    direct.entry.lines = { line(admin, "10030001", "20", "VC2408", -100, 150) };
    direct.header.paid = 60;
    direct.header.freight = 5;
    direct.header.freightTerms = QStringLiteral("我方付运费");
    const QString sold = required(sales::saveSale(admin, direct), "sale");
    if (!sales::checkSale(admin, sold))
        qFatal("sample sale not checked");
    sales::SaleDraft back = direct;
    back.entry.date = day(admin, 3);
    back.entry.lines = { line(admin, "10030001", "2", "VC2408", -100, 150) };
    back.header.paid = 0;
    back.header.freight = 0;
    back.header.freightTerms.clear();
    const QString returned = required(sales::saveSalesReturn(admin, back), "sales return");
    if (!sales::checkSalesReturn(admin, returned))
        qFatal("sample sales return not checked");
    return number;
}

void shootStatements(const Shots &shots, ui::MainWindow &window, const QString &area,
    const QString &prefix, int firstNumber)
{
    window.openOperation(area, 3);
    auto *tabs = qobject_cast<QTabWidget *>(window.tabs()->currentWidget());
    int n = firstNumber;
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        auto *screen = qobject_cast<ui::StatementScreen *>(tabs->widget(i));
        for (int view = 0; view < screen->viewBox()->count(); ++view) {
            screen->viewBox()->setCurrentIndex(view);
            // The health station, last seen three days ago, counts as lost after two.
            if (screen->daysBox())
                screen->daysBox()->setValue(2);
            screen->run();
            if (view == 0 && screen->linesModel())
                screen->grid()->selectRow(0);
            shots.shoot(&window,
                QStringLiteral("%1-%2-%3-%4").arg(n++).arg(prefix).arg(i + 1).arg(view + 1));
        }
    }
}

} // namespace

void shootLoans(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    const QString loan = seedLoans(workspace.session);
    window.openOperation(QStringLiteral("rcgl"), 4);
    auto *screen = qobject_cast<ui::DocumentScreen *>(window.tabs()->currentWidget());
    screen->openDocument(loan);
    shots.shoot(&window, QStringLiteral("101-loan"));
    ui::LoanReturnDialog back(
        workspace, loan, std::nullopt, ui::LoanReturnDialog::Mode::Return, &window);
    shots.shootOver(&window, &back, QStringLiteral("102-loan-return"));
    back.hide();
    ui::LoanReturnDialog sale(
        workspace, loan, std::nullopt, ui::LoanReturnDialog::Mode::Sale, &window);
    shots.shootOver(&window, &sale, QStringLiteral("103-loan-to-sale"));
    sale.hide();
    ui::LoanListDialog list(*screen);
    list.list()->fromField()->setText(day(workspace.session, 30));
    list.list()->run();
    shots.shootOver(&window, &list, QStringLiteral("104-loan-list"));
    list.list()->listBox()->setCurrentIndex(1);
    shots.shootOver(&window, &list, QStringLiteral("105-loan-returns-list"));
    list.hide();
    screen->newDocument();
    shots.shoot(&window, QStringLiteral("106-loan-new"));
    shootStatements(
        shots, window, QStringLiteral("xsgl"), QStringLiteral("customer-statements"), 107);
    shootStatements(
        shots, window, QStringLiteral("cggl"), QStringLiteral("supplier-statements"), 115);
}
