#pragma once

#include "core/outcome.h"
#include "reports/data.h"
#include "reports/design.h"
#include "reports/prepared.h"

#include <QDateTime>

namespace medistock::reports {

struct LayoutOptions
{
    QDateTime printed; // what [Date] and [Time] show
};

// The band engine. Each report page of the template starts a new paper page with its title
// (once), its page header (and the data header and group headers marked ReprintOnNewPage again
// after a break), its master data bands row by row with their group headers and footers and
// footer, then the report summary; a band that does not fit above the page footer goes to a new
// page, and the page footer stands at the foot of every page. A stretched band grows with its
// memos' texts. FillRows="N" starts a new page after N rows and fills the last page with blank
// rows up to N; FillRows="page" fills the rest of the last page. An endless page (receipt paper)
// is as long as what is on it. [TotalPages#] takes a second run once the pages are counted.
// Aggregates count the rows of their data band and start again per page in a page footer, per
// group in a group footer, per run in a footer, never in the summary (or with flag 2).
PreparedReport layoutReport(
    const ReportDesign &design, const ReportData &data, const LayoutOptions &options);

// Reads, compiles and lays out a template in one step; `folder` is the template's own folder.
Result<PreparedReport> prepareReport(const ReportTemplate &report, const ReportData &data,
    const LayoutOptions &options, const QString &folder = {});

} // namespace medistock::reports
