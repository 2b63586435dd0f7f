#include "tests/support/books.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "core/rounding.h"
#include "documents/entry.h"
#include "purchasing/checking.h"
#include "purchasing/entry.h"
#include "purchasing/kinds.h"
#include "purchasing/receipt.h"
#include "shell/session.h"
#include "stock/ledger.h"

#include <QHash>
#include <QSqlQuery>

#include <functional>

#include <cmath>

namespace medistock::test {

namespace {

const QString supplier = QStringLiteral("200001");
const QString warehouse = QStringLiteral("100001");
const QStringList goods { QStringLiteral("300001"), QStringLiteral("300002"),
    QStringLiteral("300003") };

void addMasterRows(core::Connection &db)
{
    db.exec(QStringLiteral("insert into jxc_ghsxx (ghs_sn,ghs_name,ghs_forbid,ghs_lwje) "
                           "values (?,?,0,0)"),
        { supplier, QStringLiteral("华北医药") });
    const QStringList names { QStringLiteral("阿莫西林胶囊"), QStringLiteral("板蓝根颗粒"),
        QStringLiteral("复方丹参片") };
    for (int i = 0; i < goods.size(); ++i)
        db.exec(QStringLiteral("insert into jxc_goods (g_sn,g_name,dw_name,g_zhxs,g_kc,g_pjjj,"
                               "g_cgpl,g_xspl,g_jy) values (?,?,?,1,0,0,0,0,0)"),
            { goods[i], names[i], QStringLiteral("盒") });
}

documents::LineDraft line(const QString &code, int quantity, double price, const QString &batch)
{
    documents::LineDraft l;
    l.goods = code;
    l.quantity = QString::number(quantity);
    l.price = QString::number(price);
    l.batch = batch;
    l.produced = QStringLiteral("2024-12-01");
    l.expiry = QStringLiteral("2027-11-30");
    return l;
}

bool near(double a, double b)
{
    return std::fabs(a - b) < 0.005;
}

QString number(double value)
{
    return core::plainNumber(value);
}

int count(core::Connection &db, const QString &sql, const QString &receipt)
{
    return db.firstValue(sql, { receipt }).toInt();
}

// Status, ledger, payables and cash rows of one receipt agree.
void checkReceipt(core::Connection &db, const QString &receipt, QStringList &problems)
{
    const int headers
        = count(db, QStringLiteral("select count(*) from jxc_jhd where j_sn=?"), receipt);
    const int status
        = db.firstValue(
                QStringLiteral("select max(j_status) from jxc_jhd where j_sn=?"), { receipt })
              .toInt();
    const int lines = count(db,
        QStringLiteral("select count(*) from jxc_jhsp where j_sn=? and g_sn<>'00000000'"), receipt);
    const int ledger
        = count(db, QStringLiteral("select count(*) from jxc_goodslist where gl_djh=?"), receipt);
    const int payables
        = count(db, QStringLiteral("select count(*) from jxc_ysyfk where gl_djh=?"), receipt);
    const int cash
        = count(db, QStringLiteral("select count(*) from jxc_xjyh where gl_djh=?"), receipt);
    const double paid
        = db.firstValue(QStringLiteral("select max(j_sfje) from jxc_jhd where j_sn=?"), { receipt })
              .toDouble();
    const bool posted = status == 1;
    const int expectedCash = posted && paid > 0 ? 1 : 0;
    if (headers != 1 || ledger != (posted ? lines : 0) || payables != (posted ? 1 : 0)
        || cash != expectedCash)
        problems.append(QStringLiteral("%1：状态 %2，表头 %3 行，明细 %4 行，流水账 %5 行，"
                                       "往来帐 %6 行，现金 %7 行")
                            .arg(receipt)
                            .arg(status)
                            .arg(headers)
                            .arg(lines)
                            .arg(ledger)
                            .arg(payables)
                            .arg(cash));
}

// The ledger's signed quantities summed by a key built from the row.
QHash<QString, double> ledgerSums(
    core::Connection &db, const std::function<QString(const QSqlQuery &)> &key)
{
    QHash<QString, double> sums;
    db.forEach(
        QStringLiteral("select gl_flag,gl_sl,g_sn,ck_sn,t_ph,t_yxq,t_scrq from jxc_goodslist"), {},
        [&](const QSqlQuery &q) {
            const double quantity = q.value(1).toDouble();
            const stock::KindRole role = stock::kindRole(q.value(0).toString(), quantity);
            const double sign = role.direction == stock::KindRole::Direction::Adds ? 1
                : role.direction == stock::KindRole::Direction::Subtracts          ? -1
                                                                                   : 0;
            sums[key(q)] += sign * quantity;
        });
    return sums;
}

void compare(const QString &what, const QHash<QString, double> &stock,
    const QHash<QString, double> &ledger, QStringList &problems)
{
    QStringList keys = stock.keys() + ledger.keys();
    keys.removeDuplicates();
    for (const QString &key : keys)
        if (!near(stock.value(key), ledger.value(key)))
            problems.append(
                QStringLiteral("%1 %2：库存 %3，流水账合计 %4")
                    .arg(what, key, number(stock.value(key)), number(ledger.value(key))));
}

QHash<QString, double> stockBy(core::Connection &db, const QString &sql)
{
    QHash<QString, double> stock;
    db.forEach(sql, {},
        [&](const QSqlQuery &q) { stock[q.value(0).toString()] += q.value(1).toDouble(); });
    return stock;
}

void checkStock(core::Connection &db, QStringList &problems)
{
    const auto inWarehouse = [](const QSqlQuery &q) {
        return q.value(2).toString() + QLatin1Char('/') + q.value(3).toString();
    };
    const auto inBatch = [](const QSqlQuery &q) {
        QStringList parts;
        for (int i = 2; i <= 6; ++i)
            parts.append(q.value(i).toString());
        return parts.join(QLatin1Char('/'));
    };
    compare(QStringLiteral("仓库库存"),
        stockBy(db, QStringLiteral("select g_sn||'/'||ck_sn,kc_sl from jxc_kcsp")),
        ledgerSums(db, inWarehouse), problems);
    compare(QStringLiteral("批次库存"),
        stockBy(db,
            QStringLiteral("select g_sn||'/'||ck_sn||'/'||t_ph||'/'||t_yxq||'/'||t_scrq,"
                           "t_sl from jxc_tkc")),
        ledgerSums(db, inBatch), problems);
    compare(QStringLiteral("商品库存"),
        stockBy(db, QStringLiteral("select g_sn,g_kc from jxc_goods where g_sn<>'00000000'")),
        ledgerSums(db, [](const QSqlQuery &q) { return q.value(2).toString(); }), problems);
    // Each goods' ledger in a warehouse ends at the warehouse's stock.
    compare(QStringLiteral("流水账结存"),
        stockBy(db, QStringLiteral("select g_sn||'/'||ck_sn,kc_sl from jxc_kcsp")),
        stockBy(db,
            QStringLiteral("select l.g_sn||'/'||l.ck_sn,l.gl_kc from jxc_goodslist l "
                           "where l.id=(select max(m.id) from jxc_goodslist m where "
                           "m.g_sn=l.g_sn and m.ck_sn=l.ck_sn and m.gl_kdrq=(select "
                           "max(d.gl_kdrq) from jxc_goodslist d where d.g_sn=l.g_sn and "
                           "d.ck_sn=l.ck_sn))")),
        problems);
}

void checkPayables(core::Connection &db, QStringList &problems)
{
    const double owed = db.firstValue(QStringLiteral("select coalesce(sum(k_yfje-k_sfje),0) from "
                                                     "jxc_ysyfk where k_type='ghs' and k_ghskh=?"),
                              { supplier })
                            .toDouble();
    const QVariant last = db.firstValue(QStringLiteral("select k_ljje from jxc_ysyfk where "
                                                       "k_type='ghs' and k_ghskh=? order by k_rq "
                                                       "desc,id desc limit 1"),
        { supplier });
    const double balance = last.isValid() ? last.toDouble() : 0;
    const double figure
        = db.firstValue(
                QStringLiteral("select ghs_lwje from jxc_ghsxx where ghs_sn=?"), { supplier })
              .toDouble();
    if (!near(owed, balance) || !near(balance, figure))
        problems.append(QStringLiteral("应付帐：合计 %1，余额 %2，供货商应付 %3")
                            .arg(number(owed), number(balance), number(figure)));
}

} // namespace

QStringList setUpReceipts(shell::Session &session, int count)
{
    addMasterRows(session.db());
    QStringList numbers;
    for (int i = 0; i < count; ++i) {
        purchasing::PurchaseDraft draft;
        draft.entry.date = QStringLiteral("2025-03-14");
        draft.entry.party = supplier;
        draft.entry.warehouse = warehouse;
        draft.entry.lines = { line(goods[i % 3], 10 + i, 12.5 + i, QStringLiteral("B1")),
            line(goods[(i + 1) % 3], 5 + i, 8 + 0.25 * i,
                i % 2 ? QStringLiteral("B2") : QStringLiteral("B1")) };
        if (i % 2 == 1)
            draft.header.paid = 20 + i;
        const Result<QString> saved = purchasing::savePurchaseReceipt(session, draft);
        if (!saved)
            return {};
        numbers.append(saved.value());
    }
    return numbers;
}

Outcome toggleReceipt(shell::Session &session, const QString &number)
{
    const std::optional<int> status
        = documents::documentStatus(session.db(), purchasing::purchaseReceipt().entry, number);
    if (status && *status == 1)
        return purchasing::uncheckPurchaseReceipt(session, number);
    return purchasing::checkPurchaseReceipt(session, number);
}

QStringList booksProblems(core::Connection &connection, const QStringList &receipts)
{
    QStringList problems;
    for (const QString &receipt : receipts)
        checkReceipt(connection, receipt, problems);
    checkStock(connection, problems);
    checkPayables(connection, problems);
    return problems;
}

} // namespace medistock::test
