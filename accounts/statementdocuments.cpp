// "客户所有单据" and "供货商所有单据": the checked documents of a party, the freight summary and a
// document's lines.
#include "accounts/statements.h"
#include "accounts/statementsupport.h"

#include "core/connection.h"
#include "shell/session.h"

namespace medistock::accounts {

namespace {

using statements::figure;
using statements::Query;
using statements::text;

// Where one half of a document list reads its rows. Empty columns are figures the document does
// not keep: they read as 0 (or empty).
struct DocumentSource
{
    const char *table;
    const char *number;
    const char *date;
    const char *due;
    const char *paid;
    const char *discount;
    const char *paidBack;
    const char *note;
    const char *party;
    const char *status;
    const char *checker;
    const char *checkDate;
    const char *freight;
    const char *packing;
    const char *freightMode;
    const char *kind;
    const char *sort;
};

const DocumentSource sales { "jxc_lsxsd", "gl_djh", "ls_xsrq", "ls_yfje", "ls_sfje", "ls_yhje",
    "ls_hkje", "ls_note", "kh_sn", "ls_status", "ls_checker", "ls_chkrq", "ls_yf", "ls_bzf",
    "ls_yffs", "商品销售付款", "1" };
const DocumentSource customerReturns { "jxc_xsthd", "gl_djh", "th_xsrq", "th_yfje", "th_sfje", "",
    "th_hkje", "th_note", "kh_sn", "th_status", "th_checker", "th_chkrq", "", "", "",
    "销售退货支出", "2" };
const DocumentSource receipts { "jxc_jhd", "j_sn", "j_jhrq", "j_yfje", "j_sfje", "j_yhje", "j_hkje",
    "j_note", "ghs_sn", "j_status", "j_checker", "j_chkrq", "j_yf", "j_bzf", "j_yffs", "进货支付",
    "1" };
const DocumentSource supplierReturns { "jxc_thd", "gl_djh", "th_thrq", "th_yfje", "th_sfje", "",
    "th_hkje", "th_note", "ghs_sn", "th_status", "th_checker", "th_chkrq", "", "", "", "退货还款",
    "2" };

// A party's table, joined as `b`.
struct PartySource
{
    const char *table;
    const char *code;
    const char *name;
    const char *shortCode;
};
const PartySource customers { "jxc_khxx", "kh_sn", "kh_name", "kh_jm" };
const PartySource suppliers { "jxc_ghsxx", "ghs_sn", "ghs_name", "ghs_jm" };

QString column(const char *name, const char *absent = "?")
{
    return *name ? QStringLiteral("a.") + QLatin1String(name) : QLatin1String(absent);
}

QString amount(const char *name)
{
    return *name ? QStringLiteral("coalesce(a.%1,0)").arg(QLatin1String(name))
                 : QStringLiteral("0");
}

void addHalf(Query &q, const DocumentSource &s, const PartySource &p, const StatementFilter &f,
    const WarehouseRestriction &restriction)
{
    q.add(QStringLiteral("select a.%1 as djh,a.%2 as rq,a.%3,a.%4,%5-%6-%7-%8,%9,? as lx,"
                         "? as dsort,a.%10,a.a_name,a.%11,b.%12,b.%13,u.u_name,c.ck_name,a.%14,"
                         "a.%15,a.%16,%17,%18,%19")
              .arg(QLatin1String(s.number), QLatin1String(s.date), QLatin1String(s.due),
                  QLatin1String(s.paid), amount(s.due), amount(s.paid), amount(s.discount),
                  amount(s.paidBack), amount(s.discount), QLatin1String(s.note),
                  QLatin1String(s.party), QLatin1String(p.name), QLatin1String(p.shortCode),
                  QLatin1String(s.checker), QLatin1String(s.checkDate), QLatin1String(s.paidBack),
                  amount(s.freight), amount(s.packing), column(s.freightMode)),
        { QString::fromUtf8(s.kind), QString::fromLatin1(s.sort) });
    if (!*s.freightMode)
        q.params.append(QString());
    q.add(QStringLiteral(" from %1 a left join %2 b on b.%3=a.%4 left join jxc_user u on "
                         "u.u_sn=a.u_sn left join jxc_ckxx c on c.ck_sn=a.ck_sn where a.%5=?")
              .arg(QLatin1String(s.table), QLatin1String(p.table), QLatin1String(p.code),
                  QLatin1String(s.party), QLatin1String(s.status)),
        { 1 });
    q.whereInRange(QStringLiteral("a.") + QLatin1String(s.date), f);
    q.whereEqual(QStringLiteral("a.") + QLatin1String(s.party), f.party);
    q.whereContains({ QStringLiteral("a.") + QLatin1String(s.number) }, f.text);
    q.whereWarehouse(restriction, QStringLiteral("c"));
}

StatementDocument readDocument(const QSqlQuery &q)
{
    StatementDocument d;
    d.number = text(q, 0);
    d.date = text(q, 1);
    d.due = figure(q, 2);
    d.paid = figure(q, 3);
    d.unpaid = figure(q, 4);
    d.discount = figure(q, 5);
    d.kind = text(q, 6);
    d.sort = text(q, 7);
    d.note = text(q, 8);
    d.operatorName = text(q, 9);
    d.party = text(q, 10);
    d.partyName = text(q, 11);
    d.partyShort = text(q, 12);
    d.salesman = text(q, 13);
    d.warehouse = text(q, 14);
    d.checker = text(q, 15);
    d.checkDate = text(q, 16);
    d.paidBack = figure(q, 17);
    d.freight = figure(q, 18);
    d.packing = figure(q, 19);
    d.freightMode = text(q, 20);
    return d;
}

QList<StatementDocument> documents(const shell::Session &session, const StatementFilter &filter,
    const DocumentSource &first, const DocumentSource &second, const PartySource &party)
{
    const WarehouseRestriction restriction(session);
    Query q;
    q.add(QStringLiteral("select * from ("));
    addHalf(q, first, party, filter, restriction);
    q.add(QStringLiteral(" union all "));
    addHalf(q, second, party, filter, restriction);
    q.add(filter.descending ? QStringLiteral(") d order by rq desc,dsort,djh desc")
                            : QStringLiteral(") d order by rq,dsort,djh"));
    QList<StatementDocument> rows;
    session.db().forEach(
        q.sql, q.params, [&](const QSqlQuery &query) { rows.append(readDocument(query)); });
    return rows;
}

// The lines' quantity of each document summed with it.
struct FreightSource
{
    const DocumentSource &document;
    const PartySource &party;
    const char *lines;
    const char *lineNumber;
    const char *lineQuantity;
};

QList<FreightSummary> freight(
    const shell::Session &session, const StatementFilter &filter, const FreightSource &f)
{
    const DocumentSource &s = f.document;
    const auto n = [](const char *name) { return QLatin1String(name); };
    Query q;
    q.add(
        QStringLiteral("select a.%1,b.%2,a.%3,sum(a.%4),sum(a.%5),sum(a.%6),sum(a.%7),"
                       "sum(a.%8),sum((select sum(s.%9) from %10 s where s.%11=a.%12)) from %13 "
                       "a left join %14 b on b.%15=a.%1 left join jxc_ckxx c on c.ck_sn=a.ck_sn "
                       "where a.%16=? and (a.%7>? or a.%8>?)")
            .arg(n(s.party), n(f.party.name), n(s.freightMode), n(s.due), n(s.paid), n(s.discount),
                n(s.freight), n(s.packing), n(f.lineQuantity), n(f.lines), n(f.lineNumber),
                n(s.number), n(s.table), n(f.party.table), n(f.party.code), n(s.status)),
        { 1, 0, 0 });
    q.whereInRange(QStringLiteral("a.") + n(s.date), filter);
    q.whereEqual(QStringLiteral("a.") + n(s.party), filter.party);
    q.whereContains({ QStringLiteral("a.") + n(s.party), QStringLiteral("b.") + n(f.party.name),
                        QStringLiteral("b.") + n(f.party.shortCode) },
        filter.text);
    q.whereWarehouse(WarehouseRestriction(session), QStringLiteral("c"));
    q.add(QStringLiteral(" group by a.%1,b.%2,a.%3 order by a.%1,a.%3")
              .arg(n(s.party), n(f.party.name), n(s.freightMode)));
    QList<FreightSummary> rows;
    session.db().forEach(q.sql, q.params, [&](const QSqlQuery &r) {
        rows.append({ text(r, 0), text(r, 1), text(r, 2), figure(r, 3), figure(r, 4), figure(r, 5),
            figure(r, 6), figure(r, 7), figure(r, 8) });
    });
    return rows;
}

} // namespace

QList<StatementDocument> customerDocuments(
    const shell::Session &session, const StatementFilter &filter)
{
    return documents(session, filter, sales, customerReturns, customers);
}

QList<StatementDocument> supplierDocuments(
    const shell::Session &session, const StatementFilter &filter)
{
    return documents(session, filter, receipts, supplierReturns, suppliers);
}

QList<FreightSummary> customerFreight(const shell::Session &session, const StatementFilter &filter)
{
    return freight(session, filter, { sales, customers, "jxc_lsxssp", "gl_djh", "ls_sl" });
}

QList<FreightSummary> supplierFreight(const shell::Session &session, const StatementFilter &filter)
{
    return freight(session, filter, { receipts, suppliers, "jxc_jhsp", "j_sn", "jh_sl" });
}

DocumentLines statementDocumentLines(const shell::Session &session, const QString &number)
{
    // Returns are stored with negative quantities and amounts; here they read as what came back.
    const QStringList returns { QStringLiteral("xt"), QStringLiteral("ct") };
    DocumentLines result;
    QString warehouse;
    session.db().forEach(
        QStringLiteral("select %1 from jxc_goodslist a where a.gl_djh=? order by a.id")
            .arg(statements::journalColumns()),
        { number }, [&](const QSqlQuery &q) {
            JournalLine line = statements::readJournalLine(q);
            if (returns.contains(line.kind)) {
                line.quantity = -line.quantity + 0.0;
                line.amount = -line.amount + 0.0;
            }
            warehouse = line.warehouse;
            result.lines.append(line);
        });
    const QString prefix = number.left(2);
    const bool out = prefix == QLatin1String("XS") || prefix == QLatin1String("CT");
    result.caption
        = (out ? QStringLiteral("  出货仓库：") : QStringLiteral("  入货仓库：")) + warehouse;
    return result;
}

} // namespace medistock::accounts
