#include "core/connection.h"
#include "core/dberror.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "tests/support/accountset.h"

#include <QSqlQuery>

using namespace medistock;
using namespace medistock::core;
using medistock::test::AccountSetTest;
using medistock::test::dumpTable;

class ConnectionTest : public AccountSetTest
{
protected:
    void addUnit(const QString &code, const QString &name)
    {
        db().exec(
            QStringLiteral("insert into jxc_dw (dw_sn,dw_name) values (?,?)"), { code, name });
    }
};

TEST_F(ConnectionTest, FirstTextIsEmptyWhenThereIsNoRow)
{
    EXPECT_EQ(db().firstText(QStringLiteral("select dw_name from jxc_dw where dw_sn=?"),
                  { QStringLiteral("999999") }),
        QString());
    EXPECT_EQ(db().firstText(QStringLiteral("select dw_name from jxc_dw where dw_sn=?"),
                  { QStringLiteral("100003") }),
        QStringLiteral("袋"));
    // a value with a quote is bound, never pasted
    addUnit(QStringLiteral("100009"), QStringLiteral("it's"));
    EXPECT_EQ(db().firstText(QStringLiteral("select dw_sn from jxc_dw where dw_name=?"),
                  { QStringLiteral("it's") }),
        QStringLiteral("100009"));
}

TEST_F(ConnectionTest, AnErrorInsideATransactionLeavesTheDatabaseAsItWas)
{
    const QStringList before = dumpTable(db(), QStringLiteral("jxc_dw"));
    ScriptedInteraction interaction;
    const Outcome outcome = guarded(interaction, [&] {
        Transaction transaction(db());
        addUnit(QStringLiteral("100004"), QStringLiteral("瓶"));
        db().exec(QStringLiteral("insert into jxc_no_such_table (x) values (?)"), { 1 });
        transaction.commit();
        return Outcome::done();
    });
    EXPECT_EQ(outcome.kind(), Outcome::Kind::Failed);
    EXPECT_TRUE(outcome.message().startsWith(QStringLiteral("数据库错误：")));
    EXPECT_EQ(interaction.informed, QStringList { outcome.message() });
    EXPECT_FALSE(db().inTransaction());
    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_dw")), before);
}

TEST_F(ConnectionTest, NestedGuardsCommitOnlyWithTheOutermost)
{
    {
        Transaction outer(db());
        {
            Transaction inner(db());
            addUnit(QStringLiteral("100004"), QStringLiteral("瓶"));
            inner.commit();
        }
        EXPECT_TRUE(db().inTransaction());
        outer.commit();
    }
    EXPECT_FALSE(db().inTransaction());
    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_dw")).size(), 3);

    // an inner guard left without commit spoils the outer one
    EXPECT_THROW(
        {
            Transaction outer(db());
            addUnit(QStringLiteral("100005"), QStringLiteral("支"));
            {
                Transaction inner(db());
            }
            outer.commit();
        },
        DbError);
    EXPECT_FALSE(db().inTransaction());
    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_dw")).size(), 3);
}

TEST_F(ConnectionTest, AWriterWaitsForAnotherWorkstationsTransaction)
{
    auto other = Connection::openSqlite(path());
    Transaction holding(*other);
    other->exec(QStringLiteral("insert into jxc_dw (dw_sn,dw_name) values (?,?)"),
        { QStringLiteral("100004"), QStringLiteral("瓶") });
    // readers are not blocked by the writer in WAL mode and do not see its rows yet
    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_dw")).size(), 2);
    holding.commit();
    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_dw")).size(), 3);
    EXPECT_EQ(db().firstText(QStringLiteral("pragma journal_mode")), QStringLiteral("wal"));
}

TEST_F(ConnectionTest, APreparedStatementIsReusedAndCanBeNested)
{
    for (int i = 0; i < 3; ++i)
        addUnit(QStringLiteral("10001%1").arg(i), QStringLiteral("单位%1").arg(i));
    QStringList seen;
    db().forEach(
        QStringLiteral("select dw_sn from jxc_dw order by id"), {}, [&](const QSqlQuery &q) {
            // the same statement while the outer one still reads
            seen.append(db().firstText(
                QStringLiteral("select dw_name from jxc_dw where dw_sn=?"), { q.value(0) }));
        });
    EXPECT_EQ(seen,
        QStringList({ QStringLiteral("盒"), QStringLiteral("袋"), QStringLiteral("单位0"),
            QStringLiteral("单位1"), QStringLiteral("单位2") }));
}

// Another workstation holds the write lock: the operation gives up after the busy timeout, runs
// again, and after the last try tells the operator in Chinese; nothing is written.
TEST_F(ConnectionTest, ABusyDatabaseIsTriedAgainAndThenToldInChinese)
{
    auto other = Connection::openSqlite(path());
    other->setBusyTimeout(0);
    const QStringList before = dumpTable(db(), QStringLiteral("jxc_dw"));
    db().beginWrite();
    addUnit(QStringLiteral("100004"), QStringLiteral("瓶"));
    ScriptedInteraction interaction;
    int runs = 0;
    const Outcome outcome = guarded(interaction, [&] {
        ++runs;
        Transaction transaction(*other);
        other->exec(QStringLiteral("insert into jxc_dw (dw_sn,dw_name) values (?,?)"),
            { QStringLiteral("100005"), QStringLiteral("支") });
        transaction.commit();
        return Outcome::done();
    });
    db().rollbackWrite();
    const QString message
        = QStringLiteral("帐套文件“%1”正被其他工作站使用，请稍后再试。").arg(path());
    EXPECT_EQ(runs, busyAttempts);
    EXPECT_EQ(other->busyErrors(), busyAttempts);
    EXPECT_EQ(outcome.kind(), Outcome::Kind::Failed);
    EXPECT_EQ(interaction.informed, QStringList { message });
    EXPECT_EQ(dumpTable(*other, QStringLiteral("jxc_dw")), before);
}

// A body that meets a busy database runs again from its start; once it gets through, nothing of
// the busy tries is told.
TEST(Guarded, RunsTheWholeBodyAgainWhileTheDatabaseIsBusy)
{
    ScriptedInteraction interaction;
    int runs = 0;
    const Outcome outcome = guarded(interaction, [&] {
        if (++runs < busyAttempts)
            throw DbError(QStringLiteral("忙"), DbError::Kind::Busy);
        return Outcome::done();
    });
    EXPECT_TRUE(outcome.ok());
    EXPECT_EQ(runs, busyAttempts);
    EXPECT_TRUE(interaction.informed.isEmpty());

    runs = 0;
    const Outcome other = guarded(interaction, [&]() -> Outcome {
        ++runs;
        throw DbError(QStringLiteral("数据库错误：no such table"));
    });
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(other.kind(), Outcome::Kind::Failed);
}
