#include "core/connection.h"

#include "core/dberror.h"
#include "core/dbfile.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>

#include <atomic>

namespace medistock::core {

namespace {

std::atomic<int> connectionCounter { 0 };

// SQLite's primary result codes that the operator can do something about.
enum SqliteCode {
    Busy = 5,
    Locked = 6,
    ReadOnly = 8,
    IoError = 10,
    Corrupt = 11,
    Full = 13,
    CantOpen = 14,
    NotADatabase = 26,
};

// The operator's words for an error of the file at `path` (empty on PostgreSQL).
QString errorText(const QSqlError &error, const QString &path)
{
    QString text = error.databaseText().trimmed();
    if (text.isEmpty())
        text = error.text().trimmed();
    const QString file = QDir::toNativeSeparators(path);
    if (path.isEmpty())
        return QStringLiteral("数据库错误：") + text;
    switch (error.nativeErrorCode().toInt() & 0xff) {
    case Busy:
    case Locked:
        return QStringLiteral("帐套文件“%1”正被其他工作站使用，请稍后再试。").arg(file);
    case ReadOnly:
    case CantOpen:
        return QStringLiteral("帐套文件“%1”不能读写，请检查这个文件和所在磁盘、文件夹的权限。")
            .arg(file);
    case IoError:
        return QStringLiteral("读写帐套文件“%1”时出错，请检查磁盘是否有故障。").arg(file);
    case Full:
        return QStringLiteral("磁盘已满，帐套文件“%1”无法写入。请清理磁盘空间后再试。").arg(file);
    case Corrupt:
    case NotADatabase:
        return damagedFileText(path);
    }
    return QStringLiteral("数据库错误：") + text;
}

// A null QString would be bound as SQL NULL; text is text, empty or not. Only an invalid QVariant
// binds NULL.
QVariant bindable(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString && value.toString().isNull())
        return QString(QLatin1String(""));
    return value;
}

DbError::Kind errorKind(const QSqlError &error, Dialect dialect)
{
    if (dialect == Dialect::Postgres) {
        // SQLSTATE: serialization failure and deadlock; the server has rolled the transaction back.
        const QString state = error.nativeErrorCode();
        return state == QLatin1String("40001") || state == QLatin1String("40P01")
            ? DbError::Kind::Conflict
            : DbError::Kind::Other;
    }
    const int code = error.nativeErrorCode().toInt() & 0xff;
    return code == Busy || code == Locked ? DbError::Kind::Busy : DbError::Kind::Other;
}

// What the operator reads when the server kept refusing for other workstations' work.
QString conflictText()
{
    return QStringLiteral("其他工作站正在修改同样的数据，请稍后再试。");
}

// Whether a connection of this process has the SQLite file open.
bool openInThisProcess(const QString &path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    for (const QString &name : QSqlDatabase::connectionNames()) {
        const QSqlDatabase db = QSqlDatabase::database(name, false);
        if (db.isOpen() && db.driverName() == QLatin1String("QSQLITE")
            && QFileInfo(db.databaseName()).canonicalFilePath() == file)
            return true;
    }
    return false;
}

// The key of the server's write lock of a set; advisory locks are kept per database.
QString writeLockSql()
{
    return QStringLiteral("select pg_advisory_lock(730514)");
}

void releaseWriteLock(const QSqlDatabase &db, Dialect dialect) noexcept
{
    if (dialect != Dialect::Postgres)
        return;
    QSqlQuery query(db);
    query.exec(QStringLiteral("select pg_advisory_unlock(730514)"));
}

} // namespace

void Connection::fail(const QSqlError &error)
{
    const DbError::Kind kind = errorKind(error, m_dialect);
    if (kind != DbError::Kind::Other)
        ++m_busyErrors;
    if (kind == DbError::Kind::Conflict)
        throw DbError(conflictText(), kind);
    throw DbError(errorText(error, m_path), kind);
}

// A checked-out prepared statement: binds, executes and gives the query back to the cache when it
// goes out of scope, finished, so that no open read cursor holds a table.
class Connection::Statement
{
public:
    Statement(QSqlQuery *query, bool *busy, bool owned)
        : m_query(query)
        , m_busy(busy)
        , m_owned(owned)
    { }
    Statement(Statement &&other) noexcept
        : m_query(std::exchange(other.m_query, nullptr))
        , m_busy(std::exchange(other.m_busy, nullptr))
        , m_owned(other.m_owned)
    { }
    ~Statement()
    {
        if (!m_query)
            return;
        m_query->finish();
        if (m_owned)
            delete m_query;
        else
            *m_busy = false;
    }
    QSqlQuery &query() { return *m_query; }

private:
    QSqlQuery *m_query;
    bool *m_busy;
    bool m_owned;
};

Connection::Connection(QSqlDatabase db, Dialect dialect, QString path, PostgresOptions postgres)
    : m_db(std::move(db))
    , m_connectionName(m_db.connectionName())
    , m_dialect(dialect)
    , m_path(std::move(path))
    , m_postgres(std::move(postgres))
{ }

std::unique_ptr<Connection> Connection::openAnother() const
{
    return m_dialect == Dialect::Sqlite ? openSqlite(m_path) : openPostgres(m_postgres);
}

Connection::~Connection()
{
    if (m_depth > 0) {
        m_depth = 1;
        rollbackWrite();
    }
    qDeleteAll(m_cache);
    m_cache.clear();
    m_db.close();
    m_db = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connectionName);
}

std::unique_ptr<Connection> Connection::openSqlite(const QString &path)
{
    // A file that is there is checked before anything may write to it; a new one is made. A file
    // this process has open already was checked then; reading its bytes again would even do
    // harm, as closing any handle on it drops the locks SQLite holds on it for this process.
    if (QFileInfo(path).exists() && !openInThisProcess(path)) {
        QString refusal = inspectDatabaseFile(path);
        if (refusal.isEmpty())
            refusal = verifyDatabaseFile(path);
        if (!refusal.isEmpty())
            throw DbError(refusal);
    }
    const QString name = QStringLiteral("medistock-%1").arg(++connectionCounter);
    std::unique_ptr<Connection> connection;
    {
        // The handle lives in this block only, so that when the connection is dropped nothing
        // else still holds the database Qt is asked to remove.
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(path);
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=15000"));
        if (!db.open()) {
            const QString text = errorText(db.lastError(), path);
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(name);
            throw DbError(text);
        }
        connection.reset(new Connection(db, Dialect::Sqlite, path, PostgresOptions()));
    }
    // WAL lets several copies of the program read while one writes; the cache keeps the ledger
    // indexes in memory on large account sets.
    connection->execDirect(QStringLiteral("pragma journal_mode=wal"));
    connection->execDirect(QStringLiteral("pragma cache_size=-65536"));
    connection->execDirect(QStringLiteral("pragma temp_store=memory"));
    if (connection->fileIdentity() == 0)
        connection->giveFileIdentity(false);
    return connection;
}

void Connection::setBusyTimeout(int milliseconds)
{
    // Pragmas take no bound values; the number is the program's own.
    execDirect(QStringLiteral("pragma busy_timeout=%1").arg(milliseconds));
}

qint32 Connection::fileIdentity()
{
    return firstValue(QStringLiteral("pragma user_version")).toInt();
}

void Connection::giveFileIdentity(bool renew)
{
    // Pragmas take no bound values; the number is the program's own, never typed.
    const qint32 identity = qint32(QRandomGenerator::system()->bounded(1, 0x7fffffff));
    beginWrite();
    try {
        if (renew || fileIdentity() == 0)
            execDirect(QStringLiteral("pragma user_version=%1").arg(identity));
        commitWrite();
    } catch (...) {
        rollbackWrite();
        throw;
    }
}

std::optional<Connection::PostgresOptions> Connection::PostgresOptions::parse(const QString &text)
{
    PostgresOptions options;
    int at = 0;
    const auto skipSpaces = [&] {
        while (at < text.size() && text.at(at).isSpace())
            ++at;
    };
    for (skipSpaces(); at < text.size(); skipSpaces()) {
        const int equals = text.indexOf(QLatin1Char('='), at);
        if (equals < 0)
            return std::nullopt;
        const QString key = text.mid(at, equals - at).trimmed();
        at = equals + 1;
        skipSpaces();
        QString value;
        if (at < text.size() && text.at(at) == QLatin1Char('\'')) {
            for (++at; at < text.size() && text.at(at) != QLatin1Char('\''); ++at) {
                if (text.at(at) == QLatin1Char('\\') && at + 1 < text.size())
                    ++at;
                value += text.at(at);
            }
            ++at;
        } else {
            while (at < text.size() && !text.at(at).isSpace())
                value += text.at(at++);
        }
        bool number = true;
        if (key == QLatin1String("host"))
            options.host = value;
        else if (key == QLatin1String("port"))
            options.port = value.toInt(&number);
        else if (key == QLatin1String("dbname"))
            options.database = value;
        else if (key == QLatin1String("user"))
            options.user = value;
        else if (key == QLatin1String("password"))
            options.password = value;
        else
            return std::nullopt;
        if (!number || options.port <= 0 || options.port > 65535)
            return std::nullopt;
    }
    if (options.database.isEmpty())
        return std::nullopt;
    return options;
}

QString Connection::PostgresOptions::text() const
{
    QStringList parts;
    const auto add = [&](const char *key, const QString &value) {
        if (value.isEmpty())
            return;
        QString quoted = value;
        quoted.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
        quoted.replace(QLatin1Char('\''), QLatin1String("\\'"));
        const bool plain = quoted == value && !value.contains(QLatin1Char(' '));
        parts.append(QLatin1String(key) + QLatin1Char('=')
            + (plain ? value : QStringLiteral("'") + quoted + QStringLiteral("'")));
    };
    add("host", host);
    add("port", QString::number(port));
    add("dbname", database);
    add("user", user);
    return parts.join(QLatin1Char(' '));
}

Connection::PostgresOptions Connection::PostgresOptions::withDatabase(const QString &name) const
{
    PostgresOptions other = *this;
    other.database = name;
    return other;
}

std::unique_ptr<Connection> Connection::openPostgres(const PostgresOptions &options)
{
    const QString name = QStringLiteral("medistock-%1").arg(++connectionCounter);
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), name);
    db.setHostName(options.host);
    db.setPort(options.port);
    db.setDatabaseName(options.database);
    db.setUserName(options.user);
    db.setPassword(options.password);
    if (!db.open()) {
        const QString text = errorText(db.lastError(), QString());
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(name);
        throw DbError(text);
    }
    std::unique_ptr<Connection> connection(
        new Connection(db, Dialect::Postgres, QString(), options));
    // "drop table if exists" of the table routines would otherwise talk on standard error.
    connection->execDirect(QStringLiteral("set client_min_messages to warning"));
    return connection;
}

void Connection::execDirect(const QString &sql)
{
    QSqlQuery query(m_db);
    if (!query.exec(sql))
        fail(query.lastError());
    query.finish();
}

Connection::Statement Connection::take(const QString &sql, const QVariantList &params)
{
    QSqlQuery *query = nullptr;
    bool *busy = nullptr;
    bool owned = false;
    auto cached = m_cache.find(sql);
    // The server's driver streams a forward-only result row by row and loses it when another
    // statement runs meanwhile; there the rows are fetched whole, so that statements nest.
    const bool forwardOnly = m_dialect == Dialect::Sqlite;
    if (cached == m_cache.end()) {
        query = new QSqlQuery(m_db);
        query->setForwardOnly(forwardOnly);
        if (!query->prepare(sql)) {
            const QSqlError error = query->lastError();
            delete query;
            fail(error);
        }
        m_cache.insert(sql, query);
        busy = &m_busy[sql];
    } else if (m_busy[sql]) {
        query = new QSqlQuery(m_db);
        query->setForwardOnly(forwardOnly);
        owned = true;
        if (!query->prepare(sql)) {
            const QSqlError error = query->lastError();
            delete query;
            fail(error);
        }
    } else {
        query = cached.value();
        busy = &m_busy[sql];
    }
    if (busy)
        *busy = true;
    Statement statement(query, busy, owned);
    for (int i = 0; i < params.size(); ++i)
        query->bindValue(i, bindable(params.at(i)));
    if (!query->exec())
        fail(query->lastError());
    return statement;
}

int Connection::exec(const QString &sql, const QVariantList &params)
{
    Statement statement = take(sql, params);
    return statement.query().numRowsAffected();
}

qint64 Connection::insert(const QString &sql, const QVariantList &params)
{
    if (m_dialect == Dialect::Postgres) {
        // The server tells a new row's id only when asked; every table's key is `id`.
        Statement statement = take(sql + QStringLiteral(" returning id"), params);
        return statement.query().next() ? statement.query().value(0).toLongLong() : 0;
    }
    Statement statement = take(sql, params);
    return statement.query().lastInsertId().toLongLong();
}

QVariant Connection::firstValue(const QString &sql, const QVariantList &params)
{
    Statement statement = take(sql, params);
    if (!statement.query().next())
        return QVariant();
    return statement.query().value(0);
}

QString Connection::firstText(const QString &sql, const QVariantList &params)
{
    const QVariant value = firstValue(sql, params);
    return value.isNull() ? QString() : value.toString();
}

bool Connection::exists(const QString &sql, const QVariantList &params)
{
    Statement statement = take(sql, params);
    return statement.query().next();
}

QSqlRecord Connection::firstRow(const QString &sql, const QVariantList &params)
{
    Statement statement = take(sql, params);
    if (!statement.query().next())
        return QSqlRecord();
    return statement.query().record();
}

QList<QSqlRecord> Connection::rows(const QString &sql, const QVariantList &params)
{
    Statement statement = take(sql, params);
    QList<QSqlRecord> result;
    while (statement.query().next())
        result.append(statement.query().record());
    return result;
}

void Connection::forEach(const QString &sql, const QVariantList &params,
    const std::function<void(const QSqlQuery &)> &row)
{
    Statement statement = take(sql, params);
    while (statement.query().next())
        row(statement.query());
}

QStringList Connection::resultColumns(const QString &sql, const QVariantList &params)
{
    Statement statement = take(sql, params);
    const QSqlRecord record = statement.query().record();
    QStringList names;
    for (int i = 0; i < record.count(); ++i)
        names.append(record.fieldName(i));
    return names;
}

bool Connection::tableExists(const QString &table)
{
    if (m_dialect == Dialect::Sqlite)
        return exists(
            QStringLiteral("select 1 from sqlite_master where type='table' and name=?"), { table });
    return exists(QStringLiteral("select 1 from information_schema.tables "
                                 "where table_schema=current_schema() and table_name=?"),
        { table });
}

QStringList Connection::columnNames(const QString &table)
{
    QStringList names;
    const QSqlRecord record = m_db.record(table);
    for (int i = 0; i < record.count(); ++i)
        names.append(record.fieldName(i));
    return names;
}

void Connection::beginWrite()
{
    if (m_depth == 0) {
        // On the server, as on a file, one workstation writes to a set at a time: the lock is
        // taken before the transaction starts, so that its snapshot already holds what the
        // writer before it committed. Two workstations then never deadlock on each other's
        // rows; serializable still refuses any writer that goes around the lock.
        if (m_dialect == Dialect::Postgres)
            execDirect(writeLockSql());
        try {
            execDirect(beginWriteSql(m_dialect));
        } catch (const DbError &) {
            releaseWriteLock(m_db, m_dialect);
            throw;
        }
        m_rollbackOnly = false;
    }
    ++m_depth;
}

void Connection::commitWrite()
{
    if (m_depth == 0)
        return;
    if (m_depth > 1) {
        --m_depth;
        return;
    }
    if (m_rollbackOnly) {
        rollbackWrite();
        throw DbError(QStringLiteral("数据库错误：事务中有操作未完成，全部改动已撤销"));
    }
    try {
        // The header page goes into every commit, so that the WAL carries the file's identity.
        if (m_dialect == Dialect::Sqlite)
            execDirect(QStringLiteral("pragma application_id=%1").arg(applicationId));
        execDirect(QStringLiteral("commit"));
    } catch (const DbError &) {
        rollbackWrite();
        throw;
    }
    m_depth = 0;
    releaseWriteLock(m_db, m_dialect);
}

void Connection::rollbackWrite() noexcept
{
    if (m_depth == 0)
        return;
    if (m_depth > 1) {
        // An inner step gave up: the outermost transaction may no longer commit.
        --m_depth;
        m_rollbackOnly = true;
        return;
    }
    m_depth = 0;
    m_rollbackOnly = false;
    for (QSqlQuery *query : std::as_const(m_cache))
        query->finish();
    QSqlQuery query(m_db);
    query.exec(QStringLiteral("rollback"));
    releaseWriteLock(m_db, m_dialect);
}

} // namespace medistock::core
