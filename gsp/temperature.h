#pragma once

#include "core/outcome.h"
#include "gsp/filters.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::gsp {

// "仓库温湿度管理": the temperature and humidity log of the warehouses (jxc_ckwsd). An entry is
// one reading of a warehouse at a date and time; when the reading was out of bounds, cw_cs holds
// the measures taken and cw_wd2, cw_sd2 the temperature and humidity read after them.

// As typed: numbers and times as text.
struct TemperatureEntry
{
    QString warehouse; // ck_sn
    QString date; // cw_rq "yyyy-MM-dd"
    QString time; // cw_time "hh:mm" ("8:05" is taken as "08:05")
    QString temperature; // cw_wd, from -50 to 60
    QString humidity; // cw_sd, from 0 to 100
    QString temperatureAfter; // cw_wd2, may be empty
    QString humidityAfter; // cw_sd2, may be empty
    QString measures; // cw_cs
    QString recorder; // cw_jly; the operator when empty
    QString note; // cw_note
};

// Adds an entry ("仓库温湿度管理", right 11) in one transaction; returns its id.
Result<qint64> addTemperature(const shell::Session &session, const TemperatureEntry &entry);
// Deletes an entry after the question.
Outcome deleteTemperature(const shell::Session &session, qint64 id);

struct TemperatureRow
{
    qint64 id = 0;
    QString warehouse;
    QString warehouseName;
    QString date;
    QString time;
    double temperature = 0;
    double humidity = 0;
    QString temperatureAfter;
    QString humidityAfter;
    QString measures;
    QString recorder;
    QString note;
    QString operatorName; // a_name
};

// The entries dated in the range of one warehouse or all, newest first. The log keeps no
// partner, so the filter's keyword is not used.
Result<QList<TemperatureRow>> temperatureLog(
    const shell::Session &session, const RecordFilter &filter);

// One point of the chart: the moment of an entry and what was read.
struct Reading
{
    QDateTime at;
    double temperature = 0;
    double humidity = 0;
};
// The entries of one warehouse in time order (entries whose date or time cannot be read are
// left out).
QList<Reading> readingsOf(const QList<TemperatureRow> &rows, const QString &warehouse);

// The storage classes of the GSP rules and the bounds they keep: "常温库" 10-30 ℃, "阴凉库" at
// most 20 ℃, "冷库" 2-10 ℃, each at 35-75 % relative humidity. The warehouse table keeps no
// class, so a warehouse is taken as cold when its name says "冷", cool when it says "阴凉", and
// normal otherwise; the chart lets the clerk choose another.
enum class StorageClass { Normal, Cool, Cold };
struct StorageLimits
{
    std::optional<double> lowTemperature;
    double highTemperature = 0;
    double lowHumidity = 0;
    double highHumidity = 0;
};
StorageClass storageClassOf(const QString &warehouseName);
QString nameOf(StorageClass storageClass);
StorageLimits limitsOf(StorageClass storageClass);

// The reminder at login for an operator with the right "仓库温湿度管理": the warehouses (those he
// is bound to, when operators are bound) without an entry dated today; empty when every one has
// one or the operator lacks the right.
QString temperatureReminder(const shell::Session &session);

} // namespace medistock::gsp
