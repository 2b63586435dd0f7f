#include "core/connection.h"
#include "core/rounding.h"
#include "documents/descriptor.h"
#include "maintenance/checks.h"
#include "stock/ledger.h"

#include <QMap>
#include <QSqlQuery>

#include <cmath>

namespace medistock::maintenance::detail {

namespace {

using Area = Finding::Area;

// Keys sort by goods, warehouse, batch so that findings come in the order of the stock query.
QString keyText(const stock::BatchKey &key)
{
    return QStringList { key.goods, key.warehouse, key.batch, key.expiry, key.produced }.join(
        QChar(0));
}

struct Sums
{
    QMap<QString, std::pair<stock::BatchKey, double>> stored;
    QMap<QString, std::pair<stock::BatchKey, double>> ledger;

    static void add(QMap<QString, std::pair<stock::BatchKey, double>> &map,
        const stock::BatchKey &key, double quantity)
    {
        auto &entry = map[keyText(key)];
        entry.first = key;
        entry.second += quantity;
    }
};

double signedQuantity(const QString &kind, double quantity)
{
    switch (stock::kindRole(kind, quantity).direction) {
    case stock::KindRole::Direction::Adds:
        return quantity;
    case stock::KindRole::Direction::Subtracts:
        return -quantity;
    case stock::KindRole::Direction::None:
        break;
    }
    return 0;
}

void compare(Area area, const Sums &sums, QList<StockDrift> &drifts)
{
    QStringList keys = sums.stored.keys() + sums.ledger.keys();
    keys.removeDuplicates();
    std::sort(keys.begin(), keys.end());
    for (const QString &key : keys) {
        const auto stored = sums.stored.value(key);
        const auto ledger = sums.ledger.value(key);
        const double a = std::round(stored.second * 1e8) / 1e8;
        const double b = std::round(ledger.second * 1e8) / 1e8;
        if (!same(a, b))
            drifts.append({ area, sums.stored.contains(key) ? stored.first : ledger.first, a, b });
    }
}

} // namespace

QList<StockDrift> stockDrifts(core::Connection &db)
{
    const QString discount = documents::discountGoods();
    Sums warehouse, batch, goods;
    db.forEach(QStringLiteral("select g_sn,ck_sn,t_ph,t_yxq,t_scrq,gl_flag,sum(gl_sl) from "
                              "jxc_goodslist where g_sn<>? group by g_sn,ck_sn,t_ph,t_yxq,t_scrq,"
                              "gl_flag"),
        { discount }, [&](const QSqlQuery &q) {
            const stock::BatchKey key { q.value(0).toString(), q.value(1).toString(),
                q.value(2).toString(), q.value(3).toString(), q.value(4).toString() };
            const QString kind = q.value(5).toString();
            const double quantity = signedQuantity(kind, q.value(6).toDouble());
            // A gift redemption names no batch and leaves the batches alone.
            if (kind != QLatin1String("dh"))
                Sums::add(batch.ledger, key, quantity);
            Sums::add(warehouse.ledger, { key.goods, key.warehouse, {}, {}, {} }, quantity);
            Sums::add(goods.ledger, { key.goods, {}, {}, {}, {} }, quantity);
        });
    db.forEach(QStringLiteral("select g_sn,ck_sn,kc_sl from jxc_kcsp where g_sn<>?"), { discount },
        [&](const QSqlQuery &q) {
            Sums::add(warehouse.stored,
                { q.value(0).toString(), q.value(1).toString(), {}, {}, {} },
                q.value(2).toDouble());
        });
    db.forEach(
        QStringLiteral("select g_sn,ck_sn,t_ph,t_yxq,t_scrq,t_sl from jxc_tkc where g_sn<>?"),
        { discount }, [&](const QSqlQuery &q) {
            Sums::add(batch.stored,
                { q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
                    q.value(3).toString(), q.value(4).toString() },
                q.value(5).toDouble());
        });
    db.forEach(QStringLiteral("select g_sn,g_kc from jxc_goods where g_sn<>?"), { discount },
        [&](const QSqlQuery &q) {
            Sums::add(
                goods.stored, { q.value(0).toString(), {}, {}, {}, {} }, q.value(1).toDouble());
        });
    QList<StockDrift> drifts;
    compare(Area::Warehouse, warehouse, drifts);
    compare(Area::Batch, batch, drifts);
    compare(Area::Goods, goods, drifts);
    return drifts;
}

QString describe(core::Connection &db, const StockDrift &drift)
{
    const QString figures
        = QStringLiteral("库存 %1，流水账合计 %2")
              .arg(core::plainNumber(drift.stored), core::plainNumber(drift.ledger));
    const QString goods = goodsLabel(db, drift.key.goods);
    switch (drift.area) {
    case Area::Warehouse:
        return QStringLiteral("仓库库存（%1，%2）：%3")
            .arg(goods, warehouseLabel(db, drift.key.warehouse), figures);
    case Area::Batch:
        if (drift.key.batch.isEmpty() && drift.key.expiry.isEmpty() && drift.key.produced.isEmpty())
            return QStringLiteral("批次库存（%1，%2，无批号）：%3")
                .arg(goods, warehouseLabel(db, drift.key.warehouse), figures);
        return QStringLiteral("批次库存（%1，%2，批号 %3，有效期至 %4，生产日期 %5）：%6")
            .arg(goods, warehouseLabel(db, drift.key.warehouse), drift.key.batch, drift.key.expiry,
                drift.key.produced, figures);
    default:
        return QStringLiteral("商品库存（%1）：%2").arg(goods, figures);
    }
}

} // namespace medistock::maintenance::detail
