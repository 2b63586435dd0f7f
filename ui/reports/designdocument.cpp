#include "ui/reports/designdocument.h"

#include <QRegularExpression>
#include <QUndoCommand>

#include <algorithm>

namespace medistock::ui {

Properties changedProperties(const Properties &before, const Properties &changes)
{
    Properties after = before;
    for (const auto &[name, value] : changes) {
        auto it = std::find_if(
            after.begin(), after.end(), [&](const auto &item) { return item.first == name; });
        if (it != after.end())
            it->second = value;
        else
            after.append({ name, value });
    }
    return after;
}

// Properties of one or more nodes, from before to after.
class PropertiesCommand : public QUndoCommand
{
public:
    struct Change
    {
        NodePath path;
        Properties before;
        Properties after;
    };

    PropertiesCommand(DesignDocument &document, QList<Change> changes, const QString &step, int id)
        : QUndoCommand(step)
        , m_document(document)
        , m_changes(std::move(changes))
        , m_id(id)
    { }

    int id() const override { return m_id; }
    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *next = static_cast<const PropertiesCommand *>(other);
        if (next->m_changes.size() != m_changes.size() || text() != next->text())
            return false;
        for (int i = 0; i < m_changes.size(); ++i)
            if (m_changes.at(i).path != next->m_changes.at(i).path)
                return false;
        for (int i = 0; i < m_changes.size(); ++i)
            m_changes[i].after = next->m_changes.at(i).after;
        return true;
    }
    void redo() override
    {
        for (const Change &change : m_changes)
            m_document.applyProperties(change.path, change.after);
    }
    void undo() override
    {
        for (const Change &change : m_changes)
            m_document.applyProperties(change.path, change.before);
    }

private:
    DesignDocument &m_document;
    QList<Change> m_changes;
    int m_id;
};

// Nodes put into or taken out of their parents; a removal is an insertion run backwards.
class InsertCommand : public QUndoCommand
{
public:
    struct Placed
    {
        NodePath parent;
        int index;
        std::shared_ptr<reports::TemplateNode> node; // a copy, kept for redo and undo
    };

    InsertCommand(
        DesignDocument &document, QList<Placed> placed, bool inserting, const QString &step)
        : QUndoCommand(step)
        , m_document(document)
        , m_placed(std::move(placed))
        , m_inserting(inserting)
    { }

    void redo() override { m_inserting ? put() : take(); }
    void undo() override { m_inserting ? take() : put(); }

private:
    void put()
    {
        for (const Placed &p : m_placed)
            m_document.nodeAt(p.parent)->insert(p.node->clone(), p.index);
        emit m_document.structureChanged();
    }
    void take()
    {
        for (auto it = m_placed.crbegin(); it != m_placed.crend(); ++it) {
            reports::TemplateNode *parent = m_document.nodeAt(it->parent);
            parent->take(parent->children().at(size_t(it->index)).get());
        }
        emit m_document.structureChanged();
    }

    DesignDocument &m_document;
    QList<Placed> m_placed; // in increasing index order within each parent
    bool m_inserting;
};

DesignDocument::DesignDocument(
    reports::ReportTemplate report, QString name, reports::TemplateFolders folders, QObject *parent)
    : QObject(parent)
    , m_report(std::move(report))
    , m_name(std::move(name))
    , m_folders(std::move(folders))
{ }

NodePath DesignDocument::pathOf(const reports::TemplateNode *node)
{
    NodePath path;
    while (node && node->parent()) {
        path.prepend(node->parent()->indexOf(node));
        node = node->parent();
    }
    return path;
}

reports::TemplateNode *DesignDocument::nodeAt(const NodePath &path) const
{
    reports::TemplateNode *node = m_report.root.get();
    for (int index : path) {
        if (!node || index < 0 || index >= int(node->children().size()))
            return nullptr;
        node = node->children().at(size_t(index)).get();
    }
    return node;
}

void DesignDocument::applyProperties(const NodePath &path, const Properties &properties)
{
    if (reports::TemplateNode *node = nodeAt(path)) {
        node->setProperties(properties);
        emit propertiesChanged(path);
    }
}

void DesignDocument::setProperties(
    reports::TemplateNode *node, const Properties &changes, const QString &step, bool merge)
{
    const Properties after = changedProperties(node->properties(), changes);
    if (after == node->properties())
        return;
    m_undo.push(new PropertiesCommand(
        *this, { { pathOf(node), node->properties(), after } }, step, merge ? 1 : -1));
}

void DesignDocument::setProperties(
    const QList<std::pair<reports::TemplateNode *, Properties>> &changes, const QString &step)
{
    QList<PropertiesCommand::Change> list;
    for (const auto &[node, properties] : changes) {
        const Properties after = changedProperties(node->properties(), properties);
        if (after != node->properties())
            list.append({ pathOf(node), node->properties(), after });
    }
    if (!list.isEmpty())
        m_undo.push(new PropertiesCommand(*this, list, step, -1));
}

reports::TemplateNode *DesignDocument::insert(reports::TemplateNode *parent,
    std::unique_ptr<reports::TemplateNode> child, const QString &step)
{
    const int index = int(parent->children().size());
    const NodePath path = pathOf(parent);
    m_undo.push(new InsertCommand(*this,
        { { path, index, std::shared_ptr<reports::TemplateNode>(std::move(child)) } }, true, step));
    return nodeAt(path + NodePath { index });
}

void DesignDocument::remove(const QList<reports::TemplateNode *> &nodes, const QString &step)
{
    QList<InsertCommand::Placed> placed;
    for (const reports::TemplateNode *node : nodes)
        if (node && node->parent())
            placed.append({ pathOf(node->parent()), node->parent()->indexOf(node), node->clone() });
    std::sort(placed.begin(), placed.end(), [](const auto &a, const auto &b) {
        return a.parent != b.parent ? a.parent < b.parent : a.index < b.index;
    });
    if (!placed.isEmpty())
        m_undo.push(new InsertCommand(*this, placed, false, step));
}

QString DesignDocument::freeName(const QString &prefix) const
{
    int highest = 0;
    const QRegularExpression numbered(
        QStringLiteral("^") + QRegularExpression::escape(prefix) + QStringLiteral("(\\d+)$"));
    std::function<void(const reports::TemplateNode &)> walk = [&](const reports::TemplateNode &n) {
        const QRegularExpressionMatch match = numbered.match(n.name());
        if (match.hasMatch())
            highest = std::max(highest, match.captured(1).toInt());
        for (const auto &child : n.children())
            walk(*child);
    };
    walk(*m_report.root);
    return prefix + QString::number(highest + 1);
}

Outcome DesignDocument::save()
{
    const Outcome saved = reports::saveTemplate(m_report, savePath());
    if (saved)
        m_undo.setClean();
    return saved;
}

} // namespace medistock::ui
