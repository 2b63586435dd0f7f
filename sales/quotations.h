#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::sales {

// Quotations: our prices to customers ("我方报价", jxc_khbj) and suppliers' prices to us
// ("供货商报价", jxc_ghsbj). Goods are gathered per operator in the work table jxc_tempspxf and
// copied over in one go.
enum class QuotationSide { Customer, Supplier };

// Puts a goods with its price (per base unit) and note among the operator's work rows; goods that
// are disabled, unknown or the discount line are refused.
Outcome addQuotationWorkRow(
    const shell::Session &session, const QString &goods, const QString &price, const QString &note);
// Empties the operator's work rows.
void clearQuotationWork(const shell::Session &session);

// Copies the operator's work rows into the side's table for the party, dated `date`, with the
// employee, empties them and logs, in one transaction. Returns how many were added. Refused
// without a party.
Result<int> addQuotations(const shell::Session &session, QuotationSide side, const QString &party,
    const QString &date, const QString &employee);

// Changes one quotation's price, date and note; deletes one. Each in one transaction, logged.
Outcome changeQuotation(const shell::Session &session, QuotationSide side, qint64 id,
    const QString &price, const QString &date, const QString &note);
Outcome deleteQuotation(const shell::Session &session, QuotationSide side, qint64 id);

struct Quotation
{
    qint64 id = 0;
    QString goods;
    QString goodsName;
    double price = 0;
    QString date;
    QString party;
    QString partyName;
    QString employeeName;
    QString note;
};

// What the query finds: dates from..to (to through its end of day), the party's name containing
// `partyName`, and the goods' code, name or mnemonic containing `goodsText`; empty texts match
// everything. Newest first.
struct QuotationFilter
{
    QString from;
    QString to;
    QString partyName;
    QString goodsText;
};
QList<Quotation> findQuotations(
    const shell::Session &session, QuotationSide side, const QuotationFilter &filter);

} // namespace medistock::sales
