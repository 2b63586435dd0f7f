#include "stock/documents/entry.h"

#include "core/connection.h"
#include "core/operation.h"
#include "documents/lines.h"
#include "shell/parameters.h"
#include "shell/session.h"
#include "stock/costs.h"
#include "stock/documents/kinds.h"
#include "stock/documents/texts.h"
#include "stock/stores.h"

#include <QSet>
#include <QSqlQuery>

#include <functional>

namespace medistock::stock {

namespace {

using documents::DocumentDraft;
using documents::ValidDocument;
using documents::ValidLine;

// The proposed price per base unit of a line that passed the shared checks.
using PriceProposal = std::function<double(const ValidDocument &, const ValidLine &)>;
// What a kind adds once prices are settled.
using Completion = std::function<void(const shell::Session &, ValidDocument &)>;

BatchKey batchOf(const ValidDocument &doc, const ValidLine &line)
{
    return { line.goods, doc.warehouse, line.batch, line.expiry, line.produced };
}

void proposePrices(const shell::Session &session, ValidDocument &doc, const QSet<int> &rows,
    const PriceProposal &propose)
{
    const documents::LineRounding rounding = documents::LineRounding::of(session.params());
    for (ValidLine &line : doc.lines) {
        if (!rows.contains(line.row))
            continue;
        const documents::LineFigures &f = line.figures;
        line.figures = documents::computeLine(
            { f.quantity, f.factor, propose(doc, line) * f.factor, f.taxRate, f.discountRate },
            rounding);
    }
}

// A price left empty passes the shared checks as 0 and is proposed afterwards, so that the
// proposal knows the line's goods, unit and warehouse as checked.
Result<QString> saveWithProposals(const shell::Session &session,
    const documents::DocumentKind &kind, DocumentDraft draft, const documents::EntryRule &rule,
    const PriceProposal &propose, const Completion &complete = {})
{
    QSet<int> proposed;
    for (qsizetype i = 0; i < draft.lines.size(); ++i)
        if (draft.lines[i].price.trimmed().isEmpty()) {
            proposed.insert(int(i) + 1);
            draft.lines[i].price = QStringLiteral("0");
        }
    return documents::saveDocument(
        session, kind, draft, [&](const shell::Session &s, ValidDocument &doc) {
            if (rule) {
                const Outcome outcome = rule(s, doc);
                if (!outcome)
                    return outcome;
            }
            proposePrices(s, doc, proposed, propose);
            if (complete)
                complete(s, doc);
            return Outcome::done();
        });
}

PriceProposal costOfDocumentDate(const shell::Session &session)
{
    return [&session](const ValidDocument &doc, const ValidLine &line) {
        return costAsOf(session, line.goods, doc.warehouse, doc.date);
    };
}

Outcome transferRule(const shell::Session &session, const ValidDocument &doc)
{
    if (doc.warehouse == doc.secondWarehouse)
        return core::refuse(session.ui(), texts::sameWarehouses());
    for (const ValidLine &line : doc.lines)
        if (!batchQuantity(session, batchOf(doc, line)))
            return core::refuse(session.ui(),
                texts::batchNotInWarehouse(
                    line.row, line.goodsName, line.batch, line.expiry, line.produced));
    return Outcome::done();
}

Outcome countedOnce(const shell::Session &session, const ValidDocument &doc)
{
    QHash<QStringList, int> firstRows;
    for (const ValidLine &line : doc.lines) {
        const QStringList key { line.goods, line.batch, line.expiry, line.produced };
        if (const auto found = firstRows.constFind(key); found != firstRows.constEnd())
            return core::refuse(
                session.ui(), texts::countedTwice(line.row, line.goodsName, found.value()));
        firstRows.insert(key, line.row);
    }
    return Outcome::done();
}

void completeCount(const shell::Session &session, ValidDocument &doc)
{
    const shell::Parameters &params = session.params();
    double counted = 0;
    double book = 0;
    for (ValidLine &line : doc.lines) {
        const double bookQuantity
            = params.roundQuantity(batchQuantity(session, batchOf(doc, line)).value_or(0));
        const double difference = params.roundQuantity(line.figures.quantity - bookQuantity);
        line.columns.set(QStringLiteral("kc_sl"), bookQuantity);
        line.columns.set(QStringLiteral("kc_zsl"), bookQuantity);
        line.columns.set(
            QStringLiteral("pd_zje"), params.roundAmount(difference * line.figures.price));
        counted += line.figures.quantity;
        book += bookQuantity;
    }
    doc.columns.set(QStringLiteral("pd_sl"), params.roundQuantity(counted));
    doc.columns.set(QStringLiteral("kc_sl"), params.roundQuantity(book));
}

BatchLine batchLine(const QSqlQuery &q)
{
    return { q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
        q.value(3).toString(), q.value(4).toString(), q.value(5).toString(), q.value(6).toDouble(),
        0 };
}

} // namespace

QList<BatchLine> transferBatches(const shell::Session &session, const QString &warehouse,
    const QString &goods, const QString &date)
{
    QList<BatchLine> lines;
    session.db().forEach(
        QStringLiteral("select t.g_sn,g.g_name,g.dw_name,t.t_ph,t.t_yxq,t.t_scrq,t.t_sl from "
                       "jxc_tkc t join jxc_goods g on g.g_sn=t.g_sn where t.ck_sn=? and t.g_sn=? "
                       "and t.t_sl>? order by t.t_ph,t.t_yxq,t.t_scrq,t.id"),
        { warehouse, goods, 0 }, [&](const QSqlQuery &q) { lines.append(batchLine(q)); });
    const double cost = costAsOf(session, goods, warehouse, date);
    for (BatchLine &line : lines)
        line.price = cost;
    return lines;
}

QList<BatchLine> countSheet(
    const shell::Session &session, const QString &warehouse, const QString &classCode)
{
    const shell::Parameters &params = session.params();
    QList<BatchLine> lines;
    // A class holds its sub-classes: their codes start with its own.
    session.db().forEach(
        QStringLiteral("select t.g_sn,g.g_name,g.dw_name,t.t_ph,t.t_yxq,t.t_scrq,t.t_sl,g.g_jy "
                       "from jxc_tkc t join jxc_goods g on g.g_sn=t.g_sn where t.ck_sn=? and "
                       "t.g_sn<>? and coalesce(g.gc_sn,'') like ? order by "
                       "t.g_sn,t.t_ph,t.t_yxq,t.t_scrq,t.id"),
        { warehouse, QStringLiteral("00000000"), classCode + QLatin1Char('%') },
        [&](const QSqlQuery &q) {
            // Judged at quantity decimals: a batch emptied by decimals is empty.
            if (params.roundQuantity(q.value(6).toDouble()) != 0 && !shell::readFlag(q.value(7)))
                lines.append(batchLine(q));
        });
    for (BatchLine &line : lines)
        line.price = currentCost(session, line.goods, warehouse);
    return lines;
}

Result<QString> saveTransfer(const shell::Session &session, const DocumentDraft &draft)
{
    return saveWithProposals(
        session, transferEntry(), draft, transferRule, costOfDocumentDate(session));
}

Result<QString> saveStockTaking(const shell::Session &session, const DocumentDraft &draft)
{
    return saveWithProposals(
        session, stockTakingEntry(), draft, countedOnce,
        [&session](const ValidDocument &doc, const ValidLine &line) {
            return currentCost(session, line.goods, doc.warehouse);
        },
        completeCount);
}

Result<QString> saveAtCostOfDate(const shell::Session &session, const documents::DocumentKind &kind,
    const DocumentDraft &draft, const documents::EntryRule &rule)
{
    return saveWithProposals(session, kind, draft, rule, costOfDocumentDate(session));
}

Result<QString> saveLoss(const shell::Session &session, const DocumentDraft &draft)
{
    return saveWithProposals(session, lossEntry(), draft, {}, costOfDocumentDate(session));
}

Result<QString> saveOverflow(const shell::Session &session, const DocumentDraft &draft)
{
    return saveWithProposals(session, overflowEntry(), draft, {}, costOfDocumentDate(session));
}

} // namespace medistock::stock
