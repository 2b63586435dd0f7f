#pragma once

#include "reports/value.h"

#include <QDateTime>
#include <QString>

namespace medistock::reports {

// The number and date formats of our .fr3 templates, with the meanings their authors know from
// Delphi: in FormatFloat "0" is a digit always written, "#" a digit written only when it counts
// (so "#.00" of 0.5 is ".50" and of 0 is ".00"), "," groups thousands, ";" separates the
// positive, negative and zero sections, quoted text is copied; in FormatDateTime "mm" is the
// month except right after an hour, where it means minutes like "nn". Halves round away from
// zero after the same 1e-9 nudge the system's own rounding uses.

QString formatFloat(const QString &format, double value);
QString formatDateTime(const QString &format, const QDateTime &value);
// Format with one argument: "%2.2n" (thousands, 2 places), "%.2f", "%d", "%s", "%g", "%e", "%x",
// "%m" (money with the yuan sign); text outside the specifier is copied, "%%" is a percent sign.
QString formatDelphi(const QString &format, const Value &value);

// How a memo formats the values of its [ ] segments.
struct DisplayFormat
{
    enum class Kind { Text, Numeric, DateTime, Boolean };
    Kind kind = Kind::Text;
    QString format;

    // Reads DisplayFormat.Kind ("fkNumeric", "fkDateTime", "fkBoolean", "fkText").
    static DisplayFormat fromProperties(const QString &kind, const QString &format);
    // The value as the memo shows it; a value that does not fit the kind shows as plain text.
    QString apply(const Value &value) const;
};

} // namespace medistock::reports
