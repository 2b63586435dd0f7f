#pragma once

#include "reports/data.h"
#include "reports/template.h"

#include <QStringList>

namespace medistock::reports {

// The fields a template's objects name, per dataset ("Lines" -> g_name, ls_sl ...), in the order
// they first appear.
QHash<QString, QStringList> fieldsNamed(const ReportTemplate &report);

// Sample data to preview a template with, as the designer does: every variable the template
// declares and every field its objects name, filled with plausible values chosen by the name (a
// goods name, a quantity, a price, an amount that is quantity times price, a date, a batch), and
// `rows` lines. Never written anywhere; a preview of a real document uses documentData instead.
ReportData sampleData(const ReportTemplate &report, int rows = 12);

} // namespace medistock::reports
