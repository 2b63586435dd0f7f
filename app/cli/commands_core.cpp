// Commands of the data store: the data folder, the master file and the table routines.
#include "app/cli/registry.h"

#include "core/datafolder.h"
#include "core/schema.h"

namespace medistock::cli {

namespace {

const QString askRecreate = QStringLiteral("重新创建全部数据表将清空本帐套的全部数据，确认吗？");
const QString askClear = QStringLiteral(
    "清除业务数据将删除全部单据、库存、帐款和日志记录，商品、客户、供货商等基础资料保留。确认吗？");

// Rejects arguments a command does not take.
bool checkNoMore(Context &context, const Args &args, int &status)
{
    if (args.missingValue()) {
        status = context.usageError(QStringLiteral("选项缺少取值"));
        return false;
    }
    if (!args.unknownOption().isEmpty()) {
        status = context.usageError(QStringLiteral("未知选项：") + args.unknownOption());
        return false;
    }
    if (!args.positional().isEmpty()) {
        status = context.usageError(QStringLiteral("多余的参数：") + args.positional().join(' '));
        return false;
    }
    return true;
}

int runInit(Context &context, Args &args)
{
    core::SeedContext seeds { context.clock().today(), {} };
    seeds.company.name = args.option(QStringLiteral("--company")).value_or(QString());
    seeds.company.shortName = args.option(QStringLiteral("--short")).value_or(QString());
    seeds.company.tele = args.option(QStringLiteral("--tele")).value_or(QString());
    int status = ExitDone;
    if (!checkNoMore(context, args, status))
        return status;

    const auto report = core::initDataFolder(context.dataFolder(), seeds);
    if (!report) {
        context.interaction().inform(report.message());
        return Context::exitCode(report.outcome());
    }
    if (report->createdFolder)
        context.out() << QStringLiteral("已创建数据目录：") << report->folder << Qt::endl;
    if (report->createdMaster)
        context.out() << QStringLiteral("已创建主帐套文件：") << report->masterPath << Qt::endl;
    else
        context.out() << QStringLiteral("主帐套文件已存在，未作改动：") << report->masterPath
                      << Qt::endl;
    return ExitDone;
}

// Asks first; then runs a table routine over the chosen file with the file's own company row.
int runTableRoutine(Context &context, Args &args, const QString &question,
                    Outcome (*routine)(core::Connection &, const core::SeedContext &),
                    const QString &doneText)
{
    int status = ExitDone;
    if (!checkNoMore(context, args, status))
        return status;
    core::Connection &connection = context.connection();
    if (!context.interaction().ask(question))
        return ExitRefused;
    const core::SeedContext seeds { context.clock().today(), core::readCompany(connection) };
    const Outcome outcome = routine(connection, seeds);
    if (!outcome) {
        context.interaction().inform(outcome.message());
        return Context::exitCode(outcome);
    }
    context.out() << doneText << context.databasePath() << Qt::endl;
    return ExitDone;
}

} // namespace

void addCoreCommands(Registry &registry)
{
    registry.add({ QStringLiteral("init"),
                   QStringLiteral("[--company NAME] [--short NAME] [--tele TEXT]"),
                   QStringLiteral("创建数据目录和主帐套文件 jxc.db（已存在的文件不作改动）"),
                   runInit });
    registry.add({ QStringLiteral("create-tables"), QString(),
                   QStringLiteral("重新创建当前帐套的全部数据表（需要 --yes）"),
                   [](Context &context, Args &args) {
                       return runTableRoutine(context, args, askRecreate, core::createAllTables,
                                              QStringLiteral("已重新创建全部数据表："));
                   } });
    registry.add({ QStringLiteral("clear-business-data"), QString(),
                   QStringLiteral("清除当前帐套的业务数据，保留基础资料（需要 --yes）"),
                   [](Context &context, Args &args) {
                       return runTableRoutine(context, args, askClear, core::clearBusinessData,
                                              QStringLiteral("已清除业务数据："));
                   } });
}

} // namespace medistock::cli
