#include "core/spreadsheet.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "masterdata/transfer.h"
#include "tests/support/accountset.h"

#include <QDir>
#include <QSqlQuery>

using namespace medistock;
using namespace medistock::masterdata;
using medistock::test::dumpDatabase;
using medistock::test::SessionTest;

class TransferTest : public SessionTest
{
protected:
    QString file(const QString &name) const { return QDir(folder()).filePath(name); }
    void writeSheet(
        const QString &name, const QStringList &headers, const QList<QVariantList> &rows)
    {
        ASSERT_TRUE(core::writeXlsx(file(name), QStringLiteral("商品"), headers, rows).ok());
    }
};

TEST_F(TransferTest, ASpreadsheetReadsBackAsWritten)
{
    writeSheet(QStringLiteral("a.xlsx"), { QStringLiteral("商品编号"), QStringLiteral("价格") },
        { { QStringLiteral("000123"), 12.5 }, { QStringLiteral("阿莫西林"), 0.1 + 0.2 },
            { QString(), 3 } });
    const auto rows = core::readXlsx(file(QStringLiteral("a.xlsx")));
    ASSERT_TRUE(rows.ok());
    EXPECT_EQ(rows.value(),
        (QList<QStringList> { { QStringLiteral("商品编号"), QStringLiteral("价格") },
            { QStringLiteral("000123"), QStringLiteral("12.5") },
            { QStringLiteral("阿莫西林"), QStringLiteral("0.3") },
            { QString(), QStringLiteral("3") } }));
    EXPECT_FALSE(core::readXlsx(file(QStringLiteral("missing.xlsx"))).ok());
}

TEST_F(TransferTest, ABadRowIsReportedAndNothingIsWrittenUntilConfirmed)
{
    writeSheet(QStringLiteral("goods.xlsx"),
        { QStringLiteral("商品名称"), QStringLiteral("单位"), QStringLiteral("预设进价"),
            QStringLiteral("商品类别"), QStringLiteral("商品条码"), QStringLiteral("备用") },
        { { QStringLiteral("阿莫西林胶囊"), QStringLiteral("盒"), 12.5, QStringLiteral("默认类别"),
              QStringLiteral("6920000000017"), QStringLiteral("x") },
            { QStringLiteral("板蓝根颗粒"), QStringLiteral("袋"), QStringLiteral("十二"), QString(),
                QString(), QString() },
            { QStringLiteral("感冒灵颗粒"), QStringLiteral("盒"), 8, QStringLiteral("没有的类别"),
                QString(), QString() },
            { QStringLiteral("复方甘草片"), QStringLiteral("瓶"), 3.2, QString(),
                QStringLiteral("6920000000017"), QString() },
            { QStringLiteral("维生素C片"), QStringLiteral("瓶"), 2, QString(), QString(),
                QString() } });
    const QString before = dumpDatabase(db());
    const auto plan = planImport(session(), goodsKind(), file(QStringLiteral("goods.xlsx")));
    ASSERT_TRUE(plan.ok()) << plan.message().toStdString();
    EXPECT_EQ(plan->columns.at(2).column, QStringLiteral("g_jj"));
    EXPECT_EQ(plan->columns.at(3).column, QStringLiteral("gc_name"));
    EXPECT_EQ(plan->columns.at(5).column, QString());
    ASSERT_EQ(plan->rows.size(), 5);
    EXPECT_EQ(plan->rows.at(0).reason, QString());
    EXPECT_EQ(plan->rows.at(1).line, 3);
    EXPECT_EQ(plan->rows.at(1).reason, QStringLiteral("预设进价“十二”不是数字！"));
    EXPECT_EQ(plan->rows.at(2).reason, QStringLiteral("没有这个商品类别：没有的类别"));
    EXPECT_EQ(
        plan->rows.at(3).reason, QStringLiteral("条码：6920000000017 已被商品“复方甘草片”使用！"));
    EXPECT_EQ(plan->accepted(), 2);
    EXPECT_EQ(dumpDatabase(db()), before);

    const auto written = runImport(session(), goodsKind(), plan.value());
    ASSERT_TRUE(written.ok()) << written.message().toStdString();
    EXPECT_EQ(written.value(), 2);
    QStringList imported;
    db().forEach(
        QStringLiteral(
            "select g_sn,g_name,g_jj,g_jm from jxc_goods where g_sn<>'00000000' order by id"),
        {}, [&](const QSqlQuery &q) {
            imported.append(QStringList { q.value(0).toString(), q.value(1).toString(),
                q.value(2).toString(), q.value(3).toString() }
                                .join(QLatin1Char('|')));
        });
    EXPECT_EQ(imported,
        QStringList({ QStringLiteral("10000001|阿莫西林胶囊|12.5|AMXLJN"),
            QStringLiteral("10000002|维生素C片|2|WSSCP") }));
}

TEST_F(TransferTest, AnImportWritesAllItsRowsOrNone)
{
    writeSheet(QStringLiteral("c.xlsx"), { QStringLiteral("客户名称"), QStringLiteral("编号") },
        { { QStringLiteral("城东诊所"), QStringLiteral("200001") },
            { QStringLiteral("城西药店"), QStringLiteral("200002") } });
    const auto plan = planImport(
        session(), *findMasterKind(QStringLiteral("customer")), file(QStringLiteral("c.xlsx")));
    ASSERT_EQ(plan->accepted(), 2);
    // another workstation takes the second code in the meantime
    db().exec(QStringLiteral("insert into jxc_khxx (kh_sn,kh_name) values (?,?)"),
        { QStringLiteral("200002"), QStringLiteral("别人") });
    const auto written
        = runImport(session(), *findMasterKind(QStringLiteral("customer")), plan.value());
    EXPECT_EQ(written.message(), QStringLiteral("第3行：编号：200002 已经存在，请重新输入！"));
    EXPECT_FALSE(db().exists(QStringLiteral("select 1 from jxc_khxx where kh_sn='200001'")));
}

TEST_F(TransferTest, ExportedGoodsImportBackColumnForColumn)
{
    ASSERT_TRUE(addMasterRow(session(), goodsKind(),
        { { QStringLiteral("g_name"), QStringLiteral("阿莫西林胶囊") },
            { QStringLiteral("dw_name"), QStringLiteral("盒") },
            { QStringLiteral("gg_name"), QStringLiteral("0.25g*24粒") },
            { QStringLiteral("g_jj"), QStringLiteral("12.5") },
            { QStringLiteral("g_sj"), QStringLiteral("18.8") },
            { QStringLiteral("g_zdkc"), QStringLiteral("20") },
            { QStringLiteral("g_iscf"), QStringLiteral("1") },
            { QStringLiteral("g_ks"), QStringLiteral("2025-01-01") },
            { QStringLiteral("g_sptm"), QStringLiteral("6920000000017") },
            { QStringLiteral("g_cztj"), QStringLiteral("阴凉处") } })
                    .ok());
    ASSERT_TRUE(addMasterRow(
        session(), goodsKind(), { { QStringLiteral("g_name"), QStringLiteral("板蓝根颗粒") } })
                    .ok());
    ASSERT_TRUE(exportMasterRows(db(), goodsKind(), file(QStringLiteral("out.xlsx"))).ok());

    const QStringList columns = exportColumns(goodsKind());
    const QString select
        = QStringLiteral("select %1 from jxc_goods where g_sn<>'00000000' order by g_sn")
              .arg(columns.join(QLatin1Char(',')));
    const auto snapshot = [&] {
        QStringList rows;
        db().forEach(select, {}, [&](const QSqlQuery &q) {
            QStringList cells;
            for (int c = 0; c < columns.size(); ++c)
                cells.append(q.value(c).toString());
            rows.append(cells.join(QLatin1Char('|')));
        });
        return rows;
    };
    const QStringList exported = snapshot();
    db().exec(QStringLiteral("delete from jxc_goods where g_sn<>'00000000'"));

    const auto plan = planImport(session(), goodsKind(), file(QStringLiteral("out.xlsx")));
    ASSERT_TRUE(plan.ok());
    for (const ImportColumn &column : plan->columns)
        EXPECT_FALSE(column.column.isEmpty()) << column.header.toStdString();
    EXPECT_EQ(plan->rejected(), 0) << plan->rows.first().reason.toStdString();
    ASSERT_TRUE(runImport(session(), goodsKind(), plan.value()).ok());
    EXPECT_EQ(snapshot(), exported);
}
