#include "tests/stock/stockfixture.h"

#include "core/transaction.h"
#include "stock/purchasereceipt.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::test {

void StockTest::SetUp()
{
    SessionTest::SetUp();
    db().exec(QStringLiteral("insert into jxc_ckxx (ck_sn,ck_name) values (?,?)"),
        { QStringLiteral("100002"), QStringLiteral("分店仓库") });
    addGoods({ QStringLiteral("200001"), QStringLiteral("阿莫西林胶囊") });
    addGoods({ QStringLiteral("200002"), QStringLiteral("板蓝根颗粒") });
}

void StockTest::addGoods(const Goods &goods)
{
    db().exec(QStringLiteral("insert into jxc_goods (g_sn,g_name,g_jm,dw_name,g_kc,g_pjjj,g_jj,"
                             "g_gdcbj,g_xzsl,g_cgpl,g_xspl,g_scjj,ghs_sn) "
                             "values (?,?,?,?,?,?,?,?,?,?,?,?,?)"),
        { goods.code, goods.name, QStringLiteral("YP"), QStringLiteral("粒"), 0, goods.average,
            goods.price, goods.fixedCost, goods.saleLimit, 0, 0, 0, QString() });
}

void StockTest::addReceipt(
    const QString &number, const QString &date, const QList<Line> &lines, const QString &warehouse)
{
    db().exec(QStringLiteral("insert into jxc_jhd (j_sn,ghs_sn,ck_sn,j_jhrq,u_sn,j_note,a_name,"
                             "j_sn2,j_status,j_checker,j_chkrq) values (?,?,?,?,?,?,?,?,?,?,?)"),
        { number, QStringLiteral("100001"), warehouse, date, QStringLiteral("100001"),
            QStringLiteral("月初进货"), QStringLiteral("admin"), QStringLiteral("GYS-01"), 1,
            QStringLiteral("admin"), session().today() });
    for (const Line &l : lines)
        db().exec(
            QStringLiteral("insert into jxc_jhsp (j_sn,g_sn,jh_dj,jh_sl,jh_zsl,jh_je,jh_zje,"
                           "jh_tax,jh_taxje,jh_dzl,jh_bz,jh_rksl,jh_qxsl,id2,id3,a_name,"
                           "t_ph,t_yxq,t_scrq) values (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
            { number, l.goods, l.price, l.quantity, l.quantity * l.factor, l.price * l.quantity,
                l.price * l.quantity, 0, 0, 1, QString(), 0, 0, 0, l.planLine,
                QStringLiteral("admin"), l.batch, l.expiry, l.produced });
}

void StockTest::addSaleLines(const QString &number, const QList<Line> &lines)
{
    for (const Line &l : lines)
        db().exec(QStringLiteral("insert into jxc_lsxssp (gl_djh,g_sn,ls_sl,ls_zsl,ls_dj,t_ph,"
                                 "t_yxq,t_scrq) values (?,?,?,?,?,?,?,?)"),
            { number, l.goods, l.quantity, l.quantity * l.factor, l.price, l.batch, l.expiry,
                l.produced });
}

void StockTest::addReturnLines(const QString &number, const QList<Line> &lines)
{
    for (const Line &l : lines)
        db().exec(QStringLiteral("insert into jxc_thsp (gl_djh,g_sn,th_sl,th_zsl,th_dj,t_ph,t_yxq,"
                                 "t_scrq) values (?,?,?,?,?,?,?,?)"),
            { number, l.goods, l.quantity, l.quantity * l.factor, l.price, l.batch, l.expiry,
                l.produced });
}

stock::PostingHeader StockTest::receiptHeader(const QString &number)
{
    const QSqlRecord r = db().firstRow(
        QStringLiteral("select a.j_jhrq,a.ck_sn,b.ck_name,a.ghs_sn,c.ghs_name,a.u_sn,d.u_name,"
                       "a.j_note,a.j_sn2 from jxc_jhd a left join jxc_ckxx b on b.ck_sn=a.ck_sn "
                       "left join jxc_ghsxx c on c.ghs_sn=a.ghs_sn left join jxc_user d on "
                       "d.u_sn=a.u_sn where a.j_sn=?"),
        { number });
    return { number, r.value(0).toString(), r.value(1).toString(), r.value(2).toString(),
        r.value(3).toString(), r.value(4).toString(), r.value(5).toString(), r.value(6).toString(),
        r.value(7).toString(), r.value(8).toString() };
}

int StockTest::postReceipt(const QString &number)
{
    return stock::postPurchaseReceiptStock(session(), receiptHeader(number));
}

void StockTest::reverseReceipt(const QString &number)
{
    stock::reversePurchaseReceiptStock(session(), receiptHeader(number));
}

qint64 StockTest::postSale(
    const QString &number, const QString &date, const Line &line, const QString &warehouse)
{
    core::Transaction transaction(db());
    const double quantity = line.quantity * line.factor;
    stock::LedgerRow row;
    row.kind = QStringLiteral("xs");
    row.number = number;
    row.date = date;
    row.goods = line.goods;
    row.warehouse = warehouse;
    row.price = line.price;
    row.quantity = quantity;
    row.amount = row.total = line.price * quantity;
    row.batch = line.batch;
    row.expiry = line.expiry;
    row.produced = line.produced;
    const qint64 id = stock::insertLedgerRow(session(), row);
    stock::applyWarehouseStock(
        session(), { line.goods, warehouse, -quantity, -quantity, quantity });
    stock::rerunLedger(session(), id, false);
    stock::applyGoodsTotals(session(), line.goods, -quantity, 0, 1);
    stock::subtractBatchStock(session(), batchOf(line.goods, line, warehouse), quantity);
    transaction.commit();
    return id;
}

qint64 StockTest::postRow(const QString &kind, const QString &date, const QString &goods,
    double quantity, double amount, double price, const QString &warehouse)
{
    stock::LedgerRow row;
    row.kind = kind;
    row.number = kind.toUpper() + date;
    row.date = date;
    row.goods = goods;
    row.warehouse = warehouse;
    row.quantity = quantity;
    row.amount = amount;
    row.price = price;
    const qint64 id = stock::insertLedgerRow(session(), row);
    stock::rerunLedger(session(), id, false);
    return id;
}

QStringList StockTest::runningColumns(const QString &goods, const QString &warehouse)
{
    QStringList rows;
    db().forEach(QStringLiteral("select gl_flag,gl_sqsl,gl_sqje,gl_kc,gl_pjjj,gl_kczje from "
                                "jxc_goodslist where g_sn=? and ck_sn=? order by gl_kdrq,id"),
        { goods, warehouse }, [&](const QSqlQuery &q) {
            QStringList values { q.value(0).toString() };
            for (int i = 1; i < 6; ++i)
                values.append(QString::number(q.value(i).toDouble(), 'g', 12));
            rows.append(values.join(QLatin1Char(' ')));
        });
    return rows;
}

double StockTest::number(const QString &sql, const QVariantList &params)
{
    return db().firstValue(sql, params).toDouble();
}

stock::BatchKey StockTest::batchOf(
    const QString &goods, const Line &line, const QString &warehouse) const
{
    return { goods, warehouse, line.batch, line.expiry, line.produced };
}

} // namespace medistock::test
