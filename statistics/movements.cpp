#include "statistics/movements.h"

#include "documents/descriptor.h"
#include "statistics/reading.h"

namespace medistock::statistics {

namespace {

enum class Sign { Any, Negative, NotNegative };

// One line of the table in movements.h. The price and amount "at cost" differ only for the sales
// kinds; for the others they are empty and the plain ones hold.
struct KindRule
{
    QStringList kinds;
    Sign sign;
    MovementGroup group;
    const char *price;
    const char *quantity;
    const char *amount;
    const char *costPrice = "";
    const char *costAmount = "";
};

bool isInward(MovementGroup group)
{
    return group == MovementGroup::Purchase || group == MovementGroup::SalesReturn
        || group == MovementGroup::OtherIn;
}

// The busiest kinds come first: each row stops at the first rule it matches.
const QList<KindRule> &rules()
{
    using G = MovementGroup;
    static const QList<KindRule> table {
        { { "cj" }, Sign::Any, G::Purchase, "a.gl_dj", "a.gl_sl", "a.gl_je" },
        { { "xs" }, Sign::NotNegative, G::Sale, "a.gl_dj", "a.gl_sl", "a.gl_je", "a.gl_cbj",
            "a.gl_zcb" },
        { { "xs", "xt" }, Sign::Any, G::SalesReturn, "a.gl_dj", "-a.gl_sl", "-a.gl_je", "a.gl_cbj",
            "abs(a.gl_zcb)" },
        { { "ct" }, Sign::Any, G::PurchaseReturn, "a.gl_dj", "-a.gl_sl", "-a.gl_je" },
        { { "qc", "by", "hh", "sc", "jg", "ws", "bh", "bf" }, Sign::Any, G::OtherIn, "a.gl_dj",
            "a.gl_sl", "a.gl_je" },
        { { "db", "cf", "kb", "pd" }, Sign::NotNegative, G::OtherIn, "a.gl_dj", "a.gl_sl",
            "a.gl_je" },
        { { "db", "cf", "kb", "pd" }, Sign::Negative, G::OtherOut, "a.gl_dj", "-a.gl_sl",
            "-a.gl_zje" },
        { { "lt" }, Sign::Any, G::OtherIn, "a.gl_dj", "-a.gl_sl", "-a.gl_zje" },
        { { "bs", "pl", "st", "wp", "wt" }, Sign::Any, G::OtherOut, "a.gl_dj", "-a.gl_sl",
            "-a.gl_zje" },
        { { "dh" }, Sign::Any, G::OtherOut, "a.gl_dj", "a.gl_sl", "a.gl_je" },
        { { "jh", "ly" }, Sign::Any, G::OtherOut, "a.gl_dj", "a.gl_sl", "a.gl_zje" },
    };
    return table;
}

// The rule's condition. A sale with quantity >= 0 is matched by the rule before, so the return
// rule's "xs" needs no sign of its own.
Sql condition(const KindRule &rule)
{
    Sql sql = kindIn(QStringLiteral("a.gl_flag"), rule.kinds);
    if (rule.sign == Sign::Negative)
        sql.text += QStringLiteral(" and a.gl_sl<0");
    else if (rule.sign == Sign::NotNegative)
        sql.text += QStringLiteral(" and a.gl_sl>=0");
    return sql;
}

QString expression(const KindRule &rule, Figure figure, Valuation valuation)
{
    const bool atCost = valuation == Valuation::Cost && *rule.costPrice;
    switch (figure) {
    case Figure::Price:
        return QLatin1String(atCost ? rule.costPrice : rule.price);
    case Figure::Quantity:
        return QLatin1String(rule.quantity);
    case Figure::Amount:
        return QLatin1String(atCost ? rule.costAmount : rule.amount);
    }
    return {};
}

} // namespace

Sql movementFigure(
    bool inward, Figure figure, Valuation valuation, const QList<MovementGroup> &groups)
{
    Sql sql { QStringLiteral("(case"), {} };
    for (const KindRule &rule : rules()) {
        const bool wanted
            = isInward(rule.group) == inward && (groups.isEmpty() || groups.contains(rule.group));
        sql.text += QStringLiteral(" when ");
        sql += condition(rule);
        sql.text += QStringLiteral(" then ")
            + (wanted ? expression(rule, figure, valuation) : QStringLiteral("null"));
    }
    sql.text += QStringLiteral(" else null end)");
    return sql;
}

QStringList movementKinds()
{
    QStringList kinds;
    for (const KindRule &rule : rules())
        for (const QString &kind : rule.kinds)
            if (!kinds.contains(kind))
                kinds.append(kind);
    return kinds;
}

QString kindName(const QString &kind)
{
    static const QHash<QString, QString> names {
        { QStringLiteral("cj"), QStringLiteral("采购进货") },
        { QStringLiteral("ct"), QStringLiteral("采购退货") },
        { QStringLiteral("xs"), QStringLiteral("商品销售") },
        { QStringLiteral("xt"), QStringLiteral("销售退货") },
        { QStringLiteral("db"), QStringLiteral("库存调拨") },
        { QStringLiteral("pd"), QStringLiteral("库存盘点") },
        { QStringLiteral("bs"), QStringLiteral("商品报损") },
        { QStringLiteral("by"), QStringLiteral("商品报溢") },
        { QStringLiteral("cf"), QStringLiteral("商品拆分") },
        { QStringLiteral("kb"), QStringLiteral("商品捆绑") },
        { QStringLiteral("qc"), QStringLiteral("期初建账") },
        { QStringLiteral("jh"), QStringLiteral("客户借货") },
        { QStringLiteral("hh"), QStringLiteral("客户还货") },
        { QStringLiteral("dh"), QStringLiteral("积分兑换") },
    };
    return names.value(kind, kind.toUpper());
}

namespace {

std::optional<double> optionalNumber(const QVariant &value)
{
    if (value.isNull() || !value.isValid())
        return std::nullopt;
    return value.toDouble();
}

Sql movementSelect(const MovementQuery &query)
{
    Sql sql { QStringLiteral("select a.id,a.gl_kdrq,a.gl_flag,a.gl_djh,a.g_sn,b.g_name,a.ck_sn,"
                             "(select ck_name from jxc_ckxx where ck_sn=a.ck_sn order by id "
                             "limit 1),a.ghs_name,a.t_ph,a.t_yxq,a.gl_kc,a.gl_kczje"),
        {} };
    for (const bool inward : { true, false })
        for (const Figure figure : { Figure::Price, Figure::Quantity, Figure::Amount }) {
            sql.text += QLatin1Char(',');
            sql += movementFigure(inward, figure, query.valuation);
        }
    sql.text += QStringLiteral(" from jxc_goodslist a left join jxc_goods b on b.g_sn=a.g_sn "
                               "where a.g_sn<>?");
    sql.params.append(documents::discountGoods());
    sql += ledgerConditions(query.filter);
    sql.text += query.byWarehouse ? QStringLiteral(" order by 8,a.g_sn,a.gl_kdrq,a.id")
                                  : QStringLiteral(" order by a.g_sn,a.gl_kdrq,a.id");
    return sql;
}

MovementRow movementRow(const QSqlQuery &q)
{
    MovementRow row;
    row.id = q.value(0).toLongLong();
    row.date = q.value(1).toString();
    row.kind = q.value(2).toString();
    row.number = q.value(3).toString();
    row.goods = q.value(4).toString();
    row.goodsName = q.value(5).toString();
    row.warehouse = q.value(6).toString();
    row.warehouseName = q.value(7).toString();
    row.partyName = q.value(8).toString();
    row.batch = q.value(9).toString();
    row.expiry = q.value(10).toString();
    row.stock = q.value(11).toDouble();
    row.stockValue = q.value(12).toDouble();
    row.inPrice = optionalNumber(q.value(13));
    row.inQuantity = optionalNumber(q.value(14));
    row.inAmount = optionalNumber(q.value(15));
    row.outPrice = optionalNumber(q.value(16));
    row.outQuantity = optionalNumber(q.value(17));
    row.outAmount = optionalNumber(q.value(18));
    return row;
}

} // namespace

Result<QList<MovementRow>> movementRows(
    const shell::Session &session, const MovementQuery &query, int right)
{
    const DateRange &range = query.filter.range;
    const bool ranged = !range.from.isEmpty() || !range.to.isEmpty();
    return readReport<QList<MovementRow>>(session, right, ranged ? &range : nullptr,
        [&] { return selectRows<MovementRow>(session, movementSelect(query), movementRow); });
}

} // namespace medistock::statistics
