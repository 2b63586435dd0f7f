#pragma once

#include "reports/design.h"
#include "ui/reports/designdocument.h"

#include <QGraphicsItem>
#include <QGraphicsScene>

#include <optional>

namespace medistock::ui {

// One band of a report page on the designer's canvas: a strip as wide as the page's printable
// width at its Top, with its kind and name written in its corner. Selecting it shows its
// properties; its objects are its children.
class BandItem : public QGraphicsRectItem
{
public:
    BandItem(reports::TemplateNode *node, double width, double marginTop);
    reports::TemplateNode *node() const { return m_node; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    reports::TemplateNode *m_node;
};

// One object (memo, line, picture, barcode) drawn as it will print, its expressions shown as
// written. It moves with the mouse and the arrow keys and resizes by its bottom right corner;
// each change is a step of the document's undo stack.
class ObjectItem : public QGraphicsItem
{
public:
    explicit ObjectItem(reports::TemplateNode *node, QGraphicsItem *parent);

    reports::TemplateNode *node() const { return m_node; }
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
    // Takes position, size and look from the node again.
    void sync();
    QSizeF size() const { return m_size; }

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    bool onHandle(const QPointF &at) const;

    reports::TemplateNode *m_node;
    std::optional<reports::ObjectDesign> m_design;
    QSizeF m_size;
    bool m_resizing = false;
};

// The canvas of one report page: the paper with its margins, the bands in the order of their Top
// and their objects.
class DesignScene : public QGraphicsScene
{
    Q_OBJECT
public:
    DesignScene(DesignDocument &document, reports::TemplateNode *page, QObject *parent = nullptr);

    reports::TemplateNode *page() const { return m_page; }
    // The item of the object or band with this Name, or nullptr.
    QGraphicsItem *itemNamed(const QString &name) const;
    // The selected objects' nodes, or the selected band's.
    QList<reports::TemplateNode *> selectedNodes() const;
    // The band new objects go into: the selected band, the band of the selected object, or the
    // first band.
    reports::TemplateNode *targetBand() const;
    void selectNamed(const QString &name);

    // Moves (or with `resize`, sizes) the selected objects by dx, dy pixels in one step.
    void nudge(double dx, double dy, bool resize);
    // Records where the mouse left the selected objects.
    void commitMoves();
    void commitResize(ObjectItem *item, const QSizeF &size);
    // Removes the selected objects in one step.
    void removeSelected();
    // Rebuilds every item from the model, keeping the selection by name.
    void rebuild();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    void propertiesChanged(const NodePath &path);

    DesignDocument &m_document;
    reports::TemplateNode *m_page;
};

// The page's printable area in pixels: its margins and its size.
QRectF printableRect(const reports::TemplateNode &page);
bool isBand(const reports::TemplateNode &node);
bool isObject(const reports::TemplateNode &node);

} // namespace medistock::ui
