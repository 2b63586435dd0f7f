#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::gsp {

// The two records staff fill in batch by batch: "陈列药品维护检查记录" (jxc_cljcd, jxc_cljcsp,
// numbered "JC" + yymmdd + sequence) and "近效期跟踪记录" (jxc_jxqd, jxc_jxqsp, numbered "JX" ...).
// Their lines are picked from the batch stock of a warehouse into the operator's rows of the work
// table jxc_tempspxf2, marked in t_zp with the record they are for, so that the picks of one
// record never mix with another's or with a document being entered.
enum class FilledKind { Inspection, Tracking };

struct FilledKindInfo
{
    const char *headerTable;
    const char *lineTable;
    const char *prefix; // of the record number
    const char *workTag; // t_zp of the work rows
    int right; // the operation of "GSP管理" that keeps the record
};
const FilledKindInfo &infoOf(FilledKind kind);
QString titleOf(FilledKind kind);

// A batch the picker offers: in stock in the warehouse, of goods that are not disabled, never the
// discount line.
struct PickableBatch
{
    QString goods;
    QString goodsName;
    QString packing; // gg_name
    QString unit; // dw_name
    QString manufacturer; // g_sccs
    QString category; // gsp_name
    double warehouseStock = 0; // kc_sl of the goods in the warehouse
    double quantity = 0; // t_sl of the batch
    QString batch;
    QString produced;
    QString expiry;
};

// What the picker narrows to besides the warehouse: a goods class (its code; sub-classes
// included), a GSP category (gsp_name), a text in the goods' code, name or mnemonic. For the
// tracking record, `withinDays` >= 0 keeps the batches the expiry query would list for that
// many days.
struct BatchChoice
{
    QString warehouse {};
    QString goodsClass {};
    QString category {};
    QString key {};
    int withinDays = -1;
};
Result<QList<PickableBatch>> pickableBatches(
    const shell::Session &session, const BatchChoice &choice);

// A line being picked: quantity, quality condition (t_cfsm of the work row, "良好" to start
// with) and handling (ts_note).
struct PickedLine
{
    qint64 id = 0; // the work row
    QString goods;
    QString goodsName;
    QString packing;
    QString unit;
    double quantity = 0;
    QString quality;
    QString handling;
    QString batch;
    QString produced;
    QString expiry;
};

// Empties the operator's picks for the record (a new record starts empty).
Outcome clearPicks(const shell::Session &session, FilledKind kind);
// Adds a batch of the warehouse to the operator's picks with its stock as quantity and the
// quality "良好"; false (and nothing added) when the same goods, batch and expiry is already
// there. A batch the picker would not offer is refused.
Result<bool> pickBatch(const shell::Session &session, FilledKind kind, const QString &warehouse,
    const PickableBatch &batch);
QList<PickedLine> pickedLines(const shell::Session &session, FilledKind kind);
// Changes what the clerk found for a picked line; the quantity must be a number not below 0.
Outcome changePickedLine(const shell::Session &session, qint64 id, const QString &quantity,
    const QString &quality, const QString &handling);
Outcome removePickedLine(const shell::Session &session, qint64 id);

} // namespace medistock::gsp
