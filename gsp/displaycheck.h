#pragma once

#include "core/outcome.h"
#include "gsp/filled.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::gsp {

// "陈列药品维护检查记录": a warehouse's displayed drugs inspected batch by batch, with the
// temperatures and humidities of the store and its cabinets and four groups of counts.

// One group of counts: how much there is, its condition, and how much of it was found
// qualified, damaged, expired or otherwise abnormal.
struct InspectionGroup
{
    double quantity = 0; // ..sl
    QString quality; // ..zl
    double qualified = 0; // ..hgsl
    double damaged = 0; // ..pssl
    double expired = 0; // ..gqsl (the near-expiry group keeps none)
    double abnormal = 0; // ..ycsl
};

struct InspectionHeader
{
    QString date; // t_rq "yyyy-MM-dd"
    QString warehouse; // ck_sn
    QString employee; // u_sn of jxc_user; may be empty
    QString note; // t_note
    double storeTemperature = 0; // t_dnwd
    double storeHumidity = 0; // t_dnsd
    double coldTemperature = 0; // t_lcgwd (冷藏柜)
    double coldHumidity = 0; // t_lcgsd
    double coolTemperature = 0; // t_ylgwd (阴凉柜)
    double coolHumidity = 0; // t_ylgsd
    InspectionGroup herbal; // t_zy: goods of the GSP category "中药饮片"
    InspectionGroup biological; // t_sw: "生物制品"
    InspectionGroup maintained; // t_yh: goods whose maintenance type is not "不养护"
    InspectionGroup nearExpiry; // t_jxq: batches expiring from today to the near-expiry month
};

// A new record as the screen proposes it for the warehouse: today, the groups' quantities
// summed from the warehouse's batch stock, each found "良好" and wholly qualified.
InspectionHeader proposedInspection(const shell::Session &session, const QString &warehouse);

// Saves the header with the operator's picks as its lines ("陈列检查记录", right 3):
// temperatures from -50 to 60, humidities from 0 to 100, counts not below 0. Returns the number.
Result<QString> saveInspection(const shell::Session &session, const InspectionHeader &header);

struct InspectionRecord
{
    FilledRecordInfo info;
    InspectionHeader header;
};
Result<QList<InspectionRecord>> inspectionRecords(
    const shell::Session &session, const RecordFilter &filter);

} // namespace medistock::gsp
