#include "documents/descriptor.h"

#include "core/schemacatalogue.h"

namespace medistock::documents {

namespace {

void checkColumns(
    const char *table, std::initializer_list<const char *> columns, QStringList &problems)
{
    const QString tableName = QString::fromLatin1(table);
    const core::TableDef *def = core::findTable(tableName);
    if (!def) {
        problems.append(tableName);
        return;
    }
    for (const char *column : columns)
        if (*column && !core::hasColumn(*def, QString::fromLatin1(column)))
            problems.append(tableName + QLatin1Char('.') + QString::fromLatin1(column));
}

} // namespace

QString discountGoods()
{
    return QStringLiteral("00000000");
}

QStringList descriptorProblems(const DocumentKind &kind)
{
    QStringList problems;
    const HeaderColumns &h = kind.header;
    checkColumns(h.table,
        { h.number, h.date, h.party, h.warehouse, h.secondWarehouse, h.employee, h.operatorName,
            h.note, h.status, h.checker, h.checkDate, h.due, h.discount },
        problems);
    const LineColumns &l = kind.lines;
    checkColumns(l.table,
        { l.number, l.goods, l.unit, l.factor, l.quantity, l.baseQuantity, l.price, l.taxRate,
            l.taxedPrice, l.tax, l.amount, l.total, l.discountRate, l.remark, l.batch, l.produced,
            l.expiry, l.barcode, l.operatorName },
        problems);
    // Without these the entry cannot find, date, check or fill a document at all.
    for (const char *required :
        { h.number, h.date, h.warehouse, h.status, l.number, l.goods, l.quantity, l.price })
        if (!*required)
            problems.append(QStringLiteral("%1/%2: a required column is empty")
                                .arg(QLatin1String(h.table), QLatin1String(l.table)));
    if ((h.partyTable == PartyTable::None) != !*h.party)
        problems.append(QStringLiteral("%1: party column and party table disagree")
                            .arg(QLatin1String(h.table)));
    return problems;
}

} // namespace medistock::documents
