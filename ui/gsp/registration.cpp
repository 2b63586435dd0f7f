#include "ui/gsp/registration.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "gsp/derived.h"
#include "gsp/documentsfolder.h"
#include "gsp/expiry.h"
#include "gsp/tables.h"
#include "gsp/temperature.h"
#include "shell/rights.h"
#include "shell/settings.h"
#include "ui/common/screenregistry.h"
#include "ui/common/workspace.h"
#include "ui/gsp/filledscreen.h"
#include "ui/gsp/otherscreens.h"
#include "ui/gsp/restrictedscreen.h"
#include "ui/gsp/staffscreen.h"
#include "ui/gsp/temperaturescreen.h"
#include "ui/gsp/texts.h"
#include "ui/gsp/trainingscreens.h"
#include "ui/shell/mainwindow.h"

#include <QDesktopServices>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

namespace medistock::ui {

namespace {

using Fetch = std::function<Result<gsp::RecordTable>(shell::Session &, const gsp::RecordFilter &)>;

// A record read off the documents, as a screen with the standard filters.
ScreenRegistry::TabFactory derivedScreen(const QString &name, Fetch fetch)
{
    return [name, fetch](Workspace &workspace) {
        auto *screen
            = new RecordScreen(workspace, name, {}, [&workspace, fetch](const RecordScreen &s) {
                  return fetch(workspace.session, s.filter());
              });
        screen->reload();
        return screen;
    };
}

template<class Rows, class Make>
Result<gsp::RecordTable> tableOf(const Result<Rows> &rows, Make make)
{
    if (!rows)
        return rows.outcome();
    return make(rows.value());
}

void registerDerivedScreens(ScreenRegistry &registry)
{
    const QString area = QStringLiteral("gspgl");
    registry.addTab(area, QStringLiteral("验收记录"),
        derivedScreen(
            QStringLiteral("验收记录"), [](shell::Session &s, const gsp::RecordFilter &f) {
                return tableOf(gsp::acceptanceRecord(s, f), gsp::acceptanceTable);
            }));
    registry.addTab(area, QStringLiteral("药方管理记录"),
        derivedScreen(
            QStringLiteral("药方管理记录"), [](shell::Session &s, const gsp::RecordFilter &f) {
                return tableOf(gsp::prescriptionRecord(s, f), gsp::prescriptionTable);
            }));
    registry.addTab(area, QStringLiteral("处方药销售记录"),
        derivedScreen(
            QStringLiteral("处方药销售记录"), [](shell::Session &s, const gsp::RecordFilter &f) {
                return tableOf(gsp::prescriptionRecord(s, f), gsp::prescriptionSalesTable);
            }));
    registry.addTab(area, QStringLiteral("零售拆零记录"),
        derivedScreen(
            QStringLiteral("零售拆零记录"), [](shell::Session &s, const gsp::RecordFilter &f) {
                return tableOf(gsp::splittingRecord(s, f), gsp::splittingTable);
            }));
}

void openDocumentsFolder(Workspace &workspace)
{
    const Result<QString> folder = gsp::gspDocumentsFolder(workspace.folder());
    if (!folder) {
        workspace.session.ui().inform(folder.message());
        return;
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder.value())))
        workspace.session.ui().inform(gsptexts::folderOpened(folder.value()));
}

} // namespace

void registerGspScreens(ScreenRegistry &registry)
{
    registerDerivedScreens(registry);
    const QString area = QStringLiteral("gspgl");
    registry.addTab(area, QStringLiteral("陈列检查记录"), [](Workspace &workspace) {
        return new FilledScreen(workspace, gsp::FilledKind::Inspection);
    });
    registry.addTab(area, QStringLiteral("近效期跟踪记录"), [](Workspace &workspace) {
        return new FilledScreen(workspace, gsp::FilledKind::Tracking);
    });
    registry.addTab(area, QStringLiteral("含麻记录"),
        [](Workspace &workspace) { return new RestrictedScreen(workspace); });
    registry.addTab(area, QStringLiteral("员工花名册"),
        [](Workspace &workspace) { return new StaffScreen(workspace); });
    registry.addTab(area, QStringLiteral("GSP参数"),
        [](Workspace &workspace) { return new CategoryScreen(workspace); });
    registry.addAction(area, QStringLiteral("GSP管理文档"),
        [](Workspace &workspace, QWidget *) { openDocumentsFolder(workspace); });
    registry.addTab(area, QStringLiteral("仓库温湿度管理"),
        [](Workspace &workspace) { return new TemperatureScreen(workspace); });
    registry.addTab(area, QStringLiteral("员工培训计划"), [](Workspace &workspace) {
        return new TrainingScreen(workspace, TrainingScreen::Mode::Plans);
    });
    registry.addTab(area, QStringLiteral("员工培训记录"), [](Workspace &workspace) {
        return new TrainingScreen(workspace, TrainingScreen::Mode::Records);
    });
    registry.addTab(QStringLiteral("kcgl"), QStringLiteral("过期查询"),
        [](Workspace &workspace) { return new ExpiryScreen(workspace); });
}

void addGspReminders(MainWindow &window, Workspace &workspace)
{
    auto *status = new QPushButton(&window);
    status->setObjectName(QStringLiteral("nearExpiry"));
    status->setFlat(true);
    status->setStyleSheet(QStringLiteral("color: #b0401f; padding: 0 8px;"));
    const bool mayOpen = shell::hasRight(workspace.session, QStringLiteral("kcgl"), 16);
    status->setEnabled(mayOpen);
    status->setToolTip(
        mayOpen ? gsptexts::nearExpiryTip : shell::noRightText(QStringLiteral("过期查询")));
    const auto count = [status, &workspace] {
        const Result<int> batches = gsp::nearExpiryCount(workspace.session);
        if (batches)
            status->setText(gsptexts::nearExpiryStatus(
                batches.value(), gsp::nearExpiryDays(workspace.session.params())));
    };
    QObject::connect(status, &QPushButton::clicked, &window, [&window, count] {
        window.openOperation(QStringLiteral("kcgl"), 16);
        count();
    });
    auto *timer = new QTimer(status);
    QObject::connect(timer, &QTimer::timeout, status, count);
    timer->start(10 * 60 * 1000);
    count();
    window.statusBar()->addPermanentWidget(status);

    const QString reminder = gsp::temperatureReminder(workspace.session);
    if (!reminder.isEmpty())
        QTimer::singleShot(
            0, &window, [&workspace, reminder] { workspace.session.ui().inform(reminder); });
}

} // namespace medistock::ui
