// The account set's upkeep: backup, restore and the books' self-check.
#include "app/cli/registry.h"

#include "maintenance/backup.h"
#include "maintenance/verify.h"
#include "shell/session.h"

namespace medistock::cli {

namespace {

void printLines(Context &context, const QStringList &lines)
{
    for (const QString &line : lines)
        context.out() << line << Qt::endl;
}

int runVerify(Context &context, Args &args)
{
    const bool repair = args.flag(QStringLiteral("--repair"));
    requireNoMore(context, args);
    shell::Session &session = context.session();
    if (repair) {
        const auto repaired = maintenance::repairBooks(session);
        const QStringList &changes = valueOf(repaired);
        printLines(context,
            changes.isEmpty() ? QStringList { QStringLiteral("没有作任何修改。") } : changes);
        return ExitDone;
    }
    const auto verified = maintenance::verifyBooks(session);
    const maintenance::VerifyReport &report = valueOf(verified);
    printLines(context, maintenance::reportLines(report));
    return report.findings.isEmpty() ? ExitDone : ExitRefused;
}

int runBackup(Context &context, Args &args)
{
    const QString target = args.option(QStringLiteral("--to")).value_or(QString());
    requireNoMore(context, args);
    const auto written
        = maintenance::backupAccountSet(context.session(), context.dataFolder(), target);
    context.out() << valueOf(written) << Qt::endl;
    return ExitDone;
}

int runRestore(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 1, 1);
    const auto restored
        = maintenance::restoreAccountSet(context.session(), context.dataFolder(), positional[0]);
    const QString &kept = valueOf(restored);
    context.out() << QStringLiteral("恢复前的帐套数据已另存为：") << kept << Qt::endl;
    return ExitDone;
}

} // namespace

void addMaintenanceCommands(Registry &registry)
{
    registry.add({ QStringLiteral("verify"), QStringLiteral("[--repair]"),
        QStringLiteral("库存核对：库存、流水账、往来余额与进销存差额（发现问题时退出码为 1）"),
        runVerify });
    registry.add({ QStringLiteral("backup"), QStringLiteral("[--to FILE]"),
        QStringLiteral("帐套数据备份到文件（默认放在数据文件夹的 backup 里）"), runBackup });
    registry.add({ QStringLiteral("restore"), QStringLiteral("FILE"),
        QStringLiteral("从备份文件恢复帐套数据（先另存当前数据）"), runRestore });
}

} // namespace medistock::cli
