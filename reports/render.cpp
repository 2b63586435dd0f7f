#include "reports/render.h"

#include "reports/textlayout.h"

#include <QDir>
#include <QFileInfo>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace medistock::reports {

namespace {

QPen penOf(const Frame &frame)
{
    QPen pen(frame.color, frame.width, frame.style, Qt::FlatCap);
    return pen;
}

void paintFrame(QPainter &painter, const QRectF &rect, const Frame &frame)
{
    if (frame.sides == 0 || frame.width <= 0)
        return;
    painter.setPen(penOf(frame));
    if (frame.sides & FrameLeft)
        painter.drawLine(rect.topLeft(), rect.bottomLeft());
    if (frame.sides & FrameRight)
        painter.drawLine(rect.topRight(), rect.bottomRight());
    if (frame.sides & FrameTop)
        painter.drawLine(rect.topLeft(), rect.topRight());
    if (frame.sides & FrameBottom)
        painter.drawLine(rect.bottomLeft(), rect.bottomRight());
}

void paintPicture(QPainter &painter, const PreparedItem &item)
{
    if (item.image.isNull())
        return;
    QRectF target = item.rect;
    if (item.keepAspect) {
        const QSizeF size = QSizeF(item.image.size()).scaled(item.rect.size(), Qt::KeepAspectRatio);
        target = QRectF(item.rect.topLeft()
                + QPointF((item.rect.width() - size.width()) / 2,
                    (item.rect.height() - size.height()) / 2),
            size);
    }
    painter.drawImage(target, item.image);
}

void paintBarcode(QPainter &painter, const PreparedItem &item)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRects(item.bars.constData(), int(item.bars.size()));
    painter.setBrush(Qt::NoBrush);
    if (!item.text.isEmpty())
        paintText(painter, item.rect, item.text, item.style);
}

// The page's own size, never taken for a standard paper turned round.
QPageSize paperOf(const PreparedPage &page)
{
    return QPageSize(page.sizeMm, QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
}

} // namespace

void paintPage(QPainter &painter, const PreparedPage &page)
{
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const PreparedItem &item : page.items)
        paintItem(painter, item);
}

void paintItem(QPainter &painter, const PreparedItem &item)
{
    switch (item.kind) {
    case PreparedItem::Kind::Text:
        if (item.fill.isValid())
            painter.fillRect(item.rect, item.fill);
        paintText(painter, item.rect, item.text, item.style);
        paintFrame(painter, item.rect, item.frame);
        break;
    case PreparedItem::Kind::Line:
        painter.setPen(penOf(item.frame));
        painter.drawLine(item.line);
        break;
    case PreparedItem::Kind::Picture:
        paintPicture(painter, item);
        paintFrame(painter, item.rect, item.frame);
        break;
    case PreparedItem::Kind::Barcode:
        paintBarcode(painter, item);
        break;
    }
}

bool paintReport(QPagedPaintDevice &device, const PreparedReport &report, int from, int to)
{
    if (report.pages.isEmpty())
        return false;
    to = to < 0 ? int(report.pages.size()) - 1 : std::min(to, int(report.pages.size()) - 1);
    from = std::clamp(from, 0, to);
    device.setPageMargins(QMarginsF(0, 0, 0, 0));
    device.setPageSize(paperOf(report.pages.at(from)));
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    for (int i = from; i <= to; ++i) {
        if (i > from) {
            device.setPageSize(paperOf(report.pages.at(i)));
            device.newPage();
        }
        painter.save();
        const double scale = device.logicalDpiX() / 96.0;
        painter.scale(scale, scale);
        paintPage(painter, report.pages.at(i));
        painter.restore();
    }
    return painter.end();
}

Outcome writePdf(const PreparedReport &report, const QString &path, const QString &title)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Outcome::failed(QStringLiteral("无法写入文件：") + QDir::toNativeSeparators(path));
    {
        QPdfWriter writer(&file);
        writer.setResolution(600);
        writer.setTitle(title);
        writer.setCreator(QStringLiteral("Medistock"));
        if (!paintReport(writer, report))
            return Outcome::failed(
                QStringLiteral("无法写入文件：") + QDir::toNativeSeparators(path));
    }
    if (!file.commit())
        return Outcome::failed(QStringLiteral("无法写入文件：") + QDir::toNativeSeparators(path));
    return Outcome::done();
}

} // namespace medistock::reports
