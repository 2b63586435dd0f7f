// Commands of the data store: the data folder, the table routines, numbering and text helpers.
#include "app/cli/registry.h"

#include "core/capitals.h"
#include "core/datafolder.h"
#include "core/numbering.h"
#include "core/numbers.h"
#include "core/schema.h"
#include "core/textclean.h"
#include "shell/session.h"

namespace medistock::cli {

namespace {

const QString askRecreate = QStringLiteral("重新创建全部数据表将清空本帐套的全部数据，确认吗？");
const QString askClear = QStringLiteral(
    "清除业务数据将删除全部单据、库存、帐款和日志记录，商品、客户、供货商等基础资料保留。确认吗？");

int runInit(Context &context, Args &args)
{
    core::SeedContext seeds { context.clock().today(), {} };
    seeds.company.name = args.option(QStringLiteral("--company")).value_or(QString());
    seeds.company.shortName = args.option(QStringLiteral("--short")).value_or(QString());
    seeds.company.tele = args.option(QStringLiteral("--tele")).value_or(QString());
    requireNoMore(context, args);

    if (context.postgresMaster()) {
        const Outcome made = core::initMasterDatabase(context.masterConnection(), seeds);
        if (!made) {
            context.interaction().inform(made.message());
            return Context::exitCode(made);
        }
        context.out() << QStringLiteral("主帐套数据库已就绪：") << context.postgresMaster()->text()
                      << Qt::endl;
        return ExitDone;
    }
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
    Outcome (*routine)(core::Connection &, const core::SeedContext &), const QString &doneText)
{
    requireNoMore(context, args);
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

int runNextCode(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 2);
    context.out() << valueOrReport(
        context, core::nextMasterCode(context.connection(), positional[0], positional[1]))
                  << Qt::endl;
    return ExitDone;
}

int runNextNumber(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 3, 4);
    const QDate date
        = positional.size() == 4 ? parseDate(context, positional[3]) : context.clock().today();
    context.out() << valueOrReport(context,
        core::nextDocumentNumber(context.connection(), positional[0], positional[1], positional[2],
            date)) << Qt::endl;
    return ExitDone;
}

int runNumberTaken(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 3, 3);
    const QString user = context.session().user().name;
    const bool taken = valueOrReport(context,
        core::isNumberTaken(
            context.connection(), positional[0], positional[1], positional[2], user));
    context.out() << (taken ? "yes" : "no") << Qt::endl;
    return ExitDone;
}

int runClean(Context &context, Args &args)
{
    const std::optional<QString> strength = args.option(QStringLiteral("--strength"));
    const QString text = takePositional(context, args, 1, 1).first();
    if (!strength) {
        context.out() << core::cleanText(text) << Qt::endl;
        return ExitDone;
    }
    core::CleanStrength level = core::CleanStrength::Full;
    if (*strength == QLatin1String("medium"))
        level = core::CleanStrength::Medium;
    else if (*strength == QLatin1String("light"))
        level = core::CleanStrength::Light;
    else if (*strength != QLatin1String("full"))
        return context.usageError(QStringLiteral("--strength 只能是 full、medium 或 light"));
    context.out() << core::cleanText(text, level) << Qt::endl;
    return ExitDone;
}

int runCapitals(Context &context, Args &args)
{
    const QString text = takePositional(context, args, 1, 1).first();
    const double amount = valueOrReport(
        context, core::readNumber(QStringLiteral("金额"), text, core::NumberKind::SignedAmount));
    context.out() << core::amountInCapitals(amount) << Qt::endl;
    return ExitDone;
}

} // namespace

void addCoreCommands(Registry &registry)
{
    registry.add(
        { QStringLiteral("init"), QStringLiteral("[--company NAME] [--short NAME] [--tele TEXT]"),
            QStringLiteral("创建数据目录和主帐套文件 jxc.db（已存在的文件不作改动）"), runInit,
            Access::Open });
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
    registry.add({ QStringLiteral("next-code"), QStringLiteral("TABLE COLUMN"),
        QStringLiteral("下一个基础资料编号"), runNextCode });
    registry.add({ QStringLiteral("next-number"), QStringLiteral("TABLE COLUMN PREFIX [DATE]"),
        QStringLiteral("下一个单据号（默认今天）"), runNextNumber });
    registry.add({ QStringLiteral("number-taken"), QStringLiteral("TABLE COLUMN NUMBER"),
        QStringLiteral("单据号是否已被其他操作员占用（yes/no）"), runNumberTaken });
    registry.add({ QStringLiteral("clean"), QStringLiteral("[--strength full|medium|light] TEXT"),
        QStringLiteral("按录入规则清理文字"), runClean, Access::Open });
    registry.add({ QStringLiteral("capitals"), QStringLiteral("AMOUNT"),
        QStringLiteral("金额的中文大写"), runCapitals, Access::Open });
}

} // namespace medistock::cli
