#include "core/connection.h"
#include "tests/support/accountset.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace medistock;

namespace {

struct CliRun
{
    int status;
    QString out;
    QString err;
};

class MoneyCommands : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        ASSERT_EQ(run({ QStringLiteral("init") }).status, 0);
    }

    CliRun run(QStringList arguments)
    {
        arguments.prepend(m_dir.path());
        arguments.prepend(QStringLiteral("--data"));
        arguments.prepend(QStringLiteral("2025-03-14"));
        arguments.prepend(QStringLiteral("--today"));
        QProcess process;
        process.start(QStringLiteral(MEDISTOCK_CLI_PATH), arguments);
        process.waitForFinished(60000);
        return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError()) };
    }

    QString file(const QString &name, const QByteArray &json)
    {
        const QString path = QDir(m_dir.path()).filePath(name);
        QFile out(path);
        out.open(QIODevice::WriteOnly);
        out.write(json);
        return path;
    }

private:
    QTemporaryDir m_dir;
};

} // namespace

TEST_F(MoneyCommands, ACollectionIsSavedCheckedAndUncheckedByItsNumber)
{
    const QString json = file(QStringLiteral("sk.json"),
        R"({"kind":"SK","k_ghskh":"100001","k_rq":"2025-03-14","k_sfje":"100","k_mlje":0.5,
            "k_fkfs":"现金","k_note":"三月货款"})");

    EXPECT_EQ(run({ "save", json }).out, QStringLiteral("SK25031410001\n"));
    EXPECT_EQ(run({ "check", "SK25031410001" }).out, QStringLiteral("已审核：SK25031410001\n"));
    EXPECT_EQ(run({ "balance", "kh", "100001" }).out, QStringLiteral("-100.50\n"));
    EXPECT_EQ(
        run({ "balance", "kh", "100001", "--as-of", "2025-03-13" }).out, QStringLiteral("0.00\n"));
    EXPECT_EQ(run({ "cash-balance", "现金" }).out, QStringLiteral("100.00\n"));
    EXPECT_TRUE(run({ "show", "SK25031410001" }).out.contains(QStringLiteral("\nk_check=1\n")));
    EXPECT_EQ(run({ "registration-date", "SK25031410001", "2025-03-20" }).status, 0);
    EXPECT_EQ(
        run({ "balance", "kh", "100001", "--as-of", "2025-03-19" }).out, QStringLiteral("0.00\n"));
    EXPECT_EQ(run({ "registration-date", "SK25031410001", "2025-13-01" }).err,
        QStringLiteral("日期不正确，请按“yyyy-MM-dd”输入！\n"));

    const CliRun declined = run({ "uncheck", "SK25031410001" });
    EXPECT_EQ(declined.status, 1);
    EXPECT_EQ(declined.err,
        QStringLiteral("您的操作将取消当前选中的已审核单据：SK25031410001，"
                       "确认吗？ [是/否] 否\n"));
    EXPECT_EQ(run({ "--yes", "uncheck", "SK25031410001" }).status, 0);
    EXPECT_EQ(run({ "balance", "kh", "100001" }).out, QStringLiteral("0.00\n"));
    EXPECT_EQ(run({ "delete", "SK25031410001" }).out, QStringLiteral("已删除：SK25031410001\n"));
}

TEST_F(MoneyCommands, MovementsAndExpensesGoThroughTheSameCommands)
{
    const QString transfer = file(QStringLiteral("xz.json"),
        R"({"kind":"XZ","xj_rq":"2025-03-14","lines":[{"xj_kmmc":"现金","xj_je":-300},
            {"xj_kmmc":"工行帐号","xj_je":300}]})");
    const QString fee = file(QStringLiteral("fy.json"),
        R"({"kind":"FY","fy_lx":"费用","fy_je":45,"fy_kmmc":"工行帐号","fy_note":"快递费"})");

    EXPECT_EQ(run({ "save", transfer }).out, QStringLiteral("XZ25031410001\n"));
    EXPECT_EQ(run({ "save", fee }).out, QStringLiteral("FY25031410001\n"));
    EXPECT_EQ(run({ "check", "XZ25031410001" }).status, 0);
    EXPECT_EQ(run({ "check", "FY25031410001" }).status, 0);

    EXPECT_EQ(run({ "cash-balance", "工行帐号" }).out, QStringLiteral("255.00\n"));
    EXPECT_EQ(
        run({ "recalc", "cash", "现金", "--from", "2025-01-01" }).out, QStringLiteral("-300.00\n"));
}

TEST_F(MoneyCommands, WrongInputIsAUsageErrorAndRefusalsExitWithOne)
{
    const QString typo = file(QStringLiteral("bad.json"), R"({"kind":"SK","k_bad":1})");
    const QString unknown = file(QStringLiteral("zz.json"), R"({"kind":"ZZ"})");

    const CliRun field = run({ "save", typo });
    EXPECT_EQ(field.status, 2);
    EXPECT_EQ(field.err, QStringLiteral("该单据没有字段：k_bad\n"));
    EXPECT_EQ(run({ "save", unknown }).err, QStringLiteral("未知的单据类型：ZZ\n"));
    const CliRun prefix = run({ "check", "ZZ25031410001" });
    EXPECT_EQ(prefix.status, 2);
    EXPECT_EQ(prefix.err, QStringLiteral("未知的单据类型：ZZ25031410001\n"));
    EXPECT_EQ(
        run({ "check", "SK25031410001", "--paid", "5" }).err, QStringLiteral("未知选项：--paid\n"));

    const CliRun missing = run({ "check", "SK25031410009" });
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.err, QStringLiteral("单据：SK25031410009不存在！\n"));
    const CliRun recalc = run({ "--yes", "recalc", "payables", "--from", "2025-01-01" });
    EXPECT_EQ(recalc.status, 0);
    EXPECT_EQ(recalc.err,
        QStringLiteral("您的操作将重新计算所有供货商的应付款，确认吗？ [是/否] 是\n"
                       "应付款重新计算完成！\n"));
}
