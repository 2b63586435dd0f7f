// 单据查询 and the read-only view of one document.
#include "documents/descriptor.h"
#include "purchasing/kinds.h"
#include "sales/kinds.h"
#include "statistics/reading.h"
#include "statistics/reports.h"
#include "statistics/texts.h"
#include "stock/documents/kinds.h"

#include <algorithm>

namespace medistock::statistics {

namespace {

using documents::DocumentKind;

const QList<const DocumentKind *> &goodsDocumentKinds()
{
    static const QList<const DocumentKind *> kinds { &purchasing::purchaseReceipt().entry,
        &purchasing::purchaseReturn().entry, &sales::saleKind(), &sales::salesReturnKind(),
        &sales::salesOrderKind(), &stock::transferEntry(), &stock::stockTakingEntry(),
        &stock::lossEntry(), &stock::overflowEntry() };
    return kinds;
}

const DocumentKind *kindOf(const QString &number)
{
    for (const DocumentKind *kind : goodsDocumentKinds())
        if (number.left(2).compare(QLatin1String(kind->prefix), Qt::CaseInsensitive) == 0)
            return kind;
    return nullptr;
}

// A column of the descriptor, or NULL where its table lacks one.
QString column(const QString &alias, const char *name)
{
    return *name ? alias + QLatin1Char('.') + QLatin1String(name) : QStringLiteral("null");
}

QString lookUp(const char *table, const char *key, const char *name, const QString &value)
{
    if (value == QLatin1String("null"))
        return value;
    return QStringLiteral("(select %1 from %2 where %3=%4 order by id limit 1)")
        .arg(QLatin1String(name), QLatin1String(table), QLatin1String(key), value);
}

QString partyName(const DocumentKind &kind)
{
    const QString party = column(QStringLiteral("a"), kind.header.party);
    switch (kind.header.partyTable) {
    case documents::PartyTable::Supplier:
        return lookUp("jxc_ghsxx", "ghs_sn", "ghs_name", party);
    case documents::PartyTable::Customer:
        return lookUp("jxc_khxx", "kh_sn", "kh_name", party);
    case documents::PartyTable::None:
        break;
    }
    return QStringLiteral("null");
}

// The header select of one kind; the conditions that follow start with " and ".
QString headerSelect(const DocumentKind &kind)
{
    const documents::HeaderColumns &h = kind.header;
    const documents::LineColumns &l = kind.lines;
    const QString total = *l.total
        ? QStringLiteral("(select coalesce(sum(l.%1),0) from %2 l where l.%3=a.%4)")
              .arg(QLatin1String(l.total), QLatin1String(l.table), QLatin1String(l.number),
                  QLatin1String(h.number))
        : QStringLiteral("null");
    return QStringLiteral("select a.%1,a.%2,%3,%4,%5,%6,%7,a.%8 from %9 a where 1=1")
        .arg(QLatin1String(h.number), QLatin1String(h.date), partyName(kind),
            lookUp("jxc_ckxx", "ck_sn", "ck_name", column(QStringLiteral("a"), h.warehouse)),
            lookUp("jxc_user", "u_sn", "u_name", column(QStringLiteral("a"), h.employee)),
            column(QStringLiteral("a"), h.operatorName), total, QLatin1String(h.status),
            QLatin1String(h.table));
}

DocumentRow documentRow(const DocumentKind &kind, const QSqlQuery &q)
{
    return { QLatin1String(kind.prefix), QString::fromUtf8(kind.title), q.value(0).toString(),
        q.value(1).toString(), q.value(2).toString(), q.value(3).toString(), q.value(4).toString(),
        q.value(5).toString(), q.value(6).toDouble(), q.value(7).toInt() };
}

// The search of one kind; nothing when the kind cannot match (a party asked of a stock document).
std::optional<Sql> searchOf(const DocumentKind &kind, const DocumentSearch &search)
{
    const documents::HeaderColumns &h = kind.header;
    Sql sql { headerSelect(kind), {} };
    if (!search.range.from.isEmpty())
        sql += { QStringLiteral(" and a.%1>=?").arg(QLatin1String(h.date)), { search.range.from } };
    if (!search.range.to.isEmpty())
        sql += { QStringLiteral(" and a.%1<=?").arg(QLatin1String(h.date)),
            { search.range.toEnd() } };
    if (!search.number.trimmed().isEmpty())
        sql += { QStringLiteral(" and a.%1 like ?").arg(QLatin1String(h.number)),
            { QLatin1Char('%') + search.number.trimmed() + QLatin1Char('%') } };
    if (!search.party.trimmed().isEmpty()) {
        if (!*h.party)
            return std::nullopt;
        const QString pattern = QLatin1Char('%') + search.party.trimmed() + QLatin1Char('%');
        sql += { QStringLiteral(" and (a.%1 like ? or %2 like ?)")
                     .arg(QLatin1String(h.party), partyName(kind)),
            { pattern, pattern } };
    }
    if (search.status)
        sql += { QStringLiteral(" and a.%1=?").arg(QLatin1String(h.status)), { *search.status } };
    return sql;
}

QList<DocumentRow> findDocuments(const shell::Session &session, const DocumentSearch &search)
{
    QList<DocumentRow> rows;
    for (const DocumentKind *kind : goodsDocumentKinds()) {
        if (!search.prefix.isEmpty()
            && search.prefix.compare(QLatin1String(kind->prefix), Qt::CaseInsensitive) != 0)
            continue;
        if (const std::optional<Sql> sql = searchOf(*kind, search))
            rows += selectRows<DocumentRow>(
                session, *sql, [&](const QSqlQuery &q) { return documentRow(*kind, q); });
    }
    std::stable_sort(rows.begin(), rows.end(), [](const DocumentRow &a, const DocumentRow &b) {
        return a.date != b.date ? a.date > b.date : a.number > b.number;
    });
    return rows;
}

QList<DocumentLine> linesOf(
    const shell::Session &session, const DocumentKind &kind, const QString &number)
{
    const documents::LineColumns &l = kind.lines;
    const QString alias = QStringLiteral("l");
    const QString unit
        = *l.unit ? QStringLiteral("l.") + QLatin1String(l.unit) : QStringLiteral("b.dw_name");
    const Sql sql { QStringLiteral("select l.%1,b.g_name,%2,%3,%4,%5,%6,%7 from %8 l left join "
                                   "jxc_goods b on b.g_sn=l.%1 where l.%9=? and l.%1<>? "
                                   "order by l.id")
                        .arg(QLatin1String(l.goods), unit, column(alias, l.quantity),
                            column(alias, l.price), column(alias, l.total), column(alias, l.batch),
                            column(alias, l.expiry), QLatin1String(l.table),
                            QLatin1String(l.number)),
        { number, documents::discountGoods() } };
    return selectRows<DocumentLine>(session, sql, [](const QSqlQuery &q) {
        return DocumentLine { q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
            q.value(3).toDouble(), q.value(4).toDouble(), q.value(5).toDouble(),
            q.value(6).toString(), q.value(7).toString() };
    });
}

} // namespace

QList<QPair<QString, QString>> documentKinds()
{
    QList<QPair<QString, QString>> kinds;
    for (const DocumentKind *kind : goodsDocumentKinds())
        kinds.append({ QLatin1String(kind->prefix), QString::fromUtf8(kind->title) });
    return kinds;
}

Result<QList<DocumentRow>> searchDocuments(
    const shell::Session &session, const DocumentSearch &search)
{
    const bool ranged = !search.range.from.isEmpty() || !search.range.to.isEmpty();
    return readReport<QList<DocumentRow>>(session, 11, ranged ? &search.range : nullptr,
        [&] { return findDocuments(session, search); });
}

Result<DocumentView> documentView(const shell::Session &session, const QString &number)
{
    const DocumentKind *kind = kindOf(number);
    if (!kind)
        return core::refuse(session.ui(), texts::unknownDocumentKind(number));
    std::optional<DocumentView> view;
    const Outcome read = core::guarded(session.ui(), [&] {
        const Sql sql { headerSelect(*kind)
                + QStringLiteral(" and a.%1=? order by a.%2 desc,a.id")
                      .arg(QLatin1String(kind->header.number), QLatin1String(kind->header.status)),
            { number } };
        const QList<DocumentRow> headers = selectRows<DocumentRow>(
            session, sql, [&](const QSqlQuery &q) { return documentRow(*kind, q); });
        if (!headers.isEmpty())
            view = DocumentView { headers.first(), linesOf(session, *kind, number) };
        return Outcome::done();
    });
    if (!read)
        return read;
    if (!view)
        return core::refuse(session.ui(), texts::documentNotFound(number));
    return *view;
}

} // namespace medistock::statistics
