#include "pos/till.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/transaction.h"
#include "documents/entry.h"
#include "members/rights.h"
#include "pos/held.h"
#include "pos/texts.h"
#include "sales/fefo.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/options.h"
#include "stock/stores.h"
#include "stock/texts.h"

#include <QMap>
#include <QSqlRecord>

namespace medistock::pos {

namespace {

// "特价商品" with a special price, within its period when the period is on.
bool specialPriceApplies(const shell::Session &session, const QSqlRecord &goods)
{
    if (!shell::readFlag(goods.value(QStringLiteral("g_tjsp")))
        || goods.value(QStringLiteral("g_tj")).toDouble() <= 0)
        return false;
    if (!shell::readFlag(goods.value(QStringLiteral("g_tjqx"))))
        return true;
    const QString today = session.today();
    return goods.value(QStringLiteral("g_ks")).toString().left(10) <= today
        && today <= goods.value(QStringLiteral("g_js")).toString().left(10);
}

double levelDiscount(core::Connection &db, const QString &member)
{
    return db
        .firstValue(QStringLiteral("select b.hl_zk from jxc_hyxx a,jxc_hyfl b where "
                                   "a.hl_sn=b.hl_sn and a.hy_sn=? order by a.id limit 1"),
            { member })
        .toDouble();
}

struct GoodsDemand
{
    double lineUnits = 0; // in the lines' own units, for the per-sale maximum
    double baseUnits = 0;
};

// What the sale asks of each goods, by goods code.
QMap<QString, GoodsDemand> demandOf(const members::RetailDocument &sale)
{
    QMap<QString, GoodsDemand> demand;
    for (const members::RetailLine &line : sale.lines) {
        GoodsDemand &d = demand[line.goods];
        d.lineUnits += line.quantity;
        d.baseUnits += line.quantity * line.unitFactor;
    }
    return demand;
}

Outcome confirmLimits(const shell::Session &session, const QMap<QString, GoodsDemand> &demand)
{
    for (auto it = demand.cbegin(); it != demand.cend(); ++it) {
        const QSqlRecord g = session.db().firstRow(
            QStringLiteral("select g_name,g_xzsl from jxc_goods where g_sn=? order by id limit 1"),
            { it.key() });
        const double limit = g.isEmpty() ? 0 : g.value(1).toDouble();
        if (limit > 0 && it->lineUnits > limit + core::comparisonMargin)
            return core::refuse(session.ui(), stock::saleLimitText(g.value(0).toString(), limit));
    }
    return Outcome::done();
}

Outcome confirmStock(const shell::Session &session, const QString &warehouse,
    const QMap<QString, GoodsDemand> &demand)
{
    for (auto it = demand.cbegin(); it != demand.cend(); ++it) {
        const double stock = stock::warehouseQuantity(session, it.key(), warehouse);
        if (it->baseUnits <= stock + core::comparisonMargin)
            continue;
        const QSqlRecord g = session.db().firstRow(
            QStringLiteral("select g_name,dw_name from jxc_goods where g_sn=? order by id limit 1"),
            { it.key() });
        const bool allowed = stock::allowsNegativeStock(session.params());
        const QString message = texts::stockShort(g.value(0).toString(), stock,
            session.params().roundQuantity(it->baseUnits), g.value(1).toString(), allowed);
        if (!allowed)
            return core::refuse(session.ui(), message);
        return session.ui().ask(message) ? Outcome::done() : Outcome::refused(message);
    }
    return Outcome::done();
}

// A retail line as the FEFO rule reads a document line; the remark carries the line's place.
documents::LineDraft draftLineOf(const members::RetailLine &line, int index)
{
    documents::LineDraft draft;
    draft.goods = line.goods;
    draft.unit = line.unitFactor == 1 ? QString() : line.unit;
    draft.quantity = QString::number(line.quantity, 'g', 15);
    draft.price = QString::number(line.price, 'g', 15);
    draft.batch = line.batch;
    draft.expiry = line.expiry;
    draft.produced = line.produced;
    draft.remark = QString::number(index);
    return draft;
}

members::RetailLine retailLineOf(const members::RetailDocument &sale, const documents::LineDraft &d)
{
    members::RetailLine line = sale.lines.at(d.remark.toInt());
    line.quantity = d.quantity.toDouble();
    line.batch = d.batch;
    line.expiry = d.expiry;
    line.produced = d.produced;
    // A part that is no whole number of the line's unit went over to the base unit.
    if (line.unitFactor != 1 && d.unit.isEmpty()) {
        line.price = d.price.toDouble();
        line.unitFactor = 1;
        line.unit.clear();
    }
    return line;
}

} // namespace

TillPrice tillPrice(
    const shell::Session &session, const QString &goods, double unitFactor, const QString &member)
{
    const QSqlRecord g = session.db().firstRow(
        QStringLiteral("select g_lsj,g_sj,g_tjsp,g_tj,g_tjqx,g_ks,g_js,g_hyj from jxc_goods where "
                       "g_sn=? order by id limit 1"),
        { goods });
    if (g.isEmpty())
        return {};
    const shell::Parameters &params = session.params();
    const auto perLine = [&](const char *column) {
        return params.roundPrice(g.value(QString::fromLatin1(column)).toDouble() * unitFactor);
    };
    if (specialPriceApplies(session, g))
        return { perLine("g_tj"), 1 };
    const double retail
        = g.value(QStringLiteral("g_lsj")).toDouble() > 0 ? perLine("g_lsj") : perLine("g_sj");
    if (member.isEmpty())
        return { retail, 1 };
    if (g.value(QStringLiteral("g_hyj")).toDouble() > 0)
        return { perLine("g_hyj"), 1 };
    const double discount = levelDiscount(session.db(), member);
    return { retail, discount > 0 && discount < 1 ? discount : 1 };
}

Outcome confirmTillStock(const shell::Session &session, const members::RetailDocument &sale)
{
    if (sale.kind != members::RetailKind::Sale)
        return Outcome::done();
    const QMap<QString, GoodsDemand> demand = demandOf(sale);
    const Outcome limits = confirmLimits(session, demand);
    if (!limits)
        return limits;
    return confirmStock(session, sale.warehouse, demand);
}

members::RetailDocument withBatches(
    const shell::Session &session, const members::RetailDocument &sale)
{
    documents::DocumentDraft draft;
    draft.warehouse = sale.warehouse;
    draft.date = sale.time.isEmpty() ? session.today() : sale.time.left(10);
    for (int i = 0; i < sale.lines.size(); ++i)
        draft.lines.append(draftLineOf(sale.lines.at(i), i));
    sales::applyFefo(session, draft);
    members::RetailDocument batched = sale;
    batched.lines.clear();
    for (const documents::LineDraft &line : draft.lines)
        batched.lines.append(retailLineOf(sale, line));
    return batched;
}

Result<QString> sellAtTill(
    shell::Session &session, const members::RetailDocument &sale, const QString &heldNumber)
{
    const Outcome allowed = shell::requireRight(session, "xsgl", members::rights::posSale);
    if (!allowed)
        return allowed;
    members::RetailDocument batched;
    Outcome outcome = core::guarded(session.ui(), [&] {
        const Outcome stock = confirmTillStock(session, sale);
        if (!stock)
            return stock;
        batched = withBatches(session, sale);
        batched.number = heldNumberForToday(session, heldNumber);
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    Result<QString> posted = Outcome::refused(QString());
    outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        if (!heldNumber.isEmpty() && !removeHeldLines(session, heldNumber))
            return core::refuse(session.ui(), texts::heldSaleMissing(heldNumber));
        posted = members::postRetailDocument(session, batched);
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
