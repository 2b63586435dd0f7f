#include "ui/masterdata/classtree.h"

#include "core/interaction.h"
#include "masterdata/goodsclass.h"
#include "shell/session.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/masterdata/texts.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

const int rootCid = 1;

// Fills a tree with the classes, parents before children; returns the items by node id.
QHash<int, QTreeWidgetItem *> fillTree(QTreeWidget *tree, const QList<masterdata::GoodsClass> &all)
{
    QHash<int, QTreeWidgetItem *> items;
    tree->clear();
    for (const masterdata::GoodsClass &c : all) {
        QTreeWidgetItem *parent = items.value(c.pid);
        auto *item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(tree);
        item->setText(0, c.name);
        item->setToolTip(0, c.code);
        item->setData(0, Qt::UserRole, c.cid);
        items.insert(c.cid, item);
    }
    tree->expandAll();
    return items;
}

QTreeWidget *makeTree(QWidget *parent)
{
    auto *tree = new QTreeWidget(parent);
    tree->setHeaderHidden(true);
    tree->setRootIsDecorated(true);
    return tree;
}

// A class picked from the tree in a small dialog; 0 when cancelled.
int pickClass(const shell::Session &session, QWidget *parent)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(mdtexts::moveClass);
    QTreeWidget *tree = makeTree(&dialog);
    readSafely(session.ui(), [&] { fillTree(tree, masterdata::goodsClasses(session.db())); });
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->button(QDialogButtonBox::Ok)->setText(texts::ok());
    buttons->button(QDialogButtonBox::Cancel)->setText(texts::cancel());
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(mdtexts::moveClassTo, &dialog));
    layout->addWidget(tree, 1);
    layout->addWidget(buttons);
    dialog.resize(320, 420);
    if (dialog.exec() != QDialog::Accepted || !tree->currentItem())
        return 0;
    return tree->currentItem()->data(0, Qt::UserRole).toInt();
}

} // namespace

ClassTreePanel::ClassTreePanel(const shell::Session &session, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
    , m_tree(makeTree(this))
{
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &ClassTreePanel::classChosen);
    auto *buttons = new QGridLayout;
    auto button = [&](const QString &text, int position, auto slot) {
        auto *pushButton = new QPushButton(text, this);
        pushButton->setAutoDefault(false);
        connect(pushButton, &QPushButton::clicked, this, slot);
        buttons->addWidget(pushButton, position / 2, position % 2);
    };
    button(mdtexts::addClass, 0, [this] { askAndAdd(); });
    button(mdtexts::renameClass, 1, [this] { askAndRename(); });
    button(mdtexts::moveClass, 2, [this] { askAndMove(); });
    button(mdtexts::deleteClass, 3, [this] { deleteClass(); });
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(mdtexts::classesGroup, this));
    layout->addWidget(m_tree, 1);
    layout->addLayout(buttons);
    reload();
}

void ClassTreePanel::reload()
{
    const int chosen = currentCid();
    const QSignalBlocker quiet(m_tree);
    readSafely(m_session.ui(), [&] { fillTree(m_tree, masterdata::goodsClasses(m_session.db())); });
    QTreeWidgetItem *item = itemOf(chosen);
    m_tree->setCurrentItem(item ? item : itemOf(rootCid));
}

QTreeWidgetItem *ClassTreePanel::itemOf(int cid) const
{
    for (QTreeWidgetItemIterator it(m_tree); *it; ++it)
        if ((*it)->data(0, Qt::UserRole).toInt() == cid)
            return *it;
    return nullptr;
}

void ClassTreePanel::choose(int cid)
{
    if (QTreeWidgetItem *item = itemOf(cid))
        m_tree->setCurrentItem(item);
}

int ClassTreePanel::currentCid() const
{
    const QTreeWidgetItem *item = m_tree->currentItem();
    return item ? item->data(0, Qt::UserRole).toInt() : rootCid;
}

QString ClassTreePanel::currentCode() const
{
    const QTreeWidgetItem *item = m_tree->currentItem();
    return item ? item->toolTip(0) : QString();
}

bool ClassTreePanel::addClass(const QString &name)
{
    const Result<int> added = masterdata::addGoodsClass(m_session, currentCid(), name);
    if (!added)
        return false;
    reload();
    choose(added.value());
    return true;
}

bool ClassTreePanel::renameClass(const QString &name)
{
    if (!masterdata::renameGoodsClass(m_session, currentCid(), name))
        return false;
    reload();
    return true;
}

bool ClassTreePanel::moveClass(int newParentCid)
{
    if (!masterdata::moveGoodsClass(m_session, currentCid(), newParentCid))
        return false;
    reload();
    return true;
}

bool ClassTreePanel::deleteClass()
{
    if (currentCid() == rootCid) {
        m_session.ui().inform(mdtexts::chooseClassFirst);
        return false;
    }
    if (!m_session.ui().ask(mdtexts::deleteClassQuestion(m_tree->currentItem()->text(0))))
        return false;
    const int parent = m_tree->currentItem()->parent()
        ? m_tree->currentItem()->parent()->data(0, Qt::UserRole).toInt()
        : rootCid;
    if (!masterdata::deleteGoodsClass(m_session, currentCid()))
        return false;
    reload();
    choose(parent);
    return true;
}

void ClassTreePanel::askAndAdd()
{
    bool ok = false;
    const QString name = QInputDialog::getText(
        this, mdtexts::addClass, mdtexts::className, QLineEdit::Normal, QString(), &ok);
    if (ok)
        addClass(name);
}

void ClassTreePanel::askAndRename()
{
    if (currentCid() == rootCid) {
        m_session.ui().inform(mdtexts::chooseClassFirst);
        return;
    }
    bool ok = false;
    const QString name = QInputDialog::getText(this, mdtexts::renameClass, mdtexts::className,
        QLineEdit::Normal, m_tree->currentItem()->text(0), &ok);
    if (ok)
        renameClass(name);
}

void ClassTreePanel::askAndMove()
{
    if (currentCid() == rootCid) {
        m_session.ui().inform(mdtexts::chooseClassFirst);
        return;
    }
    if (const int parent = pickClass(m_session, this))
        moveClass(parent);
}

} // namespace medistock::ui
