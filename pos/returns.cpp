#include "pos/returns.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/transaction.h"
#include "members/rights.h"
#include "members/texts.h"
#include "pos/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QHash>
#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::pos {

namespace {

// What makes two lines the same goods for a return.
QString keyOf(const members::RetailLine &l)
{
    const auto n = [](double value) { return QString::number(value, 'f', 8); };
    return QStringList { l.goods, l.unit, n(l.unitFactor), n(l.price), n(l.discountRate),
        l.giftMarker, l.batch, l.expiry, l.produced }
        .join(QLatin1Char('|'));
}

const QString lineColumns = QStringLiteral(
    "a.g_sn,a.pos_dj,a.pos_sl,a.pos_dzl,a.t_zp,a.dw_name,a.g_zhxs,a.t_ph,a.t_yxq,a.t_scrq,"
    "a.pos_zje,b.g_name");

SoldLine soldLineOf(const QSqlQuery &q)
{
    SoldLine sold;
    members::RetailLine &l = sold.line;
    l.goods = q.value(0).toString();
    l.price = q.value(1).toDouble();
    l.quantity = q.value(2).toDouble();
    l.discountRate = q.value(3).toDouble();
    l.giftMarker = q.value(4).toString();
    l.unit = q.value(5).toString();
    l.unitFactor = q.value(6).toDouble() > 0 ? q.value(6).toDouble() : 1;
    l.batch = q.value(7).toString();
    l.expiry = q.value(8).toString();
    l.produced = q.value(9).toString();
    sold.amount = q.value(10).toDouble();
    sold.name = q.value(11).toString();
    return sold;
}

// The sale's lines, one per key in the order first sold.
void readSoldLines(core::Connection &db, SoldReceipt &receipt)
{
    QHash<QString, int> byKey;
    db.forEach(QStringLiteral("select %1 from jxc_posxssp a left join jxc_goods b on "
                              "b.g_sn=a.g_sn where a.gl_djh=? order by a.id")
                   .arg(lineColumns),
        { receipt.number }, [&](const QSqlQuery &q) {
            const SoldLine sold = soldLineOf(q);
            const QString key = keyOf(sold.line);
            if (!byKey.contains(key)) {
                byKey.insert(key, int(receipt.lines.size()));
                receipt.lines.append(sold);
                return;
            }
            SoldLine &same = receipt.lines[byKey.value(key)];
            same.line.quantity += sold.line.quantity;
            same.amount += sold.amount;
        });
}

// Earlier returns of the sale: their lines count as returned.
void readReturnedLines(core::Connection &db, SoldReceipt &receipt)
{
    QHash<QString, int> byKey;
    for (int i = 0; i < receipt.lines.size(); ++i)
        byKey.insert(keyOf(receipt.lines.at(i).line), i);
    db.forEach(QStringLiteral("select %1 from jxc_posxssp a left join jxc_goods b on "
                              "b.g_sn=a.g_sn where a.gl_djh in (select gl_djh from jxc_goodslist "
                              "where gl_djh2=? and gl_flag=? and gl_fdmc=?)")
                   .arg(lineColumns),
        { receipt.number, QStringLiteral("xt"), members::texts::retailBranchMark() },
        [&](const QSqlQuery &q) {
            const SoldLine back = soldLineOf(q);
            const int index = byKey.value(keyOf(back.line), -1);
            if (index >= 0)
                receipt.lines[index].returned -= back.line.quantity;
        });
}

struct ReturnedBefore
{
    double discount = 0; // positive: the sale's discount already refunded
    double roundingOff = 0;
};

ReturnedBefore returnedBefore(core::Connection &db, const QString &number)
{
    const QSqlRecord r = db.firstRow(
        QStringLiteral("select coalesce(sum(pos_yhzkje),0),coalesce(sum(pos_mlje),0) from "
                       "jxc_posxsd where gl_djh in (select gl_djh from jxc_goodslist where "
                       "gl_djh2=? and gl_flag=? and gl_fdmc=?)"),
        { number, QStringLiteral("xt"), members::texts::retailBranchMark() });
    return { -r.value(0).toDouble(), -r.value(1).toDouble() };
}

// Every refund line within what is left of its sold line.
Outcome checkLeft(const SoldReceipt &receipt, const members::RetailDocument &refund)
{
    QHash<QString, double> wanted;
    for (const members::RetailLine &line : refund.lines)
        wanted[keyOf(line)] -= line.quantity;
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        const auto sold = std::find_if(receipt.lines.cbegin(), receipt.lines.cend(),
            [&](const SoldLine &s) { return keyOf(s.line) == it.key(); });
        if (sold == receipt.lines.cend())
            return Outcome::refused(
                texts::returnBeyondSold(it.key().section(QLatin1Char('|'), 0, 0), 0));
        if (it.value() > sold->returnable() + core::comparisonMargin)
            return Outcome::refused(texts::returnBeyondSold(sold->name, sold->returnable()));
    }
    return Outcome::done();
}

Outcome checkRefund(const shell::Session &session, const members::RetailDocument &refund)
{
    if (refund.kind != members::RetailKind::Return || refund.original.isEmpty())
        return core::refuse(session.ui(), texts::notARetailSale(refund.original));
    const Result<SoldReceipt> receipt = readSoldReceipt(session, refund.original);
    if (!receipt)
        return receipt.outcome();
    const Outcome left = checkLeft(receipt.value(), refund);
    return left ? left : core::refuse(session.ui(), left.message());
}

} // namespace

Result<SoldReceipt> readSoldReceipt(const shell::Session &session, const QString &number)
{
    core::Connection &db = session.db();
    const QSqlRecord h = number.startsWith(QLatin1String("XS"))
        ? db.firstRow(QStringLiteral("select hy_sn,ck_sn,u_sn,kh_sn,pos_xsrq,pos_yhzkje,pos_mlje,"
                                     "pos_czk from jxc_posxsd where gl_djh=? order by id limit 1"),
            { number })
        : QSqlRecord();
    if (h.isEmpty())
        return core::refuse(session.ui(), texts::notARetailSale(number));
    SoldReceipt receipt;
    receipt.number = number;
    receipt.member = h.value(0).toString();
    receipt.warehouse = h.value(1).toString();
    receipt.employee = h.value(2).toString();
    receipt.customer = h.value(3).toString();
    receipt.time = h.value(4).toString();
    receipt.discount = h.value(5).toDouble();
    receipt.roundingOff = h.value(6).toDouble();
    receipt.card = h.value(7).toDouble();
    readSoldLines(db, receipt);
    readReturnedLines(db, receipt);
    for (const SoldLine &line : std::as_const(receipt.lines))
        receipt.linesAmount += line.amount;
    return receipt;
}

Result<members::RetailDocument> returnOf(
    const shell::Session &session, const SoldReceipt &receipt, const QList<double> &quantities)
{
    const shell::Parameters &params = session.params();
    members::RetailDocument refund;
    refund.kind = members::RetailKind::Return;
    refund.original = receipt.number;
    refund.member = receipt.member;
    refund.warehouse = receipt.warehouse;
    refund.employee = receipt.employee;
    refund.customer = receipt.customer;
    double amount = 0;
    bool whole = true;
    for (int i = 0; i < receipt.lines.size(); ++i) {
        const SoldLine &sold = receipt.lines.at(i);
        const double q = i < quantities.size() ? quantities.at(i) : 0;
        if (q < 0 || q > sold.returnable() + core::comparisonMargin)
            return core::refuse(
                session.ui(), texts::returnBeyondSold(sold.name, sold.returnable()));
        whole = whole && q >= sold.returnable() - core::comparisonMargin;
        if (q == 0)
            continue;
        members::RetailLine line = sold.line;
        line.quantity = -q;
        refund.lines.append(line);
        if (line.giftMarker.isEmpty())
            amount += params.roundAmount(line.price * line.discountRate * q);
    }
    if (refund.lines.isEmpty())
        return core::refuse(session.ui(), texts::nothingReturned());
    const ReturnedBefore before = returnedBefore(session.db(), receipt.number);
    const double share = receipt.linesAmount != 0 ? amount / receipt.linesAmount : 0;
    refund.payment.discount = -(
        whole ? receipt.discount - before.discount : params.roundAmount(receipt.discount * share));
    refund.payment.roundingOff = -(whole ? receipt.roundingOff - before.roundingOff
                                         : params.roundAmount(receipt.roundingOff * share));
    refund.payment.counter.cash = members::retailReceivable(session, refund);
    return refund;
}

Result<QString> returnAtTill(shell::Session &session, const members::RetailDocument &refund)
{
    const Outcome allowed = shell::requireRight(session, "xsgl", members::rights::posSale);
    if (!allowed)
        return allowed;
    Outcome outcome = core::guarded(session.ui(), [&] { return checkRefund(session, refund); });
    if (!outcome)
        return outcome;
    Result<QString> posted = Outcome::refused(QString());
    outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        const Outcome left = checkRefund(session, refund);
        if (!left)
            return left;
        posted = members::postRetailDocument(session, refund);
        if (!posted)
            return posted.outcome();
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return posted;
}

} // namespace medistock::pos
