#include "core/accountsets.h"
#include "core/connection.h"
#include "core/datafolder.h"
#include "core/dberror.h"
#include "core/dbfile.h"
#include "tests/support/accountset.h"
#include "tests/support/cli.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>

#include <unistd.h>

#include <functional>

using namespace medistock;
using namespace medistock::core;
using medistock::test::AccountSetTest;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

QByteArray digest(const QString &path)
{
    return QCryptographicHash::hash(contentOf(path), QCryptographicHash::Sha256);
}

// Copies the file and its WAL as they are now, as a crash would leave them.
void copyWithWal(const QString &from, const QString &to)
{
    for (const char *suffix : { "", "-wal" }) {
        QFile::remove(to + QLatin1String(suffix));
        ASSERT_TRUE(QFile::copy(from + QLatin1String(suffix), to + QLatin1String(suffix)));
    }
}

// Renames the administrator in a commit that stays in the file's WAL while the returned
// connection is open.
std::unique_ptr<Connection> renameAdminInWal(const QString &path, const QString &name)
{
    auto connection = Connection::openSqlite(path);
    connection->execDirect(QStringLiteral("pragma wal_autocheckpoint=0"));
    connection->beginWrite();
    connection->exec(QStringLiteral("update jxc_admin set a_name=?"), { name });
    connection->commitWrite();
    return connection;
}

} // namespace

// A master file and the account set 100001 beside it, both closed when a test begins.
class DamagedFiles : public AccountSetTest
{
public:
    void SetUp() override
    {
        AccountSetTest::SetUp();
        if (HasFatalFailure())
            return;
        ScriptedInteraction ui;
        NewAccountSet request;
        request.name = QStringLiteral("城西店");
        ASSERT_TRUE(createAccountSet(db(), clock, ui, request).ok());
        setPath = QDir(folder()).filePath(QStringLiteral("jxc_100001.db"));
    }
    test::CliRun operators(const QString &set = QStringLiteral("100001"))
    {
        QStringList arguments { QStringLiteral("--data"), folder() };
        if (!set.isEmpty())
            arguments += { QStringLiteral("--set"), set };
        return test::runCli(arguments + QStringList { QStringLiteral("operators") });
    }
    // The root page of a table of the set, counted from 1.
    int rootPage(const QString &table)
    {
        auto set = Connection::openSqlite(setPath);
        return set
            ->firstValue(
                QStringLiteral("select rootpage from sqlite_master where name=?"), { table })
            .toInt();
    }
    QString setPath;
};

struct Damage
{
    const char *name;
    std::function<void(DamagedFiles &)> spoil;
    std::function<QString(const QString &path)> message;
};

void PrintTo(const Damage &c, std::ostream *os)
{
    *os << c.name;
}

class DamagedSetFile : public DamagedFiles, public ::testing::WithParamInterface<Damage>
{
};

// Each damaged or foreign file is refused with a Chinese message that names it and says what to
// do, without Qt's connection warning, and is left byte for byte as it was, with no WAL beside it.
TEST_P(DamagedSetFile, IsRefusedByNameAndNeverWrittenTo)
{
    GetParam().spoil(*this);
    const QByteArray before = digest(setPath);
    const test::CliRun run = operators();
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, GetParam().message(setPath) + QLatin1Char('\n'));
    EXPECT_EQ(run.out, QString());
    EXPECT_EQ(digest(setPath), before);
    EXPECT_FALSE(QFile::exists(setPath + QStringLiteral("-wal")));

    // the login screen opens a set through the same checks
    const auto opened = openAccountSet(folder(),
        { QStringLiteral("100001"), QStringLiteral("城西店"), QString(),
            QStringLiteral("jxc_100001.db"), false, false });
    EXPECT_EQ(opened.message(), GetParam().message(setPath));
    EXPECT_EQ(digest(setPath), before);
}

QString truncatedMessage(const QString &path)
{
    return QStringLiteral(
        "帐套文件“%1”不完整（文件被截断了），无法打开。请用最近的备份恢复这个帐套。"
        "系统没有改动这个文件。")
        .arg(path);
}

QString damagedMessage(const QString &path)
{
    return QStringLiteral("帐套文件“%1”已损坏，无法使用。请用最近的备份恢复这个帐套。"
                          "为免损坏扩大，系统没有改动这个文件。")
        .arg(path);
}

QString foreignMessage(const QString &path)
{
    return QStringLiteral("“%1”不是本系统的帐套文件（文件已损坏，或是别的文件用了这个名字）。"
                          "请用备份恢复这个帐套，或把这个文件移走。系统没有改动这个文件。")
        .arg(path);
}

INSTANTIATE_TEST_SUITE_P(DamagedFiles, DamagedSetFile,
    ::testing::Values(
        Damage { "Truncated",
            [](DamagedFiles &set) { writeFile(set.setPath, contentOf(set.setPath).left(20000)); },
            truncatedMessage },
        Damage { "CutInsideAPage",
            [](DamagedFiles &set) {
                const QByteArray whole = contentOf(set.setPath);
                writeFile(set.setPath, whole.left(whole.size() - 100));
            },
            truncatedMessage },
        Damage { "PageOverwritten",
            [](DamagedFiles &set) {
                const int page = set.rootPage(QStringLiteral("jxc_admin"));
                QByteArray bytes = contentOf(set.setPath);
                bytes.replace((page - 1) * 4096, 4096, QByteArray(4096, char(0xAB)));
                writeFile(set.setPath, bytes);
            },
            damagedMessage },
        Damage { "TextFile",
            [](DamagedFiles &set) { writeFile(set.setPath, "这不是帐套，是一段文字。\n"); },
            foreignMessage },
        Damage { "RandomBytes",
            [](DamagedFiles &set) {
                QRandomGenerator random(14);
                QByteArray bytes(100000, Qt::Uninitialized);
                for (char &b : bytes)
                    b = char(random.bounded(256));
                writeFile(set.setPath, bytes);
            },
            foreignMessage },
        Damage { "HeaderOfAnotherProgramsFile",
            [](DamagedFiles &set) {
                QByteArray bytes = contentOf(set.setPath);
                bytes.replace(68, 4, QByteArray("\x12\x34\x56\x78", 4));
                writeFile(set.setPath, bytes);
            },
            foreignMessage },
        Damage { "AnotherProgramsDatabase",
            [](DamagedFiles &set) {
                QFile::remove(set.setPath);
                {
                    auto other = Connection::openSqlite(set.setPath);
                    other->execDirect(QStringLiteral("create table notes (body text)"));
                }
            },
            foreignMessage },
        Damage { "Empty", [](DamagedFiles &set) { writeFile(set.setPath, QByteArray()); },
            [](const QString &path) {
                return QStringLiteral(
                    "帐套文件“%1”是空的（0 字节），里面没有帐套数据。请用备份恢复这个帐套。")
                    .arg(path);
            } }),
    [](const ::testing::TestParamInfo<Damage> &param) { return std::string(param.param.name); });

TEST_F(DamagedFiles, AFolderNamedLikeTheMasterFileIsToldAsAFolder)
{
    const QString master = path();
    ASSERT_TRUE(QFile::remove(master));
    ASSERT_TRUE(QDir().mkdir(master));
    const test::CliRun run = operators(QString());
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err,
        QStringLiteral("“%1”是一个文件夹，不是帐套文件。请把这个文件夹改名或移走后再打开帐套。\n")
            .arg(master));
    EXPECT_TRUE(QFileInfo(master).isDir());
}

// As an operator without write permission on the data folder (root ignores permissions, so the
// command then runs as "nobody").
TEST_F(DamagedFiles, AReadOnlyDataFolderIsToldWithWhatToCheck)
{
    ASSERT_TRUE(QFile::setPermissions(folder(),
        QFileDevice::ReadOwner | QFileDevice::ExeOwner | QFileDevice::ReadGroup
            | QFileDevice::ExeGroup | QFileDevice::ReadOther | QFileDevice::ExeOther));
    QStringList command { test::cliPath(), QStringLiteral("--data"), folder(),
        QStringLiteral("--set"), QStringLiteral("100001"), QStringLiteral("operators") };
    if (geteuid() == 0)
        command = QStringList { QStringLiteral("--reuid=65534"), QStringLiteral("--regid=65534"),
            QStringLiteral("--clear-groups") }
            + command;
    // the temporary folder itself must be reachable
    QFile::setPermissions(QFileInfo(folder()).absolutePath(),
        QFileInfo(QFileInfo(folder()).absolutePath()).permissions() | QFileDevice::ExeOther);
    QProcess process;
    process.start(geteuid() == 0 ? QStringLiteral("setpriv") : command.takeFirst(), command);
    ASSERT_TRUE(process.waitForFinished(60000));
    const QString err = QString::fromUtf8(process.readAllStandardError());
    QFile::setPermissions(
        folder(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    EXPECT_EQ(process.exitCode(), 2);
    EXPECT_EQ(err,
        QStringLiteral("帐套文件“%1”不能读写：文件或所在文件夹“%2”是只读的，或没有权限。"
                       "请检查磁盘和文件夹的权限（或把帐套复制到可以写入的文件夹）后再打开。\n")
            .arg(setPath, folder()));
}

// SQLite takes "X-wal" for the WAL of "X" whatever wrote it: another set's WAL left beside the
// set is refused, and the set is untouched; the set's own WAL, as a crash leaves it, is replayed.
TEST_F(DamagedFiles, AStrayWalOfAnotherSetIsNotReplayedButTheSetsOwnIs)
{
    ScriptedInteraction ui;
    NewAccountSet second;
    second.name = QStringLiteral("城东店");
    ASSERT_TRUE(createAccountSet(db(), clock, ui, second).ok());
    const QString secondPath = QDir(folder()).filePath(QStringLiteral("jxc_100002.db"));
    const QString crashed = QDir(folder()).filePath(QStringLiteral("crashed.db"));
    {
        const auto other = renameAdminInWal(secondPath, QStringLiteral("别家"));
        // the other set's WAL as it stands while that set is in use
        ASSERT_TRUE(
            QFile::copy(secondPath + QStringLiteral("-wal"), setPath + QStringLiteral("-wal")));
        copyWithWal(secondPath, crashed);
    }
    const QByteArray before = digest(setPath);
    const test::CliRun refused = operators();
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.err,
        QStringLiteral(
            "帐套文件“%1”旁边的日志文件“%1-wal”不属于这个帐套（可能是复制或恢复文件时"
            "从别处带来的）。为免把别的数据写进帐套，系统没有打开它。请把“%1-wal”和“%1-shm”"
            "移到别的文件夹后再打开。\n")
            .arg(setPath));
    EXPECT_EQ(digest(setPath), before);

    ASSERT_TRUE(QFile::remove(setPath + QStringLiteral("-wal")));
    QFile::remove(setPath + QStringLiteral("-shm"));
    EXPECT_EQ(operators().out, QStringLiteral("100001\tadmin\t100001\t系统管理员\n"));

    // the copy of the second set with its own WAL holds what was committed there
    auto recovered = Connection::openSqlite(crashed);
    EXPECT_EQ(recovered->firstText(QStringLiteral("select a_name from jxc_admin")),
        QStringLiteral("别家"));
}

// Files are made whole under a temporary name and a WAL left beside the final name is removed
// first, so a new file never picks up a stale WAL; each file has an identity of its own.
TEST_F(DamagedFiles, ANewSetOrMasterFileNeverPicksUpAStaleWal)
{
    const QString stale = QDir(folder()).filePath(QStringLiteral("jxc_100002.db"));
    {
        const auto set = renameAdminInWal(setPath, QStringLiteral("旧帐套"));
        ASSERT_TRUE(QFile::copy(setPath + QStringLiteral("-wal"), stale + QStringLiteral("-wal")));
    }
    const QByteArray staleWal = contentOf(stale + QStringLiteral("-wal"));
    ScriptedInteraction ui;
    NewAccountSet second;
    second.name = QStringLiteral("城东店");
    ASSERT_TRUE(createAccountSet(db(), clock, ui, second).ok());
    EXPECT_FALSE(QFile::exists(stale + QStringLiteral("-wal")));
    auto created = Connection::openSqlite(stale);
    EXPECT_EQ(created->firstText(QStringLiteral("select a_name from jxc_admin")),
        QStringLiteral("admin"));
    EXPECT_NE(created->fileIdentity(), 0);
    EXPECT_NE(created->fileIdentity(), db().fileIdentity());
    EXPECT_NE(created->fileIdentity(), Connection::openSqlite(setPath)->fileIdentity());

    QTemporaryDir fresh;
    const QString master = QDir(fresh.path()).filePath(QStringLiteral("jxc.db"));
    writeFile(master + QStringLiteral("-wal"), staleWal);
    ASSERT_TRUE(initDataFolder(fresh.path(), seedContext()).ok());
    EXPECT_FALSE(QFile::exists(master + QStringLiteral("-wal")));
    EXPECT_EQ(
        Connection::openSqlite(master)->firstText(QStringLiteral("select a_name from jxc_admin")),
        QStringLiteral("admin"));
}
