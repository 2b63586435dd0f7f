#include "ui/members/membersscreen.h"

#include "core/interaction.h"
#include "members/import.h"
#include "members/member.h"
#include "shell/session.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/members/adjustdialogs.h"
#include "ui/members/historydialog.h"
#include "ui/members/levelsdialog.h"
#include "ui/members/settingsdialog.h"
#include "ui/members/texts.h"
#include "ui/members/topupdialog.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>

namespace medistock::ui {

MembersScreen::MembersScreen(Workspace &workspace, QWidget *parent)
    : MasterListScreen(workspace, members::memberKind(), parent)
{
    searchField()->setPlaceholderText(mbtexts::searchHint);
    addButton(mbtexts::topUp, [this] { topUp(); });
    addButton(mbtexts::history, [this] { showHistory(); });
    QPushButton *more = addButton(mbtexts::pointsAndSettings, {});
    auto *menu = new QMenu(more);
    menu->addAction(mbtexts::adjustPoints, this, &MembersScreen::adjustPoints);
    menu->addAction(mbtexts::adjustBalance, this, &MembersScreen::adjustBalance);
    menu->addSeparator();
    menu->addAction(mbtexts::levels, this, &MembersScreen::editLevels);
    menu->addAction(mbtexts::pointsSettings, this, &MembersScreen::editPointsSettings);
    more->setMenu(menu);
    auto *shortcut = new QShortcut(QKeySequence(Qt::Key_F6), this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, &MembersScreen::topUp);
    reload();
}

QList<QSqlRecord> MembersScreen::fetch(const QString &text)
{
    return members::searchMembers(m_workspace.session.db(), text);
}

std::unique_ptr<MasterRowDialog> MembersScreen::editor(const QString &key)
{
    return std::make_unique<MemberDialog>(m_workspace.session, key, this);
}

ImportSteps MembersScreen::importSteps()
{
    const shell::Session &session = m_workspace.session;
    return { [&session](const QString &path) { return members::planMemberImport(session, path); },
        [&session](const masterdata::ImportPlan &plan) {
            return members::runMemberImport(session, plan);
        } };
}

QString MembersScreen::chosenMember()
{
    const QString key = currentKey();
    if (key.isEmpty())
        m_workspace.session.ui().inform(mbtexts::chooseMemberFirst);
    return key;
}

void MembersScreen::adjustPoints()
{
    const QString member = chosenMember();
    if (member.isEmpty())
        return;
    PointsAdjustDialog dialog(m_workspace.session, member, this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void MembersScreen::adjustBalance()
{
    const QString member = chosenMember();
    if (member.isEmpty())
        return;
    BalanceAdjustDialog dialog(m_workspace.session, member, this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void MembersScreen::topUp()
{
    const QString member = chosenMember();
    if (member.isEmpty())
        return;
    TopUpDialog dialog(m_workspace.session, member, this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void MembersScreen::showHistory()
{
    const QString member = chosenMember();
    if (member.isEmpty())
        return;
    HistoryDialog dialog(m_workspace, member, this);
    dialog.exec();
}

void MembersScreen::editLevels()
{
    LevelsDialog dialog(m_workspace.session, this);
    dialog.exec();
    reload();
}

void MembersScreen::editPointsSettings()
{
    PointsSettingsDialog dialog(m_workspace.session, this);
    dialog.exec();
}

MemberDialog::MemberDialog(const shell::Session &session, const QString &key, QWidget *parent)
    : MasterRowDialog(session, members::memberKind(), key, parent)
{
    lineEdit(QStringLiteral("hy_bh"))->setPlaceholderText(mbtexts::cardPlaceholder);
    if (!key.isEmpty())
        return;
    checkBox(QStringLiteral("hy_sj"))->setChecked(true);
    checkBox(QStringLiteral("hy_status"))->setChecked(true);
    lineEdit(QStringLiteral("hy_jrrq"))->setText(session.today());
}

Result<QString> MemberDialog::write(const masterdata::Values &values)
{
    if (m_key.isEmpty())
        return members::addMember(m_session, values);
    const Outcome changed = members::changeMember(m_session, m_key, values);
    if (!changed)
        return changed;
    return m_key;
}

} // namespace medistock::ui
