#include "ui/accounts/registration.h"

#include "ui/accounts/cashscreen.h"
#include "ui/accounts/invoicescreen.h"
#include "ui/accounts/ledgerscreen.h"
#include "ui/accounts/registrationscreen.h"
#include "ui/accounts/statementscreen.h"
#include "ui/common/screenregistry.h"

#include <QComboBox>
#include <QTabWidget>

namespace medistock::ui {

namespace {

// A list opened on its unchecked rows, for the check entries.
template<class Screen> Screen *waiting(Screen *screen)
{
    screen->statusBox()->setCurrentIndex(1);
    return screen;
}

template<class Screen> Screen *shown(Screen *screen)
{
    screen->run();
    return screen;
}

} // namespace

void registerStatementScreens(ScreenRegistry &registry)
{
    registry.addTab(QStringLiteral("cggl"), QStringLiteral("往来账务"),
        [](Workspace &workspace) { return supplierStatements(workspace); });
    registry.addTab(QStringLiteral("xsgl"), QStringLiteral("往来账务"),
        [](Workspace &workspace) { return customerStatements(workspace); });
}

void registerMoneyScreens(ScreenRegistry &registry)
{
    using accounts::PartyKind;
    using accounts::RegistrationKind;
    const QString area = QStringLiteral("wlzk");
    const std::pair<const char *, RegistrationKind> registrations[] = {
        { "应收登记", RegistrationKind::Receivable }, { "收款登记", RegistrationKind::Collection },
        { "应付登记", RegistrationKind::Payable }, { "付款登记", RegistrationKind::Payment }
    };
    for (const auto &[operation, kind] : registrations) {
        registry.addTab(area, QString::fromUtf8(operation), [kind](Workspace &workspace) {
            return shown(new RegistrationScreen(workspace, kind));
        });
        registry.addTab(area, QString::fromUtf8(operation) + QStringLiteral("审核"),
            [kind](
                Workspace &workspace) { return waiting(new RegistrationScreen(workspace, kind)); });
    }
    registry.addTab(area, QStringLiteral("修改收付款日期"), [](Workspace &workspace) {
        auto *tabs = new QTabWidget;
        tabs->addTab(shown(new RegistrationScreen(workspace, RegistrationKind::Collection, tabs)),
            QStringLiteral("收款登记"));
        tabs->addTab(shown(new RegistrationScreen(workspace, RegistrationKind::Payment, tabs)),
            QStringLiteral("付款登记"));
        return tabs;
    });
    registry.addTab(area, QStringLiteral("应收帐表"),
        [](Workspace &workspace) { return ledgerWindow(workspace, PartyKind::Customer); });
    registry.addTab(area, QStringLiteral("应付帐表"),
        [](Workspace &workspace) { return ledgerWindow(workspace, PartyKind::Supplier); });
    const std::pair<const char *, PartyKind> invoices[]
        = { { "进货发票", PartyKind::Supplier }, { "销售发票", PartyKind::Customer } };
    for (const auto &[name, kind] : invoices) {
        registry.addTab(area, QString::fromUtf8(name) + QStringLiteral("管理"),
            [kind](Workspace &workspace) { return invoiceWindow(workspace, kind); });
        registry.addTab(
            area, QString::fromUtf8(name) + QStringLiteral("审核"), [kind](Workspace &workspace) {
                QTabWidget *window = invoiceWindow(workspace, kind);
                window->setCurrentIndex(1);
                return window;
            });
    }
    registry.addTab(QStringLiteral("rcgl"), QStringLiteral("费用及收入"),
        [](Workspace &workspace) { return shown(new ExpenseScreen(workspace)); });
    registry.addTab(QStringLiteral("rcgl"), QStringLiteral("费用及收入审核"),
        [](Workspace &workspace) { return waiting(new ExpenseScreen(workspace)); });
    registry.addTab(QStringLiteral("rcgl"), QStringLiteral("现金银行"),
        [](Workspace &workspace) { return cashWindow(workspace); });
    registry.addTab(QStringLiteral("rcgl"), QStringLiteral("现金银行审核"),
        [](Workspace &workspace) { return waiting(new CashBookScreen(workspace)); });
}

} // namespace medistock::ui
