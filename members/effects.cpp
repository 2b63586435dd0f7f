#include "members/effects.h"

#include "core/connection.h"
#include "members/instalments.h"
#include "members/levels.h"
#include "members/member.h"
#include "members/settings.h"
#include "shell/session.h"

#include <QDate>
#include <QSqlRecord>

#include <cmath>
#include <optional>

namespace medistock::members {

namespace {

// The figures of the POS header the rules read, and those a posting stored for its reversal.
struct PosFigures
{
    double card = 0; // pos_czk
    double payable = 0; // pos_yfje
    QString time; // pos_xsrq
    double points = 0; // pos_bcjf
    double cashBack = 0; // pos_jfye
};

std::optional<PosFigures> readPosFigures(core::Connection &db, const QString &number)
{
    const QSqlRecord r = db.firstRow(
        QStringLiteral("select pos_czk,pos_yfje,pos_xsrq,pos_bcjf,pos_jfye from jxc_posxsd where "
                       "gl_djh=? order by id limit 1"),
        { number });
    if (r.isEmpty())
        return std::nullopt;
    return PosFigures { r.value(0).toDouble(), r.value(1).toDouble(), r.value(2).toString(),
        r.value(3).toDouble(), r.value(4).toDouble() };
}

// One value of a sum over the document's lines joined with their goods; empty when no line
// matches.
std::optional<double> lineSum(
    core::Connection &db, const QString &number, const QString &what, const QString &condition)
{
    const QVariant sum = db.firstValue(
        QStringLiteral("select sum(%1) from jxc_posxssp a,jxc_goods b where a.g_sn=b.g_sn and %2 "
                       "and a.gl_djh=?")
            .arg(what, condition),
        { number });
    if (!sum.isValid() || sum.isNull())
        return std::nullopt;
    return sum.toDouble();
}

const QString specialPoints = QStringLiteral("coalesce(b.g_tssp,0)<>0");
const QString plainGoods = QStringLiteral("coalesce(b.g_tjsp,0)=0 and coalesce(b.g_tssp,0)=0");

// The consumption not yet turned into a point: the whole consumption modulo the amount per
// point, with the sign of the consumption.
void updateRemainder(
    const shell::Session &session, const QString &member, const PointsSettings &settings)
{
    if (!settings.carryRemainder || settings.pointsOff())
        return;
    core::Connection &db = session.db();
    const double consumption
        = db.firstValue(QStringLiteral("select hy_zje from jxc_hyxx where hy_sn=?"), { member })
              .toDouble();
    db.exec(QStringLiteral("update jxc_hyxx set hy_ye=? where hy_sn=?"),
        { std::fmod(std::trunc(consumption), settings.amountPerPoint), member });
}

struct Computed
{
    double points = 0; // B
    double cashBack = 0; // K
};

// The points base: special-priced goods kept out unless they take part, the
// remainder carried, the amount truncated.
double pointsBase(const shell::Session &session, const QString &number, double amount,
    bool isReturn, const Member &member, const PointsSettings &settings)
{
    if (!session.params().flag("cs_tjcyjf")) {
        const std::optional<double> plain = lineSum(session.db(), number,
            isReturn ? QStringLiteral("-1*a.pos_zje") : QStringLiteral("a.pos_zje"), plainGoods);
        if (!plain)
            amount = 0;
        else if (amount > *plain && *plain != 0)
            amount = *plain;
    }
    const double remainder = settings.carryRemainder ? member.remainder : 0;
    return isReturn ? std::trunc(amount) : std::trunc(amount + remainder);
}

// The birthday counts when this year's birthday is the sale date, or lies within the days either
// side of it; it wins over the date range, and the two never combine.
double withFactors(
    double points, const PointsSettings &settings, const Member &member, const QString &saleTime)
{
    const QString saleDate = saleTime.left(10);
    if (settings.birthdayFactor != 0 && member.birthday.size() >= 10) {
        const QString birthday = saleDate.left(4) + member.birthday.mid(4, 6);
        const QDate sale = QDate::fromString(saleDate, QStringLiteral("yyyy-MM-dd"));
        bool counts = birthday == saleDate;
        if (settings.birthdayRule == 1 && sale.isValid()) {
            const QString from = sale.addDays(-settings.birthdayDays).toString(Qt::ISODate);
            const QString to = sale.addDays(settings.birthdayDays).toString(Qt::ISODate);
            counts = birthday >= from && birthday <= to;
        }
        if (counts)
            return points * settings.birthdayFactor;
    }
    if (settings.multiple != 0 && settings.multipleFrom <= saleTime
        && saleTime <= settings.multipleTo)
        return points * settings.multiple;
    return points;
}

double cashBackOf(core::Connection &db, const QString &scheme, double amount)
{
    const QSqlRecord r = db.firstRow(
        QStringLiteral("select hh_yh2,hh_yh3 from jxc_hyyh where hh_sn=? order by id limit 1"),
        { scheme });
    const double every = r.isEmpty() ? 0 : r.value(0).toDouble();
    const double back = r.isEmpty() ? 0 : r.value(1).toDouble();
    if (every == 0 || back == 0)
        return 0;
    return std::trunc(std::trunc(amount / every) * back);
}

// A card payment that earned nothing still counts a visit and the consumption; a return leaves
// the card balance alone.
void cardPaymentOnly(core::Connection &db, const QString &member, double card, bool isReturn)
{
    if (card == 0)
        return;
    if (isReturn)
        db.exec(QStringLiteral("update jxc_hyxx set hy_cs=hy_cs-1,hy_zje=round(hy_zje+?,8) "
                               "where hy_sn=?"),
            { card, member });
    else
        db.exec(QStringLiteral("update jxc_hyxx set hy_cs=hy_cs+1,hy_zje=round(hy_zje+?,8),"
                               "hy_zhje=round(hy_zhje-?,8) where hy_sn=?"),
            { card, card, member });
}

QString levelReached(core::Connection &db, const Member &member, double lifetimePoints)
{
    if (!member.upgrades)
        return member.level;
    const QString level = db.firstText(
        QStringLiteral("select hl_sn from jxc_hyfl where hl_jfxx<=? and hl_jfsx>=? order by id "
                       "limit 1"),
        { lifetimePoints, lifetimePoints });
    return level.isEmpty() ? member.level : level;
}

void writeSaleOrReturn(core::Connection &db, const QString &number, const Member &member,
    const PosFigures &doc, const Computed &c, bool isReturn)
{
    const double sign = isReturn ? -1 : 1;
    const double balance = member.points + sign * c.points;
    const double lifetime = member.lifetimePoints + sign * c.points;
    const QString level = levelReached(db, member, lifetime);
    db.exec(QStringLiteral("update jxc_hyxx set hy_zjf=hy_zjf+?,hy_jf=hy_jf+?,hl_sn=?,"
                           "hy_zje=round(hy_zje+?,8),hy_cs=hy_cs+?,hy_zhje=round(hy_zhje-?+?,8) "
                           "where hy_sn=?"),
        { sign * c.points, sign * c.points, level, doc.payable, isReturn ? -1 : 1, doc.card,
            isReturn ? 0 : c.cashBack, member.code });
    db.exec(QStringLiteral("update jxc_posxsd set pos_bcjf=?,pos_zjf=?,pos_jfye=? where gl_djh=?"),
        { sign * c.points, balance, sign * c.cashBack, number });
}

void postSaleOrReturn(const shell::Session &session, const QString &number, const Member &member,
    const PosFigures &doc, bool isReturn)
{
    core::Connection &db = session.db();
    const PointsSettings settings = loadPointsSettings(db);
    if (!isReturn && number.startsWith(QLatin1String("XS")))
        releaseConsumptionGifts(session, number, member.code);
    double amount = isReturn ? -doc.payable : doc.payable;
    const double sign = isReturn ? -1 : 1;
    const double special = sign
        * std::trunc(
            lineSum(db, number, QStringLiteral("a.pos_sl*b.g_tsjf"), specialPoints).value_or(0));
    amount -= sign * lineSum(db, number, QStringLiteral("a.pos_zje"), specialPoints).value_or(0);
    double points = 0;
    if (!settings.pointsOff()) {
        if (!settings.cardEarnsPoints)
            amount -= std::abs(doc.card);
        amount = pointsBase(session, number, amount, isReturn, member, settings);
        if (amount == 0) {
            cardPaymentOnly(db, member.code, doc.card, isReturn);
            return;
        }
        points
            = withFactors(std::trunc(amount / settings.amountPerPoint), settings, member, doc.time);
    }
    const Computed computed { special + std::trunc(points), cashBackOf(db, member.scheme, amount) };
    writeSaleOrReturn(db, number, member, doc, computed, isReturn);
    updateRemainder(session, member.code, settings);
}

void reverse(
    const shell::Session &session, const QString &member, const PosFigures &doc, bool isReturn)
{
    core::Connection &db = session.db();
    db.exec(QStringLiteral("update jxc_hyxx set hy_zjf=hy_zjf-?,hy_jf=hy_jf-?,"
                           "hy_zje=round(hy_zje-?,8),hy_cs=hy_cs+?,hy_zhje=round(hy_zhje+?-?,8) "
                           "where hy_sn=?"),
        { doc.points, doc.points, doc.payable, isReturn ? 1 : -1, doc.card, doc.cashBack, member });
    if (!isReturn)
        undoConsumptionGifts(session, doc.time, member);
    const std::optional<Member> now = readMember(db, member);
    if (now && now->lifetimePoints != 0)
        db.exec(QStringLiteral("update jxc_hyxx set hl_sn=? where hy_sn=?"),
            { levelForPoints(db, now->lifetimePoints), member });
    updateRemainder(session, member, loadPointsSettings(db));
}

} // namespace

void postMemberEffects(const shell::Session &session, const QString &number, const QString &member,
    MemberOperation operation)
{
    core::Connection &db = session.db();
    const std::optional<PosFigures> doc = readPosFigures(db, number);
    const std::optional<Member> found = readMember(db, member);
    if (!doc || !found)
        return;
    switch (operation) {
    case MemberOperation::Sale:
        postSaleOrReturn(session, number, *found, *doc, false);
        break;
    case MemberOperation::Return:
        postSaleOrReturn(session, number, *found, *doc, true);
        break;
    case MemberOperation::SaleReversed:
        reverse(session, member, *doc, false);
        break;
    case MemberOperation::ReturnReversed:
        reverse(session, member, *doc, true);
        break;
    }
}

} // namespace medistock::members
