#pragma once

#include "core/outcome.h"
#include "gsp/categories.h"
#include "gsp/derived.h"
#include "gsp/displaycheck.h"
#include "gsp/expiry.h"
#include "gsp/filled.h"
#include "gsp/picking.h"
#include "gsp/restricted.h"
#include "gsp/staff.h"
#include "gsp/temperature.h"
#include "gsp/tracking.h"
#include "gsp/training.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace medistock::gsp {

// What a column holds, for the decimals it is shown with: quantities, prices and amounts take
// the places of the parameters, other figures (temperatures, counts) are shown as they are.
enum class ColumnKind { Text, Quantity, Price, Amount, Figure };

// A record as the clerk reads it: the columns under their captions, one row per record row
// (numbers as numbers, flags as "是" or empty), the key each row stands for, and the columns a
// totals row sums. The command line prints it, the screens show it, the export writes it.
struct RecordTable
{
    QString title; // the sheet name and the print title
    QString printKey; // the report template; empty when the record has none
    QStringList headers;
    QList<ColumnKind> kinds; // one per column
    QList<QVariantList> rows;
    QVariantList keys; // the line id, entry id, record number or employee code of each row
    QList<int> summed; // columns added up in the totals row
    // The template's "Lines" field each column is printed as (empty: not printed); empty when the
    // record's template prints something the table does not show (a record's lines).
    QStringList printFields {};
};

// The totals row: "合计" first, the sums of the summed columns, the rest empty.
QVariantList totalsRow(const RecordTable &table);
// Writes the table with its totals row (when it sums anything) to one sheet of an .xlsx file.
Outcome exportTable(const RecordTable &table, const QString &path);

RecordTable acceptanceTable(const QList<AcceptanceRow> &rows);
RecordTable prescriptionTable(const QList<PrescriptionRow> &rows);
RecordTable prescriptionSalesTable(const QList<PrescriptionRow> &rows);
RecordTable splittingTable(const QList<SplittingRow> &rows);
RecordTable expiryTable(const QList<ExpiryRow> &rows, int days);
RecordTable restrictedTable(const QList<RestrictedRow> &rows);
RecordTable restrictedSummaryTable(const QList<RestrictedSummaryRow> &rows);
RecordTable inspectionTable(const QList<InspectionRecord> &records);
RecordTable trackingTable(const QList<TrackingRecord> &records);
RecordTable filledLinesTable(FilledKind kind, const QList<FilledLine> &lines);
RecordTable temperatureTable(const QList<TemperatureRow> &rows);
RecordTable staffTable(const QList<StaffRow> &rows);
RecordTable planTable(const QList<PlanRow> &rows);
RecordTable trainingTable(const QList<TrainingRow> &rows);
RecordTable categoryTable(const QList<Category> &rows);
RecordTable pickableTable(const QList<PickableBatch> &batches);
RecordTable postedLinesTable(const QString &title, const QList<PostedLine> &lines);

} // namespace medistock::gsp
