#pragma once

#include "core/dialect.h"

#include <QHash>
#include <QList>
#include <QSqlDatabase>
#include <QSqlRecord>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <optional>

class QSqlError;
class QSqlQuery;

namespace medistock::core {

// One open database. Every value goes in as a bound parameter ("?" placeholders, in order);
// statements are prepared once and reused. Errors throw DbError (core/dberror.h).
// A QString binds as text even when it is null; only an invalid QVariant() binds SQL NULL.
class Connection
{
public:
    // A PostgreSQL server and database. Written as libpq writes it ("host=… port=… dbname=…
    // user=… password=…"); a missing password is looked up by libpq (~/.pgpass, PGPASSWORD).
    struct PostgresOptions
    {
        QString host;
        int port = 5432;
        QString database;
        QString user;
        QString password;

        // Reads "key=value" pairs separated by spaces (values may be quoted '…'); the keys above,
        // dbname for the database. Empty when the text names an unknown key or no database.
        static std::optional<PostgresOptions> parse(const QString &text);
        // The text parse() reads, without the password.
        QString text() const;
        // The same server and user, another database.
        PostgresOptions withDatabase(const QString &name) const;
    };

    // Opens an SQLite file in WAL mode with a busy timeout. A file that is there must pass the
    // checks of core/dbfile.h first (read-only, so a damaged or foreign file is never written to);
    // their refusal is thrown as DbError. A missing file is made, with an identity of its own.
    static std::unique_ptr<Connection> openSqlite(const QString &path);
    static std::unique_ptr<Connection> openPostgres(const PostgresOptions &options);

    // A new connection to the same database, for a worker thread: call it on the thread that
    // will use the connection (a connection belongs to the thread that opened it).
    std::unique_ptr<Connection> openAnother() const;

    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    Dialect dialect() const { return m_dialect; }
    // The SQLite file's path; empty on PostgreSQL.
    const QString &filePath() const { return m_path; }
    // The server and database on PostgreSQL; empty on SQLite.
    const PostgresOptions &postgresOptions() const { return m_postgres; }

    // Runs a statement; returns the number of rows it changed.
    int exec(const QString &sql, const QVariantList &params = {});
    // Runs an insert; returns the id of the new row.
    qint64 insert(const QString &sql, const QVariantList &params = {});
    // The shared query routine: the first column of the first row as text, empty when none.
    QString firstText(const QString &sql, const QVariantList &params = {});
    // The first column of the first row; an invalid QVariant when there is no row.
    QVariant firstValue(const QString &sql, const QVariantList &params = {});
    bool exists(const QString &sql, const QVariantList &params = {});
    // The first row; an empty record when there is none.
    QSqlRecord firstRow(const QString &sql, const QVariantList &params = {});
    QList<QSqlRecord> rows(const QString &sql, const QVariantList &params = {});
    // Streams the rows to a callback that reads columns by position (q.value(0) ...).
    void forEach(const QString &sql, const QVariantList &params,
        const std::function<void(const QSqlQuery &)> &row);
    // The names of the columns a select returns, also when it returns no row.
    QStringList resultColumns(const QString &sql, const QVariantList &params = {});

    // Runs a statement without parameters and without keeping it prepared (DDL, pragmas).
    void execDirect(const QString &sql);

    // How long a statement waits for another connection's lock before it gives up busy (15 s
    // from opening; tests shorten it). How many statements have given up busy so far: each is
    // followed by a retry of its operation or, past core::busyAttempts, by its failure.
    void setBusyTimeout(int milliseconds);
    int busyErrors() const { return m_busyErrors; }

    // The SQLite file's identity (its header's user_version, see core/dbfile.h); 0 when it has
    // none yet. giveFileIdentity gives it one if it has none, or a new one when `renew` (a copy
    // of another file must not keep that file's identity).
    qint32 fileIdentity();
    void giveFileIdentity(bool renew);

    // Table and column names of the connected database.
    bool tableExists(const QString &table);
    QStringList columnNames(const QString &table);

    // Used by Transaction: nested guards join the outermost one.
    void beginWrite();
    void commitWrite();
    void rollbackWrite() noexcept;
    bool inTransaction() const { return m_depth > 0; }

    // For read-only models of list screens; statements still go through this class.
    QSqlDatabase database() const { return m_db; }

private:
    Connection(QSqlDatabase db, Dialect dialect, QString path, PostgresOptions postgres);
    // Throws the error as DbError, counting it when it is a busy one.
    [[noreturn]] void fail(const QSqlError &error);
    class Statement;
    // A prepared statement from the cache, or a fresh one when the cached one is in use.
    Statement take(const QString &sql, const QVariantList &params);

    QSqlDatabase m_db;
    QString m_connectionName;
    Dialect m_dialect;
    QString m_path;
    PostgresOptions m_postgres;
    QHash<QString, QSqlQuery *> m_cache;
    QHash<QString, bool> m_busy;
    int m_depth = 0;
    bool m_rollbackOnly = false;
    int m_busyErrors = 0;
};

} // namespace medistock::core
