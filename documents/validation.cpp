#include "documents/entry.h"

#include "core/connection.h"
#include "core/lookups.h"
#include "core/numbers.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/schemacatalogue.h"
#include "core/textclean.h"
#include "documents/expiry.h"
#include "documents/texts.h"
#include "shell/parameters.h"
#include "shell/session.h"

#include <QDate>

#include <cmath>

namespace medistock::documents {

namespace {

// A caption for a column in refusals: the screens' label, else its name.
QString columnLabel(const char *table, const char *column)
{
    if (const core::TableDef *def = core::findTable(QString::fromLatin1(table)))
        for (const core::ColumnDef &c : def->columns)
            if (qstrcmp(c.name, column) == 0 && *c.label)
                return QString::fromUtf8(c.label);
    return QString::fromLatin1(column);
}

bool isNumberColumn(const char *table, const QString &column)
{
    if (const core::TableDef *def = core::findTable(QString::fromLatin1(table)))
        for (const core::ColumnDef &c : def->columns)
            if (column == QLatin1String(c.name))
                return qstrncmp(c.type, "numeric", 7) == 0 || qstrcmp(c.type, "int") == 0;
    return false;
}

// The values a kind's rule put into the columns of one table: whatever they mean, numbers must be
// numbers that a document can hold (a rule copies typed header amounts here).
QString columnNumbersProblem(const char *table, const ColumnValues &columns)
{
    for (const auto &[column, value] : columns.items()) {
        if (value.isNull() || !isNumberColumn(table, column))
            continue;
        bool ok = false;
        const double number = value.toDouble(&ok);
        const QString label = columnLabel(table, column.toLatin1().constData());
        const QString problem = ok
            ? core::numberProblem(label, number, core::NumberKind::SignedAmount)
            : core::numberProblem(label, std::nan(""), core::NumberKind::SignedAmount);
        if (!problem.isEmpty())
            return problem;
    }
    return QString();
}

bool isDateText(const QString &text)
{
    return text.size() == 10 && QDate::fromString(text, QStringLiteral("yyyy-MM-dd")).isValid();
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
    if (*kind.header.discount) {
        const QString problem = headerAmountProblem(
            columnLabel(kind.header.table, kind.header.discount), doc.discount);
        if (!problem.isEmpty())
            return core::refuse(session.ui(), problem);
    }
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
    const auto read = [&](LineNumber which, const QString &typed, double &into) {
        const Result<double> value = readLineNumber(line.row, which, typed);
        if (value)
            into = value.value();
        return value.outcome();
    };
    Outcome outcome = read(LineNumber::Quantity, draft.quantity, input.quantity);
    if (outcome)
        outcome = read(LineNumber::Price, draft.price, input.price);
    if (outcome)
        outcome = read(LineNumber::TaxRate, draft.taxRate, input.taxRate);
    if (outcome)
        outcome = read(LineNumber::DiscountRate, draft.discountRate, input.discountRate);
    if (!outcome)
        return core::refuse(session.ui(), outcome.message());
    // Zero as stored: a quantity that rounds away to nothing is no quantity.
    if (!kind.zeroQuantityAllowed
        && core::roundTo(input.quantity, session.params().quantityDecimals()) == 0)
        return core::refuse(session.ui(), texts::quantityZero(line.row));
    return Outcome::done();
}

// What the line adds up to must keep the limits too: stock in base units, and the money.
Outcome checkFigures(const shell::Session &session, const ValidLine &line)
{
    QString problem = core::numberProblem(
        texts::baseQuantityField(line.row), line.figures.baseQuantity, core::NumberKind::Quantity);
    if (problem.isEmpty())
        problem = core::numberProblem(
            texts::lineTotalField(line.row), line.figures.total, core::NumberKind::Amount);
    if (!problem.isEmpty())
        return core::refuse(session.ui(), problem);
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
    if (!(outcome = checkFigures(session, line)))
        return outcome;
    // Batch numbers are compared as exact text on every document and in batch stock, so they
    // get only the light cleaning, whatever the document's strength: "-" and "/" stay.
    line.batch = core::cleanText(draft.batch.trimmed(), core::CleanStrength::Light);
    line.remark = core::cleanText(draft.remark, kind.cleaning);
    line.columns = draft.columns;
    return Outcome::done();
}

} // namespace

Result<double> readLineNumber(int row, LineNumber which, const QString &typed)
{
    switch (which) {
    case LineNumber::Quantity:
        return core::readNumber(texts::quantityField(row), typed, core::NumberKind::Quantity);
    case LineNumber::Price:
        return core::readNumber(texts::priceField(row), typed, core::NumberKind::Price);
    case LineNumber::Cost:
        return core::readNumber(texts::costField(row), typed, core::NumberKind::Price);
    case LineNumber::TaxRate:
        return core::readNumber(texts::taxRateField(row), typed, core::NumberKind::Percent, 0);
    case LineNumber::DiscountRate:
        return core::readNumber(
            texts::discountRateField(row), typed, core::NumberKind::DiscountRate, 1);
    }
    return Outcome::refused(QString());
}

QString headerAmountProblem(const QString &label, double value)
{
    return core::numberProblem(label, value, core::NumberKind::Amount);
}

Result<double> readHeaderAmount(const QString &label, const QString &typed)
{
    return core::readNumber(label, typed, core::NumberKind::Amount, 0);
}

QString headerAmountsProblem(const QList<LabelledAmount> &amounts)
{
    for (const LabelledAmount &amount : amounts)
        if (QString problem = headerAmountProblem(amount.label, amount.value); !problem.isEmpty())
            return problem;
    return QString();
}

Outcome checkColumnNumbers(
    const shell::Session &session, const DocumentKind &kind, const ValidDocument &doc)
{
    QString problem = columnNumbersProblem(kind.header.table, doc.columns);
    for (qsizetype i = 0; problem.isEmpty() && i < doc.lines.size(); ++i)
        problem = columnNumbersProblem(kind.lines.table, doc.lines[i].columns);
    if (problem.isEmpty())
        problem = columnNumbersProblem(kind.lines.table, doc.discountColumns);
    if (!problem.isEmpty())
        return core::refuse(session.ui(), problem);
    return Outcome::done();
}

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
