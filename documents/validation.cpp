#include "documents/entry.h"

#include "core/connection.h"
#include "core/lookups.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/textclean.h"
#include "documents/expiry.h"
#include "documents/texts.h"
#include "shell/parameters.h"
#include "shell/session.h"

#include <QDate>

#include <cmath>

namespace medistock::documents {

namespace {

bool isDateText(const QString &text)
{
    return text.size() == 10 && QDate::fromString(text, QStringLiteral("yyyy-MM-dd")).isValid();
}

// A typed number: decimal text, blanks around it allowed; nothing for anything else.
std::optional<double> typedNumber(const QString &text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value))
        return std::nullopt;
    return value;
}

// An optional number: empty reads as `absent`.
std::optional<double> typedNumber(const QString &text, double absent)
{
    return text.trimmed().isEmpty() ? std::optional<double>(absent) : typedNumber(text);
}

Outcome checkParty(const shell::Session &session, const DocumentKind &kind, ValidDocument &doc)
{
    if (kind.header.partyTable == PartyTable::None || !*kind.header.party) {
        doc.party.clear();
        return Outcome::done();
    }
    const bool supplier = kind.header.partyTable == PartyTable::Supplier;
    if (doc.party.isEmpty())
        return core::refuse(session.ui(), texts::partyRequired(supplier));
    const QSqlRecord row = session.db().firstRow(supplier
            ? QStringLiteral("select ghs_name,ghs_forbid from jxc_ghsxx where ghs_sn=? order by "
                             "id limit 1")
            : QStringLiteral("select kh_name,kh_forbid from jxc_khxx where kh_sn=? order by id "
                             "limit 1"),
        { doc.party });
    if (row.isEmpty())
        return core::refuse(session.ui(), texts::partyMissing(supplier, doc.party));
    doc.partyName = row.value(0).toString();
    if (shell::readFlag(row.value(1)))
        return core::refuse(session.ui(), texts::partyForbidden(supplier, doc.partyName));
    return Outcome::done();
}

Outcome checkWarehouse(const shell::Session &session, const QString &code)
{
    if (code.isEmpty())
        return core::refuse(session.ui(), texts::warehouseRequired());
    if (!session.db().exists(
            QStringLiteral("select id from jxc_ckxx where ck_sn=? limit 1"), { code }))
        return core::refuse(session.ui(), texts::warehouseMissing(code));
    return Outcome::done();
}

Outcome checkHeader(const shell::Session &session, const DocumentKind &kind,
    const DocumentDraft &draft, ValidDocument &doc)
{
    core::Connection &db = session.db();
    doc.number = draft.number;
    doc.date = draft.date.trimmed();
    doc.party = draft.party.trimmed();
    doc.warehouse = draft.warehouse.trimmed();
    doc.secondWarehouse = draft.secondWarehouse.trimmed();
    doc.employee = draft.employee.trimmed();
    doc.note = core::cleanText(draft.note, kind.cleaning);
    doc.discount = draft.discount;
    doc.columns = draft.columns;
    if (!isDateText(doc.date))
        return core::refuse(session.ui(), texts::dateInvalid(doc.date));
    Outcome outcome = checkParty(session, kind, doc);
    if (!outcome)
        return outcome;
    if (!(outcome = checkWarehouse(session, doc.warehouse)))
        return outcome;
    if (*kind.header.secondWarehouse && !(outcome = checkWarehouse(session, doc.secondWarehouse)))
        return outcome;
    if (doc.employee.isEmpty())
        doc.employee = core::defaultEmployeeCode(db);
    else if (!db.exists(
                 QStringLiteral("select id from jxc_user where u_sn=? limit 1"), { doc.employee }))
        return core::refuse(session.ui(), texts::employeeMissing(doc.employee));
    if (doc.discount != 0 && !*kind.header.discount)
        return core::refuse(session.ui(), texts::discountNotOffered(QString::fromUtf8(kind.title)));
    if (draft.lines.isEmpty())
        return core::refuse(session.ui(), texts::noLines());
    return Outcome::done();
}

Outcome checkGoods(const shell::Session &session, const LineDraft &draft, ValidLine &line)
{
    line.goods = draft.goods.trimmed();
    if (line.goods.isEmpty())
        return core::refuse(session.ui(), texts::goodsRequired(line.row));
    if (line.goods == discountGoods())
        return core::refuse(session.ui(), texts::discountGoodsEntered(line.row));
    const QSqlRecord goods = session.db().firstRow(
        QStringLiteral("select g_name,dw_name,g_jy,g_sptm from jxc_goods where g_sn=? order by id "
                       "limit 1"),
        { line.goods });
    if (goods.isEmpty())
        return core::refuse(session.ui(), texts::goodsMissing(line.row, line.goods));
    line.goodsName = goods.value(0).toString();
    line.baseUnit = goods.value(1).toString();
    line.barcode = goods.value(3).toString();
    if (shell::readFlag(goods.value(2)))
        return core::refuse(session.ui(), texts::goodsDisabled(line.row, line.goodsName));
    return Outcome::done();
}

// The base unit has the factor 1; any other unit must be one of the goods' units, with its
// factor. A kind whose lines keep no unit takes the base unit only.
Outcome checkUnit(const shell::Session &session, const DocumentKind &kind, const LineDraft &draft,
    ValidLine &line, double &factor)
{
    const QString unit = draft.unit.trimmed();
    factor = 1;
    line.unit = line.baseUnit;
    if (unit.isEmpty() || unit == line.baseUnit)
        return Outcome::done();
    const QSqlRecord row = *kind.lines.unit
        ? session.db().firstRow(QStringLiteral("select g_zhxs,g_sptm from jxc_goodsdw where "
                                               "g_sn=? and dw_name=? order by id limit 1"),
            { line.goods, unit })
        : QSqlRecord();
    if (row.isEmpty())
        return core::refuse(session.ui(), texts::unitMissing(line.row, line.goodsName, unit));
    factor = row.value(0).toDouble();
    if (!(factor > 0))
        return core::refuse(session.ui(), texts::unitWithoutFactor(line.row, line.goodsName, unit));
    line.unit = unit;
    if (!row.value(1).toString().isEmpty())
        line.barcode = row.value(1).toString();
    return Outcome::done();
}

Outcome checkNumbers(const shell::Session &session, const DocumentKind &kind,
    const LineDraft &draft, ValidLine &line, LineInput &input)
{
    core::Interaction &ui = session.ui();
    const int row = line.row;
    const auto quantity = typedNumber(draft.quantity);
    if (!quantity)
        return core::refuse(ui, texts::quantityNotNumber(row, draft.quantity));
    const auto price = typedNumber(draft.price);
    if (!price)
        return core::refuse(ui, texts::priceNotNumber(row, draft.price));
    const auto taxRate = typedNumber(draft.taxRate, 0);
    if (!taxRate || *taxRate < 0)
        return core::refuse(ui, texts::taxRateNotNumber(row, draft.taxRate));
    const auto discountRate = typedNumber(draft.discountRate, 1);
    if (!discountRate || *discountRate < 0)
        return core::refuse(ui, texts::discountRateNotNumber(row, draft.discountRate));
    if (*quantity < 0)
        return core::refuse(ui, texts::quantityNegative(row));
    // Zero as stored: a quantity that rounds away to nothing is no quantity.
    if (!kind.zeroQuantityAllowed
        && core::roundTo(*quantity, session.params().quantityDecimals()) == 0)
        return core::refuse(ui, texts::quantityZero(row));
    if (*price < 0)
        return core::refuse(ui, texts::priceNegative(row));
    input.quantity = *quantity;
    input.price = *price;
    input.taxRate = *taxRate;
    input.discountRate = *discountRate;
    return Outcome::done();
}

Outcome checkDates(const shell::Session &session, const LineDraft &draft, ValidLine &line)
{
    line.produced = draft.produced.trimmed();
    line.expiry = draft.expiry.trimmed();
    if (!line.produced.isEmpty() && !isDateText(line.produced))
        return core::refuse(session.ui(), texts::producedInvalid(line.row, line.produced));
    if (!isExpiryText(line.expiry))
        return core::refuse(session.ui(), texts::expiryInvalid(line.row, line.expiry));
    if (!line.produced.isEmpty() && expiredBy(line.expiry, line.produced))
        return core::refuse(session.ui(), texts::expiryBeforeProduced(line.row));
    return Outcome::done();
}

Outcome checkLine(const shell::Session &session, const DocumentKind &kind, const LineDraft &draft,
    ValidLine &line)
{
    Outcome outcome = checkGoods(session, draft, line);
    double factor = 1;
    if (outcome)
        outcome = checkUnit(session, kind, draft, line, factor);
    LineInput input;
    if (outcome)
        outcome = checkNumbers(session, kind, draft, line, input);
    if (outcome)
        outcome = checkDates(session, draft, line);
    if (!outcome)
        return outcome;
    input.factor = factor;
    line.figures = computeLine(input, LineRounding::of(session.params()));
    // Batch numbers are compared as exact text on every document and in batch stock, so they
    // get only the light cleaning, whatever the document's strength: "-" and "/" stay.
    line.batch = core::cleanText(draft.batch.trimmed(), core::CleanStrength::Light);
    line.remark = core::cleanText(draft.remark, kind.cleaning);
    line.columns = draft.columns;
    return Outcome::done();
}

} // namespace

Result<ValidDocument> validateDraft(
    const shell::Session &session, const DocumentKind &kind, const DocumentDraft &draft)
{
    ValidDocument doc;
    const Outcome checked = core::guarded(session.ui(), [&] {
        Outcome outcome = checkHeader(session, kind, draft, doc);
        for (qsizetype i = 0; outcome && i < draft.lines.size(); ++i) {
            ValidLine line;
            line.row = int(i) + 1;
            outcome = checkLine(session, kind, draft.lines[i], line);
            doc.lines.append(std::move(line));
        }
        return outcome;
    });
    if (!checked)
        return checked;
    return doc;
}

} // namespace medistock::documents
