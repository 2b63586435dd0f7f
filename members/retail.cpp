#include "members/retail.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/numbers.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "documents/lifecycle.h"
#include "documents/texts.h"
#include "members/member.h"
#include "members/retailposting.h"
#include "members/rights.h"
#include "members/texts.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/costs.h"

#include <QDateTime>
#include <QSqlRecord>

namespace medistock::members {

namespace {

const QString discountGoods = QStringLiteral("00000000");

QString prefixOf(RetailKind kind)
{
    return kind == RetailKind::Return ? QStringLiteral("XT") : QStringLiteral("XS");
}

// The back office's own documents of the prefix share the numbers with the till's.
QString backOfficeTable(RetailKind kind)
{
    return kind == RetailKind::Return ? QStringLiteral("jxc_xsthd") : QStringLiteral("jxc_lsxsd");
}

bool numberUsed(core::Connection &db, RetailKind kind, const QString &number)
{
    return db.exists(QStringLiteral("select id from jxc_posxsd where gl_djh=? limit 1"), { number })
        || db.exists(
            QStringLiteral("select id from %1 where gl_djh=? limit 1").arg(backOfficeTable(kind)),
            { number });
}

// A time "yyyy-MM-dd HH:mm:ss"; a bare date takes the time of now.
std::optional<QString> settledTime(const shell::Session &session, const QString &time)
{
    const QString text = time.trimmed();
    if (text.isEmpty())
        return session.clock().nowText();
    if (QDate::fromString(text, QStringLiteral("yyyy-MM-dd")).isValid())
        return text + session.clock().now().toString(QStringLiteral(" HH:mm:ss"));
    if (QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd HH:mm:ss")).isValid())
        return text;
    return std::nullopt;
}

Outcome checkHeader(const shell::Session &session, RetailDocument &d)
{
    core::Connection &db = session.db();
    if (!d.number.isEmpty() && (d.number.size() != 13 || !d.number.startsWith(prefixOf(d.kind))))
        return Outcome::refused(texts::retailNumberInvalid(d.number, prefixOf(d.kind)));
    if (!d.number.isEmpty() && numberUsed(db, d.kind, d.number))
        return Outcome::refused(documents::texts::numberTaken(d.number));
    if (d.warehouse.isEmpty())
        return Outcome::refused(documents::texts::warehouseRequired());
    if (!db.exists(QStringLiteral("select id from jxc_ckxx where ck_sn=?"), { d.warehouse }))
        return Outcome::refused(documents::texts::warehouseMissing(d.warehouse));
    if (!d.employee.isEmpty()
        && !db.exists(QStringLiteral("select id from jxc_user where u_sn=?"), { d.employee }))
        return Outcome::refused(documents::texts::employeeMissing(d.employee));
    if (!d.customer.isEmpty()
        && !db.exists(QStringLiteral("select id from jxc_khxx where kh_sn=?"), { d.customer }))
        return Outcome::refused(documents::texts::partyMissing(false, d.customer));
    if (!d.original.isEmpty()
        && (d.kind != RetailKind::Return || !d.original.startsWith(QLatin1String("XS"))
            || !db.exists(
                QStringLiteral("select id from jxc_posxsd where gl_djh=?"), { d.original })))
        return Outcome::refused(documents::texts::documentMissing(d.original));
    if (d.lines.isEmpty())
        return Outcome::refused(documents::texts::noLines());
    return Outcome::done();
}

Outcome checkPayment(const shell::Session &session, const RetailDocument &d)
{
    const RetailPayment &p = d.payment;
    const CounterPayment &c = p.counter;
    const double sign = d.kind == RetailKind::Return ? -1 : 1;
    for (const double part : { c.cash, c.bankCard, c.insurance, c.wechat, c.alipay, c.change,
             p.card, p.discount, p.roundingOff })
        if (sign * part < 0)
            return Outcome::refused(texts::retailPaymentSign(d.kind == RetailKind::Return));
    if (p.card == 0)
        return Outcome::done();
    if (d.member.isEmpty())
        return Outcome::refused(texts::cardWithoutMember());
    const std::optional<Member> member = readMember(session.db(), d.member);
    if (d.kind == RetailKind::Sale && member
        && session.params().roundAmount(p.card - member->balance) > 0)
        return Outcome::refused(texts::cardBalanceShort(member->balance, p.card));
    return Outcome::done();
}

Outcome checkMember(const shell::Session &session, const RetailDocument &d)
{
    if (d.member.isEmpty())
        return Outcome::done();
    const std::optional<Member> member = readMember(session.db(), d.member);
    if (!member)
        return Outcome::refused(texts::memberMissing(d.member));
    if (d.kind == RetailKind::Sale && !member->active)
        return Outcome::refused(texts::cardNotActive(member->name));
    return Outcome::done();
}

Result<PricedLine> priceLine(
    const shell::Session &session, const RetailDocument &d, const QString &date, int row)
{
    const RetailLine &l = d.lines.at(row - 1);
    if (l.goods == discountGoods)
        return Outcome::refused(documents::texts::discountGoodsEntered(row));
    const QSqlRecord g = session.db().firstRow(
        QStringLiteral("select g_name,g_jm,dw_name,gg_name,color_name,g_sptm,g_lsj,g_pjjj from "
                       "jxc_goods where g_sn=? order by id limit 1"),
        { l.goods });
    if (g.isEmpty())
        return Outcome::refused(documents::texts::goodsMissing(row, l.goods));
    if ((d.kind == RetailKind::Sale) != (l.quantity > 0))
        return Outcome::refused(texts::retailQuantitySign(row, d.kind == RetailKind::Return));
    const QString priceProblem
        = core::numberProblem(documents::texts::priceField(row), l.price, core::NumberKind::Price);
    if (!priceProblem.isEmpty())
        return Outcome::refused(priceProblem);
    if (l.discountRate <= 0 || l.unitFactor <= 0)
        return Outcome::refused(texts::retailRateInvalid(row));
    const shell::Parameters &params = session.params();
    PricedLine p { l, g.value(0).toString(), g.value(1).toString(), g.value(2).toString(),
        g.value(3).toString(), g.value(4).toString(), g.value(5).toString(), g.value(6).toDouble(),
        g.value(7).toDouble() };
    p.baseQuantity = params.roundQuantity(l.quantity * l.unitFactor);
    p.amount
        = l.giftMarker.isEmpty() ? params.roundAmount(l.price * l.discountRate * l.quantity) : 0;
    p.cost = stock::costAsOf(session, l.goods, d.warehouse, date);
    p.totalCost = params.roundAmount(p.cost * p.baseQuantity);
    return p;
}

// Everything a posting needs, read and checked before its transaction.
Result<ValidRetail> validate(const shell::Session &session, RetailDocument d)
{
    Outcome outcome = checkHeader(session, d);
    const std::optional<QString> time = settledTime(session, d.time);
    if (outcome && !time)
        outcome = Outcome::refused(documents::texts::dateInvalid(d.time));
    if (outcome)
        outcome = checkMember(session, d);
    if (outcome)
        outcome = checkPayment(session, d);
    if (!outcome)
        return outcome;
    ValidRetail valid;
    d.time = *time;
    d.cashier = d.cashier.isEmpty() ? session.user().name : d.cashier;
    d.note = core::cleanText(d.note);
    valid.date = d.time.left(10);
    for (int row = 1; row <= d.lines.size(); ++row) {
        const Result<PricedLine> priced = priceLine(session, d, valid.date, row);
        if (!priced)
            return priced.outcome();
        valid.lines.append(priced.value());
    }
    valid.document = d;
    valid.receivable = retailReceivable(session, d);
    valid.received = session.params().roundAmount(d.payment.counter.total() + d.payment.card);
    if (valid.received != valid.receivable)
        return Outcome::refused(texts::receivedDiffers(valid.received, valid.receivable));
    return valid;
}

} // namespace

double retailReceivable(const shell::Session &session, const RetailDocument &document)
{
    const shell::Parameters &params = session.params();
    double total = 0;
    for (const RetailLine &l : document.lines)
        if (l.giftMarker.isEmpty())
            total += params.roundAmount(l.price * l.discountRate * l.quantity);
    return params.roundAmount(total - document.payment.discount - document.payment.roundingOff);
}

Result<QString> nextRetailNumber(core::Connection &db, RetailKind kind, QDate date)
{
    const Result<QString> retail = core::nextDocumentNumber(
        db, QStringLiteral("jxc_posxsd"), QStringLiteral("gl_djh"), prefixOf(kind), date);
    if (!retail)
        return retail;
    const Result<QString> office = core::nextDocumentNumber(
        db, backOfficeTable(kind), QStringLiteral("gl_djh"), prefixOf(kind), date);
    if (!office)
        return office;
    return std::max(retail.value(), office.value());
}

Result<QString> postRetailDocument(shell::Session &session, const RetailDocument &document)
{
    const Outcome allowed = shell::requireRight(session, "xsgl", rights::posSale);
    if (!allowed)
        return allowed;
    Result<ValidRetail> valid = Outcome::refused(QString());
    Outcome outcome = core::guarded(session.ui(), [&] {
        valid = validate(session, document);
        if (!valid)
            return core::refuse(session.ui(), valid.message());
        return documents::requireOpenPeriod(session, valid->date);
    });
    if (!outcome)
        return outcome;
    outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        RetailDocument &d = valid->document;
        if (d.number.isEmpty()) {
            const Result<QString> next = nextRetailNumber(
                db, d.kind, QDate::fromString(valid->date, QStringLiteral("yyyy-MM-dd")));
            if (!next)
                return core::refuse(session.ui(), next.message());
            d.number = next.value();
        } else if (numberUsed(db, d.kind, d.number)) {
            return core::refuse(session.ui(), documents::texts::numberTaken(d.number));
        }
        writeRetailDocument(session, valid.value());
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return valid->document.number;
}

Outcome reverseRetailDocument(shell::Session &session, const QString &number)
{
    const bool isReturn = number.startsWith(QLatin1String("XT"));
    const Outcome allowed = shell::requireRight(
        session, "xsgl", isReturn ? rights::uncheckReturn : rights::uncheckSale);
    if (!allowed)
        return allowed;
    Outcome outcome = core::guarded(session.ui(), [&] {
        const QString time = session.db().firstText(
            QStringLiteral("select pos_xsrq from jxc_posxsd where gl_djh=? order by id limit 1"),
            { number });
        if (time.isEmpty())
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        return documents::requireOpenPeriod(session, time.left(10));
    });
    if (outcome)
        outcome = documents::confirmUncheck(session, number);
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        if (!db.exists(QStringLiteral("select id from jxc_posxsd where gl_djh=?"), { number }))
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        removeRetailDocument(session, number);
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::members
