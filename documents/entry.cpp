#include "documents/entry.h"

#include "core/connection.h"
#include "core/dberror.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/schemacatalogue.h"
#include "core/transaction.h"
#include "documents/lifecycle.h"
#include "documents/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QDate>

namespace medistock::documents {

namespace {

// A row to write: column names (from the descriptor or checked against the catalogue) and values.
using Row = QList<std::pair<QString, QVariant>>;

void put(Row &row, const char *column, const QVariant &value)
{
    if (*column)
        row.append({ QString::fromLatin1(column), value });
}

// The kind's own columns follow the shared ones; a shared column named again takes the new value.
void merge(Row &row, const ColumnValues &columns, const char *table)
{
    const core::TableDef *def = core::findTable(QString::fromLatin1(table));
    for (const auto &[column, value] : columns.items()) {
        if (!def || !core::hasColumn(*def, column))
            throw core::DbError(
                QStringLiteral("数据表 %1 没有字段：%2").arg(QLatin1String(table), column));
        auto it = std::find_if(
            row.begin(), row.end(), [&](const auto &item) { return item.first == column; });
        if (it != row.end())
            it->second = value;
        else
            row.append({ column, value });
    }
}

void insertRow(core::Connection &db, const char *table, const Row &row)
{
    QStringList columns;
    QVariantList values;
    for (const auto &[column, value] : row) {
        columns.append(column);
        values.append(value);
    }
    db.insert(QStringLiteral("insert into %1 (%2) values (%3)")
                  .arg(QLatin1String(table), columns.join(QLatin1Char(',')),
                      QStringList(columns.size(), QStringLiteral("?")).join(QLatin1Char(','))),
        values);
}

void updateRows(core::Connection &db, const char *table, const Row &row, const QString &where,
    const QVariantList &whereValues)
{
    QStringList sets;
    QVariantList values;
    for (const auto &[column, value] : row) {
        sets.append(column + QStringLiteral("=?"));
        values.append(value);
    }
    db.exec(QStringLiteral("update %1 set %2 where %3")
                .arg(QLatin1String(table), sets.join(QLatin1Char(',')), where),
        values + whereValues);
}

QString equals(const char *column)
{
    return QString::fromLatin1(column) + QStringLiteral("=?");
}

// The number a saved document carries: its own while the date keeps its day, else the next one
// of the new date.
Result<QString> numberFor(core::Connection &db, const DocumentKind &kind, const ValidDocument &doc)
{
    const QString prefix = QString::fromLatin1(kind.prefix);
    const QDate date = QDate::fromString(doc.date, QStringLiteral("yyyy-MM-dd"));
    if (!doc.number.isEmpty()
        && doc.number.startsWith(prefix + date.toString(QStringLiteral("yyMMdd"))))
        return doc.number;
    return core::nextDocumentNumber(db, QString::fromLatin1(kind.header.table),
        QString::fromLatin1(kind.header.number), prefix, date);
}

Row headerRow(const shell::Session &session, const DocumentKind &kind, const ValidDocument &doc,
    const QString &number)
{
    const HeaderColumns &h = kind.header;
    double totals = 0;
    for (const ValidLine &line : doc.lines)
        totals += line.figures.total;
    Row row;
    put(row, h.number, number);
    put(row, h.date, doc.date);
    put(row, h.party, doc.party);
    put(row, h.warehouse, doc.warehouse);
    put(row, h.secondWarehouse, doc.secondWarehouse);
    put(row, h.employee, doc.employee);
    put(row, h.operatorName, session.user().name);
    put(row, h.note, doc.note);
    put(row, h.status, 0);
    put(row, h.checker, QString());
    put(row, h.checkDate, QString());
    put(row, h.due, core::roundTo(totals - doc.discount, session.params().amountDecimals()));
    put(row, h.discount, doc.discount);
    merge(row, doc.columns, h.table);
    return row;
}

Row lineRow(const shell::Session &session, const DocumentKind &kind, const ValidLine &line,
    const QString &number)
{
    const LineColumns &l = kind.lines;
    const LineFigures &f = line.figures;
    Row row;
    put(row, l.number, number);
    put(row, l.goods, line.goods);
    put(row, l.unit, line.unit);
    put(row, l.factor, f.factor);
    put(row, l.quantity, f.quantity);
    put(row, l.baseQuantity, f.baseQuantity);
    put(row, l.price, f.price);
    put(row, l.taxRate, f.taxRate);
    put(row, l.taxedPrice, f.taxedPrice);
    put(row, l.tax, f.tax);
    put(row, l.amount, f.amount);
    put(row, l.total, f.total);
    put(row, l.discountRate, f.discountRate);
    put(row, l.remark, line.remark);
    put(row, l.batch, line.batch);
    put(row, l.produced, line.produced);
    put(row, l.expiry, line.expiry);
    put(row, l.barcode, line.barcode);
    put(row, l.operatorName, session.user().name);
    merge(row, line.columns, l.table);
    return row;
}

void deleteLines(core::Connection &db, const DocumentKind &kind, const QString &number)
{
    db.exec(QStringLiteral("delete from %1 where %2")
                .arg(QLatin1String(kind.lines.table), equals(kind.lines.number)),
        { number });
}

QString savedLog(const DocumentKind &kind, const QString &number, int goodsCount, bool isNew)
{
    if (kind.savedLog)
        return kind.savedLog(number, goodsCount, isNew);
    return texts::savedLog(QString::fromUtf8(kind.title), number, goodsCount, isNew);
}

// Inside the transaction: the number is decided, tested, and the rows are written.
Outcome write(const shell::Session &session, const DocumentKind &kind, const ValidDocument &doc,
    const EntryWrite &written, QString &number)
{
    core::Connection &db = session.db();
    const bool isNew = doc.number.isEmpty();
    if (!isNew) {
        const std::optional<int> status = documentStatus(db, kind, doc.number);
        if (!status)
            return core::refuse(session.ui(), texts::documentMissing(doc.number));
        if (*status != 0)
            return core::refuse(session.ui(), texts::checkedCannotChange(doc.number));
    }
    const Result<QString> given = numberFor(db, kind, doc);
    if (!given)
        return core::refuse(session.ui(), given.message());
    number = given.value();
    if (number != doc.number) {
        const Result<bool> taken = core::isNumberTaken(db, QString::fromLatin1(kind.header.table),
            QString::fromLatin1(kind.header.number), number, session.user().name);
        if (!taken || taken.value())
            return core::refuse(session.ui(), taken ? texts::numberTaken(number) : taken.message());
    }
    const Row header = headerRow(session, kind, doc, number);
    if (isNew) {
        insertRow(db, kind.header.table, header);
    } else {
        updateRows(db, kind.header.table, header, equals(kind.header.number), { doc.number });
        deleteLines(db, kind, doc.number);
    }
    for (const ValidLine &line : doc.lines)
        insertRow(db, kind.lines.table, lineRow(session, kind, line, number));
    writeDiscountLine(session, kind, number, doc.discount, doc.discountColumns);
    if (written)
        written(session, doc, number);
    session.log(savedLog(kind, number, int(doc.lines.size()), isNew));
    return Outcome::done();
}

Outcome requireKindRight(const shell::Session &session, const DocumentKind &kind, int position)
{
    if (!*kind.rightArea || position <= 0)
        return Outcome::done();
    return shell::requireRight(session, kind.rightArea, position);
}

// What can be told before anything is asked or checked: the document exists and is unchecked.
Outcome requireUnchecked(const shell::Session &session, const DocumentKind &kind,
    const QString &number, QString (*checkedText)(const QString &))
{
    const std::optional<int> status = documentStatus(session.db(), kind, number);
    if (!status)
        return core::refuse(session.ui(), texts::documentMissing(number));
    if (*status != 0)
        return core::refuse(session.ui(), checkedText(number));
    return Outcome::done();
}

} // namespace

void ColumnValues::set(const QString &column, const QVariant &value)
{
    for (auto &item : m_items)
        if (item.first == column) {
            item.second = value;
            return;
        }
    m_items.append({ column, value });
}

bool ColumnValues::contains(const QString &column) const
{
    return std::any_of(
        m_items.begin(), m_items.end(), [&](const auto &item) { return item.first == column; });
}

QVariant ColumnValues::value(const QString &column) const
{
    for (const auto &item : m_items)
        if (item.first == column)
            return item.second;
    return {};
}

Result<QString> saveDocument(const shell::Session &session, const DocumentKind &kind,
    const DocumentDraft &draft, const EntryRule &rule, const EntryWrite &written)
{
    Outcome outcome = requireKindRight(session, kind, kind.saveRight);
    if (outcome && !draft.number.isEmpty())
        outcome = core::guarded(session.ui(), [&] {
            return requireUnchecked(session, kind, draft.number, texts::checkedCannotChange);
        });
    if (!outcome)
        return outcome;
    Result<ValidDocument> valid = validateDraft(session, kind, draft);
    if (!valid)
        return valid.outcome();
    ValidDocument &doc = valid.value();
    if (rule && !(outcome = core::guarded(session.ui(), [&] { return rule(session, doc); })))
        return outcome;
    if (!(outcome = checkColumnNumbers(session, kind, doc)))
        return outcome;
    QString number;
    outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        const Outcome saved = write(session, kind, doc, written, number);
        if (saved)
            transaction.commit();
        return saved;
    });
    if (!outcome)
        return outcome;
    return number;
}

Outcome deleteDocument(const shell::Session &session, const DocumentKind &kind,
    const QString &number, const QString &checkedQuestion)
{
    Outcome outcome = requireKindRight(session, kind, kind.deleteRight);
    if (!outcome)
        return outcome;
    int status = 0;
    outcome = core::guarded(session.ui(), [&] {
        const std::optional<int> found = documentStatus(session.db(), kind, number);
        if (!found)
            return core::refuse(session.ui(), texts::documentMissing(number));
        status = *found;
        if (status == 0)
            return Outcome::done();
        if (checkedQuestion.isEmpty())
            return core::refuse(session.ui(), texts::checkedCannotDelete(number));
        if (session.ui().ask(checkedQuestion))
            return Outcome::done();
        return Outcome::refused(checkedQuestion);
    });
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        // Read again inside the transaction: another workstation may have checked it meanwhile.
        const Outcome unchanged = status == 0
            ? requireUnchecked(session, kind, number, texts::checkedCannotDelete)
            : requireStatus(session, kind, number, 1);
        if (!unchanged)
            return unchanged;
        core::Connection &db = session.db();
        deleteLines(db, kind, number);
        db.exec(QStringLiteral("delete from %1 where %2")
                    .arg(QLatin1String(kind.header.table), equals(kind.header.number)),
            { number });
        const QString title = QString::fromUtf8(kind.title);
        session.log(status == 0 ? texts::deletedLog(title, number)
                                : texts::deletedCheckedLog(title, number));
        transaction.commit();
        return Outcome::done();
    });
}

std::optional<StoredDocument> readDocument(
    core::Connection &connection, const DocumentKind &kind, const QString &number)
{
    const HeaderColumns &h = kind.header;
    StoredDocument document;
    document.header = connection.firstRow(
        QStringLiteral("select * from %1 where %2 order by %3 desc,id limit 1")
            .arg(QLatin1String(h.table), equals(h.number), QLatin1String(h.status)),
        { number });
    if (document.header.isEmpty())
        return std::nullopt;
    document.lines
        = connection.rows(QStringLiteral("select * from %1 where %2 order by id")
                              .arg(QLatin1String(kind.lines.table), equals(kind.lines.number)),
            { number });
    return document;
}

std::optional<int> documentStatus(
    core::Connection &connection, const DocumentKind &kind, const QString &number)
{
    const HeaderColumns &h = kind.header;
    const QVariant status = connection.firstValue(
        QStringLiteral("select %1 from %2 where %3 order by %1 desc limit 1")
            .arg(QLatin1String(h.status), QLatin1String(h.table), equals(h.number)),
        { number });
    if (!status.isValid())
        return std::nullopt;
    return status.toInt();
}

void writeDiscountLine(const shell::Session &session, const DocumentKind &kind,
    const QString &number, double discount, const ColumnValues &columns)
{
    core::Connection &db = session.db();
    const LineColumns &l = kind.lines;
    const QString where = equals(l.number) + QStringLiteral(" and ") + equals(l.goods);
    const QVariantList keys { number, discountGoods() };
    if (discount == 0) {
        db.exec(QStringLiteral("delete from %1 where %2").arg(QLatin1String(l.table), where), keys);
        return;
    }
    if (db.exists(
            QStringLiteral("select id from %1 where %2 limit 1").arg(QLatin1String(l.table), where),
            keys)) {
        // An existing line only takes the new amount; who entered it and its marks stay.
        Row amounts;
        put(amounts, l.amount, -discount);
        put(amounts, l.total, -discount);
        if (!amounts.isEmpty())
            updateRows(db, l.table, amounts, where, keys);
        return;
    }
    ValidLine line;
    line.goods = discountGoods();
    line.figures.amount = line.figures.total = -discount;
    line.columns = columns;
    insertRow(db, l.table, lineRow(session, kind, line, number));
}

} // namespace medistock::documents
