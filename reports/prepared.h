#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QLineF>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

namespace medistock::reports {

// Template lengths are pixels at 96 dots per inch; pages are measured in millimetres.
constexpr double pixelsPerMillimetre = 96.0 / 25.4;

// The sides of a frame, as the template's Frame.Typ bits give them.
enum FrameSide { FrameLeft = 1, FrameRight = 2, FrameTop = 4, FrameBottom = 8 };

struct Frame
{
    int sides = 0;
    double width = 1;
    QColor color = Qt::black;
    Qt::PenStyle style = Qt::SolidLine;
};

// How a text sits in its rectangle.
struct TextStyle
{
    QFont font;
    QColor color = Qt::black;
    Qt::Alignment horizontal = Qt::AlignLeft;
    Qt::Alignment vertical = Qt::AlignTop;
    bool wordWrap = true;
    double gapX = 2;
    double gapY = 1;
};

// One thing drawn on a prepared page, in pixels at 96 dpi from the page's top left corner. It
// keeps the name of the template object it came from, so that a test or the designer finds it.
struct PreparedItem
{
    enum class Kind { Text, Line, Picture, Barcode };
    Kind kind = Kind::Text;
    QString source;
    QRectF rect;
    // Text: the finished text, its style, the fill behind it and the frame around it.
    QString text;
    TextStyle style;
    QColor fill; // invalid: transparent
    Frame frame;
    // Line.
    QLineF line;
    // Picture, scaled into rect (keeping its proportions when asked).
    QImage image;
    bool keepAspect = true;
    // Barcode: the bars as rectangles inside rect; the readable text below them, if shown.
    QList<QRectF> bars;
};

struct PreparedPage
{
    QSizeF sizeMm;
    QList<PreparedItem> items;

    // The texts of the items from the named object, top to bottom.
    QStringList textsOf(const QString &source) const;
    // Every text on the page in the order it was placed.
    QStringList texts() const;
    const PreparedItem *first(const QString &source) const;
};

// A filled template ready to paint: its pages in order.
struct PreparedReport
{
    QList<PreparedPage> pages;
    // Every text of every page joined by line breaks (what a reader of the paper sees).
    QString allText() const;
};

} // namespace medistock::reports
