#include "ui/reports/reportdesignscreen.h"

#include "core/interaction.h"
#include "reports/catalogue.h"
#include "shell/session.h"
#include "ui/common/workspace.h"
#include "ui/reports/designer.h"
#include "ui/reports/printing.h"
#include "ui/reports/texts.h"

#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

constexpr int columns = 4;

} // namespace

ReportDesignScreen::ReportDesignScreen(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_filter(new QLineEdit(this))
{
    auto *intro = new QLabel(reporttexts::designIntro, this);
    intro->setWordWrap(true);
    auto *filterRow = new QHBoxLayout;
    filterRow->addWidget(new QLabel(reporttexts::filter, this));
    filterRow->addWidget(m_filter, 1);
    filterRow->addStretch(2);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(8);
    const QList<reports::TemplateEntry> entries = reports::designableTemplates();
    for (int i = 0; i < entries.size(); ++i) {
        const reports::TemplateEntry &entry = entries.at(i);
        auto *button = new QPushButton(entry.title, this);
        button->setObjectName(entry.name);
        button->setToolTip(entry.name + QStringLiteral(".fr3"));
        button->setMinimumHeight(34);
        button->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(
            button, &QPushButton::clicked, this, [this, name = entry.name] { openDesigner(name); });
        connect(button, &QWidget::customContextMenuRequested, this,
            [this, button, name = entry.name](QPoint at) {
                QMenu menu(button);
                QAction *restore = menu.addAction(reporttexts::restore);
                restore->setEnabled(templateFolders(m_workspace).hasUserCopy(name));
                if (menu.exec(button->mapToGlobal(at)) == restore)
                    restoreShipped(name);
            });
        grid->addWidget(button, i / columns, i % columns);
        m_buttons.append(button);
    }
    auto *inner = new QWidget(this);
    auto *innerLayout = new QVBoxLayout(inner);
    innerLayout->addLayout(grid);
    innerLayout->addStretch(1);
    auto *scroll = new QScrollArea(this);
    scroll->setWidget(inner);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addLayout(filterRow);
    layout->addWidget(scroll, 1);
    connect(m_filter, &QLineEdit::textChanged, this, &ReportDesignScreen::filter);
    refreshButtons();
    m_filter->setFocus();
}

QPushButton *ReportDesignScreen::buttonOf(const QString &name) const
{
    for (QPushButton *button : m_buttons)
        if (button->objectName() == name)
            return button;
    return nullptr;
}

void ReportDesignScreen::refreshButtons()
{
    const reports::TemplateFolders folders = templateFolders(m_workspace);
    for (QPushButton *button : m_buttons) {
        const QString title = reports::templateTitle(button->objectName());
        const bool edited = folders.hasUserCopy(button->objectName());
        button->setText(edited ? title + reporttexts::edited : title);
        QFont font = button->font();
        font.setBold(edited);
        button->setFont(font);
    }
}

void ReportDesignScreen::filter(const QString &text)
{
    const QString wanted = text.trimmed();
    for (QPushButton *button : m_buttons)
        button->setVisible(wanted.isEmpty() || button->text().contains(wanted, Qt::CaseInsensitive)
            || button->objectName().contains(wanted, Qt::CaseInsensitive));
}

ReportDesigner *ReportDesignScreen::openDesigner(const QString &name)
{
    ReportDesigner *designer = ReportDesigner::open(m_workspace, name, window());
    if (!designer)
        return nullptr;
    connect(designer->document().undoStack(), &QUndoStack::cleanChanged, this,
        &ReportDesignScreen::refreshButtons);
    designer->show();
    return designer;
}

bool ReportDesignScreen::restoreShipped(const QString &name)
{
    if (!m_workspace.session.ui().ask(
            reporttexts::restoreQuestion.arg(reports::templateTitle(name))))
        return false;
    const bool removed = QFile::remove(templateFolders(m_workspace).userPathOf(name));
    refreshButtons();
    return removed;
}

} // namespace medistock::ui
