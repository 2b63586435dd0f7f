#include "gsp/tracking.h"

#include "core/connection.h"
#include "core/textclean.h"
#include "gsp/expiry.h"
#include "gsp/reading.h"
#include "gsp/texts.h"

namespace medistock::gsp {

namespace {

const int mostDays = 36500;

TrackingHeader cleaned(TrackingHeader h)
{
    const auto clean = [](const QString &text) {
        return core::cleanText(text.trimmed(), core::CleanStrength::Medium);
    };
    h.warehouse = h.warehouse.trimmed();
    h.employee = h.employee.trimmed();
    h.note = clean(h.note);
    h.accountingUnit = clean(h.accountingUnit);
    h.keeper = clean(h.keeper);
    h.state = clean(h.state);
    return h;
}

QString refusalOf(const TrackingHeader &h)
{
    if (h.fromDays < 0 || h.toDays < h.fromDays || h.toDays > mostDays)
        return texts::outOfRange(QStringLiteral("效期天数"),
            QStringLiteral("%1-%2").arg(h.fromDays).arg(h.toDays), 0, mostDays);
    const struct
    {
        const char *what;
        const QString &text;
        int width;
    } fields[] = { { "备注", h.note, 200 }, { "核算单元", h.accountingUnit, 32 },
        { "保管账", h.keeper, 32 }, { "状态", h.state, 32 } };
    for (const auto &field : fields)
        if (field.text.size() > field.width)
            return texts::tooLong(QString::fromUtf8(field.what), field.width);
    return QString();
}

} // namespace

TrackingHeader proposedTracking(const shell::Session &session, const QString &warehouse)
{
    TrackingHeader h;
    h.date = session.today();
    h.warehouse = warehouse;
    h.toDays = nearExpiryDays(session.params());
    const QSqlRecord place = session.db().firstRow(
        QStringLiteral("select ck_name,ck_fzr from jxc_ckxx where ck_sn=?"), { warehouse });
    h.accountingUnit = place.value(0).toString();
    h.keeper = place.value(1).toString();
    h.state = QStringLiteral("跟踪中");
    return h;
}

Result<QString> saveTracking(const shell::Session &session, const TrackingHeader &typed)
{
    const TrackingHeader h = cleaned(typed);
    const QString refusal = refusalOf(h);
    if (!refusal.isEmpty())
        return core::refuse(session.ui(), refusal);
    const Outcome placed = core::guarded(
        session.ui(), [&] { return detail::checkPlaces(session, h.warehouse, h.employee); });
    if (!placed)
        return placed;
    const QString date = h.date.trimmed();
    return detail::saveFilledRecord(
        session, FilledKind::Tracking, date, h.warehouse, [&](const QString &number, int lines) {
            core::Connection &db = session.db();
            const QString year = date.left(4);
            const QString month = date.mid(5, 2);
            const int earlier
                = db.firstValue(QStringLiteral("select count(*) from jxc_jxqd where ck_sn=? and "
                                               "t_nian=? and t_yue=?"),
                        { h.warehouse, year, month })
                      .toInt();
            db.exec(QStringLiteral("insert into jxc_jxqd (gl_djh,t_rq,ck_sn,u_sn,t_note,a_name,"
                                   "t_status,t_checker,t_chkrq,t_nian,t_yue,t_yx,t_qsxq,t_jsxq,"
                                   "t_jdbs,t_hsdy,t_bgz,t_zt) values "
                                   "(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
                { number, date, h.warehouse, h.employee, h.note, session.user().name, 0, QString(),
                    QString(), year, month, QString::number(earlier + 1), h.fromDays, h.toDays,
                    lines, h.accountingUnit, h.keeper, h.state });
        });
}

Result<QList<TrackingRecord>> trackingRecords(
    const shell::Session &session, const RecordFilter &filter)
{
    return detail::readRows<TrackingRecord>(session, filter, [&](QList<TrackingRecord> &rows) {
        detail::listFilledRecords(session, FilledKind::Tracking, filter,
            QStringLiteral("a.t_nian,a.t_yue,a.t_yx,a.t_qsxq,a.t_jsxq,a.t_jdbs,a.t_hsdy,a.t_bgz,"
                           "a.t_zt"),
            [&](const FilledRecordInfo &info, const QSqlQuery &q, int next) {
                TrackingRecord record;
                record.info = info;
                TrackingHeader &h = record.header;
                detail::takeShared(h, info);
                detail::Cells c(q, next);
                record.year = c.text();
                record.month = c.text();
                record.sequence = c.text();
                h.fromDays = c.whole();
                h.toDays = c.whole();
                record.closedLines = c.whole();
                h.accountingUnit = c.text();
                h.keeper = c.text();
                h.state = c.text();
                rows.append(record);
            });
    });
}

} // namespace medistock::gsp
