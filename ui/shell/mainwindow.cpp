#include "ui/shell/mainwindow.h"

#include "core/lookups.h"
#include "shell/rights.h"
#include "shell/settings.h"
#include "ui/common/screenregistry.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/shell/companydialog.h"
#include "ui/shell/operatordialog.h"
#include "ui/shell/texts.h"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

const char *screenProperty = "medistockScreen";

QString screenKey(const QString &area, int position)
{
    return area + QLatin1Char('/') + QString::number(position);
}

} // namespace

MainWindow::MainWindow(Workspace &workspace, const ScreenRegistry &registry, QWidget *parent)
    : QMainWindow(parent)
    , m_workspace(workspace)
    , m_registry(registry)
    , m_tabs(new QTabWidget(this))
{
    buildSystemMenu();
    m_workspace.openScreen = [this](const QString &area, int position) -> QWidget * {
        openOperation(area, position);
        const QWidget *current = m_tabs->currentWidget();
        return current && current->property(screenProperty).toString() == screenKey(area, position)
            ? m_tabs->currentWidget()
            : nullptr;
    };
    m_tabs->setTabsClosable(true);
    m_tabs->setMovable(true);
    m_tabs->setDocumentMode(true);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, &MainWindow::closeTab);
    auto *escape = new QShortcut(QKeySequence(Qt::Key_Escape), m_tabs);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, [this] { closeTab(m_tabs->currentIndex()); });

    auto *welcome = new QLabel(shelltexts::welcome, this);
    welcome->setAlignment(Qt::AlignCenter);
    welcome->setStyleSheet(QStringLiteral("color: #607080; font-size: 14pt;"));
    auto *pages = new QStackedWidget(this);
    pages->addWidget(welcome);
    pages->addWidget(m_tabs);
    connect(m_tabs, &QTabWidget::currentChanged, pages,
        [this, pages] { pages->setCurrentIndex(m_tabs->count() > 0 ? 1 : 0); });

    auto *central = new QWidget(this);
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(buildAreaPanel());
    layout->addWidget(pages, 1);
    setCentralWidget(central);

    for (int i = 0; i < 4; ++i) {
        auto *label = new QLabel(this);
        label->setContentsMargins(6, 0, 12, 0);
        statusBar()->addWidget(label);
        m_status.append(label);
    }
    refreshTitleAndStatus();
    resize(1180, 760);
}

MainWindow::~MainWindow()
{
    m_workspace.openScreen = {};
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    for (int i = 0; i < m_tabs->count(); ++i)
        if (!m_tabs->widget(i)->close()) {
            m_tabs->setCurrentIndex(i);
            event->ignore();
            return;
        }
    event->accept();
}

void MainWindow::buildSystemMenu()
{
    QMenu *system = menuBar()->addMenu(shelltexts::systemMenu);
    QAction *company = system->addAction(shelltexts::companyInfo, this, &MainWindow::showCompany);
    company->setEnabled(shell::hasRight(m_workspace.session, QStringLiteral("qtcz"), 12));
    system->addAction(shelltexts::changeOwnPassword, this, &MainWindow::changeOwnPassword);
    system->addSeparator();
    system->addAction(shelltexts::quit, this, &QWidget::close);
}

QWidget *MainWindow::buildAreaPanel()
{
    auto *panel = new QWidget(this);
    panel->setObjectName(QStringLiteral("areaPanel"));
    panel->setStyleSheet(QStringLiteral(
        "#areaPanel { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #f4f8fb, "
        "stop:1 #dfe8f0); border-bottom: 1px solid #b8c6d3; }"));
    auto *row = new QHBoxLayout(panel);
    row->setContentsMargins(10, 6, 10, 6);
    row->setSpacing(4);
    for (const shell::RightArea &area : shell::rightAreas()) {
        const QString column = QString::fromLatin1(area.column);
        auto *button = new QToolButton(panel);
        button->setObjectName(column);
        button->setText(QString::fromUtf8(area.label));
        button->setIcon(QIcon(QStringLiteral(":/icons/%1.svg").arg(column)));
        button->setIconSize(QSize(48, 48));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setAutoRaise(true);
        button->setMinimumWidth(96);
        button->setPopupMode(QToolButton::InstantPopup);
        button->setMenu(buildAreaMenu(column));
        row->addWidget(button);
    }
    row->addStretch(1);
    return panel;
}

QMenu *MainWindow::buildAreaMenu(const QString &area)
{
    const shell::RightArea *def = shell::findRightArea(area);
    auto *menu = new QMenu(this);
    menu->setToolTipsVisible(true);
    for (int position = 1; position <= int(def->operations.size()); ++position) {
        const QString label = QString::fromUtf8(def->operations[position - 1]);
        QAction *action = menu->addAction(label);
        action->setObjectName(screenKey(area, position));
        if (!m_registry.find(area, position)) {
            action->setEnabled(false);
            action->setToolTip(texts::notAvailable());
        } else if (!shell::hasRight(m_workspace.session, area, position)) {
            action->setEnabled(false);
            action->setToolTip(shell::noRightText(label));
        } else {
            connect(action, &QAction::triggered, this,
                [this, area, position] { openOperation(area, position); });
        }
    }
    return menu;
}

QToolButton *MainWindow::areaButton(const QString &area) const
{
    return findChild<QToolButton *>(area);
}

QAction *MainWindow::operationAction(const QString &area, int position) const
{
    QToolButton *button = areaButton(area);
    return button ? button->menu()->findChild<QAction *>(screenKey(area, position)) : nullptr;
}

QStringList MainWindow::statusTexts() const
{
    QStringList texts;
    for (const QLabel *label : m_status)
        texts.append(label->text());
    return texts;
}

void MainWindow::openOperation(const QString &area, int position)
{
    const ScreenRegistry::Entry *entry = m_registry.find(area, position);
    if (!entry || !shell::hasRight(m_workspace.session, area, position))
        return;
    if (entry->action) {
        entry->action(m_workspace, this);
        return;
    }
    const QString key = screenKey(area, position);
    for (int i = 0; i < m_tabs->count(); ++i) {
        if (m_tabs->widget(i)->property(screenProperty).toString() == key) {
            m_tabs->setCurrentIndex(i);
            return;
        }
    }
    QWidget *screen = entry->tab(m_workspace);
    screen->setProperty(screenProperty, key);
    const shell::RightArea *def = shell::findRightArea(area);
    m_tabs->setCurrentIndex(
        m_tabs->addTab(screen, QString::fromUtf8(def->operations[position - 1])));
    screen->setFocus();
}

void MainWindow::closeTab(int index)
{
    QWidget *screen = m_tabs->widget(index);
    // A screen holding unsaved work may refuse to close (its closeEvent asks).
    if (!screen || !screen->close())
        return;
    m_tabs->removeTab(index);
    screen->deleteLater();
}

void MainWindow::showCompany()
{
    CompanyDialog dialog(m_workspace.session, this);
    if (dialog.exec() == QDialog::Accepted)
        refreshTitleAndStatus();
}

void MainWindow::changeOwnPassword()
{
    PasswordDialog dialog(m_workspace.session, m_workspace.session.user().name, this);
    dialog.exec();
}

void MainWindow::refreshTitleAndStatus()
{
    const shell::Session &session = m_workspace.session;
    setWindowTitle(QStringLiteral("Medistock - ") + session.company().name);
    const QDate today = session.clock().today();
    const QStringList texts { shelltexts::statusCompany + session.company().name,
        shelltexts::statusSet + m_workspace.accountSetName,
        shelltexts::statusOperator + session.user().name,
        session.today() + QLatin1Char(' ') + core::weekdayName(today).trimmed() };
    for (int i = 0; i < m_status.size(); ++i)
        m_status[i]->setText(texts.value(i));
}

} // namespace medistock::ui
