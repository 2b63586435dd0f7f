#include "ui/shell/firstusedialog.h"

#include "core/datafolder.h"
#include "core/interaction.h"
#include "ui/common/keys.h"
#include "ui/shell/texts.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace medistock::ui {

FirstUseDialog::FirstUseDialog(
    const QString &dataFolder, core::Clock clock, core::Interaction &interaction, QWidget *parent)
    : QDialog(parent)
    , m_folder(dataFolder)
    , m_clock(clock)
    , m_interaction(interaction)
    , m_name(new QLineEdit(this))
    , m_shortName(new QLineEdit(this))
    , m_tele(new QLineEdit(this))
{
    setWindowTitle(shelltexts::firstUseTitle);
    m_name->setMaxLength(64);
    m_shortName->setMaxLength(32);
    m_tele->setMaxLength(32);
    m_name->setMinimumWidth(260);

    auto *intro = new QLabel(shelltexts::firstUseIntro, this);
    intro->setWordWrap(true);
    auto *form = new QFormLayout;
    form->addRow(shelltexts::companyName, m_name);
    form->addRow(shelltexts::companyShort, m_shortName);
    form->addRow(shelltexts::companyTele, m_tele);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *createButton
        = buttons->addButton(shelltexts::create, QDialogButtonBox::AcceptRole);
    buttons->addButton(shelltexts::leave, QDialogButtonBox::RejectRole);
    createButton->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &FirstUseDialog::create);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addLayout(form);
    layout->addWidget(buttons);
    enableEnterNavigation(this);
}

bool FirstUseDialog::isNeeded(const QString &dataFolder)
{
    return !QFile::exists(QDir(dataFolder).filePath(core::masterFileName()));
}

void FirstUseDialog::create()
{
    const core::SeedContext seeds { m_clock.today(),
        { m_name->text().trimmed(), m_shortName->text().trimmed(), m_tele->text().trimmed() } };
    const auto report = core::initDataFolder(m_folder, seeds);
    if (!report) {
        m_interaction.inform(report.message());
        return;
    }
    accept();
}

} // namespace medistock::ui
