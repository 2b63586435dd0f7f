#include "members/member.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "masterdata/kinds.h"
#include "masterdata/mnemonic.h"
#include "members/levels.h"
#include "members/rights.h"
#include "members/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::members {

namespace {

const QString memberColumns = QStringLiteral(
    "a.hy_sn,a.hy_bh,a.hy_name,a.hl_sn,(select hl_name from jxc_hyfl where hl_sn=a.hl_sn order by "
    "id limit 1),a.hh_sn,a.hy_jf,a.hy_zjf,a.hy_zhje,a.hy_ye,a.hy_zje,a.hy_cs,a.hy_sj,a.hy_status,"
    "a.hy_sr,a.hy_mobile,a.hy_tele");

Member memberOf(const QSqlRecord &r)
{
    Member m;
    m.code = r.value(0).toString();
    m.card = r.value(1).toString();
    m.name = r.value(2).toString();
    m.level = r.value(3).toString();
    m.levelName = r.value(4).toString();
    m.scheme = r.value(5).toString();
    m.points = r.value(6).toDouble();
    m.lifetimePoints = r.value(7).toDouble();
    m.balance = r.value(8).toDouble();
    m.remainder = r.value(9).toDouble();
    m.consumption = r.value(10).toDouble();
    m.visits = r.value(11).toInt();
    m.upgrades = upgradesByPoints(r.value(12));
    m.active = !r.value(13).isNull() && r.value(13).toInt() != 0;
    m.birthday = r.value(14).toString();
    m.mobile = r.value(15).toString();
    m.tele = r.value(16).toString();
    return m;
}

QString column(const char *name)
{
    return QString::fromLatin1(name);
}

// The card number must be unique among members; an empty one is given the next number.
Outcome claimCard(core::Connection &db, masterdata::Values &values, const QString &code)
{
    const QString card = values.value(column("hy_bh")).toString().trimmed();
    if (card.isEmpty()) {
        values.insert(column("hy_bh"), nextCardNumber(db));
        return Outcome::done();
    }
    if (db.exists(
            QStringLiteral("select id from jxc_hyxx where hy_bh=? and hy_sn<>?"), { card, code }))
        return Outcome::refused(texts::cardTaken(card));
    return Outcome::done();
}

// What a new member starts with unless the values say otherwise.
void startingValues(const shell::Session &session, masterdata::Values &values)
{
    const auto preset = [&](const char *name, const QVariant &value) {
        if (!values.contains(column(name)) || values.value(column(name)).toString().isEmpty())
            values.insert(column(name), value);
    };
    preset("hy_jrrq", session.today());
    preset("hy_status", 1);
    preset("hy_sj", 1);
    preset("hy_zjf", values.value(column("hy_jf"), 0));
}

// While upgrading by points is on, the level is the one containing the lifetime points.
void followLevel(core::Connection &db, masterdata::Values &values, double lifetimePoints)
{
    if (!upgradesByPoints(values.value(column("hy_sj"))))
        return;
    const QString level = db.firstText(
        QStringLiteral("select hl_sn from jxc_hyfl where hl_jfxx<=? and hl_jfsx>=? order by id "
                       "limit 1"),
        { lifetimePoints, lifetimePoints });
    if (!level.isEmpty())
        values.insert(column("hl_sn"), level);
}

// A change by hand of one member in one transaction: the right, the refusal of the new figures
// (empty when they are fine), the member read again inside the transaction, then `write`.
template<class Write>
Outcome changeByHand(
    const shell::Session &session, const QString &code, const QString &refusal, Write &&write)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", rights::members);
    if (!allowed)
        return allowed;
    if (!refusal.isEmpty())
        return core::refuse(session.ui(), refusal);
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        const std::optional<Member> member = readMember(session.db(), code);
        if (!member)
            return core::refuse(session.ui(), texts::memberMissing(code));
        write(*member);
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace

const masterdata::MasterKind &memberKind()
{
    return *masterdata::findMasterKind(QStringLiteral("member"));
}

bool upgradesByPoints(const QVariant &flag)
{
    const QString text = flag.toString();
    return text != QLatin1String("0") && text.compare(QLatin1String("false"), Qt::CaseInsensitive);
}

std::optional<Member> readMember(core::Connection &connection, const QString &code)
{
    const QSqlRecord r = connection.firstRow(
        QStringLiteral("select %1 from jxc_hyxx a where a.hy_sn=? order by a.id limit 1")
            .arg(memberColumns),
        { code });
    if (r.isEmpty())
        return std::nullopt;
    return memberOf(r);
}

std::optional<Member> findMemberByCard(core::Connection &connection, const QString &text)
{
    if (text.trimmed().isEmpty())
        return std::nullopt;
    const QSqlRecord r = connection.firstRow(
        QStringLiteral("select %1 from jxc_hyxx a where a.hy_status<>0 and (a.hy_bh=? or "
                       "a.hy_mobile=? or a.hy_tele=?) order by a.id limit 1")
            .arg(memberColumns),
        { text.trimmed(), text.trimmed(), text.trimmed() });
    if (r.isEmpty())
        return std::nullopt;
    return memberOf(r);
}

QList<QSqlRecord> searchMembers(core::Connection &connection, const QString &text)
{
    const QString select = QStringLiteral(
        "select a.*,(select hl_name from jxc_hyfl where hl_sn=a.hl_sn order by id limit 1) as "
        "hl_name from jxc_hyxx a");
    if (text.trimmed().isEmpty())
        return connection.rows(select + QStringLiteral(" order by a.id"));
    const QString pattern = QLatin1Char('%') + text.trimmed() + QLatin1Char('%');
    return connection.rows(select
            + QStringLiteral(" where a.hy_sn like ? or a.hy_bh like ? or a.hy_name like ? or "
                             "upper(a.hy_jm) like upper(?) or a.hy_mobile like ? or a.hy_tele like "
                             "? order by a.id"),
        { pattern, pattern, pattern, pattern, pattern, pattern });
}

QString nextCardNumber(core::Connection &connection)
{
    qint64 largest = 0;
    connection.forEach(QStringLiteral("select hy_bh from jxc_hyxx where length(hy_bh)=?"), { 6 },
        [&](const QSqlQuery &q) {
            const QString card = q.value(0).toString();
            bool numeric = true;
            for (const QChar c : card)
                numeric = numeric && c.isDigit() && c.unicode() < 128;
            if (numeric)
                largest = std::max(largest, card.toLongLong());
        });
    return largest == 0 ? QStringLiteral("100001") : QString::number(largest + 1);
}

Result<QString> addMember(const shell::Session &session, masterdata::Values values)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", rights::members);
    if (!allowed)
        return allowed;
    QString code;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        startingValues(session, values);
        const masterdata::Mnemonics mnemonics;
        auto prepared = masterdata::prepareMasterRow(db, memberKind(), values, {}, mnemonics);
        if (!prepared)
            return core::refuse(session.ui(), prepared.message());
        core::Transaction transaction(db);
        const Outcome card = claimCard(db, prepared.value(), QString());
        if (!card)
            return core::refuse(session.ui(), card.message());
        followLevel(db, prepared.value(), prepared->value(column("hy_zjf")).toDouble());
        code = masterdata::insertPreparedRow(session, memberKind(), prepared.value());
        session.log(texts::memberAddedLog(code, prepared->value(column("hy_name")).toString()));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return code;
}

Outcome changeMember(const shell::Session &session, const QString &code, masterdata::Values values)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", rights::members);
    if (!allowed)
        return allowed;
    for (const char *kept : { "hy_sn", "hy_jf", "hy_zjf", "hy_zhje", "hy_ye", "hy_zje", "hy_cs" })
        values.remove(column(kept));
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const std::optional<Member> member = readMember(db, code);
        if (!member)
            return core::refuse(session.ui(), texts::memberMissing(code));
        const masterdata::Mnemonics mnemonics;
        auto prepared = masterdata::prepareMasterRow(db, memberKind(), values, code, mnemonics);
        if (!prepared)
            return core::refuse(session.ui(), prepared.message());
        core::Transaction transaction(db);
        if (prepared->contains(column("hy_bh"))) {
            const Outcome card = claimCard(db, prepared.value(), code);
            if (!card)
                return core::refuse(session.ui(), card.message());
        }
        if (!prepared->contains(column("hy_sj")))
            prepared->insert(column("hy_sj"), member->upgrades ? 1 : 0);
        followLevel(db, prepared.value(), member->lifetimePoints);
        QStringList assignments;
        QVariantList params;
        for (auto it = prepared->cbegin(); it != prepared->cend(); ++it) {
            assignments.append(it.key() + QStringLiteral("=?"));
            params.append(it.value());
        }
        db.exec(QStringLiteral("update jxc_hyxx set %1 where hy_sn=?")
                    .arg(assignments.join(QLatin1Char(','))),
            params + QVariantList { code });
        session.log(texts::memberChangedLog(code));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome setMemberPoints(const shell::Session &session, const QString &code, double points,
    double lifetimePoints, const QString &note)
{
    const QString refusal = points < 0 || lifetimePoints < 0 ? texts::pointsNegative() : QString();
    return changeByHand(session, code, refusal, [&](const Member &member) {
        core::Connection &db = session.db();
        db.exec(QStringLiteral("update jxc_hyxx set hy_jf=?,hy_zjf=?,hl_sn=? where hy_sn=?"),
            { points, lifetimePoints, levelForPoints(db, lifetimePoints), code });
        db.exec(QStringLiteral("insert into jxc_jfdh (hy_sn,jf_xfjf,jf_rq,a_name,jf_note) values "
                               "(?,?,?,?,?)"),
            { code, points - member.points, session.clock().nowText(), session.user().name,
                texts::pointsChangeNote(member.points, points, member.lifetimePoints,
                    lifetimePoints, core::cleanText(note)) });
        session.log(texts::pointsChangedLog(member.name, member.points, points));
    });
}

Outcome setMemberBalance(
    const shell::Session &session, const QString &code, double balance, const QString &note)
{
    const double rounded = session.params().roundAmount(balance);
    const QString refusal = balance < 0 ? texts::balanceNegative() : QString();
    return changeByHand(session, code, refusal, [&](const Member &member) {
        core::Connection &db = session.db();
        db.exec(QStringLiteral("update jxc_hyxx set hy_zhje=? where hy_sn=?"), { rounded, code });
        db.exec(QStringLiteral("insert into jxc_czxf (hy_sn,xf_je,hy_rq,a_admin,hy_bz) values "
                               "(?,?,?,?,?)"),
            { code, rounded - member.balance, session.clock().nowText(), session.user().name,
                core::cleanText(note).left(64) });
        session.log(texts::balanceChangedLog(member.name, member.balance, rounded));
    });
}

} // namespace medistock::members
