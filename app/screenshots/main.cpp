// Renders every screen of the desktop program to PNG files in the folder given, on a fresh data
// folder with a few operators, roles, a second account set and example master data, so that the
// program can be seen without a display. Runs on the offscreen platform unless another one is
// chosen.
#include "app/screenshots/documents.h"
#include "app/screenshots/gsp.h"
#include "app/screenshots/loans.h"
#include "app/screenshots/maintenance.h"
#include "app/screenshots/masterdata.h"
#include "app/screenshots/members.h"
#include "app/screenshots/money.h"
#include "app/screenshots/pos.h"
#include "app/screenshots/reports.h"
#include "app/screenshots/sales.h"
#include "app/screenshots/statistics.h"
#include "app/screenshots/stock.h"
#include "core/accountsets.h"
#include "core/clock.h"
#include "core/connection.h"
#include "core/datafolder.h"
#include "core/interaction.h"
#include "shell/accountsets.h"
#include "shell/operators.h"
#include "shell/rights.h"
#include "ui/accounts/registration.h"
#include "ui/common/application.h"
#include "ui/common/gridlayouts.h"
#include "ui/common/screenregistry.h"
#include "ui/common/workspace.h"
#include "ui/gsp/registration.h"
#include "ui/loans/registration.h"
#include "ui/maintenance/registration.h"
#include "ui/masterdata/registration.h"
#include "ui/members/registration.h"
#include "ui/pos/registration.h"
#include "ui/purchasing/registration.h"
#include "ui/reports/printing.h"
#include "ui/reports/registration.h"
#include "ui/sales/registration.h"
#include "ui/shell/accountsetscreen.h"
#include "ui/shell/companydialog.h"
#include "ui/shell/connectiondialog.h"
#include "ui/shell/firstusedialog.h"
#include "ui/shell/logindialog.h"
#include "ui/shell/mainwindow.h"
#include "ui/shell/operatordialog.h"
#include "ui/shell/operatorscreen.h"
#include "ui/shell/registration.h"
#include "ui/shell/roleeditor.h"
#include "ui/shell/settingsscreen.h"
#include "ui/statistics/registration.h"
#include "ui/stock/registration.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTextStream>
#include <QToolButton>
#include <QTreeWidget>

#include <cstdio>

using namespace medistock;

namespace {

class Shooter
{
public:
    explicit Shooter(const QString &folder)
        : m_folder(folder)
    { }

    void shoot(QWidget *widget, const QString &name)
    {
        widget->show();
        settle();
        save(withTitle(widget, widget->grab()), name);
    }

    // The window with a dialog painted over it, centred as the dialog opens (with its own title
    // bar, since the offscreen platform draws none).
    void shootOver(QWidget *window, QWidget *dialog, const QString &name)
    {
        window->show();
        dialog->show();
        settle();
        QPixmap picture = window->grab();
        const QPixmap over = withTitle(dialog, dialog->grab());
        QPainter painter(&picture);
        painter.fillRect(picture.rect(), QColor(0, 0, 0, 60));
        painter.drawPixmap((picture.width() - over.width()) / 2,
            std::max(0, (picture.height() - over.height()) / 2), over);
        painter.end();
        save(withTitle(window, picture), name);
    }

    // The window with a popped-up menu painted over it where the menu stands.
    void shootWithMenu(QWidget *window, QMenu *menu, const QString &name)
    {
        settle();
        QPixmap picture = window->grab();
        QPainter painter(&picture);
        painter.drawPixmap(window->mapFromGlobal(menu->pos()), menu->grab());
        painter.end();
        save(withTitle(window, picture), name);
    }

    static void settle()
    {
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
    }

    bool failed() const { return m_failed; }

private:
    // The offscreen platform draws no window frames: a plain title bar shows the window title.
    static QPixmap withTitle(const QWidget *window, const QPixmap &content)
    {
        const int bar = 30;
        QPixmap picture(content.width(), content.height() + bar);
        picture.fill(QColor(0x3b, 0x4a, 0x5a));
        QPainter painter(&picture);
        painter.setPen(Qt::white);
        QFont font = window->font();
        font.setBold(true);
        painter.setFont(font);
        painter.drawText(QRect(10, 0, content.width() - 20, bar), Qt::AlignVCenter | Qt::AlignLeft,
            window->windowTitle());
        painter.drawPixmap(0, bar, content);
        return picture;
    }

    void save(const QPixmap &picture, const QString &name)
    {
        const QString path = QDir(m_folder).filePath(name + QStringLiteral(".png"));
        if (!picture.save(path)) {
            m_failed = true;
            std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
            return;
        }
        std::printf("%s\n", qPrintable(path));
    }

    QString m_folder;
    bool m_failed = false;
};

// An offscreen screen big enough for the maximised main window and its menus.
void chooseOffscreenPlatform(const QTemporaryDir &scratch)
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
    const QString config = QDir(scratch.path()).filePath(QStringLiteral("screen.json"));
    QFile file(config);
    if (file.open(QIODevice::WriteOnly))
        file.write(R"({"screens":[{"name":"screen","x":0,"y":0,"width":1600,"height":1000,)"
                   R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})");
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config.toLocal8Bit());
}

shell::RoleDraft roleDraft(const QString &name, const QHash<QString, QString> &strings)
{
    shell::RoleDraft draft;
    draft.name = name;
    for (auto it = strings.begin(); it != strings.end(); ++it) {
        QList<bool> ticked;
        for (QChar c : it.value())
            ticked.append(c == QLatin1Char('1'));
        draft.ticked.insert(it.key(), ticked);
    }
    return draft;
}

// Roles, operators and a second account set, made through the operations as an administrator
// would.
void seedExamples(const QString &folder, const core::Clock &clock)
{
    core::ScriptedInteraction quiet;
    auto master = core::Connection::openSqlite(QDir(folder).filePath(core::masterFileName()));
    auto session = shell::openSession(
        *master, quiet, clock, QStringLiteral("admin"), QString(), core::LoginMode::Script);
    shell::Session &admin = *session.value();
    const QString cashier = shell::saveRole(admin,
        roleDraft(QStringLiteral("收银员"),
            { { QStringLiteral("xsgl"), QStringLiteral("11111000000000000001") },
                { QStringLiteral("tjgl"), QStringLiteral("00000000000001111") } }))
                                .value();
    const QString buyer = shell::saveRole(admin,
        roleDraft(QStringLiteral("采购员"),
            { { QStringLiteral("cggl"), QStringLiteral("111111110000000000") },
                { QStringLiteral("kcgl"), QStringLiteral("1001") } }))
                              .value();
    shell::addOperator(admin, QStringLiteral("王芳"), cashier, QStringLiteral("1234"));
    shell::addOperator(admin, QStringLiteral("李强"), buyer);
    shell::addOperator(admin, QStringLiteral("赵敏"), cashier);
    shell::setOperatorLocked(admin, QStringLiteral("赵敏"), true);
    core::NewAccountSet branch;
    branch.name = QStringLiteral("城西分店");
    branch.note = QStringLiteral("2025年起");
    branch.company = { QStringLiteral("康宁大药房城西分店"), QStringLiteral("城西店"),
        QStringLiteral("0571-88890000") };
    shell::createAccountSet(admin, *master, branch);
}

// First use, then the login as it looks for the administrator; returns the logged-in set.
ui::OpenedAccountSet shootStartup(
    Shooter &shooter, const QString &data, const core::Clock &clock, core::Interaction &interaction)
{
    ui::FirstUseDialog first(data, clock, interaction);
    first.nameField()->setText(QStringLiteral("康宁大药房"));
    first.shortNameField()->setText(QStringLiteral("康宁"));
    first.teleField()->setText(QStringLiteral("0571-88886666"));
    shooter.shoot(&first, QStringLiteral("01-first-use"));
    first.create();
    seedExamples(data, clock);

    ui::LoginDialog login(core::Connection::openSqlite(QDir(data).filePath(core::masterFileName())),
        data, clock, interaction);
    login.setChoice()->setCurrentIndex(login.setChoice()->findText(QStringLiteral("主帐套")));
    shooter.shoot(&login, QStringLiteral("02-login"));
    // The login's 更改: the chain's server as a clerk fills it in.
    ui::ConnectionDialog where({ core::Connection::PostgresOptions { QStringLiteral("192.168.1.10"),
        5432, QStringLiteral("jxc"), QStringLiteral("mendian"), QString() } });
    shooter.shoot(&where, QStringLiteral("200-login-connection"));
    login.logIn();
    return login.take();
}

void shootMenu(Shooter &shooter, ui::MainWindow &window)
{
    QToolButton *other = window.areaButton(QStringLiteral("qtcz"));
    QMenu *menu = other->menu();
    other->setDown(true);
    menu->popup(other->mapToGlobal(QPoint(0, other->height())));
    menu->setActiveAction(window.operationAction(QStringLiteral("qtcz"), 12));
    shooter.shootWithMenu(&window, menu, QStringLiteral("03-main-window-menu"));
    menu->hide();
    other->setDown(false);
}

void shootOperators(Shooter &shooter, ui::MainWindow &window, ui::Workspace &workspace)
{
    window.openOperation(QStringLiteral("qtcz"), 6);
    auto *operators = qobject_cast<ui::OperatorScreen *>(window.tabs()->currentWidget());
    operators->operatorGrid()->selectRow(1);
    shooter.shoot(&window, QStringLiteral("05-operators"));

    operators->roleGrid()->selectRow(1);
    ui::RoleEditor editor(workspace.session, operators->chosenRole(), &window);
    editor.tree()->topLevelItem(1)->setExpanded(true);
    editor.tree()->topLevelItem(4)->setExpanded(true);
    shooter.shoot(&editor, QStringLiteral("06-role-editor"));
    editor.hide();

    ui::OperatorDialog addOperator(workspace.session, nullptr, &window);
    addOperator.nameField()->setText(QStringLiteral("陈静"));
    shooter.shoot(&addOperator, QStringLiteral("07-operator-add"));
    addOperator.hide();
    ui::PasswordDialog password(workspace.session, QStringLiteral("王芳"), &window);
    shooter.shoot(&password, QStringLiteral("08-password"));
    password.hide();
}

void shootWorkspace(Shooter &shooter, ui::Workspace &workspace, const QString &scratch)
{
    ui::ScreenRegistry registry;
    ui::registerShellScreens(registry);
    ui::registerMasterDataScreens(registry);
    ui::registerGspScreens(registry);
    ui::registerPurchasingScreens(registry);
    ui::registerSalesScreens(registry);
    ui::registerStockScreens(registry);
    ui::registerMemberScreens(registry);
    ui::registerStatisticsScreens(registry);
    ui::registerReportScreens(registry);
    ui::registerLoanScreens(registry);
    ui::registerStatementScreens(registry);
    ui::registerMoneyScreens(registry);
    ui::registerPosScreens(registry);
    ui::registerMaintenanceScreens(registry);
    ui::MainWindow window(workspace, registry);
    window.resize(1280, 800);
    window.show();
    shootMenu(shooter, window);

    window.openOperation(QStringLiteral("qtcz"), 12);
    auto *settings = qobject_cast<ui::SettingsScreen *>(window.tabs()->currentWidget());
    for (int page = 0; page < settings->pages()->count(); ++page) {
        settings->pages()->setCurrentIndex(page);
        shooter.shoot(&window, QStringLiteral("04-settings-%1").arg(page + 1));
    }
    shootOperators(shooter, window, workspace);
    window.openOperation(QStringLiteral("qtcz"), 20);
    shooter.shoot(&window, QStringLiteral("09-account-sets"));
    window.openOperation(QStringLiteral("qtcz"), 14);
    shooter.shoot(&window, QStringLiteral("10-log"));

    ui::CompanyDialog company(workspace.session, &window);
    shooter.shoot(&company, QStringLiteral("11-company"));
    company.hide();

    const auto shoot = [&](QWidget *widget, const QString &name) { shooter.shoot(widget, name); };
    shootMasterData(shoot, window, workspace, scratch);
    shootMembers(shoot, window, workspace, scratch);
    const Shots shots { shoot, [&](QWidget *over, QWidget *dialog, const QString &name) {
                           shooter.shootOver(over, dialog, name);
                       } };
    shootDocuments(shots, window, workspace);
    shootGsp(shoot, window, workspace);
    shootStatistics(shoot, window, workspace);
    shootReports(shoot, window, workspace);
    shootPos(shots, window, workspace);
    shootSales(shots, window, workspace);
    shootLoans(shots, window, workspace);
    shootStock(shots, window, workspace);
    shootMoney(shots, window, workspace);
    shootMaintenance(shots, window, workspace);
}

} // namespace

int main(int argc, char *argv[])
{
    QTemporaryDir scratch;
    chooseOffscreenPlatform(scratch);
    QApplication app(argc, argv);
    ui::prepareApplication(app);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2) {
        std::fprintf(stderr, "usage: medistock-screenshots DIR\n");
        return 2;
    }
    QDir().mkpath(arguments[1]);
    Shooter shooter(arguments[1]);
    const core::Clock clock;
    core::ScriptedInteraction interaction(true);
    const ui::OpenedAccountSet opened = shootStartup(
        shooter, QDir(scratch.path()).filePath(QStringLiteral("data")), clock, interaction);

    ui::GridLayouts layouts(QDir(scratch.path()).filePath(QStringLiteral("layout.ini")));
    ui::Workspace workspace { *opened.session, *opened.master, opened.set.name, layouts };
    ui::installPrinting(workspace);
    shootWorkspace(shooter, workspace, scratch.path());
    return shooter.failed() ? 1 : 0;
}
