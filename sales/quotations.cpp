#include "sales/quotations.h"

#include "core/connection.h"
#include "core/numbers.h"
#include "core/operation.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "documents/descriptor.h"
#include "sales/texts.h"
#include "shell/session.h"

#include <QSqlQuery>

namespace medistock::sales {

namespace {

// The columns of one side's table.
struct SideColumns
{
    const char *table;
    const char *price;
    const char *date;
    const char *note;
    const char *party;
    const char *partyTable;
    const char *partyName;
};

const SideColumns &columnsOf(QuotationSide side)
{
    static const SideColumns customer { "jxc_khbj", "kb_bj", "kb_bjrq", "kb_note", "kh_sn",
        "jxc_khxx", "kh_name" };
    static const SideColumns supplier { "jxc_ghsbj", "gb_bj", "gb_bjrq", "gb_note", "ghs_sn",
        "jxc_ghsxx", "ghs_name" };
    return side == QuotationSide::Customer ? customer : supplier;
}

QLatin1String name(const char *column)
{
    return QLatin1String(column);
}

Result<double> typedPrice(const QString &text)
{
    return core::readNumber(texts::quotedPriceField(), text, core::NumberKind::Price);
}

} // namespace

Outcome addQuotationWorkRow(
    const shell::Session &session, const QString &goods, const QString &price, const QString &note)
{
    const Result<double> value = typedPrice(price);
    if (!value)
        return core::refuse(session.ui(), value.message());
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        if (goods == documents::discountGoods()
            || !db.exists(
                QStringLiteral("select id from jxc_goods where g_sn=? and g_jy=0"), { goods }))
            return core::refuse(session.ui(), texts::quotationGoodsRefused(goods));
        db.insert(QStringLiteral("insert into jxc_tempspxf (g_sn,ts_dj,ts_note,a_name) values "
                                 "(?,?,?,?)"),
            { goods, value.value(), core::cleanText(note, core::CleanStrength::Medium),
                session.user().name });
        return Outcome::done();
    });
}

void clearQuotationWork(const shell::Session &session)
{
    session.db().exec(
        QStringLiteral("delete from jxc_tempspxf where a_name=?"), { session.user().name });
}

Result<int> addQuotations(const shell::Session &session, QuotationSide side, const QString &party,
    const QString &date, const QString &employee)
{
    const SideColumns &c = columnsOf(side);
    if (party.trimmed().isEmpty())
        return core::refuse(
            session.ui(), texts::quotationPartyMissing(side == QuotationSide::Customer));
    int added = 0;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        added = db.firstValue(QStringLiteral("select count(*) from jxc_tempspxf where a_name=?"),
                      { session.user().name })
                    .toInt();
        if (added == 0)
            return core::refuse(session.ui(), texts::quotationWorkEmpty());
        db.exec(QStringLiteral("insert into %1 (g_sn,%2,%3,%4,%5,a_name,u_sn) select g_sn,ts_dj,?,"
                               "ts_note,?,a_name,? from jxc_tempspxf where a_name=? order by id")
                    .arg(name(c.table), name(c.price), name(c.date), name(c.note), name(c.party)),
            { date, party, employee, session.user().name });
        clearQuotationWork(session);
        session.log(texts::quotationsAddedLog(side == QuotationSide::Customer, added));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return added;
}

Outcome changeQuotation(const shell::Session &session, QuotationSide side, qint64 id,
    const QString &price, const QString &date, const QString &note)
{
    const Result<double> value = typedPrice(price);
    if (!value)
        return core::refuse(session.ui(), value.message());
    const SideColumns &c = columnsOf(side);
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        const int changed
            = session.db().exec(QStringLiteral("update %1 set %2=?,%3=?,%4=? where id=?")
                                    .arg(name(c.table), name(c.price), name(c.date), name(c.note)),
                { value.value(), date, core::cleanText(note, core::CleanStrength::Medium), id });
        if (changed == 0)
            return core::refuse(session.ui(), texts::quotationMissing(id));
        session.log(texts::quotationChangedLog(side == QuotationSide::Customer, id));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome deleteQuotation(const shell::Session &session, QuotationSide side, qint64 id)
{
    const SideColumns &c = columnsOf(side);
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        const int deleted = session.db().exec(
            QStringLiteral("delete from %1 where id=?").arg(name(c.table)), { id });
        if (deleted == 0)
            return core::refuse(session.ui(), texts::quotationMissing(id));
        session.log(texts::quotationDeletedLog(side == QuotationSide::Customer, id));
        transaction.commit();
        return Outcome::done();
    });
}

QList<Quotation> findQuotations(
    const shell::Session &session, QuotationSide side, const QuotationFilter &filter)
{
    const SideColumns &c = columnsOf(side);
    const QString sql = QStringLiteral(
        "select a.id,a.g_sn,b.g_name,a.%1,a.%2,a.%3,c.%4,(select u_name from jxc_user where "
        "u_sn=a.u_sn order by id limit 1),a.%5 from %6 a join jxc_goods b on b.g_sn=a.g_sn left "
        "join %7 c on c.%3=a.%3 where a.%2>=? and a.%2<=? and coalesce(c.%4,'') like ? and "
        "(b.g_sn like ? or b.g_name like ? or upper(coalesce(b.g_jm,'')) like upper(?)) order by "
        "a.%2 desc,"
        "a.id desc")
                            .arg(name(c.price), name(c.date), name(c.party), name(c.partyName),
                                name(c.note), name(c.table), name(c.partyTable));
    const QString to = filter.to.isEmpty() ? QStringLiteral("9999-12-31") : filter.to;
    const QString goods = QLatin1Char('%') + filter.goodsText + QLatin1Char('%');
    QList<Quotation> found;
    session.db().forEach(sql,
        { filter.from, to + QStringLiteral(" 23:59:59"),
            QLatin1Char('%') + filter.partyName + QLatin1Char('%'), goods, goods, goods },
        [&](const QSqlQuery &q) {
            found.append({ q.value(0).toLongLong(), q.value(1).toString(), q.value(2).toString(),
                q.value(3).toDouble(), q.value(4).toString(), q.value(5).toString(),
                q.value(6).toString(), q.value(7).toString(), q.value(8).toString() });
        });
    return found;
}

} // namespace medistock::sales
