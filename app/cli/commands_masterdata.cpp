// Commands of the master data: adding rows, finding, disabling and deleting them, spreadsheet
// import and export, and mnemonic codes.
#include "app/cli/registry.h"

#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "masterdata/mnemonic.h"
#include "masterdata/texts.h"
#include "masterdata/transfer.h"
#include "members/import.h"
#include "members/member.h"
#include "shell/session.h"

#include <QSqlRecord>

namespace medistock::cli {

namespace {

using masterdata::MasterKind;

const MasterKind &kindOrStop(Context &context, const QString &key)
{
    const MasterKind *kind = masterdata::findMasterKind(key);
    if (!kind) {
        QStringList keys;
        for (const MasterKind &known : masterdata::masterKinds())
            keys.append(QString::fromLatin1(known.key));
        throw Stop { context.usageError(
            QStringLiteral("没有这种资料：%1（可用：%2）").arg(key, keys.join(QLatin1Char(' ')))) };
    }
    return *kind;
}

int runAdd(Context &context, Args &args, const char *key)
{
    const MasterKind &kind = kindOrStop(context, QString::fromLatin1(key));
    const masterdata::Values values = columnOptions(context, args);
    context.out() << valueOf(masterdata::addMasterRow(context.session(), kind, values)) << Qt::endl;
    return ExitDone;
}

int runList(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 1, 2);
    const MasterKind &kind = kindOrStop(context, positional[0]);
    const QString key = masterdata::keyColumn(kind);
    for (const QSqlRecord &row :
        masterdata::searchMasterRows(context.connection(), kind, positional.value(1))) {
        context.out() << row.value(key).toString() << '\t'
                      << row.value(QString::fromLatin1(kind.nameColumn)).toString();
        if (kind.mnemonicColumn)
            context.out() << '\t' << row.value(QString::fromLatin1(kind.mnemonicColumn)).toString();
        if (kind.disabledColumn && row.value(QString::fromLatin1(kind.disabledColumn)).toInt() != 0)
            context.out() << QStringLiteral("\t禁用");
        context.out() << Qt::endl;
    }
    return ExitDone;
}

int runDisable(Context &context, Args &args, bool disabled)
{
    const QStringList positional = takePositional(context, args, 2, 2);
    require(masterdata::setMasterDisabled(
        context.session(), kindOrStop(context, positional[0]), positional[1], disabled));
    return ExitDone;
}

int runDelete(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 2);
    const MasterKind &kind = kindOrStop(context, positional[0]);
    shell::Session &session = context.session();
    if (!session.ui().ask(
            masterdata::texts::deleteQuestion(QString::fromUtf8(kind.label), positional[1])))
        return ExitRefused;
    require(masterdata::deleteMasterRow(session, kind, positional[1]));
    return ExitDone;
}

void printPlan(Context &context, const masterdata::ImportPlan &plan)
{
    for (const masterdata::ImportColumn &column : plan.columns)
        context.out() << column.header << QStringLiteral(" → ")
                      << (column.column.isEmpty() ? QStringLiteral("（不导入）")
                                                  : column.label + QStringLiteral("（")
                                     + column.column + QStringLiteral("）"))
                      << Qt::endl;
    for (const masterdata::ImportRow &row : plan.rows)
        if (!row.reason.isEmpty())
            context.out() << QStringLiteral("第%1行：").arg(row.line) << row.reason << Qt::endl;
    context.out() << masterdata::texts::importSummary(plan.accepted(), plan.rejected()) << Qt::endl;
}

int runImport(Context &context, Args &args)
{
    const bool dryRun = args.flag(QStringLiteral("--dry-run"));
    const QStringList positional = takePositional(context, args, 2, 2);
    const MasterKind &kind = kindOrStop(context, positional[0]);
    shell::Session &session = context.session();
    // Members get their card numbers on the way.
    const bool isMemberList = &kind == &members::memberKind();
    const auto planned = isMemberList ? members::planMemberImport(session, positional[1])
                                      : masterdata::planImport(session, kind, positional[1]);
    const masterdata::ImportPlan &plan = valueOf(planned);
    printPlan(context, plan);
    if (dryRun)
        return ExitDone;
    if (!session.ui().ask(masterdata::texts::importQuestion(plan.accepted(), plan.rejected())))
        return ExitRefused;
    const int written = valueOf(isMemberList ? members::runMemberImport(session, plan)
                                             : masterdata::runImport(session, kind, plan));
    context.out() << masterdata::texts::imported(written) << Qt::endl;
    return ExitDone;
}

int runExport(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 2);
    const Outcome outcome = masterdata::exportMasterRows(
        context.connection(), kindOrStop(context, positional[0]), positional[1]);
    if (!outcome)
        context.interaction().inform(outcome.message());
    require(outcome);
    return ExitDone;
}

int runMnemonic(Context &context, Args &args)
{
    context.out() << masterdata::mnemonicOf(takePositional(context, args, 1, 1).first())
                  << Qt::endl;
    return ExitDone;
}

} // namespace

void addMasterDataCommands(Registry &registry)
{
    const struct
    {
        const char *command;
        const char *key;
        const char *summary;
    } adds[] = { { "goods-add", "goods", "增加商品，输出商品编号" },
        { "customer-add", "customer", "增加客户，输出客户编号" },
        { "supplier-add", "supplier", "增加供货商，输出供货商编号" },
        { "warehouse-add", "warehouse", "增加仓库，输出仓库编号" },
        { "employee-add", "employee", "增加员工，输出员工编号" } };
    for (const auto &add : adds) {
        const char *key = add.key;
        registry.add({ QString::fromLatin1(add.command), QStringLiteral("--字段名 值 ..."),
            QString::fromUtf8(add.summary),
            [key](Context &context, Args &args) { return runAdd(context, args, key); } });
    }
    registry.add({ QStringLiteral("master-list"), QStringLiteral("KIND [TEXT]"),
        QStringLiteral("按编号、名称、简码或条码查找资料"), runList });
    registry.add({ QStringLiteral("master-disable"), QStringLiteral("KIND CODE"),
        QStringLiteral("禁用资料"), [](Context &c, Args &a) { return runDisable(c, a, true); } });
    registry.add({ QStringLiteral("master-enable"), QStringLiteral("KIND CODE"),
        QStringLiteral("启用资料"), [](Context &c, Args &a) { return runDisable(c, a, false); } });
    registry.add({ QStringLiteral("master-delete"), QStringLiteral("KIND CODE"),
        QStringLiteral("删除没有业务记录的资料（需要 --yes）"), runDelete });
    registry.add({ QStringLiteral("import"), QStringLiteral("KIND FILE.xlsx [--dry-run]"),
        QStringLiteral("从 Excel 表格导入商品、客户、供货商或会员（需要 --yes）"), runImport });
    registry.add({ QStringLiteral("export"), QStringLiteral("KIND FILE.xlsx"),
        QStringLiteral("导出资料到 Excel 表格"), runExport });
    registry.add({ QStringLiteral("mnemonic"), QStringLiteral("TEXT"),
        QStringLiteral("名称的拼音简码"), runMnemonic, Access::Open });
}

} // namespace medistock::cli
