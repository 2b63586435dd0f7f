#include "reports/objects.h"

#include "reports/barcode.h"
#include "reports/textlayout.h"

namespace medistock::reports {

namespace {

using Kind = ObjectDesign::Kind;

bool hidden(const ObjectDesign &object, const Value &value)
{
    return object.hideZeros && !value.isNull() && value.readsAsNumber() && value.toNumber() == 0;
}

void placeMemo(
    const ObjectDesign &object, const QRectF &rect, const QString &text, PreparedPage &page)
{
    if (text.isEmpty() && !object.fill.isValid() && object.frame.sides == 0)
        return;
    PreparedItem item;
    item.kind = PreparedItem::Kind::Text;
    item.source = object.name;
    item.rect = rect;
    item.text = text;
    item.style = object.style;
    item.fill = object.fill;
    item.frame = object.frame;
    page.items.append(std::move(item));
}

void placeLine(const ObjectDesign &object, const QRectF &rect, PreparedPage &page)
{
    PreparedItem item;
    item.kind = PreparedItem::Kind::Line;
    item.source = object.name;
    item.rect = rect;
    item.line = QLineF(rect.topLeft(), rect.bottomRight());
    item.frame = object.frame;
    page.items.append(std::move(item));
}

void placePicture(const ObjectDesign &object, const QRectF &rect, PreparedPage &page)
{
    PreparedItem item;
    item.kind = PreparedItem::Kind::Picture;
    item.source = object.name;
    item.rect = rect;
    item.image = object.image;
    item.keepAspect = object.keepAspect;
    item.frame = object.frame;
    page.items.append(std::move(item));
}

// A symbol that cannot carry its data (letters in an EAN) prints the data as text instead.
void placeBarcode(
    const ObjectDesign &object, const QRectF &rect, const QString &data, PreparedPage &page)
{
    if (data.isEmpty())
        return;
    const BarcodeSymbol symbol = encodeBarcode(object.barType, data);
    PreparedItem item;
    item.source = object.name;
    item.rect = rect;
    item.style = object.style;
    item.style.horizontal = Qt::AlignHCenter;
    item.style.vertical = Qt::AlignBottom;
    item.style.gapY = 0;
    if (!symbol.error.isEmpty()) {
        item.kind = PreparedItem::Kind::Text;
        item.text = data;
        page.items.append(std::move(item));
        return;
    }
    item.kind = PreparedItem::Kind::Barcode;
    QRectF bars = rect;
    if (object.showText && !symbol.twoDimensional) {
        item.text = data;
        bars.setBottom(rect.bottom() - object.style.font.pixelSize() * 1.2);
    }
    item.bars = fitBarcode(symbol, bars);
    page.items.append(std::move(item));
}

} // namespace

QString objectText(const ObjectDesign &object, const Scope &scope, bool blank)
{
    if (blank && !object.text.isPlain())
        return QString();
    QString out;
    for (const TemplateText::Segment &segment : object.text.segments()) {
        if (!segment.expression) {
            out += segment.literal;
            continue;
        }
        const Value value = segment.expression->evaluate(scope);
        if (!hidden(object, value))
            out += object.format.apply(value);
    }
    return out;
}

FilledBand fillBand(const BandDesign &band, const Scope &scope, bool blank)
{
    FilledBand filled;
    filled.height = band.height;
    for (const ObjectDesign &object : band.objects) {
        const bool hasText = object.kind == Kind::Memo || object.kind == Kind::Barcode;
        const QString text = hasText ? objectText(object, scope, blank) : QString();
        double height = object.rect.height();
        if (band.stretched && object.kind == Kind::Memo
            && object.stretch != ObjectDesign::Stretch::None)
            height = std::max(height, textHeight(text, object.style, object.rect.width()));
        filled.texts.append(text);
        filled.heights.append(height);
        if (band.stretched)
            filled.height = std::max(filled.height, object.rect.top() + height);
    }
    if (band.stretched)
        for (int i = 0; i < band.objects.size(); ++i)
            if (band.objects.at(i).stretch == ObjectDesign::Stretch::Max)
                filled.heights[i] = filled.height - band.objects.at(i).rect.top();
    return filled;
}

void placeBand(const BandDesign &band, const FilledBand &filled, QPointF origin, PreparedPage &page)
{
    for (int i = 0; i < band.objects.size(); ++i) {
        const ObjectDesign &object = band.objects.at(i);
        const QRectF rect(
            origin + object.rect.topLeft(), QSizeF(object.rect.width(), filled.heights.at(i)));
        switch (object.kind) {
        case Kind::Memo:
            placeMemo(object, rect, filled.texts.at(i), page);
            break;
        case Kind::Line:
            placeLine(object, rect, page);
            break;
        case Kind::Picture:
            placePicture(object, rect, page);
            break;
        case Kind::Barcode:
            placeBarcode(object, rect, filled.texts.at(i), page);
            break;
        }
    }
}

} // namespace medistock::reports
