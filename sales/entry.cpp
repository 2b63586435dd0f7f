#include "sales/entry.h"

#include "accounts/documentsupport.h"
#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/textclean.h"
#include "sales/entrysupport.h"
#include "sales/fefo.h"
#include "sales/kinds.h"
#include "sales/options.h"
#include "sales/orders.h"
#include "sales/salecheck.h"
#include "sales/texts.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/costs.h"
#include "stock/options.h"
#include "stock/stores.h"
#include "stock/texts.h"

#include <QHash>
#include <QSqlRecord>

#include <map>
#include <tuple>

namespace medistock::sales {

namespace {

using documents::ValidDocument;
using documents::ValidLine;

const CostColumns saleCosts { "ls_cbj2", "ls_cbj", "ls_zcb", "ls_lsj" };

void setSaleHeaderColumns(
    const shell::Session &session, const SaleHeader &h, ValidDocument &doc, bool isOrder)
{
    const auto set = [&](const char *column, const QVariant &value) {
        doc.columns.set(QString::fromLatin1(column), value);
    };
    set("ls_jsfs", h.settlementMode.toInt());
    set("ls_kmmc", h.account);
    set("ls_sfje", core::roundTo(h.paid, session.params().amountDecimals()));
    set("gl_djh2", core::cleanText(h.linkNumber, core::CleanStrength::Medium));
    // Marks that later business sets (returned, issued, taken over, delivered) start clear.
    for (const char *mark : { "ls_th", "ls_crk", "ls_qk", "ls_hkje", "ls_dhbz" })
        set(mark, 0);
    if (isOrder)
        return;
    set("ls_fpno", core::cleanText(h.invoiceNumber, core::CleanStrength::Medium));
    set("ls_fpje", h.invoiceAmount);
    set("ls_yf", h.freight);
    set("ls_bzf", h.packing);
    set("ls_yffs", h.freightTerms);
}

// A line without an order has no link to one.
void setSaleLineColumns(ValidLine &line)
{
    line.columns.set(QStringLiteral("g_tmbz"), QString());
    if (!line.columns.contains(QStringLiteral("id3")))
        line.columns.set(QStringLiteral("id3"), 0);
    if (!line.columns.contains(QStringLiteral("gl_djh2")))
        line.columns.set(QStringLiteral("gl_djh2"), QString());
}

// Lines taken over from an order may take no more than the order line has still open.
Outcome checkOrderLines(const shell::Session &session, ValidDocument &doc)
{
    QHash<qint64, double> taken;
    for (const ValidLine &line : doc.lines) {
        const qint64 id3 = line.columns.value(QStringLiteral("id3")).toLongLong();
        if (id3 <= 0)
            continue;
        const auto open = openOrderLine(session, id3);
        if (!open)
            return core::refuse(session.ui(), texts::orderLineMissing(id3));
        taken[id3] += line.figures.quantity;
        if (taken[id3] > open->open + core::comparisonMargin)
            return core::refuse(session.ui(),
                texts::orderLineExceeded(line.row, open->order, core::plainNumber(open->open)));
    }
    return Outcome::done();
}

void setSaleCosts(const shell::Session &session, ValidDocument &doc)
{
    for (ValidLine &line : doc.lines) {
        const QVariant taken = line.columns.value(QString::fromLatin1(saleCosts.basePrice));
        const double cost = taken.isValid()
            ? taken.toDouble()
            : stock::costAsOf(session, line.goods, doc.warehouse, doc.date);
        setLineCost(session, saleCosts, line, cost);
        setSaleLineColumns(line);
    }
}

// Asks or refuses a shortage: refused when negative stock is not allowed, else asked.
Outcome confirmShortage(const shell::Session &session, const QString &message)
{
    if (!stock::allowsNegativeStock(session.params()))
        return core::refuse(session.ui(), message);
    if (session.ui().ask(message))
        return Outcome::done();
    return Outcome::refused(message);
}

// The warehouse row of each goods against what the lines take from it, line by line.
Outcome checkWarehouseStock(const shell::Session &session, const ValidDocument &doc)
{
    const bool allowed = stock::allowsNegativeStock(session.params());
    QHash<QString, double> taken;
    for (const ValidLine &line : doc.lines) {
        const QVariant stock = session.db().firstValue(
            QStringLiteral("select kc_sl from jxc_kcsp where g_sn=? and ck_sn=? order by id "
                           "limit 1"),
            { line.goods, doc.warehouse });
        taken[line.goods] += line.figures.baseQuantity;
        QString message;
        if (!stock.isValid())
            message = texts::goodsNotInWarehouse(line.goodsName, allowed);
        else if (taken[line.goods] > stock.toDouble() + core::comparisonMargin)
            message = texts::goodsShortInWarehouse(line.goodsName, allowed);
        if (message.isEmpty())
            continue;
        const Outcome outcome = confirmShortage(session, message);
        if (!outcome)
            return outcome;
    }
    return Outcome::done();
}

// The lines of one batch summed against the batch's positive stock; the first short goods in
// code order is told, as the check of a saved sale tells it.
Outcome checkBatchStock(const shell::Session &session, const ValidDocument &doc)
{
    std::map<std::tuple<QString, QString, QString, QString>, double> batches;
    for (const ValidLine &line : doc.lines)
        batches[{ line.goods, line.batch, line.expiry, line.produced }]
            += line.figures.baseQuantity;
    for (const auto &[key, quantity] : batches) {
        const auto &[goods, batch, expiry, produced] = key;
        const auto stock
            = stock::batchQuantity(session, { goods, doc.warehouse, batch, expiry, produced });
        if (stock && *stock > 0 && quantity > *stock + core::comparisonMargin)
            return confirmShortage(session,
                stock::batchShortageText(
                    QStringLiteral("XS"), goods, stock::allowsNegativeStock(session.params())));
    }
    return Outcome::done();
}

QString saveQuestion(const shell::Session &session)
{
    return checksOnSave(session.params()) ? texts::saveAndCheckQuestion()
                                          : texts::saveSaleQuestion();
}

// Every line, the discount line too, is issued as saved and has no identity before the check;
// each order a line was taken over from is marked as taken over.
void markLines(const shell::Session &session, const ValidDocument &doc, const QString &number)
{
    session.db().exec(QStringLiteral("update jxc_lsxssp set ls_cksl=ls_sl,ls_qxsl=?,id2=? where "
                                     "gl_djh=?"),
        { 0, 0, number });
    QStringList orders;
    for (const ValidLine &line : doc.lines) {
        const QString order = line.columns.value(QStringLiteral("gl_djh2")).toString();
        if (!order.isEmpty() && !orders.contains(order))
            orders.append(order);
    }
    std::sort(orders.begin(), orders.end());
    for (const QString &order : orders)
        session.db().exec(
            QStringLiteral("update jxc_xsd set ls_qk=? where gl_djh=?"), { 1, order });
}

Outcome saleRule(const shell::Session &session, SaleHeader &header, ValidDocument &doc)
{
    Outcome outcome = checkSaleHeader(session, header, false);
    if (outcome)
        outcome = checkOrderLines(session, doc);
    if (outcome)
        outcome = confirmExpiredBatches(session, doc);
    if (!outcome)
        return outcome;
    setSaleHeaderColumns(session, header, doc, false);
    setSaleCosts(session, doc);
    if (!(outcome = checkWarehouseStock(session, doc)))
        return outcome;
    if (!(outcome = checkBatchStock(session, doc)))
        return outcome;
    if (!(outcome = confirmPrepayment(
              session, doc.party, header.settlementMode, documentDue(session, doc), header.paid)))
        return outcome;
    return confirmSave(session, saveQuestion(session));
}

// The sale of loaned goods: `ask` before the transaction, nothing asked inside it.
Outcome loanedGoodsRule(
    const shell::Session &session, SaleHeader &header, ValidDocument &doc, bool ask)
{
    Outcome outcome = checkSaleHeader(session, header, false);
    if (outcome && ask)
        outcome = confirmExpiredBatches(session, doc);
    if (!outcome)
        return outcome;
    setSaleHeaderColumns(session, header, doc, false);
    setSaleCosts(session, doc);
    if (!ask)
        return Outcome::done();
    return confirmPrepayment(
        session, doc.party, header.settlementMode, documentDue(session, doc), header.paid);
}

Outcome orderRule(const shell::Session &session, SaleHeader &header, ValidDocument &doc)
{
    const Outcome outcome = checkSaleHeader(session, header, false);
    if (!outcome)
        return outcome;
    setSaleHeaderColumns(session, header, doc, true);
    for (ValidLine &line : doc.lines) {
        setLineCost(
            session, saleCosts, line, stock::currentCost(session, line.goods, doc.warehouse));
        line.columns.set(QStringLiteral("ls_cksl"), 0);
        line.columns.set(QStringLiteral("ls_dhbz"), 0);
        line.columns.set(QStringLiteral("id2"), 0);
    }
    return confirmSave(session, saveQuestion(session));
}

} // namespace

Result<QString> saveSale(shell::Session &session, const SaleDraft &draft)
{
    SaleHeader header = draft.header;
    documents::DocumentDraft entry = draft.entry;
    fillCustomerPrices(session, entry);
    const Result<QString> saved = documents::saveDocument(
        session, saleKind(), entry,
        [&](const shell::Session &s, ValidDocument &doc) { return saleRule(s, header, doc); },
        [](const shell::Session &s, const ValidDocument &doc, const QString &number) {
            markLines(s, doc, number);
        });
    if (saved && checksOnSave(session.params()))
        checkSale(session, saved.value(), CheckStart::OnSave);
    return saved;
}

Outcome prepareSaleOfLoanedGoods(shell::Session &session, const SaleDraft &draft)
{
    Outcome outcome = shell::requireRight(session, "xsgl", rights::saveSale);
    if (outcome)
        outcome = shell::requireRight(session, "xsgl", rights::checkSale);
    if (!outcome)
        return outcome;
    Result<ValidDocument> valid = documents::validateDraft(session, saleKind(), draft.entry);
    if (!valid)
        return valid.outcome();
    SaleHeader header = draft.header;
    return core::guarded(
        session.ui(), [&] { return loanedGoodsRule(session, header, valid.value(), true); });
}

Result<QString> saveAndCheckSaleWithin(shell::Session &session, const SaleDraft &draft)
{
    SaleHeader header = draft.header;
    const Result<QString> saved = documents::saveDocument(
        session, saleKind(), draft.entry,
        [&](const shell::Session &s, ValidDocument &doc) {
            return loanedGoodsRule(s, header, doc, false);
        },
        [](const shell::Session &s, const ValidDocument &doc, const QString &number) {
            markLines(s, doc, number);
        });
    if (!saved)
        return saved;
    const Outcome checked = checkSaleWithin(session, saved.value());
    if (!checked)
        return checked;
    return saved;
}

Result<QString> saveSalesOrder(shell::Session &session, const SaleDraft &draft)
{
    SaleHeader header = draft.header;
    documents::DocumentDraft entry = draft.entry;
    fillCustomerPrices(session, entry);
    const Result<QString> saved = documents::saveDocument(session, salesOrderKind(), entry,
        [&](const shell::Session &s, ValidDocument &doc) { return orderRule(s, header, doc); });
    if (saved && checksOnSave(session.params()))
        checkSalesOrder(session, saved.value(), CheckStart::OnSave);
    return saved;
}

Outcome deleteSale(const shell::Session &session, const QString &number)
{
    return documents::deleteDocument(session, saleKind(), number);
}

Outcome deleteSalesOrder(const shell::Session &session, const QString &number)
{
    return documents::deleteDocument(
        session, salesOrderKind(), number, texts::deleteCheckedOrderQuestion(number));
}

} // namespace medistock::sales
