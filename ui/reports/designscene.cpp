#include "ui/reports/designscene.h"

#include "reports/barcode.h"
#include "reports/prepared.h"
#include "reports/render.h"

#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QSet>
#include <QStyleOptionGraphicsItem>

namespace medistock::ui {

namespace {

constexpr double handle = 6;
const QColor bandColour(0xee, 0xf3, 0xfb);
const QColor bandLine(0x9a, 0xb0, 0xd0);
const QColor selectionColour(0x1e, 0x6f, 0xd9);

const QHash<QString, QString> &bandTitles()
{
    static const QHash<QString, QString> titles {
        { QStringLiteral("TfrxReportTitle"), QStringLiteral("报表标题") },
        { QStringLiteral("TfrxPageHeader"), QStringLiteral("页头") },
        { QStringLiteral("TfrxHeader"), QStringLiteral("栏目头") },
        { QStringLiteral("TfrxMasterData"), QStringLiteral("数据") },
        { QStringLiteral("TfrxFooter"), QStringLiteral("栏目尾") },
        { QStringLiteral("TfrxGroupHeader"), QStringLiteral("分组头") },
        { QStringLiteral("TfrxGroupFooter"), QStringLiteral("分组尾") },
        { QStringLiteral("TfrxReportSummary"), QStringLiteral("报表合计") },
        { QStringLiteral("TfrxPageFooter"), QStringLiteral("页脚") },
        { QStringLiteral("TfrxChild"), QStringLiteral("子区域") },
    };
    return titles;
}

double mm(const reports::TemplateNode &node, const char *property, double fallback)
{
    return node.number(QString::fromLatin1(property), fallback) * reports::pixelsPerMillimetre;
}

// What the designer draws for an object: the object as it prints, its text as written.
reports::PreparedItem displayed(const reports::ObjectDesign &design, const QSizeF &size)
{
    reports::PreparedItem item;
    item.rect = QRectF(QPointF(0, 0), size);
    item.style = design.style;
    item.frame = design.frame;
    item.fill = design.fill;
    const QString text
        = design.text.segments().isEmpty() ? QString() : design.text.segments().first().literal;
    switch (design.kind) {
    case reports::ObjectDesign::Kind::Memo:
        item.kind = reports::PreparedItem::Kind::Text;
        item.text = text;
        break;
    case reports::ObjectDesign::Kind::Line:
        item.kind = reports::PreparedItem::Kind::Line;
        item.line = QLineF(QPointF(0, 0), QPointF(size.width(), size.height()));
        break;
    case reports::ObjectDesign::Kind::Picture:
        item.kind = reports::PreparedItem::Kind::Picture;
        item.image = design.image;
        item.keepAspect = design.keepAspect;
        break;
    case reports::ObjectDesign::Kind::Barcode: {
        item.kind = reports::PreparedItem::Kind::Barcode;
        const reports::BarcodeSymbol symbol = reports::encodeBarcode(design.barType,
            design.barType.contains(QLatin1String("QR"), Qt::CaseInsensitive)
                ? text
                : QStringLiteral("690123456789"));
        QRectF bars = item.rect;
        if (!symbol.twoDimensional) {
            item.text = text;
            item.style.horizontal = Qt::AlignHCenter;
            item.style.vertical = Qt::AlignBottom;
            bars.setBottom(size.height() - design.style.font.pixelSize() * 1.2);
        }
        item.bars = reports::fitBarcode(symbol, bars);
        break;
    }
    }
    return item;
}

} // namespace

bool isBand(const reports::TemplateNode &node)
{
    return bandTitles().contains(node.tag());
}

bool isObject(const reports::TemplateNode &node)
{
    static const QSet<QString> tags { QStringLiteral("TfrxMemoView"),
        QStringLiteral("TfrxSysMemoView"), QStringLiteral("TfrxLineView"),
        QStringLiteral("TfrxPictureView"), QStringLiteral("TfrxBarCodeView"),
        QStringLiteral("TfrxBarcode2DView") };
    return tags.contains(node.tag());
}

QRectF printableRect(const reports::TemplateNode &page)
{
    const double width = mm(page, "PaperWidth", 210);
    const double height = mm(page, "PaperHeight", 297);
    const double left = mm(page, "LeftMargin", 10);
    const double top = mm(page, "TopMargin", 10);
    return QRectF(left, top, width - left - mm(page, "RightMargin", 10),
        height - top - mm(page, "BottomMargin", 10));
}

BandItem::BandItem(reports::TemplateNode *node, double width, double marginTop)
    : QGraphicsRectItem(0, 0, width, node->number(QStringLiteral("Height")))
    , m_node(node)
{
    setPos(0, marginTop + node->number(QStringLiteral("Top")));
    setFlag(ItemIsSelectable);
    setPen(Qt::NoPen);
    setZValue(0);
}

void BandItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->fillRect(rect(), bandColour);
    painter->setPen(QPen(isSelected() ? selectionColour : bandLine, 0, Qt::DashLine));
    painter->drawRect(rect());
    QFont font = painter->font();
    font.setPixelSize(10);
    painter->setFont(font);
    painter->setPen(bandLine);
    const QString label = bandTitles().value(m_node->tag()) + QStringLiteral("：") + m_node->name();
    painter->drawText(QPointF(rect().right() - QFontMetricsF(font).horizontalAdvance(label) - 4,
                          rect().top() - 3),
        label);
}

ObjectItem::ObjectItem(reports::TemplateNode *node, QGraphicsItem *parent)
    : QGraphicsItem(parent)
    , m_node(node)
{
    setFlags(ItemIsSelectable | ItemIsMovable | ItemSendsGeometryChanges | ItemIsFocusable);
    setZValue(1);
    sync();
}

void ObjectItem::sync()
{
    prepareGeometryChange();
    m_design = reports::objectAsWritten(*m_node);
    m_size
        = QSizeF(m_node->number(QStringLiteral("Width")), m_node->number(QStringLiteral("Height")));
    setPos(m_node->number(QStringLiteral("Left")), m_node->number(QStringLiteral("Top")));
    update();
}

QRectF ObjectItem::boundingRect() const
{
    return QRectF(QPointF(0, 0), m_size).adjusted(-handle, -handle, handle, handle);
}

void ObjectItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const QRectF rect(QPointF(0, 0), m_size);
    if (m_design) {
        painter->save();
        reports::paintItem(*painter, displayed(*m_design, m_size));
        painter->restore();
        const bool framed
            = m_design->frame.sides == 15 || m_design->kind == reports::ObjectDesign::Kind::Line;
        if (!framed) {
            painter->setPen(QPen(QColor(0xb0, 0xb0, 0xb0), 0, Qt::DotLine));
            painter->drawRect(rect);
        }
    }
    if (!isSelected())
        return;
    painter->setPen(QPen(selectionColour, 0, Qt::SolidLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect.adjusted(-1, -1, 1, 1));
    painter->fillRect(
        QRectF(rect.bottomRight() - QPointF(handle / 2, handle / 2), QSizeF(handle, handle)),
        selectionColour);
}

QVariant ObjectItem::itemChange(GraphicsItemChange change, const QVariant &value)
{
    // Mouse moves land on whole pixels of the template.
    if (change == ItemPositionChange) {
        const QPointF at = value.toPointF();
        return QPointF(std::round(at.x()), std::round(at.y()));
    }
    return QGraphicsItem::itemChange(change, value);
}

bool ObjectItem::onHandle(const QPointF &at) const
{
    return isSelected() && QLineF(at, QPointF(m_size.width(), m_size.height())).length() <= handle;
}

void ObjectItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    m_resizing = onHandle(event->pos());
    QGraphicsItem::mousePressEvent(event);
}

void ObjectItem::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (!m_resizing) {
        QGraphicsItem::mouseMoveEvent(event);
        return;
    }
    prepareGeometryChange();
    m_size = QSizeF(
        std::max(std::round(event->pos().x()), 1.0), std::max(std::round(event->pos().y()), 0.0));
    update();
}

void ObjectItem::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_resizing) {
        m_resizing = false;
        static_cast<DesignScene *>(scene())->commitResize(this, m_size);
        return;
    }
    QGraphicsItem::mouseReleaseEvent(event);
}

DesignScene::DesignScene(DesignDocument &document, reports::TemplateNode *page, QObject *parent)
    : QGraphicsScene(parent)
    , m_document(document)
    , m_page(page)
{
    setBackgroundBrush(QColor(0x80, 0x86, 0x8c));
    connect(&document, &DesignDocument::structureChanged, this, &DesignScene::rebuild);
    connect(&document, &DesignDocument::propertiesChanged, this, &DesignScene::propertiesChanged);
    rebuild();
}

void DesignScene::rebuild()
{
    QStringList selected;
    for (const reports::TemplateNode *node : selectedNodes())
        selected.append(node->name());
    clear();
    const QRectF printable = printableRect(*m_page);
    double bottom = mm(*m_page, "PaperHeight", 297);
    QList<BandItem *> bands;
    for (const auto &child : m_page->children()) {
        if (!isBand(*child))
            continue;
        auto *band = new BandItem(child.get(), printable.width(), printable.top());
        band->setX(printable.left());
        addItem(band);
        for (const auto &object : child->children())
            if (isObject(*object))
                new ObjectItem(object.get(), band);
        bottom = std::max(
            bottom, band->sceneBoundingRect().bottom() + mm(*m_page, "BottomMargin", 10));
    }
    const QRectF paper(0, 0, mm(*m_page, "PaperWidth", 210), bottom);
    auto *sheet = addRect(paper, QPen(Qt::NoPen), Qt::white);
    sheet->setZValue(-2);
    auto *margins = addRect(QRectF(printable.left(), printable.top(), printable.width(),
                                bottom - printable.top() - mm(*m_page, "BottomMargin", 10)),
        QPen(QColor(0xc8, 0xc8, 0xc8), 0, Qt::DashLine));
    margins->setZValue(-1);
    setSceneRect(paper.adjusted(-20, -20, 20, 20));
    for (const QString &name : selected)
        if (QGraphicsItem *item = itemNamed(name))
            item->setSelected(true);
}

void DesignScene::propertiesChanged(const NodePath &path)
{
    reports::TemplateNode *node = m_document.nodeAt(path);
    if (!node)
        return;
    if (isBand(*node) || node == m_page) {
        rebuild();
        return;
    }
    for (QGraphicsItem *item : items())
        if (auto *object = dynamic_cast<ObjectItem *>(item); object && object->node() == node)
            object->sync();
}

QGraphicsItem *DesignScene::itemNamed(const QString &name) const
{
    for (QGraphicsItem *item : items()) {
        if (auto *object = dynamic_cast<ObjectItem *>(item);
            object && object->node()->name() == name)
            return object;
        if (auto *band = dynamic_cast<BandItem *>(item); band && band->node()->name() == name)
            return band;
    }
    return nullptr;
}

QList<reports::TemplateNode *> DesignScene::selectedNodes() const
{
    QList<reports::TemplateNode *> nodes;
    for (QGraphicsItem *item : selectedItems()) {
        if (auto *object = dynamic_cast<ObjectItem *>(item))
            nodes.append(object->node());
        else if (auto *band = dynamic_cast<BandItem *>(item))
            nodes.append(band->node());
    }
    return nodes;
}

reports::TemplateNode *DesignScene::targetBand() const
{
    for (reports::TemplateNode *node : selectedNodes()) {
        if (isBand(*node))
            return node;
        if (node->parent() && isBand(*node->parent()))
            return node->parent();
    }
    for (const auto &child : m_page->children())
        if (isBand(*child))
            return child.get();
    return nullptr;
}

void DesignScene::selectNamed(const QString &name)
{
    clearSelection();
    if (QGraphicsItem *item = itemNamed(name)) {
        item->setSelected(true);
        setFocusItem(item);
    }
}

void DesignScene::nudge(double dx, double dy, bool resize)
{
    QList<std::pair<reports::TemplateNode *, Properties>> changes;
    for (reports::TemplateNode *node : selectedNodes()) {
        if (!isObject(*node))
            continue;
        const char *x = resize ? "Width" : "Left";
        const char *y = resize ? "Height" : "Top";
        changes.append({ node,
            { { QString::fromLatin1(x),
                  reports::formatLength(std::max(node->number(QString::fromLatin1(x)) + dx, 0.0)) },
                { QString::fromLatin1(y),
                    reports::formatLength(
                        std::max(node->number(QString::fromLatin1(y)) + dy, 0.0)) } } });
    }
    const QString step = resize ? QStringLiteral("改变大小") : QStringLiteral("移动");
    if (changes.size() == 1)
        m_document.setProperties(changes.first().first, changes.first().second, step, true);
    else if (!changes.isEmpty())
        m_document.setProperties(changes, step);
}

void DesignScene::commitMoves()
{
    QList<std::pair<reports::TemplateNode *, Properties>> changes;
    for (QGraphicsItem *item : selectedItems())
        if (auto *object = dynamic_cast<ObjectItem *>(item)) {
            const QPointF at = object->pos();
            const reports::TemplateNode *node = object->node();
            if (at.x() != node->number(QStringLiteral("Left"))
                || at.y() != node->number(QStringLiteral("Top")))
                changes.append({ object->node(),
                    { { QStringLiteral("Left"), reports::formatLength(at.x()) },
                        { QStringLiteral("Top"), reports::formatLength(at.y()) } } });
        }
    if (!changes.isEmpty())
        m_document.setProperties(changes, QStringLiteral("移动"));
}

void DesignScene::commitResize(ObjectItem *item, const QSizeF &size)
{
    m_document.setProperties(item->node(),
        { { QStringLiteral("Width"), reports::formatLength(size.width()) },
            { QStringLiteral("Height"), reports::formatLength(size.height()) } },
        QStringLiteral("改变大小"));
    item->sync();
}

void DesignScene::removeSelected()
{
    QList<reports::TemplateNode *> objects;
    for (reports::TemplateNode *node : selectedNodes())
        if (isObject(*node))
            objects.append(node);
    m_document.remove(objects, QStringLiteral("删除对象"));
}

void DesignScene::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete) {
        removeSelected();
        event->accept();
        return;
    }
    // Arrows move by a pixel, by a millimetre with Ctrl; with Shift they change the size.
    const double step
        = (event->modifiers() & Qt::ControlModifier) ? reports::pixelsPerMillimetre : 1;
    const bool resize = event->modifiers() & Qt::ShiftModifier;
    switch (event->key()) {
    case Qt::Key_Left:
        nudge(-step, 0, resize);
        break;
    case Qt::Key_Right:
        nudge(step, 0, resize);
        break;
    case Qt::Key_Up:
        nudge(0, -step, resize);
        break;
    case Qt::Key_Down:
        nudge(0, step, resize);
        break;
    default:
        QGraphicsScene::keyPressEvent(event);
        return;
    }
    event->accept();
}

void DesignScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    QGraphicsScene::mouseReleaseEvent(event);
    commitMoves();
}

} // namespace medistock::ui
