#include "app/cli/context.h"

#include "core/accountsets.h"
#include "core/datafolder.h"
#include "core/dberror.h"
#include "shell/session.h"

#include <QDir>
#include <QFile>

namespace medistock::cli {

void CliInteraction::inform(const QString &text)
{
    m_err << text << Qt::endl;
}

bool CliInteraction::ask(const QString &text)
{
    m_err << text << QStringLiteral(" [是/否] ")
          << (m_yes ? QStringLiteral("是") : QStringLiteral("否")) << Qt::endl;
    return m_yes;
}

Context::Context(GlobalOptions options, QTextStream &out, QTextStream &err)
    : m_options(std::move(options))
    , m_out(out)
    , m_err(err)
    , m_interaction(err, m_options.yes)
{
    if (!m_options.today.isEmpty())
        m_clock.fix(QDate::fromString(m_options.today, QStringLiteral("yyyy-MM-dd")));
}

Context::~Context()
{
    m_session.reset();
}

QString Context::dataFolder() const
{
    return core::resolveDataFolder(m_options.data);
}

QString Context::databasePath() const
{
    const QString file = m_options.set.isEmpty() ? core::masterFileName()
                                                 : core::accountSetFileName(m_options.set);
    return QDir(dataFolder()).filePath(file);
}

std::optional<core::Connection::PostgresOptions> Context::postgresMaster() const
{
    if (m_options.pg.isEmpty())
        return std::nullopt;
    return core::Connection::PostgresOptions::parse(m_options.pg);
}

core::Connection &Context::connection()
{
    if (!m_connection && postgresMaster()) {
        const auto master = *postgresMaster();
        m_connection = core::Connection::openPostgres(m_options.set.isEmpty()
                ? master
                : master.withDatabase(
                    core::accountSetDatabaseName(master.database, m_options.set)));
    }
    if (!m_connection) {
        const QString path = databasePath();
        if (!QFile::exists(path))
            throw core::DbError(QStringLiteral("帐套文件不存在：") + path);
        m_connection = core::Connection::openSqlite(path);
    }
    return *m_connection;
}

core::Connection &Context::masterConnection()
{
    if (m_options.set.isEmpty())
        return connection();
    if (!m_master && postgresMaster())
        m_master = core::Connection::openPostgres(*postgresMaster());
    if (!m_master) {
        const QString path = QDir(dataFolder()).filePath(core::masterFileName());
        if (!QFile::exists(path))
            throw core::DbError(QStringLiteral("帐套文件不存在：") + path);
        m_master = core::Connection::openSqlite(path);
    }
    return *m_master;
}

shell::Session &Context::session()
{
    if (!m_session) {
        const QString user = m_options.user.isEmpty() ? QStringLiteral("admin") : m_options.user;
        auto opened = shell::openSession(connection(), m_interaction, m_clock, user,
            m_options.password, core::LoginMode::Script);
        if (!opened)
            throw Stop { exitCode(opened.outcome()) };
        m_session = std::move(opened.value());
    }
    return *m_session;
}

void requireNoMore(Context &context, const Args &args)
{
    if (args.missingValue())
        throw Stop { context.usageError(QStringLiteral("选项缺少取值")) };
    if (!args.unknownOption().isEmpty())
        throw Stop { context.usageError(QStringLiteral("未知选项：") + args.unknownOption()) };
    if (!args.positional().isEmpty())
        throw Stop { context.usageError(
            QStringLiteral("多余的参数：") + args.positional().join(QLatin1Char(' '))) };
}

QHash<QString, QVariant> columnOptions(Context &context, const Args &args)
{
    const QStringList arguments = args.positional();
    QHash<QString, QVariant> values;
    for (qsizetype i = 0; i < arguments.size(); i += 2) {
        if (!arguments.at(i).startsWith(QLatin1String("--")) || i + 1 >= arguments.size())
            throw Stop { context.usageError(
                QStringLiteral("请用 --字段名 值 的形式给出资料：") + arguments.at(i)) };
        values.insert(arguments.at(i).mid(2), arguments.at(i + 1));
    }
    return values;
}

QStringList takePositional(Context &context, const Args &args, int min, int max)
{
    if (args.missingValue())
        throw Stop { context.usageError(QStringLiteral("选项缺少取值")) };
    if (!args.unknownOption().isEmpty())
        throw Stop { context.usageError(QStringLiteral("未知选项：") + args.unknownOption()) };
    const QStringList positional = args.positional();
    if (positional.size() < min)
        throw Stop { context.usageError(QStringLiteral("参数不足")) };
    if (positional.size() > max)
        throw Stop { context.usageError(
            QStringLiteral("多余的参数：") + positional.mid(max).join(QLatin1Char(' '))) };
    return positional;
}

QDate parseDate(Context &context, const QString &text)
{
    const QDate date = QDate::fromString(text, QStringLiteral("yyyy-MM-dd"));
    if (!date.isValid())
        throw Stop { context.usageError(QStringLiteral("日期格式应为 yyyy-MM-dd：") + text) };
    return date;
}

void require(const Outcome &outcome)
{
    if (!outcome)
        throw Stop { Context::exitCode(outcome) };
}

int Context::usageError(const QString &text)
{
    m_err << text << Qt::endl;
    return ExitError;
}

int Context::exitCode(const Outcome &outcome)
{
    switch (outcome.kind()) {
    case Outcome::Kind::Done:
        return ExitDone;
    case Outcome::Kind::Refused:
        return ExitRefused;
    case Outcome::Kind::Failed:
        return ExitError;
    }
    return ExitError;
}

} // namespace medistock::cli
