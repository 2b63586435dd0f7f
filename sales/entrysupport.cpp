#include "sales/entrysupport.h"

#include "accounts/cashbook.h"
#include "accounts/documentsupport.h"
#include "accounts/ledger.h"
#include "accounts/postings.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "documents/texts.h"
#include "sales/options.h"
#include "sales/prices.h"
#include "sales/texts.h"
#include "shell/session.h"

namespace medistock::sales {

Outcome checkSaleHeader(const shell::Session &session, SaleHeader &h, bool isReturn)
{
    h.settlementMode = h.settlementMode.trimmed();
    if (h.settlementMode.isEmpty())
        h.settlementMode = QStringLiteral("1");
    if (h.settlementMode != QLatin1String("0") && h.settlementMode != QLatin1String("1")
        && h.settlementMode != QLatin1String("2"))
        return core::refuse(session.ui(), texts::settlementModeInvalid(h.settlementMode));
    h.account = h.account.trimmed();
    if (h.account.isEmpty())
        h.account = accounts::cashAccountName();
    if (!accounts::bankAccountExists(session.db(), h.account))
        return core::refuse(session.ui(), accounts::texts::accountMissing(h.account));
    if (!accounts::isFreightTerms(h.freightTerms))
        return core::refuse(session.ui(), texts::freightTermsInvalid(h.freightTerms));
    const QString problem = documents::headerAmountsProblem({
        { documents::texts::paidField(!isReturn), h.paid },
        { documents::texts::invoiceAmountField(), h.invoiceAmount },
        { documents::texts::freightField(), h.freight },
        { documents::texts::packingField(), h.packing },
    });
    if (!problem.isEmpty())
        return core::refuse(session.ui(), problem);
    return Outcome::done();
}

void fillCustomerPrices(const shell::Session &session, documents::DocumentDraft &draft)
{
    for (documents::LineDraft &line : draft.lines)
        if (line.price.trimmed().isEmpty())
            line.price = QString::number(linePrice(session, line.goods.trimmed(),
                                             draft.party.trimmed(), line.unit.trimmed()),
                'g', 15);
}

double documentDue(const shell::Session &session, const documents::ValidDocument &doc)
{
    double totals = 0;
    for (const documents::ValidLine &line : doc.lines)
        totals += line.figures.total;
    return core::roundTo(totals - doc.discount, session.params().amountDecimals());
}

// The goods' retail price in the line's unit: the unit's own, else the base price times the
// factor.
static double retailPrice(const shell::Session &session, const documents::ValidLine &line)
{
    core::Connection &db = session.db();
    const double base = db.firstValue(QStringLiteral("select g_lsj from jxc_goods where g_sn=? "
                                                     "order by id limit 1"),
                              { line.goods })
                            .toDouble();
    if (line.unit == line.baseUnit)
        return base;
    const double own = db.firstValue(QStringLiteral("select g_lsj from jxc_goodsdw where g_sn=? "
                                                    "and dw_name=? order by id limit 1"),
                             { line.goods, line.unit })
                           .toDouble();
    return own > 0 ? own : base * line.figures.factor;
}

void setLineCost(const shell::Session &session, const CostColumns &columns,
    documents::ValidLine &line, double baseCost)
{
    const shell::Parameters &p = session.params();
    if (*columns.basePrice)
        line.columns.set(QString::fromLatin1(columns.basePrice), baseCost);
    line.columns.set(QString::fromLatin1(columns.unitPrice),
        core::roundTo(baseCost * line.figures.factor, p.priceDecimals()));
    line.columns.set(QString::fromLatin1(columns.total),
        core::roundTo(baseCost * line.figures.baseQuantity, p.amountDecimals()));
    line.columns.set(QString::fromLatin1(columns.retail),
        core::roundTo(retailPrice(session, line), p.priceDecimals()));
}

Outcome confirmSave(const shell::Session &session, const QString &question)
{
    if (session.ui().ask(question))
        return Outcome::done();
    return Outcome::refused(question);
}

Outcome confirmPrepayment(const shell::Session &session, const QString &customer,
    const QString &mode, double due, double paid)
{
    if (mode != QLatin1String("1") || !warnsOfPrepayment(session.params()))
        return Outcome::done();
    const int decimals = session.params().amountDecimals();
    const double prepayment
        = core::roundTo(-accounts::ledgerBalanceAsOf(session.db(), accounts::PartyKind::Customer,
                            customer, QStringLiteral("9999-12-31")),
            decimals);
    if (core::roundTo(due - paid, decimals) <= prepayment)
        return Outcome::done();
    const QString question = texts::prepaymentQuestion(core::plainNumber(prepayment));
    if (session.ui().ask(question))
        return Outcome::done();
    return Outcome::refused(question);
}

} // namespace medistock::sales
