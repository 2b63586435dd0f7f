#include "app/cli/context.h"

#include "core/datafolder.h"
#include "core/dberror.h"

#include <QDir>
#include <QFile>

namespace medistock::cli {

void CliInteraction::inform(const QString &text)
{
    m_err << text << Qt::endl;
}

bool CliInteraction::ask(const QString &text)
{
    m_err << text << QStringLiteral(" [是/否] ") << (m_yes ? QStringLiteral("是") : QStringLiteral("否"))
          << Qt::endl;
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

Context::~Context() = default;

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

core::Connection &Context::connection()
{
    if (!m_connection) {
        const QString path = databasePath();
        if (!QFile::exists(path))
            throw core::DbError(QStringLiteral("帐套文件不存在：") + path);
        m_connection = core::Connection::openSqlite(path);
    }
    return *m_connection;
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
