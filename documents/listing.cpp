#include "documents/listing.h"

#include "core/connection.h"
#include "shell/session.h"

#include <QSqlQuery>

namespace medistock::documents {

namespace {

QString name(const char *column)
{
    return QString::fromLatin1(column);
}

// `h.<column>` of the header, or `fallback` where the kind keeps no such column.
QString headerColumn(const char *column, const char *fallback = "''")
{
    return *column ? QStringLiteral("h.") + name(column) : name(fallback);
}

QString partyNameSelect(const DocumentKind &kind)
{
    const HeaderColumns &h = kind.header;
    switch (h.partyTable) {
    case PartyTable::Supplier:
        return QStringLiteral("(select ghs_name from jxc_ghsxx where ghs_sn=h.%1 limit 1)")
            .arg(name(h.party));
    case PartyTable::Customer:
        return QStringLiteral("(select kh_name from jxc_khxx where kh_sn=h.%1 limit 1)")
            .arg(name(h.party));
    case PartyTable::None:
        break;
    }
    return QStringLiteral("''");
}

QString selectList(const DocumentKind &kind)
{
    const HeaderColumns &h = kind.header;
    const LineColumns &l = kind.lines;
    const QString lineOfHeader
        = QStringLiteral("from %1 l where l.%2=h.%3 and l.%4<>?")
              .arg(name(l.table), name(l.number), name(h.number), name(l.goods));
    return QStringList { headerColumn(h.number), headerColumn(h.date), headerColumn(h.party),
        partyNameSelect(kind), headerColumn(h.warehouse),
        QStringLiteral("(select ck_name from jxc_ckxx where ck_sn=h.%1 limit 1)")
            .arg(name(h.warehouse)),
        headerColumn(h.employee),
        *h.employee ? QStringLiteral("(select u_name from jxc_user where u_sn=h.%1 limit 1)")
                          .arg(name(h.employee))
                    : QStringLiteral("''"),
        headerColumn(h.operatorName), headerColumn(h.note), headerColumn(h.status, "0"),
        headerColumn(h.checker), headerColumn(h.checkDate), headerColumn(h.due, "0"),
        QStringLiteral("(select count(*) ") + lineOfHeader + QLatin1Char(')'),
        QStringLiteral("(select sum(l.%1) ").arg(name(l.quantity)) + lineOfHeader
            + QLatin1Char(')') }
        .join(QLatin1Char(','));
}

// The conditions of the filter and their values, in the order of the statement.
QString conditions(const DocumentKind &kind, const DocumentFilter &filter, QVariantList &params)
{
    const HeaderColumns &h = kind.header;
    QStringList where { QStringLiteral("1=1") };
    const auto add = [&](const QString &condition, const QVariantList &values) {
        where.append(condition);
        params += values;
    };
    if (!filter.number.isEmpty())
        add(QStringLiteral("h.%1=?").arg(name(h.number)), { filter.number });
    if (!filter.from.isEmpty())
        add(QStringLiteral("h.%1>=?").arg(name(h.date)), { filter.from });
    if (!filter.to.isEmpty())
        add(QStringLiteral("h.%1<=?").arg(name(h.date)),
            { filter.to + QStringLiteral(" 23:59:59") });
    if (!filter.party.isEmpty() && *h.party)
        add(QStringLiteral("h.%1=?").arg(name(h.party)), { filter.party });
    if (!filter.warehouse.isEmpty())
        add(QStringLiteral("(h.%1=?%2)")
                .arg(name(h.warehouse),
                    *h.secondWarehouse ? QStringLiteral(" or h.%1=?").arg(name(h.secondWarehouse))
                                       : QString()),
            *h.secondWarehouse ? QVariantList { filter.warehouse, filter.warehouse }
                               : QVariantList { filter.warehouse });
    if (filter.status)
        add(QStringLiteral("h.%1=?").arg(name(h.status)), { *filter.status });
    if (!filter.goodsText.trimmed().isEmpty()) {
        const QString text = QLatin1Char('%') + filter.goodsText.trimmed() + QLatin1Char('%');
        const LineColumns &l = kind.lines;
        add(QStringLiteral("exists (select 1 from %1 l,jxc_goods g where l.%2=h.%3 and "
                           "g.g_sn=l.%4 and (g.g_sn like ? or g.g_name like ? or upper(g.g_jm) "
                           "like upper(?)))")
                .arg(name(l.table), name(l.number), name(h.number), name(l.goods)),
            { text, text, text });
    }
    return where.join(QStringLiteral(" and "));
}

DocumentRow rowOf(const QSqlQuery &q)
{
    DocumentRow r;
    r.number = q.value(0).toString();
    r.date = q.value(1).toString();
    r.party = q.value(2).toString();
    r.partyName = q.value(3).toString();
    r.warehouse = q.value(4).toString();
    r.warehouseName = q.value(5).toString();
    r.employee = q.value(6).toString();
    r.employeeName = q.value(7).toString();
    r.operatorName = q.value(8).toString();
    r.note = q.value(9).toString();
    r.status = q.value(10).toInt();
    r.checker = q.value(11).toString();
    r.checkDate = q.value(12).toString();
    r.due = q.value(13).toDouble();
    r.goodsCount = q.value(14).toInt();
    r.quantity = q.value(15).toDouble();
    return r;
}

double numberOf(const QSqlRecord &row, const char *column, double absent = 0)
{
    return *column ? row.value(name(column)).toDouble() : absent;
}

QString textOf(const QSqlRecord &row, const char *column)
{
    return *column ? row.value(name(column)).toString() : QString();
}

} // namespace

QList<DocumentRow> listDocuments(
    const shell::Session &session, const DocumentKind &kind, const DocumentFilter &filter)
{
    // The two sub-selects of the lines each take the discount goods first.
    QVariantList params { discountGoods(), discountGoods() };
    const QString where = conditions(kind, filter, params);
    QList<DocumentRow> rows;
    session.db().forEach(QStringLiteral("select %1 from %2 h where %3 order by h.%4,h.%5,h.id")
                             .arg(selectList(kind), name(kind.header.table), where,
                                 name(kind.header.date), name(kind.header.number)),
        params, [&](const QSqlQuery &q) { rows.append(rowOf(q)); });
    return rows;
}

std::optional<DocumentRow> findDocument(
    const shell::Session &session, const DocumentKind &kind, const QString &number)
{
    std::optional<DocumentRow> found;
    for (const DocumentRow &row : listDocuments(session, kind, { .number = number }))
        if (!found || row.status > found->status)
            found = row;
    return found;
}

QList<DocumentLineRow> documentLines(
    core::Connection &connection, const DocumentKind &kind, const QString &number)
{
    const LineColumns &l = kind.lines;
    QList<DocumentLineRow> lines;
    const QList<QSqlRecord> stored
        = connection.rows(QStringLiteral("select * from %1 where %2=? and %3<>? order by id")
                              .arg(name(l.table), name(l.number), name(l.goods)),
            { number, discountGoods() });
    for (const QSqlRecord &row : stored) {
        DocumentLineRow line;
        line.goods = row.value(name(l.goods)).toString();
        const QSqlRecord goods = connection.firstRow(
            QStringLiteral("select g_name,gg_name,g_sccs,dw_name from jxc_goods where g_sn=? "
                           "order by id limit 1"),
            { line.goods });
        line.goodsName = goods.value(0).toString();
        line.packing = goods.value(1).toString();
        line.maker = goods.value(2).toString();
        line.baseUnit = goods.value(3).toString();
        line.unit = textOf(row, l.unit);
        if (line.unit.isEmpty())
            line.unit = line.baseUnit;
        line.quantity = numberOf(row, l.quantity);
        line.baseQuantity = *l.baseQuantity ? numberOf(row, l.baseQuantity) : line.quantity;
        line.price = numberOf(row, l.price);
        line.taxRate = numberOf(row, l.taxRate);
        line.taxedPrice = numberOf(row, l.taxedPrice);
        line.tax = numberOf(row, l.tax);
        line.amount = numberOf(row, l.amount);
        line.total = numberOf(row, l.total);
        line.discountRate = numberOf(row, l.discountRate, 1);
        line.batch = textOf(row, l.batch);
        line.produced = textOf(row, l.produced);
        line.expiry = textOf(row, l.expiry);
        line.remark = textOf(row, l.remark);
        line.stored = row;
        lines.append(line);
    }
    return lines;
}

} // namespace medistock::documents
