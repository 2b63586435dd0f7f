#pragma once

#include "core/outcome.h"
#include "gsp/filters.h"
#include "gsp/picking.h"

#include <QList>
#include <QSqlQuery>
#include <QString>

#include <functional>

namespace medistock::shell {
class Session;
}

namespace medistock::gsp {

// What the lists of both filled-in records show of a record besides its own header columns.
struct FilledRecordInfo
{
    qint64 id = 0;
    QString number; // gl_djh
    QString date; // t_rq
    QString warehouse; // ck_sn
    QString warehouseName;
    QString employee; // u_sn
    QString employeeName; // from jxc_user
    QString note; // t_note
    QString operatorName; // a_name
    int lineCount = 0;
};

// A saved line of either record.
struct FilledLine
{
    qint64 id = 0;
    QString number;
    QString goods;
    QString goodsName;
    QString packing;
    QString unit;
    QString manufacturer;
    double quantity = 0; // t_sl
    QString quality; // t_zlzk
    QString handling; // t_clqk
    QString batch;
    QString produced;
    QString expiry;
    QString operatorName; // a_name
    QString date; // the record's t_rq
};
QList<FilledLine> filledLines(
    const shell::Session &session, FilledKind kind, const QString &number);

// Deletes a whole record (lines, then header) or one line, after the question, in one
// transaction, with the record's right.
Outcome deleteFilledRecord(const shell::Session &session, FilledKind kind, const QString &number);
Outcome deleteFilledLine(const shell::Session &session, FilledKind kind, qint64 lineId);

namespace detail {

// The save both records share, once the caller has checked its own header: the record's right,
// the date and warehouse, at least one pick and every picked batch still a batch of the
// warehouse; then in one transaction the next number of the day, the header (written by
// `writeHeader`), the lines from the picks, the picks emptied and the log. Returns the number.
Result<QString> saveFilledRecord(const shell::Session &session, FilledKind kind,
    const QString &date, const QString &warehouse,
    const std::function<void(const QString &number, int lines)> &writeHeader);

// The list of a record's headers dated in the range, newest first: the shared columns, then
// `columns` of the header (alias a), each row handed to `row` with the shared part read.
void listFilledRecords(const shell::Session &session, FilledKind kind, const RecordFilter &filter,
    const QString &columns,
    const std::function<void(const FilledRecordInfo &, const QSqlQuery &, int next)> &row);

// The header fields both records keep, as their list read them.
template<class Header> void takeShared(Header &header, const FilledRecordInfo &info)
{
    header.date = info.date;
    header.warehouse = info.warehouse;
    header.employee = info.employee;
    header.note = info.note;
}

// Refuses (and tells) a warehouse code that is not in jxc_ckxx, or an employee code that is not
// in jxc_user (an empty employee is allowed).
Outcome checkPlaces(
    const shell::Session &session, const QString &warehouse, const QString &employee);

} // namespace detail

} // namespace medistock::gsp
