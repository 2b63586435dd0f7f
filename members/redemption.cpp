#include "members/redemption.h"

#include "accounts/postings.h"
#include "core/connection.h"
#include "core/numbering.h"
#include "core/numbers.h"
#include "core/operation.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "documents/texts.h"
#include "members/rights.h"
#include "members/texts.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/ledger.h"
#include "stock/movement.h"
#include "stock/stores.h"

#include <QSqlQuery>
#include <QSqlRecord>

#include <cmath>

namespace medistock::members {

namespace {

// A redemption counts nothing as sold and names no batch.
// A redemption issues gifts without naming a batch: warehouse and goods stock fall, the batches
// stay, and nothing counts as sold.
stock::StoreMovement redemptionMovement(
    qint64 ledgerRow, const QString &goods, const QString &warehouse, double quantity, double cost)
{
    stock::StoreMovement movement { ledgerRow, { goods, warehouse, {}, {}, {} }, -quantity,
        -quantity };
    movement.price = cost;
    movement.batchStock = false;
    return movement;
}

const QString offeredGift
    = QStringLiteral("coalesce(a.g_iszp,0)<>0 and coalesce(a.g_sy,0)<>0 and coalesce(a.g_jy,0)=0");

// The checked draft: the member as read, the lines with their points per unit from the goods.
struct ValidRedemption
{
    Member member;
    RedemptionDraft draft;
    QString warehouseName;
};

Result<RedemptionLine> offeredLine(core::Connection &db, const RedemptionLine &line, int row)
{
    const QSqlRecord g = db.firstRow(
        QStringLiteral("select a.g_name,a.g_zpjf from jxc_goods a where a.g_sn=? and %1 order by "
                       "a.id limit 1")
            .arg(offeredGift),
        { line.goods });
    if (g.isEmpty())
        return Outcome::refused(texts::notAGift(row, line.goods));
    if (line.quantity <= 0 || line.quantity != std::trunc(line.quantity))
        return Outcome::refused(texts::giftQuantityInvalid(row));
    if (const QString problem = core::numberProblem(
            texts::redeemQuantityField(row), line.quantity, core::NumberKind::Quantity);
        !problem.isEmpty())
        return Outcome::refused(problem);
    return RedemptionLine { line.goods, g.value(0).toString(), g.value(1).toDouble(),
        line.quantity };
}

Result<ValidRedemption> validate(const shell::Session &session, const RedemptionDraft &draft)
{
    core::Connection &db = session.db();
    const std::optional<Member> member = readMember(db, draft.member);
    if (!member)
        return Outcome::refused(texts::memberMissing(draft.member));
    if (!member->active)
        return Outcome::refused(texts::cardNotActive(member->name));
    const QString before
        = redeemedInPeriod(db, draft.member, draft.period, session.clock().today());
    if (!before.isEmpty())
        return Outcome::refused(texts::redeemedBefore(before));
    const QString warehouseName = db.firstText(
        QStringLiteral("select ck_name from jxc_ckxx where ck_sn=? order by id limit 1"),
        { draft.warehouse });
    if (draft.warehouse.isEmpty() || warehouseName.isEmpty())
        return Outcome::refused(documents::texts::warehouseMissing(draft.warehouse));
    if (draft.lines.isEmpty())
        return Outcome::refused(texts::noGiftsChosen());
    ValidRedemption valid { *member, draft, warehouseName };
    valid.draft.lines.clear();
    for (int row = 1; row <= draft.lines.size(); ++row) {
        const Result<RedemptionLine> line = offeredLine(db, draft.lines.at(row - 1), row);
        if (!line)
            return line.outcome();
        valid.draft.lines.append(line.value());
    }
    if (valid.draft.points() > member->points)
        return Outcome::refused(texts::pointsShort(member->points, valid.draft.points()));
    return valid;
}

// The warehouse's cost of the goods, the goods average where the warehouse has no row.
double issueCost(core::Connection &db, const QString &goods, const QString &warehouse)
{
    const QVariant cost
        = db.firstValue(QStringLiteral("select kc_cbj from jxc_kcsp where g_sn=? and ck_sn=?"),
            { goods, warehouse });
    if (cost.isValid())
        return cost.toDouble();
    return db.firstValue(QStringLiteral("select g_pjjj from jxc_goods where g_sn=?"), { goods })
        .toDouble();
}

stock::LedgerRow ledgerRowOf(const shell::Session &session, const ValidRedemption &r,
    const QString &number, const RedemptionLine &line, double cost)
{
    const QSqlRecord g = session.db().firstRow(
        QStringLiteral("select g_jm,dw_name,gg_name,color_name,g_pjjj from jxc_goods where g_sn=? "
                       "order by id limit 1"),
        { line.goods });
    stock::LedgerRow row;
    row.kind = QStringLiteral("dh");
    row.number = number;
    row.date = session.today();
    row.goods = line.goods;
    row.goodsName = line.name;
    row.mnemonic = g.value(0).toString();
    row.unit = g.value(1).toString();
    row.packing = g.value(2).toString();
    row.approvalNumber = g.value(3).toString();
    row.average = g.value(4).toDouble();
    row.price = cost;
    row.quantity = line.quantity;
    row.unitQuantity = line.quantity;
    row.total = row.amount = session.params().roundAmount(line.quantity * cost);
    row.discountRate = 1;
    row.operatorName = session.user().name;
    row.warehouse = r.draft.warehouse;
    row.warehouseName = r.warehouseName;
    row.party = r.member.code;
    row.partyName = r.member.name;
    row.checker = session.user().name;
    row.checkDate = session.today();
    row.note = r.draft.note;
    row.cost = cost;
    row.totalCost = row.amount;
    return row;
}

void writeRedemption(const shell::Session &session, const ValidRedemption &r, const QString &number)
{
    core::Connection &db = session.db();
    const RedemptionDraft &d = r.draft;
    db.exec(QStringLiteral("insert into jxc_dhd (gl_djh,hy_sn,dh_dhrq,dh_sl,dh_jf,dh_note,a_name,"
                           "ck_sn) values (?,?,?,?,?,?,?,?)"),
        { number, d.member, session.clock().nowText(), d.quantity(), d.points(), d.note,
            session.user().name, d.warehouse });
    db.exec(QStringLiteral("update jxc_hyxx set hy_jf=hy_jf-? where hy_sn=?"),
        { d.points(), d.member });
    double cost = 0;
    for (const RedemptionLine &line : d.lines) {
        db.exec(QStringLiteral("insert into jxc_dhzp (gl_djh,g_sn,dh_zpjf,dh_sl,dh_jf,a_name) "
                               "values (?,?,?,?,?,?)"),
            { number, line.goods, line.pointsPerUnit, line.quantity, line.points(),
                session.user().name });
        const double unitCost = issueCost(db, line.goods, d.warehouse);
        const stock::LedgerRow row = ledgerRowOf(session, r, number, line, unitCost);
        const qint64 id = stock::insertLedgerRow(session, row);
        stock::postMovement(
            session, redemptionMovement(id, line.goods, d.warehouse, line.quantity, unitCost));
        cost += row.amount;
    }
    accounts::appendDocumentExpense(session,
        { accounts::ExpenseKind::Expense, number, session.today(), texts::redemptionExpenseType(),
            session.params().roundAmount(cost), QString(), texts::redemptionExpenseNote(number) });
    stock::settleDay(session, d.warehouse, session.today());
    session.log(texts::redemptionSavedLog(number, r.member.name, d.points()));
}

} // namespace

QString periodName(RedemptionPeriod period)
{
    switch (period) {
    case RedemptionPeriod::Day:
        return QStringLiteral("今天");
    case RedemptionPeriod::Week:
        return QStringLiteral("本周");
    case RedemptionPeriod::Month:
        return QStringLiteral("本月");
    case RedemptionPeriod::Unlimited:
        break;
    }
    return QStringLiteral("不限制");
}

QList<GiftOffer> giftsOffered(core::Connection &connection, const QString &warehouse)
{
    QList<GiftOffer> gifts;
    connection.forEach(
        QStringLiteral("select a.g_sn,a.g_jm,a.g_name,a.dw_name,a.gg_name,a.color_name,a.g_zpjf,"
                       "b.kc_sl from jxc_goods a,jxc_kcsp b where a.g_sn=b.g_sn and %1 and "
                       "b.ck_sn=? order by a.g_sn")
            .arg(offeredGift),
        { warehouse }, [&](const QSqlQuery &q) {
            gifts.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
                q.value(3).toString(), q.value(4).toString(), q.value(5).toString(),
                q.value(6).toDouble(), q.value(7).toDouble() });
        });
    return gifts;
}

void RedemptionDraft::pick(const GiftOffer &gift)
{
    for (RedemptionLine &line : lines)
        if (line.goods == gift.goods) {
            line.quantity += 1;
            return;
        }
    lines.append({ gift.goods, gift.name, gift.points, 1 });
}

void RedemptionDraft::setQuantity(int line, double quantity)
{
    if (line < 0 || line >= lines.size())
        return;
    if (quantity <= 0)
        lines.removeAt(line);
    else
        lines[line].quantity = quantity;
}

double RedemptionDraft::points() const
{
    double sum = 0;
    for (const RedemptionLine &line : lines)
        sum += line.points();
    return sum;
}

double RedemptionDraft::quantity() const
{
    double sum = 0;
    for (const RedemptionLine &line : lines)
        sum += line.quantity;
    return sum;
}

QString redeemedInPeriod(
    core::Connection &connection, const QString &member, RedemptionPeriod period, QDate today)
{
    QDate from = today;
    QDate to = today;
    if (period == RedemptionPeriod::Unlimited)
        return QString();
    if (period == RedemptionPeriod::Week) {
        from = today.addDays(1 - today.dayOfWeek());
        to = from.addDays(6);
    } else if (period == RedemptionPeriod::Month) {
        from = QDate(today.year(), today.month(), 1);
        to = from.addMonths(1).addDays(-1);
    }
    return connection.firstText(
        QStringLiteral("select dh_dhrq from jxc_dhd where dh_dhrq>=? and dh_dhrq<=? and hy_sn=? "
                       "order by id limit 1"),
        { from.toString(Qt::ISODate), to.toString(Qt::ISODate) + QStringLiteral(" 23:59:59"),
            member });
}

Result<QString> saveRedemption(const shell::Session &session, const RedemptionDraft &draft)
{
    const Outcome allowed = shell::requireRight(session, "rcgl", rights::gifts);
    if (!allowed)
        return allowed;
    QString number;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        RedemptionDraft cleaned = draft;
        cleaned.note = core::cleanText(draft.note);
        Result<ValidRedemption> valid = validate(session, cleaned);
        if (!valid)
            return core::refuse(session.ui(), valid.message());
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        // Another workstation may have spent the points meanwhile.
        valid = validate(session, cleaned);
        if (!valid)
            return core::refuse(session.ui(), valid.message());
        const Result<QString> next = core::nextDocumentNumber(db, QStringLiteral("jxc_dhd"),
            QStringLiteral("gl_djh"), QStringLiteral("DH"), session.clock().today());
        if (!next)
            return core::refuse(session.ui(), next.message());
        number = next.value();
        writeRedemption(session, valid.value(), number);
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return number;
}

Outcome deleteRedemption(shell::Session &session, const QString &number)
{
    const Outcome allowed = shell::requireRight(session, "rcgl", rights::gifts);
    if (!allowed)
        return allowed;
    const Outcome found = core::guarded(session.ui(), [&] {
        if (!session.db().exists(
                QStringLiteral("select id from jxc_dhd where gl_djh=?"), { number }))
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        return Outcome::done();
    });
    if (!found)
        return found;
    if (!session.ui().ask(texts::deleteRedemptionQuestion(number)))
        return Outcome::refused(QString());
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        const QSqlRecord header = db.firstRow(
            QStringLiteral("select hy_sn,ck_sn,dh_dhrq from jxc_dhd where gl_djh=? order by id "
                           "limit 1"),
            { number });
        if (header.isEmpty())
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        const double points
            = db.firstValue(
                    QStringLiteral("select sum(dh_jf) from jxc_dhzp where gl_djh=?"), { number })
                  .toDouble();
        db.exec(QStringLiteral("update jxc_hyxx set hy_jf=hy_jf+? where hy_sn=?"),
            { points, header.value(0) });
        QList<stock::StoreMovement> rows;
        db.forEach(QStringLiteral("select id,g_sn,ck_sn,gl_sl,gl_cbj from jxc_goodslist where "
                                  "gl_djh=? and gl_flag=? order by id"),
            { number, QStringLiteral("dh") }, [&](const QSqlQuery &q) {
                rows.append(redemptionMovement(q.value(0).toLongLong(), q.value(1).toString(),
                    q.value(2).toString(), q.value(3).toDouble(), q.value(4).toDouble()));
            });
        for (const stock::StoreMovement &row : rows)
            stock::withdrawMovement(session, row);
        accounts::removeExpenseRows(session, number);
        db.exec(QStringLiteral("delete from jxc_dhzp where gl_djh=?"), { number });
        db.exec(QStringLiteral("delete from jxc_dhd where gl_djh=?"), { number });
        stock::settleWarehouse(
            session, header.value(1).toString(), header.value(2).toString().left(10));
        session.log(texts::redemptionDeletedLog(number, points));
        transaction.commit();
        return Outcome::done();
    });
}

QList<RedemptionRow> listRedemptions(
    core::Connection &connection, const QString &from, const QString &to)
{
    QList<RedemptionRow> rows;
    connection.forEach(
        QStringLiteral("select a.gl_djh,a.dh_dhrq,a.hy_sn,b.hy_name,b.hy_bh,(select ck_name from "
                       "jxc_ckxx where ck_sn=a.ck_sn order by id limit 1),a.dh_sl,a.dh_jf,a.a_name,"
                       "a.dh_note from jxc_dhd a left join jxc_hyxx b on b.hy_sn=a.hy_sn where "
                       "a.dh_dhrq>=? and a.dh_dhrq<=? order by a.dh_dhrq desc,a.id desc"),
        { from, to + QStringLiteral(" 23:59:59") }, [&](const QSqlQuery &q) {
            rows.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
                q.value(3).toString(), q.value(4).toString(), q.value(5).toString(),
                q.value(6).toDouble(), q.value(7).toDouble(), q.value(8).toString(),
                q.value(9).toString() });
        });
    return rows;
}

} // namespace medistock::members
