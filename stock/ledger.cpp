#include "stock/ledger.h"

#include "core/connection.h"
#include "core/rounding.h"
#include "shell/session.h"
#include "stock/options.h"

#include <QSqlQuery>

#include <cmath>

namespace medistock::stock {

namespace {

using Direction = KindRole::Direction;

bool isOneOf(const QString &kind, std::initializer_list<const char *> kinds)
{
    for (const char *k : kinds)
        if (kind == QLatin1String(k))
            return true;
    return false;
}

struct StartRow
{
    QString goods;
    QString warehouse;
    QString date;
    QString kind;
    double quantity = 0;
};

// A row of the run as it is stored; the running columns are compared so that unchanged rows are
// not written again.
struct StoredRow
{
    qint64 id = 0;
    LedgerMovement movement;
    QVariant carriedQuantity;
    QVariant carriedAmount;
    QVariant average;
    QVariant quantity;
    QVariant value;

    bool holds(const LedgerStep &step) const
    {
        const auto same = [](const QVariant &stored, double computed) {
            return !stored.isNull() && stored.toDouble() == computed;
        };
        return same(carriedQuantity, step.carriedQuantity)
            && same(carriedAmount, step.carriedAmount) && same(average, step.after.average)
            && same(quantity, step.after.quantity) && same(value, step.after.value);
    }
};

std::optional<StartRow> readStartRow(core::Connection &db, qint64 id)
{
    const QSqlRecord row = db.firstRow(
        QStringLiteral("select g_sn,ck_sn,gl_kdrq,gl_flag,gl_sl from jxc_goodslist where id=?"),
        { id });
    if (row.isEmpty())
        return std::nullopt;
    return StartRow { row.value(0).toString(), row.value(1).toString(), row.value(2).toString(),
        row.value(3).toString(), row.value(4).toDouble() };
}

// The state after the last row of an earlier date; before the first row, nothing in stock at
// the goods average.
RunningState openingState(core::Connection &db, const StartRow &start)
{
    const QSqlRecord last = db.firstRow(
        QStringLiteral("select gl_kc,gl_pjjj,gl_kczje from jxc_goodslist where g_sn=? and "
                       "ck_sn=? and gl_kdrq<? order by gl_kdrq desc,id desc limit 1"),
        { start.goods, start.warehouse, start.date });
    if (!last.isEmpty())
        return openingAfter(
            last.value(0).toDouble(), last.value(1).toDouble(), last.value(2).toDouble());
    const double goodsAverage
        = db.firstValue(
                QStringLiteral("select g_pjjj from jxc_goods where g_sn=?"), { start.goods })
              .toDouble();
    return openingAfter(0, goodsAverage, 0);
}

QList<StoredRow> rowsFrom(core::Connection &db, const StartRow &start)
{
    QList<StoredRow> rows;
    db.forEach(QStringLiteral("select id,gl_flag,gl_sl,gl_je,gl_dj,gl_sqsl,gl_sqje,gl_pjjj,gl_kc,"
                              "gl_kczje from jxc_goodslist where g_sn=? and ck_sn=? and gl_kdrq>=? "
                              "order by gl_kdrq,id"),
        { start.goods, start.warehouse, start.date }, [&](const QSqlQuery &q) {
            rows.append({ q.value(0).toLongLong(),
                { q.value(1).toString(), q.value(2).toDouble(), q.value(3).toDouble(),
                    q.value(4).toDouble() },
                q.value(5), q.value(6), q.value(7), q.value(8), q.value(9) });
        });
    return rows;
}

struct Rewrite
{
    qint64 id = 0;
    LedgerStep step;
};

// Writes `count` rewrites from `first` on in one statement. The values are cast so that the
// server knows their types inside VALUES; on SQLite the columns' affinity stores them as before.
void writeRunningColumns(
    core::Connection &db, const QList<Rewrite> &rewrites, qsizetype first, qsizetype count)
{
    const QString row = QStringLiteral("(cast(? as bigint),cast(? as numeric),cast(? as numeric),"
                                       "cast(? as numeric),cast(? as numeric),cast(? as numeric))");
    QVariantList values;
    for (qsizetype i = first; i < first + count; ++i) {
        const LedgerStep &step = rewrites.at(i).step;
        values << rewrites.at(i).id << step.carriedQuantity << step.carriedAmount
               << step.after.average << step.after.quantity << step.after.value;
    }
    db.exec(QStringLiteral("update jxc_goodslist set gl_sqsl=v.column2,gl_sqje=v.column3,"
                           "gl_pjjj=v.column4,gl_kc=v.column5,gl_kczje=v.column6 from (values %1) "
                           "as v where jxc_goodslist.id=v.column1")
                .arg(QStringList(count, row).join(QLatin1Char(','))),
        values);
}

// The rows a rerun changed, many to a statement: on a server every statement is a round trip,
// and a backdated posting rewrites every later row of its goods. The statements hold a power of
// two of rows (up to 4,096, under SQLite's 32,766 parameters), so that few of them are prepared.
void writeRunningColumns(core::Connection &db, const QList<Rewrite> &rewrites)
{
    constexpr qsizetype most = 4096;
    qsizetype first = 0;
    while (first < rewrites.size()) {
        qsizetype count = most;
        while (count > rewrites.size() - first)
            count /= 2;
        writeRunningColumns(db, rewrites, first, count);
        first += count;
    }
}

QVariant optionalValue(const std::optional<double> &value)
{
    return value ? QVariant(*value) : QVariant();
}

QVariant optionalText(const std::optional<Prescription> &p, QString Prescription::*field)
{
    return p ? QVariant((*p).*field) : QVariant();
}

} // namespace

KindRole kindRole(const QString &kind, double quantity)
{
    if (isOneOf(kind, { "cj", "ct", "pd", "kb", "qc", "sc", "st", "jg", "ws" }))
        return { Direction::Adds, true };
    if (isOneOf(kind, { "db", "cf", "bh" }))
        return { Direction::Adds, quantity > 0 };
    if (isOneOf(kind, { "bs", "by", "hh", "pl", "bf", "wp", "wt" }))
        return { Direction::Adds, false };
    if (isOneOf(kind, { "xs", "xt", "jh", "dh", "lt", "ly" }))
        return { Direction::Subtracts, false };
    return { Direction::None, false };
}

RunningRounding RunningRounding::of(const shell::Parameters &params)
{
    return { params.priceDecimals(), params.quantityDecimals(), params.stockValueDecimals() };
}

RunningState openingAfter(double quantity, double average, double value)
{
    return { quantity, average, value, quantity, value };
}

LedgerStep stepLedger(
    const RunningState &before, const LedgerMovement &row, const RunningRounding &rounding)
{
    const KindRole role = kindRole(row.kind, row.quantity);
    LedgerStep step;
    RunningState &after = step.after;
    after = before;
    if (role.direction == Direction::Adds) {
        step.carriedQuantity = row.quantity;
        step.carriedAmount = row.amount;
        if (before.quantity <= 0 && row.quantity > 0) {
            after.sumQuantity = std::abs(after.sumQuantity);
            after.sumAmount = std::abs(after.sumAmount);
            step.carriedQuantity = std::abs(step.carriedQuantity);
            step.carriedAmount = std::abs(step.carriedAmount);
        }
        after.quantity += row.quantity;
        after.sumQuantity += step.carriedQuantity;
        after.sumAmount += step.carriedAmount;
    } else if (role.direction == Direction::Subtracts) {
        after.quantity -= row.quantity;
    }
    after.quantity = core::roundTo(after.quantity, rounding.quantity);
    if (role.setsAverage && core::roundTo(after.sumQuantity, rounding.quantity) != 0)
        after.average
            = std::abs(after.quantity == 0 ? row.price : after.sumAmount / after.sumQuantity);
    after.average = core::roundTo(after.average, rounding.price);
    after.value
        = after.quantity == 0 ? 0 : core::roundTo(after.average * after.quantity, rounding.value);
    return step;
}

RerunSummary rerunLedger(const shell::Session &session, qint64 rowId, bool exclude)
{
    core::Connection &db = session.db();
    const std::optional<StartRow> start = readStartRow(db, rowId);
    if (!start)
        return {};
    const RunningRounding rounding = RunningRounding::of(session.params());
    RerunSummary summary;
    summary.found = true;
    summary.last = openingState(db, *start);
    QList<Rewrite> rewrites;
    for (const StoredRow &row : rowsFrom(db, *start)) {
        if (exclude && row.id == rowId)
            continue;
        const LedgerStep step = stepLedger(summary.last, row.movement, rounding);
        if (!row.holds(step))
            rewrites.append({ row.id, step });
        summary.last = step.after;
        ++summary.rowsRun;
    }
    writeRunningColumns(db, rewrites);
    summary.rowsRewritten = int(rewrites.size());
    if (!keepsWarehouseCost(session.params()) && kindRole(start->kind, start->quantity).setsAverage)
        db.exec(QStringLiteral("update jxc_kcsp set kc_cbj=? where ck_sn=? and g_sn=?"),
            { summary.last.average, start->warehouse, start->goods });
    return summary;
}

RerunSummary withdrawLedgerRow(const shell::Session &session, qint64 rowId)
{
    const RerunSummary summary = rerunLedger(session, rowId, true);
    session.db().exec(QStringLiteral("delete from jxc_goodslist where id=?"), { rowId });
    return summary;
}

double basePrice(double price, double quantity, double baseQuantity)
{
    if (quantity == baseQuantity || quantity == 0 || baseQuantity == 0)
        return price;
    return price / (baseQuantity / quantity);
}

qint64 insertLedgerRow(const shell::Session &session, const LedgerRow &row)
{
    const QVariant lineId = row.lineId ? QVariant(*row.lineId) : QVariant();
    const QVariant sourceNumber = row.sourceNumber ? QVariant(*row.sourceNumber) : QVariant();
    const auto &p = row.prescription;
    return session.db().insert(
        QStringLiteral(
            "insert into jxc_goodslist (gl_flag,gl_djh,gl_kdrq,g_sn,g_name,g_jm,dw_name,gl_dj,"
            "gl_sl,gl_zje,gl_lr,gl_dzl,u_name,a_name,ck_sn,ck_name,ghs_sn,ghs_name,gg_name,"
            "color_name,gl_sysl,gl_fdmc,gl_dqkc,t_yxq,t_ph,t_scrq,gl_kc,gl_pjjj,gl_kczje,"
            "gl_checker,gl_chkrq,gl_sqsl,gl_sqje,gl_bz,gl_note,gl_tax,gl_taxdj,gl_taxje,gl_je,"
            "gl_lsj,id2,gl_djh2,gl_qxsl,gl_cbj,gl_zcb,t_cfsm,gl_xm,gl_cardno,t_cfhm,t_addr,"
            "t_mobile,t_yaoshi) values (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,"
            "?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
        { row.kind, row.number, row.date, row.goods, row.goodsName, row.mnemonic, row.unit,
            row.price, row.quantity, row.total, row.profit, row.discountRate, row.employeeName,
            row.operatorName, row.warehouse, row.warehouseName, row.party, row.partyName,
            row.packing, row.approvalNumber, row.unitQuantity, row.branch, row.currentStock,
            row.expiry, row.batch, row.produced, 0, row.average, 0, row.checker, row.checkDate, 0,
            0, row.lineNote, row.note, row.taxRate, row.taxedPrice, row.tax, row.amount,
            row.retailPrice, lineId, sourceNumber, optionalValue(row.doneFlag),
            optionalValue(row.cost), optionalValue(row.totalCost),
            optionalText(p, &Prescription::note), optionalText(p, &Prescription::name),
            optionalText(p, &Prescription::idCard), optionalText(p, &Prescription::number),
            optionalText(p, &Prescription::address), optionalText(p, &Prescription::mobile),
            optionalText(p, &Prescription::pharmacist) });
}

} // namespace medistock::stock
