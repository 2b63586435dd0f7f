#include "core/spreadsheet.h"
#include "gsp/tables.h"
#include "tests/support/accountset.h"

#include <QDir>
#include <QTemporaryDir>

namespace medistock::test {

namespace {

gsp::ExpiryRow batch(const char *number, double quantity)
{
    gsp::ExpiryRow row;
    row.goods = QStringLiteral("200001");
    row.goodsName = QStringLiteral("阿莫西林胶囊");
    row.batch = QString::fromLatin1(number);
    row.expiry = QStringLiteral("2025-05");
    row.quantity = quantity;
    return row;
}

} // namespace

TEST(RecordTables, TheTotalsRowSumsOnlyTheSummedColumns)
{
    const gsp::RecordTable table = gsp::expiryTable({ batch("A1", 12.5), batch("A2", 30) }, 90);
    EXPECT_EQ(table.title, QStringLiteral("查询还有90天过期的药品"));
    EXPECT_EQ(table.summed, QList<int> { 9 });
    const QVariantList totals = gsp::totalsRow(table);
    ASSERT_EQ(totals.size(), table.headers.size());
    EXPECT_EQ(totals.first().toString(), QStringLiteral("合计"));
    EXPECT_DOUBLE_EQ(totals[9].toDouble(), 42.5);
    for (int column = 1; column < 9; ++column)
        EXPECT_EQ(totals[column].toString(), QString()) << column;
}

TEST(RecordTables, ColumnsKnowWhatTheyHold)
{
    gsp::AcceptanceRow row;
    const gsp::RecordTable table = gsp::acceptanceTable({ row });
    const auto kindOf = [&](const char *caption) {
        return table.kinds.value(int(table.headers.indexOf(QString::fromUtf8(caption))));
    };
    EXPECT_EQ(kindOf("数量"), gsp::ColumnKind::Quantity);
    EXPECT_EQ(kindOf("单价"), gsp::ColumnKind::Price);
    EXPECT_EQ(kindOf("金额"), gsp::ColumnKind::Amount);
    EXPECT_EQ(kindOf("产品批号"), gsp::ColumnKind::Text);
    EXPECT_EQ(table.printKey, QStringLiteral("gspysjl"));
    const gsp::RecordTable climate = gsp::temperatureTable({ gsp::TemperatureRow() });
    EXPECT_EQ(climate.kinds.value(3), gsp::ColumnKind::Figure);
    EXPECT_TRUE(climate.summed.isEmpty());
}

TEST(RecordTables, TheExportWritesTheRowsAndTheTotalsWhenThereAreAny)
{
    QTemporaryDir dir;
    const QString summed = QDir(dir.path()).filePath(QStringLiteral("expiry.xlsx"));
    ASSERT_TRUE(
        gsp::exportTable(gsp::expiryTable({ batch("A1", 12.5), batch("A2", 30) }, 90), summed)
            .ok());
    const auto sheet = core::readXlsx(summed);
    ASSERT_TRUE(sheet.ok());
    ASSERT_EQ(sheet->size(), 4);
    EXPECT_EQ(sheet->at(0).value(9), QStringLiteral("库存数量"));
    EXPECT_EQ(sheet->at(2).value(6), QStringLiteral("A2"));
    EXPECT_EQ(sheet->at(3).value(0), QStringLiteral("合计"));
    EXPECT_EQ(sheet->at(3).value(9), QStringLiteral("42.5"));
    const QString plain = QDir(dir.path()).filePath(QStringLiteral("categories.xlsx"));
    ASSERT_TRUE(gsp::exportTable(
        gsp::categoryTable({ { 1, QStringLiteral("1001"), QStringLiteral("中药材") } }), plain)
                    .ok());
    EXPECT_EQ(core::readXlsx(plain).value(),
        (QList<QStringList> { { QStringLiteral("编号"), QStringLiteral("药品类型") },
            { QStringLiteral("1001"), QStringLiteral("中药材") } }));
}

} // namespace medistock::test
