#include "app/cli/registry.h"

#include "core/dberror.h"

#include <QDate>

namespace medistock::cli {

const Command *Registry::find(const QString &name) const
{
    for (const Command &command : m_commands)
        if (command.name == name)
            return &command;
    return nullptr;
}

namespace {

void printHelp(const Registry &registry, QTextStream &out)
{
    out << "medistock-cli [--data DIR] [--pg \"host=… port=… dbname=… user=…\"] [--set CODE] "
           "[--user NAME] [--password PW] [--today yyyy-MM-dd] [--yes|--no] COMMAND ..."
        << Qt::endl
        << Qt::endl;
    for (const Command &command : registry.commands()) {
        out << "  " << command.name;
        if (!command.usage.isEmpty())
            out << ' ' << command.usage;
        out << Qt::endl << "      " << command.summary << Qt::endl;
    }
}

// Takes the global options out of the argument list, wherever they stand.
bool takeGlobalOptions(QStringList &arguments, GlobalOptions &options, QString &error)
{
    const QStringList valued { QStringLiteral("--data"), QStringLiteral("--pg"),
        QStringLiteral("--set"), QStringLiteral("--user"), QStringLiteral("--password"),
        QStringLiteral("--today") };
    QStringList rest;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (argument == QLatin1String("--yes")) {
            options.yes = true;
        } else if (argument == QLatin1String("--no")) {
            options.yes = false;
        } else if (valued.contains(argument)) {
            if (i + 1 >= arguments.size()) {
                error = QStringLiteral("选项 %1 缺少取值").arg(argument);
                return false;
            }
            const QString value = arguments.at(++i);
            if (argument == QLatin1String("--data"))
                options.data = value;
            else if (argument == QLatin1String("--pg"))
                options.pg = value;
            else if (argument == QLatin1String("--set"))
                options.set = value;
            else if (argument == QLatin1String("--user"))
                options.user = value;
            else if (argument == QLatin1String("--password"))
                options.password = value;
            else
                options.today = value;
        } else {
            rest.append(argument);
        }
    }
    if (!options.today.isEmpty()
        && !QDate::fromString(options.today, QStringLiteral("yyyy-MM-dd")).isValid()) {
        error = QStringLiteral("--today 的日期格式应为 yyyy-MM-dd：") + options.today;
        return false;
    }
    if (options.pg.isEmpty())
        options.pg = qEnvironmentVariable("MEDISTOCK_PG");
    if (!options.pg.isEmpty() && !core::Connection::PostgresOptions::parse(options.pg)) {
        error
            = QStringLiteral("--pg 的连接串应为 \"host=… port=… dbname=… user=…\"：") + options.pg;
        return false;
    }
    arguments = rest;
    return true;
}

} // namespace

QString commandName(const QStringList &arguments)
{
    QStringList rest = arguments;
    GlobalOptions options;
    QString error;
    if (!takeGlobalOptions(rest, options, error) || rest.isEmpty())
        return QString();
    return rest.first();
}

int runCli(
    const Registry &registry, const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QStringList rest = arguments;
    GlobalOptions options;
    QString error;
    if (!takeGlobalOptions(rest, options, error)) {
        err << error << Qt::endl;
        return ExitError;
    }
    if (rest.isEmpty() || rest.first() == QLatin1String("help")
        || rest.first() == QLatin1String("--help")) {
        printHelp(registry, out);
        return rest.isEmpty() ? ExitError : ExitDone;
    }
    const Command *command = registry.find(rest.first());
    if (!command) {
        err << QStringLiteral("未知命令：") << rest.first() << Qt::endl;
        return ExitError;
    }
    Context context(options, out, err);
    Args args(rest.mid(1));
    try {
        if (command->access == Access::LogsIn)
            context.session();
        return command->run(context, args);
    } catch (const Stop &stop) {
        return stop.status;
    } catch (const core::DbError &dbError) {
        err << dbError.message() << Qt::endl;
        return ExitError;
    }
}

} // namespace medistock::cli
