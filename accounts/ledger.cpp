#include "accounts/ledger.h"

#include "accounts/runningbalance.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "shell/session.h"

#include <QSqlQuery>

namespace medistock::accounts {

namespace {

// Where each side keeps its parties and the figure that mirrors the last balance.
struct PartyTable
{
    const char *table;
    const char *code;
    const char *name;
    const char *figure;
};

const PartyTable &partyTable(PartyKind kind)
{
    static const PartyTable customers { "jxc_khxx", "kh_sn", "kh_name", "kh_lwje" };
    static const PartyTable suppliers { "jxc_ghsxx", "ghs_sn", "ghs_name", "ghs_lwje" };
    return kind == PartyKind::Customer ? customers : suppliers;
}

QVariantList chainOf(PartyKind kind, const QString &party)
{
    return { partyKindCode(kind), party };
}

QStringList partiesToWalk(core::Connection &connection, PartyKind kind, const QString &party)
{
    const PartyTable &t = partyTable(kind);
    QString sql
        = QStringLiteral("select %1 from %2").arg(QLatin1String(t.code), QLatin1String(t.table));
    QVariantList params;
    if (!party.isEmpty()) {
        sql += QStringLiteral(" where %1=?").arg(QLatin1String(t.code));
        params.append(party);
    }
    QStringList codes;
    connection.forEach(sql + QStringLiteral(" order by id"), params,
        [&](const QSqlQuery &q) { codes.append(q.value(0).toString()); });
    return codes;
}

} // namespace

QString partyKindCode(PartyKind kind)
{
    return kind == PartyKind::Customer ? QStringLiteral("kh") : QStringLiteral("ghs");
}

std::optional<PartyKind> partyKindFromCode(const QString &code)
{
    if (code == QLatin1String("kh"))
        return PartyKind::Customer;
    if (code == QLatin1String("ghs"))
        return PartyKind::Supplier;
    return std::nullopt;
}

QString partyName(core::Connection &connection, PartyKind kind, const QString &code)
{
    const PartyTable &t = partyTable(kind);
    return connection.firstText(
        QStringLiteral("select %1 from %2 where %3=? order by id limit 1")
            .arg(QLatin1String(t.name), QLatin1String(t.table), QLatin1String(t.code)),
        { code });
}

bool partyExists(core::Connection &connection, PartyKind kind, const QString &code)
{
    const PartyTable &t = partyTable(kind);
    return !code.isEmpty()
        && connection.exists(QStringLiteral("select id from %1 where %2=?")
                                 .arg(QLatin1String(t.table), QLatin1String(t.code)),
            { code });
}

double ledgerBalanceAsOf(core::Connection &connection, PartyKind kind, const QString &party,
    const QString &date, qint64 beforeId)
{
    return balanceAsOf(connection, ledgerBook(), chainOf(kind, party), date, beforeId);
}

double currentLedgerBalance(
    core::Connection &connection, PartyKind kind, const QString &party, int decimals)
{
    // The tiny addend lifts a stored value lying a hair under a half over it before rounding.
    return connection
        .firstValue(QStringLiteral("select round(k_ljje+0.000000001,?) from jxc_ysyfk where "
                                   "k_type=? and k_ghskh=? order by k_rq desc,id desc limit 1"),
            { decimals, partyKindCode(kind), party })
        .toDouble();
}

double recalculateLedger(
    core::Connection &connection, PartyKind kind, const QString &party, const QString &date)
{
    const double balance = rerunFrom(connection, ledgerBook(), chainOf(kind, party), date);
    const PartyTable &t = partyTable(kind);
    connection.exec(
        QStringLiteral("update %1 set %2=? where %3=?")
            .arg(QLatin1String(t.table), QLatin1String(t.figure), QLatin1String(t.code)),
        { balance, party });
    return balance;
}

Outcome recalculateAllLedgers(
    shell::Session &session, PartyKind kind, const QString &party, QDate from)
{
    core::Connection &db = session.db();
    if (!from.isValid())
        return core::refuse(session.ui(), texts::dateInvalid());
    QString name;
    if (!party.isEmpty()) {
        if (!partyExists(db, kind, party))
            return core::refuse(session.ui(), texts::partyMissing(kind, party));
        name = partyName(db, kind, party);
    }
    if (!session.ui().ask(texts::ledgerRecalcQuestion(kind, name)))
        return Outcome::refused(QString());
    const QString date = from.toString(QStringLiteral("yyyy-MM-dd"));
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        for (const QString &code : partiesToWalk(db, kind, party))
            recalculateLedger(db, kind, code, date);
        transaction.commit();
        return Outcome::done();
    });
    if (outcome)
        session.ui().inform(texts::ledgerRecalcDone(kind));
    return outcome;
}

QList<SettlementMode> settlementModes(const QString &listKind)
{
    const SettlementMode byPayment { texts::settleByPayment(), QStringLiteral("1") };
    if (listKind == QLatin1String("cg"))
        return { byPayment, { texts::remainderToPayables(), QStringLiteral("2") } };
    if (listKind == QLatin1String("xs"))
        return { byPayment, { texts::remainderToReceivables(), QStringLiteral("2") } };
    return {};
}

} // namespace medistock::accounts
