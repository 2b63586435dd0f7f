#pragma once

#include "reports/catalogue.h"
#include "reports/template.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QUndoStack>

#include <memory>
#include <utility>

namespace medistock::ui {

// Where a node stands in the template: the child indexes from the root. Edits are recorded by
// path, so that undo and redo find their node again after objects were added or removed.
using NodePath = QList<int>;
using Properties = QList<std::pair<QString, QString>>;

// A template open in the designer: the model, its undo stack and where it is saved. Every edit
// goes through one of the operations below and can be undone.
class DesignDocument : public QObject
{
    Q_OBJECT
public:
    DesignDocument(reports::ReportTemplate report, QString name, reports::TemplateFolders folders,
        QObject *parent = nullptr);

    const QString &name() const { return m_name; }
    reports::ReportTemplate &model() { return m_report; }
    const reports::ReportTemplate &model() const { return m_report; }
    QUndoStack *undoStack() { return &m_undo; }
    bool isModified() const { return !m_undo.isClean(); }
    // The file a save writes: the user's copy in the data folder.
    QString savePath() const { return m_folders.userPathOf(m_name); }
    const reports::TemplateFolders &folders() const { return m_folders; }

    static NodePath pathOf(const reports::TemplateNode *node);
    reports::TemplateNode *nodeAt(const NodePath &path) const;

    // Sets properties of a node, as one step ("移动", "修改属性" ...). Steps of the same kind on
    // the same node in a row merge (a run of arrow keys undoes at once) when `merge` is set.
    void setProperties(reports::TemplateNode *node, const Properties &changes, const QString &step,
        bool merge = false);
    // Several nodes in one step (moving a selection).
    void setProperties(
        const QList<std::pair<reports::TemplateNode *, Properties>> &changes, const QString &step);
    // Adds a child at the end of a band; returns it.
    reports::TemplateNode *insert(reports::TemplateNode *parent,
        std::unique_ptr<reports::TemplateNode> child, const QString &step);
    void remove(const QList<reports::TemplateNode *> &nodes, const QString &step);

    // A name not used in the template yet: prefix + the next number ("Memo41").
    QString freeName(const QString &prefix) const;

    // Writes the user's copy and marks the document saved.
    Outcome save();

signals:
    // A node's properties changed (the node is at `path`).
    void propertiesChanged(const NodePath &path);
    // Objects were added or removed.
    void structureChanged();

private:
    friend class PropertiesCommand;
    friend class InsertCommand;
    void applyProperties(const NodePath &path, const Properties &properties);

    reports::ReportTemplate m_report;
    QString m_name;
    reports::TemplateFolders m_folders;
    QUndoStack m_undo;
};

// Applies the changes to a property list, keeping the places of the properties it had.
Properties changedProperties(const Properties &before, const Properties &changes);

} // namespace medistock::ui
