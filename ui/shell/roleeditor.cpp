#include "ui/shell/roleeditor.h"

#include "ui/common/keys.h"
#include "ui/common/texts.h"
#include "ui/shell/texts.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace medistock::ui {

RoleEditor::RoleEditor(const shell::Session &session, const shell::Role *existing, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_name(new QLineEdit(this))
    , m_tree(new QTreeWidget(this))
{
    setWindowTitle(existing ? shelltexts::editRole : shelltexts::addRole);
    m_name->setMaxLength(32);
    m_tree->setHeaderHidden(true);
    m_tree->setMinimumSize(380, 460);
    for (const shell::RightArea &area : shell::rightAreas()) {
        const QString column = QString::fromLatin1(area.column);
        const QString rights = existing ? existing->rights.value(column) : QString();
        auto *top = new QTreeWidgetItem(m_tree, { QString::fromUtf8(area.label) });
        top->setFlags(top->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
        top->setData(0, Qt::UserRole, column);
        for (std::size_t i = 0; i < area.operations.size(); ++i) {
            auto *item = new QTreeWidgetItem(top, { QString::fromUtf8(area.operations[i]) });
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            const bool ticked = qsizetype(i) < rights.size() && rights.at(i) == QLatin1Char('1');
            item->setCheckState(0, ticked ? Qt::Checked : Qt::Unchecked);
        }
    }
    if (existing) {
        m_id = existing->id;
        m_name->setText(existing->name);
    }

    auto *all = new QPushButton(shelltexts::tickAll, this);
    auto *none = new QPushButton(shelltexts::tickNone, this);
    all->setAutoDefault(false);
    none->setAutoDefault(false);
    connect(all, &QPushButton::clicked, this, [this] { tickAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { tickAll(false); });
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(shelltexts::save, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(texts::cancel(), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &RoleEditor::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(all);
    bottom->addWidget(none);
    bottom->addWidget(buttons, 1);

    auto *form = new QFormLayout;
    form->addRow(shelltexts::roleNameLabel, m_name);
    form->addRow(shelltexts::rightsLabel, m_tree);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(bottom);
    enableEnterNavigation(this);
}

QTreeWidgetItem *RoleEditor::areaItem(const QString &area) const
{
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i)
        if (m_tree->topLevelItem(i)->data(0, Qt::UserRole).toString() == area)
            return m_tree->topLevelItem(i);
    return nullptr;
}

QTreeWidgetItem *RoleEditor::operationItem(const QString &area, int position) const
{
    QTreeWidgetItem *top = areaItem(area);
    return top && position >= 1 && position <= top->childCount() ? top->child(position - 1)
                                                                 : nullptr;
}

void RoleEditor::tickAll(bool ticked)
{
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i)
        m_tree->topLevelItem(i)->setCheckState(0, ticked ? Qt::Checked : Qt::Unchecked);
}

shell::RoleDraft RoleEditor::draft() const
{
    shell::RoleDraft draft;
    draft.id = m_id;
    draft.name = m_name->text();
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *top = m_tree->topLevelItem(i);
        QList<bool> ticked;
        for (int j = 0; j < top->childCount(); ++j)
            ticked.append(top->child(j)->checkState(0) == Qt::Checked);
        draft.ticked.insert(top->data(0, Qt::UserRole).toString(), ticked);
    }
    return draft;
}

void RoleEditor::save()
{
    const auto saved = shell::saveRole(m_session, draft());
    if (!saved) {
        m_name->setFocus();
        return;
    }
    m_savedCode = saved.value();
    accept();
}

} // namespace medistock::ui
