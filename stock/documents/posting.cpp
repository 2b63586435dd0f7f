#include "stock/documents/posting.h"

#include "core/connection.h"
#include "core/operation.h"
#include "documents/lifecycle.h"
#include "documents/texts.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/documents/texts.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::stock {

namespace {

QLatin1String name(const char *column)
{
    return QLatin1String(column);
}

// A column the descriptor may leave empty reads as an empty text.
QString columnOrEmpty(const char *column)
{
    return *column ? QStringLiteral("a.") + name(column) : QStringLiteral("''");
}

QString warehouseName(const QString &column)
{
    return QStringLiteral("(select ck_name from jxc_ckxx where ck_sn=a.%1 order by id limit 1)")
        .arg(column);
}

} // namespace

std::optional<StockHeader> readStockHeader(
    const shell::Session &session, const documents::DocumentKind &kind, const QString &number)
{
    const documents::HeaderColumns &h = kind.header;
    const QString second = columnOrEmpty(h.secondWarehouse);
    const QSqlRecord row = session.db().firstRow(
        QStringLiteral("select a.id,a.%1,a.%2,a.%3,%4,%5,%6,a.%7,(select u_name from jxc_user "
                       "where u_sn=a.%7 order by id limit 1),a.%8,a.%9 from %10 a where a.%1=? "
                       "order by a.%9 desc,a.id limit 1")
            .arg(name(h.number), name(h.date), name(h.warehouse), warehouseName(name(h.warehouse)),
                second,
                *h.secondWarehouse ? warehouseName(name(h.secondWarehouse)) : QStringLiteral("''"),
                name(h.employee), name(h.note), name(h.status), name(h.table)),
        { number });
    if (row.isEmpty())
        return std::nullopt;
    StockHeader header;
    header.id = row.value(0).toLongLong();
    header.number = row.value(1).toString();
    header.date = row.value(2).toString();
    header.warehouse = row.value(3).toString();
    header.warehouseName = row.value(4).toString();
    header.secondWarehouse = row.value(5).toString();
    header.secondWarehouseName = row.value(6).toString();
    header.employee = row.value(7).toString();
    header.employeeName = row.value(8).toString();
    header.note = row.value(9).toString();
    header.status = row.value(10).toInt();
    return header;
}

Outcome prepareCheck(const shell::Session &session, const documents::DocumentKind &kind,
    const QString &number, int checkRight, StockHeader &header)
{
    return core::guarded(session.ui(), [&] {
        const Outcome allowed = shell::requireRight(session, "kcgl", checkRight);
        if (!allowed)
            return allowed;
        const auto found = readStockHeader(session, kind, number);
        if (!found)
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        if (found->status != 0)
            return core::refuse(session.ui(), documents::texts::alreadyChecked(number));
        header = *found;
        return Outcome::done();
    });
}

Outcome prepareUncheck(const shell::Session &session, const documents::DocumentKind &kind,
    const QString &number, int uncheckRight, StockHeader &header)
{
    return core::guarded(session.ui(), [&] {
        if (!shell::hasRight(session, QStringLiteral("kcgl"), uncheckRight))
            return core::refuse(session.ui(), texts::noUncheckRight(QString::fromUtf8(kind.title)));
        const auto found = readStockHeader(session, kind, number);
        if (!found)
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        if (found->status != 1)
            return core::refuse(session.ui(), documents::texts::notChecked(number));
        header = *found;
        return documents::requireOpenPeriod(session, header.date);
    });
}

Result<StockHeader> headerInTransaction(const shell::Session &session,
    const documents::DocumentKind &kind, const QString &number, int status)
{
    const Outcome current = documents::requireStatus(session, kind, number, status);
    if (!current)
        return current;
    return *readStockHeader(session, kind, number);
}

LedgerRow documentRow(
    const shell::Session &session, const StockHeader &header, const QString &ledgerKind)
{
    PostingHeader posting;
    posting.number = header.number;
    posting.date = header.date;
    posting.warehouse = header.warehouse;
    posting.warehouseName = header.warehouseName;
    posting.employeeName = header.employeeName;
    posting.note = header.note;
    LedgerRow row = headerRow(session, posting, ledgerKind);
    row.discountRate = 1;
    return row;
}

void copyGoods(LedgerRow &row, const QSqlQuery &query, int first)
{
    row.goodsName = query.value(first).toString();
    row.mnemonic = query.value(first + 1).toString();
    row.unit = query.value(first + 2).toString();
    row.packing = query.value(first + 3).toString();
    row.approvalNumber = query.value(first + 4).toString();
    row.average = query.value(first + 5).toDouble();
}

QString goodsColumns()
{
    return QStringLiteral("c.g_name,c.g_jm,c.dw_name,c.gg_name,c.color_name,c.g_pjjj");
}

QList<PostedRow> postedRows(const shell::Session &session, const QString &number)
{
    QList<PostedRow> rows;
    session.db().forEach(
        QStringLiteral("select id,g_sn,ck_sn,t_ph,t_yxq,t_scrq,gl_sl,gl_dj,gl_je,gl_zje,gl_pjjj,"
                       "gl_chkrq from jxc_goodslist where gl_djh=? order by id"),
        { number }, [&](const QSqlQuery &q) {
            rows.append({ q.value(0).toLongLong(),
                { q.value(1).toString(), q.value(2).toString(), q.value(3).toString(),
                    q.value(4).toString(), q.value(5).toString() },
                q.value(6).toDouble(), q.value(7).toDouble(), q.value(8).toDouble(),
                q.value(9).toDouble(), q.value(10).toDouble(), q.value(11).toString() });
        });
    return rows;
}

// Physical and book quantity move alike; a missing warehouse row is created at the row's price.
StoreMovement movementOf(const PostedRow &row, bool goodsTotal)
{
    StoreMovement movement { row.id, row.batch, row.quantity, row.quantity };
    movement.price = row.price;
    movement.goodsStock = goodsTotal;
    return movement;
}

void postRow(const shell::Session &session, const PostedRow &row, bool goodsTotal,
    const QString &settlementDate)
{
    adjustSettlement(session, row.batch.warehouse, settlementDate, row.quantity, row.amount);
    postMovement(session, movementOf(row, goodsTotal));
}

void reverseRow(const shell::Session &session, const PostedRow &row, bool goodsTotal)
{
    adjustSettlement(session, row.batch.warehouse, row.checkDate, -row.quantity, -row.total);
    withdrawMovement(session, movementOf(row, goodsTotal));
}

} // namespace medistock::stock
