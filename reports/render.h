#pragma once

#include "core/outcome.h"
#include "reports/prepared.h"

#include <QString>

class QPagedPaintDevice;
class QPainter;

namespace medistock::reports {

// Paints one prepared page. The painter's unit must be a pixel at 96 dpi with the page's top
// left corner at the origin.
void paintPage(QPainter &painter, const PreparedPage &page);
// Paints one item the same way (the designer draws its objects with it).
void paintItem(QPainter &painter, const PreparedItem &item);

// Paints pages onto a paged device (a PDF writer, or a printer set to full page), each page on
// paper of its own size (a receipt roll is as long as its content). `from` and `to` count from
// 0; -1 for `to` is the last page. False when the device cannot be painted on.
bool paintReport(
    QPagedPaintDevice &device, const PreparedReport &report, int from = 0, int to = -1);

// Writes the report to a PDF file (whole or not at all); the title goes into the file's
// properties.
Outcome writePdf(const PreparedReport &report, const QString &path, const QString &title);

} // namespace medistock::reports
