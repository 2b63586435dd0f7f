#include "core/transaction.h"
#include "shell/session.h"
#include "statistics/jxc.h"
#include "statistics/movements.h"
#include "stock/ledger.h"
#include "tests/statistics/statisticstest.h"

using namespace medistock;
using namespace medistock::statistics;
using medistock::test::StatisticsTest;

namespace {

// One ledger row as a posting of its kind stores it, and where the summary must count it.
struct KindCase
{
    const char *kind;
    double quantity; // gl_sl
    double amount; // gl_je
    double total; // gl_zje
    double totalCost; // gl_zcb
    Valuation valuation;
    const char *expected; // "in Q/A out Q/A"
};

void PrintTo(const KindCase &c, std::ostream *os)
{
    *os << c.kind << ' ' << c.quantity;
}

class KindTable : public StatisticsTest, public ::testing::WithParamInterface<KindCase>
{
protected:
    void insertRow(const KindCase &c)
    {
        core::Transaction transaction(db());
        stock::LedgerRow row;
        row.kind = QLatin1String(c.kind);
        row.number = QStringLiteral("T1");
        row.date = QStringLiteral("2025-02-10");
        row.goods = QStringLiteral("200003");
        row.warehouse = QStringLiteral("100001");
        row.quantity = c.quantity;
        row.amount = c.amount;
        row.total = c.total;
        row.totalCost = c.totalCost;
        row.price = 1;
        stock::insertLedgerRow(session(), row);
        transaction.commit();
    }
};

} // namespace

TEST_P(KindTable, CountsEachKindOnItsSideWithItsSign)
{
    const KindCase c = GetParam();
    insertRow(c);
    ASSERT_TRUE(buildJxcSummary(
        session(), { .range = { "2025-02-01", "2025-02-28" }, .valuation = c.valuation })
                    .ok());
    const QList<JxcRow> rows = jxcRows(session(), { {}, QStringLiteral("200003") });
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(QStringLiteral("in %1/%2 out %3/%4")
                  .arg(rows[0].inQuantity)
                  .arg(rows[0].inAmount)
                  .arg(rows[0].outQuantity)
                  .arg(rows[0].outAmount),
        QLatin1String(c.expected));
}

INSTANTIATE_TEST_SUITE_P(Statistics, KindTable,
    ::testing::Values(
        // A sale goes out at cost; a sale with negative quantity and a return come back in.
        KindCase { "xs", 3, 45, 45, 30, Valuation::Cost, "in 0/0 out 3/30" },
        KindCase { "xs", 3, 45, 45, 30, Valuation::Price, "in 0/0 out 3/45" },
        KindCase { "xs", -2, -30, -30, -20, Valuation::Cost, "in 2/20 out 0/0" },
        KindCase { "xs", -2, -30, -30, -20, Valuation::Price, "in 2/30 out 0/0" },
        KindCase { "xt", -4, -60, -60, -40, Valuation::Cost, "in 4/40 out 0/0" },
        // A purchase return goes out with its quantity and amount negated.
        KindCase { "ct", -5, -60, -64.2, 0, Valuation::Cost, "in 0/0 out 5/60" },
        KindCase { "cj", 6, 72, 77.04, 0, Valuation::Cost, "in 6/72 out 0/0" },
        KindCase { "qc", 6, 72, 72, 0, Valuation::Cost, "in 6/72 out 0/0" },
        KindCase { "by", 2, 8, 8, 0, Valuation::Cost, "in 2/8 out 0/0" },
        KindCase { "bs", -3, -31, -31, 0, Valuation::Cost, "in 0/0 out 3/31" },
        // Transfers and stock-taking differences count by their sign.
        KindCase { "db", -10, -100, -100, 0, Valuation::Cost, "in 0/0 out 10/100" },
        KindCase { "db", 10, 100, 100, 0, Valuation::Cost, "in 10/100 out 0/0" },
        KindCase { "pd", -1, -10, -10, 0, Valuation::Cost, "in 0/0 out 1/10" },
        KindCase { "pd", 1, 10, 10, 0, Valuation::Cost, "in 1/10 out 0/0" },
        KindCase { "lt", -2, -18, -20, 0, Valuation::Cost, "in 2/20 out 0/0" },
        KindCase { "dh", 1, 5, 6, 0, Valuation::Cost, "in 0/0 out 1/5" },
        KindCase { "jh", 2, 20, 22, 0, Valuation::Cost, "in 0/0 out 2/22" },
        // A kind the ledger does not know moves nothing.
        KindCase { "zz", 5, 50, 50, 0, Valuation::Cost, "in 0/0 out 0/0" }));

TEST_F(StatisticsTest, TheMovementViewShowsEachRowOnItsSideWithTheRunningStock)
{
    receipt("2025-01-05", { { "200001", "100", "10" } });
    sale("2025-01-20", { { "200001", "30", "15" } });
    salesReturn("2025-02-10", { { "200001", "5", "15" } });
    transfer("2025-03-10", { { "200001", "10", "10" } }, QStringLiteral("100002"));
    MovementQuery query;
    query.filter.range = { "2025-01-01", "2025-03-31" };
    query.filter.goods = QStringLiteral("200001");
    const Result<QList<MovementRow>> rows = movementRows(session(), query, 13);
    ASSERT_TRUE(rows.ok());
    const auto number = [](const std::optional<double> &value) {
        return value ? QString::number(*value) : QStringLiteral("-");
    };
    QStringList shown;
    for (const MovementRow &r : rows.value())
        shown.append(QStringList { r.date, kindName(r.kind), r.warehouseName, number(r.inPrice),
            number(r.inQuantity), number(r.inAmount), "|", number(r.outPrice),
            number(r.outQuantity), number(r.outAmount), "|", QString::number(r.stock),
            QString::number(r.stockValue) }
                         .join(' '));
    // The transfer posts its receiving side first.
    EXPECT_EQ(shown,
        (QStringList { "2025-01-05 采购进货 主仓库 10 100 1000 | - - - | 100 1000",
            "2025-01-20 商品销售 主仓库 - - - | 10 30 300 | 70 700",
            "2025-02-10 销售退货 主仓库 10 5 50 | - - - | 75 750",
            "2025-03-10 库存调拨 分店仓库 10 10 100 | - - - | 10 100",
            "2025-03-10 库存调拨 主仓库 - - - | 10 10 100 | 65 650" }));

    query.byWarehouse = true;
    const Result<QList<MovementRow>> byWarehouse = movementRows(session(), query, 13);
    ASSERT_TRUE(byWarehouse.ok());
    QStringList warehouses;
    for (const MovementRow &r : byWarehouse.value())
        warehouses.append(r.warehouseName);
    EXPECT_EQ(warehouses, (QStringList { "主仓库", "主仓库", "主仓库", "主仓库", "分店仓库" }));
}
