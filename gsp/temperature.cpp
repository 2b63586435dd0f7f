#include "gsp/temperature.h"

#include "core/connection.h"
#include "core/rounding.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "gsp/reading.h"
#include "gsp/texts.h"
#include "shell/rights.h"
#include "shell/settings.h"

#include <QTime>

#include <algorithm>
#include <cmath>

namespace medistock::gsp {

namespace {

const int temperatureRight = 11;
// The width of the second readings' columns.
const int afterWidth = 8;

// A typed reading within its bounds, as the number; the refusal text otherwise.
QString readFigure(const QString &what, const QString &text, double low, double high, double &value)
{
    bool ok = false;
    value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value))
        return texts::badNumber(what, text);
    if (value < low || value > high)
        return texts::outOfRange(what, text, low, high);
    return QString();
}

// The entry as it is written, or the refusal text.
struct CheckedEntry
{
    QString refusal;
    QVariantList values;
};

// A second reading is optional; when given it is kept as its number's text.
QString readAfter(const QString &what, const QString &text, double low, double high, QString &kept)
{
    kept.clear();
    if (text.trimmed().isEmpty())
        return QString();
    double value = 0;
    const QString refusal = readFigure(what, text, low, high, value);
    if (!refusal.isEmpty())
        return refusal;
    kept = core::plainNumber(value);
    return kept.size() > afterWidth ? texts::tooLong(what, afterWidth) : QString();
}

CheckedEntry checkEntry(const shell::Session &session, const TemperatureEntry &e)
{
    const QString date = normalDate(e.date);
    if (date.isEmpty())
        return { texts::badDate(QStringLiteral("日期"), e.date), {} };
    const QTime time = QTime::fromString(e.time.trimmed(), QStringLiteral("H:mm"));
    if (!time.isValid())
        return { texts::badTime(e.time), {} };
    double temperature = 0;
    double humidity = 0;
    QString temperatureAfter;
    QString humidityAfter;
    for (const QString &refusal :
        { readFigure(QStringLiteral("温度"), e.temperature, -50, 60, temperature),
            readFigure(QStringLiteral("湿度"), e.humidity, 0, 100, humidity),
            readAfter(QStringLiteral("措施后温度"), e.temperatureAfter, -50, 60, temperatureAfter),
            readAfter(QStringLiteral("措施后湿度"), e.humidityAfter, 0, 100, humidityAfter) })
        if (!refusal.isEmpty())
            return { refusal, {} };
    const auto clean = [](const QString &text) {
        return core::cleanText(text.trimmed(), core::CleanStrength::Medium);
    };
    const QString recorder
        = e.recorder.trimmed().isEmpty() ? session.user().name : clean(e.recorder);
    const QString measures = clean(e.measures);
    const QString note = clean(e.note);
    const struct
    {
        const char *what;
        const QString &text;
        int width;
    } fields[]
        = { { "采取的措施", measures, 255 }, { "记录员", recorder, 32 }, { "备注", note, 255 } };
    for (const auto &field : fields)
        if (field.text.size() > field.width)
            return { texts::tooLong(QString::fromUtf8(field.what), field.width), {} };
    return { QString(),
        { e.warehouse.trimmed(), date, time.toString(QStringLiteral("HH:mm")), temperature,
            humidity, temperatureAfter, humidityAfter, session.user().name, measures, note,
            recorder } };
}

TemperatureRow temperatureRowOf(const QSqlQuery &q)
{
    detail::Cells c(q);
    TemperatureRow row;
    row.id = c.id();
    row.warehouse = c.text();
    row.warehouseName = c.text();
    row.date = c.text();
    row.time = c.text();
    row.temperature = c.number();
    row.humidity = c.number();
    row.temperatureAfter = c.text();
    row.humidityAfter = c.text();
    row.measures = c.text();
    row.recorder = c.text();
    row.note = c.text();
    row.operatorName = c.text();
    return row;
}

} // namespace

Result<qint64> addTemperature(const shell::Session &session, const TemperatureEntry &entry)
{
    const Outcome allowed = shell::requireRight(session, "gspgl", temperatureRight);
    if (!allowed)
        return allowed;
    const CheckedEntry checked = checkEntry(session, entry);
    if (!checked.refusal.isEmpty())
        return core::refuse(session.ui(), checked.refusal);
    qint64 id = 0;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const QSqlRecord place = db.firstRow(
            QStringLiteral("select ck_name from jxc_ckxx where ck_sn=?"), { checked.values[0] });
        if (place.isEmpty())
            return core::refuse(session.ui(), texts::unknownWarehouse(entry.warehouse));
        const QString warehouseName = place.value(0).toString();
        core::Transaction transaction(db);
        id = db.insert(QStringLiteral("insert into jxc_ckwsd (ck_sn,cw_rq,cw_time,cw_wd,cw_sd,"
                                      "cw_wd2,cw_sd2,a_name,cw_cs,cw_note,cw_jly) values "
                                      "(?,?,?,?,?,?,?,?,?,?,?)"),
            checked.values);
        session.log(texts::temperatureSavedLog(
            warehouseName, checked.values[1].toString(), checked.values[2].toString()));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return id;
}

Outcome deleteTemperature(const shell::Session &session, qint64 id)
{
    const Outcome allowed = shell::requireRight(session, "gspgl", temperatureRight);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&] {
        const QSqlRecord entry = db.firstRow(
            QStringLiteral("select c.ck_name,a.cw_rq,a.cw_time from jxc_ckwsd a left join "
                           "jxc_ckxx c on a.ck_sn=c.ck_sn where a.id=?"),
            { id });
        if (entry.isEmpty())
            return core::refuse(session.ui(), texts::temperatureEntryNotFound(id));
        const QString log = texts::temperatureDeletedLog(
            entry.value(0).toString(), entry.value(1).toString(), entry.value(2).toString());
        if (!session.ui().ask(texts::deleteTemperatureQuestion(
                entry.value(0).toString(), entry.value(1).toString(), entry.value(2).toString())))
            return Outcome::refused(QString());
        core::Transaction transaction(db);
        db.exec(QStringLiteral("delete from jxc_ckwsd where id=?"), { id });
        session.log(log);
        transaction.commit();
        return Outcome::done();
    });
}

Result<QList<TemperatureRow>> temperatureLog(
    const shell::Session &session, const RecordFilter &filter)
{
    return detail::readRows<TemperatureRow>(session, filter, [&](QList<TemperatureRow> &rows) {
        const Conditions where
            = conditionsOf(session, filter, { {}, QStringLiteral("a.ck_sn"), QStringLiteral("c") });
        const QVariantList params = rangeParams(filter, {}, where);
        session.db().forEach(
            QStringLiteral("select a.id,a.ck_sn,c.ck_name,a.cw_rq,a.cw_time,a.cw_wd,a.cw_sd,"
                           "a.cw_wd2,a.cw_sd2,a.cw_cs,a.cw_jly,a.cw_note,a.a_name from jxc_ckwsd "
                           "a,jxc_ckxx c where a.ck_sn=c.ck_sn and a.cw_rq>=? and a.cw_rq<=?")
                + where.sql() + QStringLiteral(" order by a.id desc"),
            params, [&](const QSqlQuery &q) { rows.append(temperatureRowOf(q)); });
    });
}

QList<Reading> readingsOf(const QList<TemperatureRow> &rows, const QString &warehouse)
{
    QList<Reading> readings;
    for (const TemperatureRow &row : rows) {
        if (row.warehouse != warehouse)
            continue;
        const QDateTime at = QDateTime::fromString(
            row.date + QLatin1Char(' ') + row.time, QStringLiteral("yyyy-MM-dd HH:mm"));
        if (at.isValid())
            readings.append({ at, row.temperature, row.humidity });
    }
    std::stable_sort(readings.begin(), readings.end(),
        [](const Reading &a, const Reading &b) { return a.at < b.at; });
    return readings;
}

StorageClass storageClassOf(const QString &warehouseName)
{
    if (warehouseName.contains(QStringLiteral("冷")))
        return StorageClass::Cold;
    if (warehouseName.contains(QStringLiteral("阴凉")))
        return StorageClass::Cool;
    return StorageClass::Normal;
}

QString nameOf(StorageClass storageClass)
{
    return texts::storageClassName(int(storageClass));
}

StorageLimits limitsOf(StorageClass storageClass)
{
    switch (storageClass) {
    case StorageClass::Cold:
        return { 2.0, 10, 35, 75 };
    case StorageClass::Cool:
        return { std::nullopt, 20, 35, 75 };
    case StorageClass::Normal:
        break;
    }
    return { 10.0, 30, 35, 75 };
}

QString temperatureReminder(const shell::Session &session)
{
    if (!shell::hasRight(session, QStringLiteral("gspgl"), temperatureRight))
        return QString();
    Conditions where;
    where.warehouseRights(session, QStringLiteral("c"));
    QVariantList params { session.today() };
    params.append(where.params());
    QStringList missing;
    session.db().forEach(
        QStringLiteral("select c.ck_name from jxc_ckxx c where not exists (select 1 from "
                       "jxc_ckwsd w where w.ck_sn=c.ck_sn and w.cw_rq=?)")
            + where.sql() + QStringLiteral(" order by c.ck_sn"),
        params, [&](const QSqlQuery &q) { missing.append(q.value(0).toString()); });
    return missing.isEmpty()
        ? QString()
        : texts::temperatureReminder(session.today(), missing.join(QStringLiteral("、")));
}

} // namespace medistock::gsp
