#pragma once

#include "reports/prepared.h"

#include <QRectF>
#include <QString>

class QPainter;

namespace medistock::reports {

// How memo texts are set, the same way when the band engine measures a stretching memo and when
// the painter draws it: lines of 1.2 times the font's pixel size (Chinese faces' own line height
// would not fit the 18.9 px rows templates are drawn with), the gaps inside the frame, wrapping
// at the width when the memo wraps. Text is never clipped at the top or bottom, only at the
// sides.

// The height the text needs at this width, gaps included.
double textHeight(const QString &text, const TextStyle &style, double width);

// Paints the text into the memo's rectangle.
void paintText(QPainter &painter, const QRectF &rect, const QString &text, const TextStyle &style);

} // namespace medistock::reports
