#include "tests/support/accountset.h"
#include "tests/support/cli.h"
#include "tests/support/documentrows.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace medistock;

namespace {

// The commands run on the fixture's master file, dated 2025-03-14, answering "Yes".
class PurchasingCommands : public test::AccountSetTest
{
protected:
    void SetUp() override
    {
        AccountSetTest::SetUp();
        if (HasFatalFailure())
            return;
        test::addGoods(
            db(), { .code = QStringLiteral("200001"), .name = QStringLiteral("阿莫西林胶囊") });
        test::addGoodsUnit(db(), QStringLiteral("200001"), QStringLiteral("件"), 20);
    }
    test::CliRun run(const QStringList &arguments)
    {
        return test::runCli(
            QStringList { QStringLiteral("--data"), folder(), QStringLiteral("--today"),
                QStringLiteral("2025-03-14"), QStringLiteral("--yes") }
            + arguments);
    }
    QString file(const QString &name, const QByteArray &json)
    {
        const QString path = QDir(folder()).filePath(name);
        QFile out(path);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(json);
        return path;
    }
};

} // namespace

TEST_F(PurchasingCommands, AReceiptAndItsReturnGoThroughSaveCheckShowUncheckAndDelete)
{
    const QString receipt = file(QStringLiteral("cj.json"), R"({"kind":"CJ","ghs_sn":"100001",
        "ck_sn":"100001","j_sn2":"GYS-9","j_yhje":"0.4","lines":[{"g_sn":"200001","dw_name":"件",
        "jh_sl":1,"jh_dj":"240","jh_tax":13,"t_ph":"B1","t_scrq":"2024-12-01","t_yxq":"2027-11-30"}]})");
    test::CliRun saved = run({ QStringLiteral("save"), receipt });
    ASSERT_EQ(saved.status, 0) << saved.err.toStdString();
    EXPECT_EQ(saved.out, QStringLiteral("CJ25031410001\n"));

    const test::CliRun checked = run({ QStringLiteral("check"), QStringLiteral("CJ25031410001"),
        QStringLiteral("--paid"), QStringLiteral("100"), QStringLiteral("--mode"),
        QStringLiteral("2"), QStringLiteral("--note"), QStringLiteral("月结'") });
    ASSERT_EQ(checked.status, 0) << checked.err.toStdString();
    EXPECT_EQ(checked.out, QStringLiteral("已审核：CJ25031410001\n"));

    const test::CliRun shown = run({ QStringLiteral("show"), QStringLiteral("CJ25031410001") });
    ASSERT_EQ(shown.status, 0);
    const QJsonObject header = QJsonDocument::fromJson(shown.out.toUtf8()).object();
    EXPECT_EQ(header.value(QStringLiteral("j_note")).toString(), QStringLiteral("月结‘"));
    EXPECT_EQ(header.value(QStringLiteral("j_yfje")).toDouble(), 270.8);
    EXPECT_EQ(header.value(QStringLiteral("j_status")).toInt(), 1);
    const QJsonArray lines = header.value(QStringLiteral("lines")).toArray();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].toObject().value(QStringLiteral("jh_zsl")).toDouble(), 20);
    EXPECT_EQ(
        lines[1].toObject().value(QStringLiteral("g_sn")).toString(), QStringLiteral("00000000"));

    const qint64 line = lines[0].toObject().value(QStringLiteral("id2")).toInteger();
    const QString back = file(QStringLiteral("ct.json"),
        QStringLiteral(R"({"kind":"CT","ghs_sn":"100001","ck_sn":"100001","th_sfje":30,
        "lines":[{"g_sn":"200001","th_sl":"3","th_dj":12,"t_ph":"B1","t_scrq":"2024-12-01",
        "t_yxq":"2027-11-30","id2":%1}]})")
            .arg(line)
            .toUtf8());
    saved = run({ QStringLiteral("save"), back });
    ASSERT_EQ(saved.status, 0) << saved.err.toStdString();
    EXPECT_EQ(saved.out, QStringLiteral("CT25031410001\n"));
    EXPECT_EQ(run({ QStringLiteral("check"), QStringLiteral("CT25031410001") }).status, 0);
    EXPECT_EQ(db().firstText(QStringLiteral("select t_sl from jxc_tkc")), QStringLiteral("17"));

    EXPECT_EQ(run({ QStringLiteral("uncheck"), QStringLiteral("CT25031410001") }).out,
        QStringLiteral("已取消审核：CT25031410001\n"));
    EXPECT_EQ(run({ QStringLiteral("delete"), QStringLiteral("CT25031410001") }).out,
        QStringLiteral("已删除：CT25031410001\n"));
    EXPECT_EQ(run({ QStringLiteral("uncheck"), QStringLiteral("CJ25031410001") }).status, 0);
    EXPECT_EQ(db().firstText(QStringLiteral("select t_sl from jxc_tkc")), QStringLiteral("0"));
}

TEST_F(PurchasingCommands, RefusalsAndWrongFieldsHaveTheirExitStatus)
{
    const QString bad = file(QStringLiteral("bad.json"),
        R"({"kind":"CJ","ghs_sn":"100001","ck_sn":"100001","lines":[{"g_sn":"200001","jh_sl":"x","jh_dj":1}]})");
    test::CliRun refused = run({ QStringLiteral("save"), bad });
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, QStringLiteral("第1行：数量“x”不是数字！\n"));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_jhd")), 0);

    const QString unknown = file(QStringLiteral("unknown.json"),
        R"({"kind":"CT","ghs_sn":"100001","ck_sn":"100001","j_sn2":"X","lines":[]})");
    EXPECT_EQ(run({ QStringLiteral("save"), unknown }).status, 2);
    EXPECT_EQ(
        run({ QStringLiteral("check"), QStringLiteral("CJ25031410001"), QStringLiteral("--mode") })
            .status,
        2);
    refused = run({ QStringLiteral("check"), QStringLiteral("CJ25031410001") });
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, QStringLiteral("单据：CJ25031410001不存在！\n"));
}
