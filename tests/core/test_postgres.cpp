#include "core/accountsets.h"
#include "core/connection.h"
#include "core/connectionchoice.h"
#include "core/dberror.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "tests/support/accountset.h"
#include "tests/support/cli.h"

#include <QFile>
#include <QTemporaryDir>

using namespace medistock;
using namespace medistock::core;
using medistock::test::AccountSetTest;

using Options = Connection::PostgresOptions;

TEST(PostgresOptions, ReadsTheLibpqTextAndRefusesWhatItDoesNotKnow)
{
    const auto read = Options::parse(
        QStringLiteral("host=10.0.0.5 port=5433  dbname=jxc user=shop password='a b\\'c'"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->host, QStringLiteral("10.0.0.5"));
    EXPECT_EQ(read->port, 5433);
    EXPECT_EQ(read->database, QStringLiteral("jxc"));
    EXPECT_EQ(read->user, QStringLiteral("shop"));
    EXPECT_EQ(read->password, QStringLiteral("a b'c"));
    // the text back leaves the password out and reads the same again
    EXPECT_EQ(read->text(), QStringLiteral("host=10.0.0.5 port=5433 dbname=jxc user=shop"));
    EXPECT_EQ(Options::parse(read->text())->database, QStringLiteral("jxc"));

    EXPECT_EQ(Options::parse(QStringLiteral("dbname=jxc"))->port, 5432);
    EXPECT_FALSE(Options::parse(QStringLiteral("host=h user=u")));
    EXPECT_FALSE(Options::parse(QStringLiteral("dbname=jxc sslmod=require")));
    EXPECT_FALSE(Options::parse(QStringLiteral("dbname=jxc port=70000")));
    EXPECT_FALSE(Options::parse(QStringLiteral("dbname=jxc port=abc")));
    EXPECT_FALSE(Options::parse(QStringLiteral("jxc")));
}

TEST(ConnectionChoice, IsRememberedPerDataFolderWithoutThePassword)
{
    QTemporaryDir folder;
    EXPECT_FALSE(readConnectionChoice(folder.path()).server);
    const Options server { QStringLiteral("db.shop"), 6543, QStringLiteral("chain"),
        QStringLiteral("clerk"), QStringLiteral("secret") };
    ASSERT_TRUE(writeConnectionChoice(folder.path(), { server }).ok());
    const ConnectionChoice read = readConnectionChoice(folder.path());
    ASSERT_TRUE(read.server);
    EXPECT_EQ(read.server->text(), server.text());
    EXPECT_TRUE(read.server->password.isEmpty());
    QFile file(folder.path() + QStringLiteral("/connection.ini"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_FALSE(file.readAll().contains("secret"));

    ASSERT_TRUE(writeConnectionChoice(folder.path(), {}).ok());
    EXPECT_FALSE(readConnectionChoice(folder.path()).server);
}

// A conflict the server reports as a serialization failure: the body runs again from its start,
// up to conflictAttempts times, and only then is told, in Chinese.
TEST(Guarded, RunsTheWholeBodyAgainAfterAConflictAndTellsWhenItKeepsFailing)
{
    ScriptedInteraction interaction;
    int runs = 0;
    const Outcome through = guarded(interaction, [&] {
        if (++runs < 4)
            throw DbError(QStringLiteral("冲突"), DbError::Kind::Conflict);
        return Outcome::done();
    });
    EXPECT_TRUE(through.ok());
    EXPECT_EQ(runs, 4);
    EXPECT_TRUE(interaction.informed.isEmpty());

    runs = 0;
    const Outcome failed = guarded(interaction, [&]() -> Outcome {
        ++runs;
        throw DbError(
            QStringLiteral("其他工作站正在修改同样的数据，请稍后再试。"), DbError::Kind::Conflict);
    });
    EXPECT_EQ(runs, conflictAttempts);
    EXPECT_EQ(failed.kind(), Outcome::Kind::Failed);
    EXPECT_EQ(interaction.informed,
        QStringList { QStringLiteral("其他工作站正在修改同样的数据，请稍后再试。") });
}

class PostgresTest : public AccountSetTest
{
protected:
    void SetUp() override
    {
        if (!onPostgresRun())
            GTEST_SKIP() << "runs in the PostgreSQL run only";
        AccountSetTest::SetUp();
    }
    static bool onPostgresRun() { return test::testDialect() == Dialect::Postgres; }

    QString unitName(Connection &connection, const QString &code)
    {
        return connection.firstText(
            QStringLiteral("select dw_name from jxc_dw where dw_sn=?"), { code });
    }
};

// Write skew: each of two writers reads the row the other one writes. The program's writers take
// the set's write lock one after the other; this one goes around it (as another program on the
// same database would). Serializable lets it commit first and refuses our operation with a
// conflict; guarded runs the operation again and it goes through on the new state. No update of
// either is lost.
TEST_F(PostgresTest, ASerializationFailureRunsTheOperationAgain)
{
    auto other = openAgain();
    ScriptedInteraction interaction;
    int runs = 0;
    const Outcome outcome = guarded(interaction, [&] {
        ++runs;
        Transaction transaction(*other);
        const QString seen = unitName(*other, QStringLiteral("100003"));
        if (runs == 1) {
            db().execDirect(QStringLiteral("begin isolation level serializable"));
            unitName(db(), QStringLiteral("100002"));
            db().exec(QStringLiteral("update jxc_dw set dw_name=? where dw_sn=?"),
                { QStringLiteral("箱"), QStringLiteral("100003") });
            db().execDirect(QStringLiteral("commit"));
        }
        other->exec(QStringLiteral("update jxc_dw set dw_name=? where dw_sn=?"),
            { seen + QStringLiteral("/件"), QStringLiteral("100002") });
        transaction.commit();
        return Outcome::done();
    });
    EXPECT_TRUE(outcome.ok()) << outcome.message().toStdString();
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(other->busyErrors(), 1);
    EXPECT_TRUE(interaction.informed.isEmpty());
    EXPECT_EQ(unitName(db(), QStringLiteral("100003")), QStringLiteral("箱"));
    EXPECT_EQ(unitName(db(), QStringLiteral("100002")), QStringLiteral("箱/件"));
}

// The write lock is the set's own: a second connection's transaction waits for it, and it is
// given back at commit and at rollback alike.
TEST_F(PostgresTest, TheWriteLockIsHeldForTheTransactionOnly)
{
    auto other = openAgain();
    const QString held = QStringLiteral(
        "select count(*) from pg_locks where locktype='advisory' and database=(select oid from "
        "pg_database where datname=current_database())");
    {
        Transaction transaction(db());
        EXPECT_EQ(other->firstValue(held).toInt(), 1);
        transaction.commit();
    }
    EXPECT_EQ(other->firstValue(held).toInt(), 0);
    {
        Transaction transaction(db());
        EXPECT_EQ(other->firstValue(held).toInt(), 1);
    }
    EXPECT_EQ(other->firstValue(held).toInt(), 0);
}

TEST_F(PostgresTest, InsertTellsTheNewRowsIdAndAPasswordHashFits)
{
    const qint64 first
        = db().insert(QStringLiteral("insert into jxc_dw (dw_sn,dw_name) values (?,?)"),
            { QStringLiteral("100009"), QStringLiteral("板") });
    const qint64 second
        = db().insert(QStringLiteral("insert into jxc_dw (dw_sn,dw_name) values (?,?)"),
            { QStringLiteral("100010"), QStringLiteral("条") });
    EXPECT_EQ(db().firstValue(QStringLiteral("select id from jxc_dw where dw_sn=?"),
                      { QStringLiteral("100009") })
                  .toLongLong(),
        first);
    EXPECT_EQ(second, first + 1);
    const QString hash = QString(200, QLatin1Char('x'));
    db().exec(QStringLiteral("update jxc_admin set a_pwd=? where a_name=?"),
        { hash, QStringLiteral("admin") });
    EXPECT_EQ(db().firstText(QStringLiteral("select a_pwd from jxc_admin where a_name=?"),
                  { QStringLiteral("admin") }),
        hash);
}

// On the server each set is a database of its own beside the master's, named after it.
TEST_F(PostgresTest, ANewAccountSetIsADatabaseBesideTheMaster)
{
    ScriptedInteraction interaction;
    NewAccountSet request;
    request.name = QStringLiteral("西湖分店");
    request.company.name = QStringLiteral("康宁大药房西湖分店");
    const auto created = createAccountSet(db(), clock, interaction, request);
    ASSERT_TRUE(created.ok()) << created.message().toStdString();
    const QString database = db().postgresOptions().database + QStringLiteral("_100001");
    EXPECT_EQ(created->fileName, database);
    const QList<AccountSet> offered = loginAccountSets(db());
    ASSERT_EQ(offered.size(), 2);
    EXPECT_EQ(offered.at(0).fileName, db().postgresOptions().database);
    auto opened = openAccountSet(db(), offered.at(1));
    ASSERT_TRUE(opened.ok()) << opened.message().toStdString();
    EXPECT_EQ(readCompany(*opened.value()).name, QStringLiteral("康宁大药房西湖分店"));
    EXPECT_EQ(readCompany(db()).name, QStringLiteral("康宁大药房"));
}

TEST_F(PostgresTest, TheCommandLineReachesTheServerWithPg)
{
    const QString master = db().postgresOptions().text();
    const test::CliRun made = test::runCli({ QStringLiteral("--data"), folder(),
        QStringLiteral("--pg"), master, QStringLiteral("set-create"), QStringLiteral("西湖分店") });
    EXPECT_EQ(made.status, 0) << made.err.toStdString();
    const test::CliRun sets = test::runCli({ QStringLiteral("--data"), folder(),
        QStringLiteral("--pg"), master, QStringLiteral("sets") });
    EXPECT_EQ(sets.status, 0) << sets.err.toStdString();
    EXPECT_TRUE(sets.out.startsWith(QStringLiteral("100001\t西湖分店"))) << sets.out.toStdString();
    // --set reaches that set's own database
    const test::CliRun login = test::runCli({ QStringLiteral("--pg"), master,
        QStringLiteral("--set"), QStringLiteral("100001"), QStringLiteral("operators") });
    EXPECT_EQ(login.status, 0) << login.err.toStdString();
    EXPECT_TRUE(login.out.contains(QStringLiteral("admin"))) << login.out.toStdString();

    const test::CliRun bad = test::runCli({ QStringLiteral("--data"), folder(),
        QStringLiteral("--pg"), QStringLiteral("host=x"), QStringLiteral("sets") });
    EXPECT_EQ(bad.status, 2);
    EXPECT_TRUE(bad.err.startsWith(QStringLiteral("--pg 的连接串应为"))) << bad.err.toStdString();
}
