#include "members/instalments.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "members/texts.h"
#include "shell/session.h"

#include <QDate>
#include <QSqlQuery>
#include <QSqlRecord>

#include <algorithm>
#include <cmath>

namespace medistock::members {

namespace {

// A gift is due while what is left covers an instalment; the stored decimals may miss by a hair.
const double margin = 0.000000001;

enum class Unit { Month, Day };

// The calendar difference from a stored date (its first ten characters) to `to`, as datediff
// counts it; nothing when the stored text is no date.
std::optional<int> elapsed(const QString &from, QDate to, Unit unit)
{
    const QDate start = QDate::fromString(from.left(10), QStringLiteral("yyyy-MM-dd"));
    if (!start.isValid())
        return std::nullopt;
    if (unit == Unit::Day)
        return int(start.daysTo(to));
    return (to.year() - start.year()) * 12 + to.month() - start.month();
}

struct GiftRow
{
    qint64 id = 0;
    QString number; // the top-up's gl_djh
    QString member;
    double perInstalment = 0; // hs_myje
    double left = 0; // hs_zsje
    int waited = 0; // months or days since xf_zsrq
};

// The top-up rows of a mode, with what they have waited until `date`; only rows that have waited
// at least one unit and still hold an instalment.
QList<GiftRow> dueRows(core::Connection &db, int mode, QDate date, Unit unit, const QString &member)
{
    QString sql = QStringLiteral("select id,gl_djh,hy_sn,hs_myje,hs_zsje,xf_zsrq from jxc_hyxf "
                                 "where hs_zsfs=?");
    QVariantList params { mode };
    if (!member.isEmpty()) {
        sql += QStringLiteral(" and hy_sn=?");
        params.append(member);
    }
    QList<GiftRow> rows;
    db.forEach(sql + QStringLiteral(" order by id"), params, [&](const QSqlQuery &q) {
        const GiftRow row { q.value(0).toLongLong(), q.value(1).toString(), q.value(2).toString(),
            q.value(3).toDouble(), q.value(4).toDouble(),
            elapsed(q.value(5).toString(), date, unit).value_or(0) };
        if (row.waited >= 1 && row.left >= row.perInstalment - margin)
            rows.append(row);
    });
    return rows;
}

struct ReleaseRow
{
    QString number; // the sale's or the release's number
    QString member;
    QString date;
    double amount = 0;
    QString note;
    QString state; // xf_zt
    int mode = 0; // -1 ... -4
};

void insertReleaseRow(const shell::Session &session, const ReleaseRow &r)
{
    session.db().exec(
        QStringLiteral("insert into jxc_hyxf (gl_djh,hy_sn,xf_rq,xf_je,xf_yhje,xf_djq,xf_czk,xf_xj,"
                       "xf_xyk,xf_wxje,xf_zfbje,xf_zlje,a_name,xf_note,xf_zt,xf_zsrq,hs_zsfs,"
                       "hs_myje,hs_zsje) values (?,?,?,?,0,0,0,0,0,0,0,0,?,?,?,?,?,0,0)"),
        { r.number, r.member, r.date, r.amount, session.user().name, r.note, r.state, r.date,
            r.mode });
}

void takeInstalments(core::Connection &db, const GiftRow &row, int count, const QString &date)
{
    db.exec(QStringLiteral("update jxc_hyxf set xf_zsrq=?,hs_zsje=round(hs_zsje-?,8) where id=?"),
        { date, row.perInstalment * count, row.id });
}

// One consumption release: mode 2 by month, mode 4 by day.
void releaseOnPurchase(
    const shell::Session &session, const QString &number, const QString &member, int mode)
{
    core::Connection &db = session.db();
    const Unit unit = mode == 2 ? Unit::Month : Unit::Day;
    const QList<GiftRow> rows = dueRows(db, mode, session.clock().today(), unit, member);
    const double first = rows.isEmpty() ? 0 : rows.first().perInstalment;
    if (first <= 0)
        return;
    const QString today = session.today();
    for (const GiftRow &row : rows) {
        insertReleaseRow(session,
            { number, member, today, row.perInstalment,
                row.number + texts::purchaseReleaseNote(unit == Unit::Month),
                number + texts::purchaseReleaseState(unit == Unit::Month), -mode });
        takeInstalments(db, row, 1, today);
    }
    db.exec(QStringLiteral("update jxc_hyxx set hy_zhje=round(hy_zhje+?,8) where hy_sn=?"),
        { first, member });
    db.exec(QStringLiteral("update jxc_posxsd set pos_zftype=? where gl_djh=?"),
        { QStringLiteral("1"), number });
}

// `period` is the sale's month "yyyy-MM" or day "yyyy-MM-dd".
void undoOnPurchase(core::Connection &db, const QString &saleDate, const QString &period,
    const QString &member, int mode)
{
    const QVariant like = period + QLatin1Char('%');
    const QSqlRecord release = db.firstRow(
        QStringLiteral("select id,xf_je from jxc_hyxf where hs_zsfs=? and xf_zsrq like ? and "
                       "hy_sn=? order by id limit 1"),
        { -mode, like, member });
    if (release.isEmpty())
        return;
    const int sales = db.firstValue(QStringLiteral("select count(*) from jxc_posxsd where "
                                                   "pos_xsrq like ? and hy_sn=?"),
                            { like, member })
                          .toInt();
    if (sales != 1)
        return;
    db.exec(QStringLiteral("delete from jxc_hyxf where id=?"), { release.value(0) });
    db.exec(QStringLiteral("update jxc_hyxx set hy_zhje=round(hy_zhje-?,8) where hy_sn=?"),
        { release.value(1).toDouble(), member });
    db.exec(QStringLiteral("update jxc_hyxf set xf_zsrq=?,hs_zsje=round(hs_zsje+hs_myje,8) where "
                           "hs_zsfs=? and hy_sn=? and xf_zsrq like ?"),
        { saleDate, mode, member, like });
}

// Modes 1 and 3: a row waiting k units gets k instalments as far as its gift lasts, the rows
// with the most instalments first.
int releaseByCalendar(const shell::Session &session, const QString &number, int mode, double &sum)
{
    const Unit unit = mode == 1 ? Unit::Month : Unit::Day;
    struct Due
    {
        GiftRow row;
        int count;
    };
    QList<Due> due;
    for (const GiftRow &row : dueRows(session.db(), mode, session.clock().today(), unit, {})) {
        if (row.perInstalment <= 0)
            continue;
        const int covered = int(std::floor(row.left / row.perInstalment + margin));
        due.append({ row, std::min(row.waited, covered) });
    }
    std::stable_sort(
        due.begin(), due.end(), [](const Due &a, const Due &b) { return a.count > b.count; });
    const QString today = session.today();
    for (const Due &d : due) {
        const double amount = d.row.perInstalment * d.count;
        insertReleaseRow(session,
            { number, d.row.member, today, amount,
                d.row.number + texts::calendarReleaseNote(unit == Unit::Month, d.count),
                texts::calendarReleaseState(unit == Unit::Month), -mode });
        takeInstalments(session.db(), d.row, d.count, today);
        sum += amount;
    }
    return int(due.size());
}

// Modes 2 and 4: the units without a purchase up to `until` are lost.
void forfeit(core::Connection &db, int mode, QDate until)
{
    const Unit unit = mode == 2 ? Unit::Month : Unit::Day;
    const QString date = until.toString(Qt::ISODate);
    for (const GiftRow &row : dueRows(db, mode, until, unit, {}))
        takeInstalments(db, row, row.waited, date);
    db.exec(
        QStringLiteral("update jxc_hyxf set hs_zsje=0 where hs_zsfs=? and hs_zsje<0"), { mode });
}

void creditReleases(core::Connection &db, const QString &number)
{
    db.exec(QStringLiteral(
                "update jxc_hyxx set hy_zhje=round(hy_zhje+(select sum(b.xf_je) from jxc_hyxf b "
                "where b.hy_sn=jxc_hyxx.hy_sn and b.gl_djh=? and b.hs_zsfs in (-1,-3)),8) where "
                "hy_sn in (select hy_sn from jxc_hyxf where gl_djh=? and hs_zsfs in (-1,-3))"),
        { number, number });
}

} // namespace

void releaseConsumptionGifts(
    const shell::Session &session, const QString &number, const QString &member)
{
    releaseOnPurchase(session, number, member, 2);
    releaseOnPurchase(session, number, member, 4);
}

void undoConsumptionGifts(
    const shell::Session &session, const QString &saleTime, const QString &member)
{
    const QString saleDate = saleTime.left(10);
    undoOnPurchase(session.db(), saleDate, saleDate.left(7), member, 2);
    undoOnPurchase(session.db(), saleDate, saleDate, member, 4);
}

Result<GiftRelease> releaseInstalmentGifts(const shell::Session &session)
{
    GiftRelease release;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        const QDate today = session.clock().today();
        const Result<QString> number = core::nextDocumentNumber(
            db, QStringLiteral("jxc_hyxf"), QStringLiteral("gl_djh"), QStringLiteral("XF"), today);
        if (!number)
            return core::refuse(session.ui(), number.message());
        release.number = number.value();
        if (today.day() >= 10)
            release.rows += releaseByCalendar(session, release.number, 1, release.amount);
        forfeit(db, 2, today.addMonths(-1));
        release.rows += releaseByCalendar(session, release.number, 3, release.amount);
        forfeit(db, 4, today.addDays(-1));
        creditReleases(db, release.number);
        if (release.rows > 0)
            session.log(texts::giftsReleasedLog(release.number, release.rows));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return release;
}

} // namespace medistock::members
