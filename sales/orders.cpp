#include "sales/orders.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "documents/entry.h"
#include "documents/lifecycle.h"
#include "documents/texts.h"
#include "sales/kinds.h"
#include "sales/texts.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/costs.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::sales {

namespace {

const QString openLineColumns = QStringLiteral(
    "a.id2,a.gl_djh,b.ls_xsrq,b.kh_sn,(select kh_name from jxc_khxx where kh_sn=b.kh_sn order by "
    "id limit 1),a.g_sn,(select g_name from jxc_goods where g_sn=a.g_sn order by id limit 1),"
    "a.dw_name,a.ls_sl,a.ls_cksl");

OpenOrderLine openLineOf(const QSqlQuery &q)
{
    OpenOrderLine line { q.value(0).toLongLong(), q.value(1).toString(), q.value(2).toString(),
        q.value(3).toString(), q.value(4).toString(), q.value(5).toString(), q.value(6).toString(),
        q.value(7).toString(), q.value(8).toDouble(), q.value(9).toDouble(), 0 };
    line.open = line.ordered - line.delivered;
    return line;
}

QString text(double value)
{
    return QString::number(value, 'g', 15);
}

// The header columns an order hands to the sale that takes it over.
void takeHeader(const QSqlRecord &order, SaleDraft &sale)
{
    sale.entry.party = order.value(QStringLiteral("kh_sn")).toString();
    sale.entry.warehouse = order.value(QStringLiteral("ck_sn")).toString();
    sale.entry.employee = order.value(QStringLiteral("u_sn")).toString();
    sale.entry.note = order.value(QStringLiteral("ls_note")).toString();
    sale.header.settlementMode = order.value(QStringLiteral("ls_jsfs")).toString();
    sale.header.account = order.value(QStringLiteral("ls_kmmc")).toString();
}

// One open order line as a sale line, its cost refreshed from the warehouse's current cost.
documents::LineDraft takenLine(
    const shell::Session &session, const QSqlRecord &line, const QString &warehouse)
{
    const auto value = [&](const char *column) { return line.value(QLatin1String(column)); };
    documents::LineDraft taken;
    taken.goods = value("g_sn").toString();
    taken.unit = value("dw_name").toString();
    taken.quantity = text(value("ls_sl").toDouble() - value("ls_cksl").toDouble());
    taken.price = text(value("ls_dj").toDouble());
    taken.taxRate = text(value("ls_tax").toDouble());
    taken.discountRate = value("ls_dzl").isNull() ? QString() : text(value("ls_dzl").toDouble());
    taken.batch = value("t_ph").toString();
    taken.produced = value("t_scrq").toString();
    taken.expiry = value("t_yxq").toString();
    taken.remark = value("ls_bz").toString();
    taken.columns.set(QStringLiteral("id3"), value("id2").toLongLong());
    taken.columns.set(QStringLiteral("gl_djh2"), value("gl_djh").toString());
    taken.columns.set(
        QStringLiteral("ls_cbj2"), stock::currentCost(session, taken.goods, warehouse));
    return taken;
}

QSqlRecord checkedOrder(const shell::Session &session, const QString &number)
{
    return session.db().firstRow(
        QStringLiteral("select * from jxc_xsd where gl_djh=? order by ls_status desc,id limit 1"),
        { number });
}

Outcome requireCheckedOrder(
    const shell::Session &session, const QSqlRecord &order, const QString &number)
{
    if (order.isEmpty())
        return core::refuse(session.ui(), texts::orderMissing(number));
    if (order.value(QStringLiteral("ls_status")).toInt() != 1)
        return core::refuse(session.ui(), texts::orderNotChecked(number));
    return Outcome::done();
}

// With settlement mode "0" what the customer did not pay is given as discount.
void writeOffRemainder(const shell::Session &session, qint64 id)
{
    session.db().exec(QStringLiteral("update jxc_xsd set ls_yhje=ls_yfje-ls_sfje where id=? and "
                                     "ls_jsfs=?"),
        { id, 0 });
}

} // namespace

Outcome checkSalesOrder(shell::Session &session, const QString &number, CheckStart start)
{
    if (start == CheckStart::Listed) {
        const Outcome allowed = shell::requireRight(session, "xsgl", rights::checkOrder);
        if (!allowed)
            return allowed;
    }
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        const QSqlRecord order = checkedOrder(session, number);
        if (order.isEmpty())
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        if (order.value(QStringLiteral("ls_status")).toInt() != 1) {
            const qint64 id = order.value(QStringLiteral("id")).toLongLong();
            writeOffRemainder(session, id);
            documents::markChecked(session, salesOrderKind(), id);
            db.exec(QStringLiteral("update jxc_xssp set ls_dhbz=?,id2=id,ls_cksl=? where "
                                   "gl_djh=?"),
                { 0, 0, number });
            session.log(texts::orderCheckedLog(number));
        }
        documents::removeUncheckedCopies(session, salesOrderKind(), number);
        transaction.commit();
        return Outcome::done();
    });
}

std::optional<OpenOrderLine> openOrderLine(const shell::Session &session, qint64 id)
{
    std::optional<OpenOrderLine> found;
    session.db().forEach(QStringLiteral("select %1 from jxc_xssp a,jxc_xsd b where "
                                        "a.gl_djh=b.gl_djh and b.ls_status=? and a.id2=? order by "
                                        "a.id limit 1")
                             .arg(openLineColumns),
        { 1, id }, [&](const QSqlQuery &q) { found = openLineOf(q); });
    return found;
}

QList<OpenOrderLine> openOrderLines(const shell::Session &session, const OrderFilter &filter)
{
    const QString like = QLatin1Char('%') + filter.text + QLatin1Char('%');
    QList<OpenOrderLine> lines;
    session.db().forEach(
        QStringLiteral("select %1 from jxc_xssp a,jxc_xsd b where a.gl_djh=b.gl_djh and "
                       "b.ls_status=? and a.ls_sl>a.ls_cksl and b.ls_xsrq>=? and b.ls_xsrq<=? and "
                       "(b.gl_djh like ? or b.kh_sn like ? or exists (select 1 from jxc_khxx c "
                       "where c.kh_sn=b.kh_sn and (upper(c.kh_jm) like upper(?) or c.kh_name like "
                       "?))) order by "
                       "b.ls_xsrq desc,b.gl_djh desc,a.id desc")
            .arg(openLineColumns),
        { 1, filter.from, filter.to + QStringLiteral(" 23:59:59"), like, like, like, like },
        [&](const QSqlQuery &q) { lines.append(openLineOf(q)); });
    return lines;
}

Outcome takeOverOrder(const shell::Session &session, const QString &order, SaleDraft &sale)
{
    return core::guarded(session.ui(), [&] {
        const QSqlRecord header = checkedOrder(session, order);
        const Outcome checked = requireCheckedOrder(session, header, order);
        if (!checked)
            return checked;
        takeHeader(header, sale);
        sale.entry.lines.clear();
        const QList<QSqlRecord> lines = session.db().rows(
            QStringLiteral("select * from jxc_xssp where gl_djh=? and g_sn<>? and ls_sl>ls_cksl "
                           "order by id"),
            { order, documents::discountGoods() });
        for (const QSqlRecord &line : lines)
            sale.entry.lines.append(takenLine(session, line, sale.entry.warehouse));
        return Outcome::done();
    });
}

Outcome takeOverOrderLines(
    const shell::Session &session, const QList<qint64> &lineIds, SaleDraft &sale)
{
    return core::guarded(session.ui(), [&] {
        for (const qint64 id : lineIds) {
            const QSqlRecord line = session.db().firstRow(
                QStringLiteral("select a.* from jxc_xssp a,jxc_xsd b where a.gl_djh=b.gl_djh and "
                               "b.ls_status=? and a.ls_sl>a.ls_cksl and a.id2=? order by a.id "
                               "limit 1"),
                { 1, id });
            if (line.isEmpty())
                return core::refuse(session.ui(), texts::orderLineMissing(id));
            if (id == lineIds.first())
                takeHeader(
                    checkedOrder(session, line.value(QStringLiteral("gl_djh")).toString()), sale);
            sale.entry.lines.append(takenLine(session, line, sale.entry.warehouse));
        }
        return Outcome::done();
    });
}

} // namespace medistock::sales
