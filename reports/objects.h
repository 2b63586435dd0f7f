#pragma once

#include "reports/design.h"
#include "reports/prepared.h"

#include <QList>
#include <QPointF>
#include <QString>

namespace medistock::reports {

// A band filled for one row: each object's finished text and height, and the band's height once
// its stretching memos have grown.
struct FilledBand
{
    QList<QString> texts;
    QList<double> heights;
    double height = 0;
};

// The text an object shows: literal runs and its [ ] values formatted as the memo asks (zeros
// left out with HideZeros). On a blank filling row a memo with values shows nothing.
QString objectText(const ObjectDesign &object, const Scope &scope, bool blank);

// Fills a band's objects; stretching counts only in a band marked Stretched.
FilledBand fillBand(const BandDesign &band, const Scope &scope, bool blank);

// Places a filled band's objects on the page with the band's top left corner at `origin`.
void placeBand(
    const BandDesign &band, const FilledBand &filled, QPointF origin, PreparedPage &page);

} // namespace medistock::reports
