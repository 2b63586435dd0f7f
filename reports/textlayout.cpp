#include "reports/textlayout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <memory>
#include <vector>

namespace medistock::reports {

namespace {

constexpr double lineFactor = 1.2;
// Where the baseline of a Chinese face sits in its em square.
constexpr double baselineInEm = 0.88;

double lineHeightOf(const QFont &font)
{
    return font.pixelSize() * lineFactor;
}

// The text's paragraphs laid out at the width; each line's top starts at the running height.
struct LaidOut
{
    std::vector<std::unique_ptr<QTextLayout>> paragraphs;
    int lines = 0;
    double widest = 0;
};

LaidOut layOut(const QString &text, const TextStyle &style, double width)
{
    LaidOut out;
    QString normal = text;
    normal.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    normal.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    QTextOption option(style.horizontal);
    option.setWrapMode(
        style.wordWrap ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    const double lineHeight = lineHeightOf(style.font);
    const double baseline
        = (lineHeight - style.font.pixelSize()) / 2 + baselineInEm * style.font.pixelSize();
    for (const QString &paragraph : normal.split(QLatin1Char('\n'))) {
        auto layout = std::make_unique<QTextLayout>(paragraph, style.font);
        layout->setTextOption(option);
        layout->setCacheEnabled(true);
        layout->beginLayout();
        while (true) {
            QTextLine line = layout->createLine();
            if (!line.isValid())
                break;
            line.setLineWidth(std::max(width, 1.0));
            line.setPosition(QPointF(0, out.lines * lineHeight + baseline - line.ascent()));
            out.widest = std::max(out.widest, line.naturalTextWidth());
            ++out.lines;
        }
        layout->endLayout();
        out.paragraphs.push_back(std::move(layout));
    }
    return out;
}

bool isSingleLine(const QString &text)
{
    return !text.contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\r'));
}

} // namespace

double textHeight(const QString &text, const TextStyle &style, double width)
{
    const double available = width - 2 * style.gapX;
    int lines = 1;
    if (!text.isEmpty()
        && !(isSingleLine(text)
            && (!style.wordWrap || QFontMetricsF(style.font).horizontalAdvance(text) <= available)))
        lines = std::max(layOut(text, style, available).lines, 1);
    return lines * lineHeightOf(style.font) + 2 * style.gapY;
}

void paintText(QPainter &painter, const QRectF &rect, const QString &text, const TextStyle &style)
{
    if (text.isEmpty())
        return;
    const double available = rect.width() - 2 * style.gapX;
    const double lineHeight = lineHeightOf(style.font);
    painter.setFont(style.font);
    painter.setPen(style.color);
    auto topFor = [&](int lines) {
        const double room = rect.height() - 2 * style.gapY - lines * lineHeight;
        double top = rect.top() + style.gapY;
        if (style.vertical & Qt::AlignVCenter)
            top += room / 2;
        else if (style.vertical & Qt::AlignBottom)
            top += room;
        return top;
    };

    if (isSingleLine(text)) {
        const double advance = QFontMetricsF(style.font).horizontalAdvance(text);
        if (advance <= available || !style.wordWrap) {
            double x = rect.left() + style.gapX;
            if (style.horizontal & Qt::AlignHCenter)
                x += (available - advance) / 2;
            else if (style.horizontal & Qt::AlignRight)
                x += available - advance;
            const double baseline = topFor(1) + (lineHeight - style.font.pixelSize()) / 2
                + baselineInEm * style.font.pixelSize();
            const bool clip = advance > available;
            if (clip) {
                painter.save();
                painter.setClipRect(QRectF(rect.left(), rect.top() - rect.height(), rect.width(),
                                        rect.height() * 3),
                    Qt::IntersectClip);
            }
            painter.drawText(QPointF(x, baseline), text);
            if (clip)
                painter.restore();
            return;
        }
    }

    const LaidOut laid = layOut(text, style, available);
    const QPointF origin(rect.left() + style.gapX, topFor(laid.lines));
    const bool clip = laid.widest > available + 0.5;
    if (clip) {
        painter.save();
        painter.setClipRect(
            QRectF(rect.left(), rect.top() - rect.height() - laid.lines * lineHeight, rect.width(),
                (rect.height() + laid.lines * lineHeight) * 3),
            Qt::IntersectClip);
    }
    for (const auto &paragraph : laid.paragraphs)
        paragraph->draw(&painter, origin);
    if (clip)
        painter.restore();
}

} // namespace medistock::reports
