#pragma once

#include "core/outcome.h"
#include "gsp/filled.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::gsp {

// "近效期跟踪记录": the batches of a warehouse that near their expiry, followed month by month.
// The header columns mean:
// - t_nian, t_yue: the year and month of the record's date;
// - t_yx "月序": the record's place among the warehouse's tracking records of that month, from 1;
// - t_qsxq, t_jsxq: the expiry window the batches were picked in, as days from the record date
//   (the picker keeps the batches the expiry query lists for t_jsxq days);
// - t_jdbs "结单笔数": how many lines the record closed with;
// - t_hsdy "核算单元": the unit that accounts for the stock, the warehouse's name to start with;
// - t_bgz "保管账": who keeps the stock, the warehouse's keeper (ck_fzr) to start with;
// - t_zt "状态": the state of the follow-up, "跟踪中" to start with.
struct TrackingHeader
{
    QString date; // t_rq
    QString warehouse;
    QString employee; // u_sn of jxc_user; may be empty
    QString note;
    QString accountingUnit; // t_hsdy
    QString keeper; // t_bgz
    QString state; // t_zt
    int fromDays = 0; // t_qsxq
    int toDays = 0; // t_jsxq
};

// A new record as the screen proposes it for the warehouse: today, the window from 0 to the
// near-expiry days, the warehouse's name and keeper, "跟踪中".
TrackingHeader proposedTracking(const shell::Session &session, const QString &warehouse);

// Saves the header with the operator's picks as its lines ("近效期跟踪记录", right 6); the
// window must run from 0 up to at most 36500 days. Returns the number.
Result<QString> saveTracking(const shell::Session &session, const TrackingHeader &header);

struct TrackingRecord
{
    FilledRecordInfo info;
    TrackingHeader header;
    QString year; // t_nian
    QString month; // t_yue
    QString sequence; // t_yx
    int closedLines = 0; // t_jdbs
};
Result<QList<TrackingRecord>> trackingRecords(
    const shell::Session &session, const RecordFilter &filter);

} // namespace medistock::gsp
