// Commands of the application shell: account sets, login, operators, parameters, rights, log.
#include "app/cli/registry.h"

#include "core/accountsets.h"
#include "core/login.h"
#include "core/oplog.h"
#include "core/transaction.h"
#include "members/instalments.h"
#include "shell/company.h"
#include "shell/logbook.h"
#include "shell/operators.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "shell/settings.h"

namespace medistock::cli {

namespace {

QString yesNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

// Runs before any login, as the set is chosen before logging in: codes and names only.
int runSets(Context &context, Args &args)
{
    requireNoMore(context, args);
    for (const core::AccountSet &set : core::listAccountSets(context.masterConnection()))
        context.out() << set.code << '\t' << set.name << '\t'
                      << (set.isDefault ? QStringLiteral("默认") : QString()) << '\t'
                      << (set.forbidden ? QStringLiteral("禁用") : QString()) << Qt::endl;
    return ExitDone;
}

int runSetCreate(Context &context, Args &args)
{
    core::NewAccountSet request;
    request.note = args.option(QStringLiteral("--note")).value_or(QString());
    request.isDefault = args.flag(QStringLiteral("--default"));
    request.forbidden = args.flag(QStringLiteral("--forbid"));
    request.company.name = args.option(QStringLiteral("--company")).value_or(QString());
    request.company.shortName = args.option(QStringLiteral("--short")).value_or(QString());
    request.company.tele = args.option(QStringLiteral("--tele")).value_or(QString());
    request.name = takePositional(context, args, 1, 1).first();
    if (!context.options().set.isEmpty())
        return context.usageError(QStringLiteral("帐套在主帐套文件中管理，请不要指定 --set"));
    shell::Session &session = context.session();
    require(shell::requireRight(session, "qtcz", 20));
    const auto created
        = core::createAccountSet(session.db(), session.clock(), session.ui(), request);
    const core::AccountSet &set = valueOf(created);
    context.out() << set.code << '\t' << set.fileName << Qt::endl;
    return ExitDone;
}

int runOperators(Context &context, Args &args)
{
    requireNoMore(context, args);
    for (const shell::OperatorRow &row : shell::listOperators(context.connection()))
        context.out() << row.code << '\t' << row.name << '\t' << row.role << '\t' << row.roleName
                      << (row.locked ? QStringLiteral("\t已停用") : QString()) << Qt::endl;
    return ExitDone;
}

int runLogin(Context &context, Args &args)
{
    requireNoMore(context, args);
    const QString user
        = context.options().user.isEmpty() ? QStringLiteral("admin") : context.options().user;
    core::Connection &db = context.connection();
    if (core::hasEmptyPassword(db, user))
        context.interaction().inform(core::initialPasswordHint());
    const auto identity = core::login(db, context.clock(), context.interaction(), user,
        context.options().password, core::LoginMode::Desktop);
    const core::OperatorIdentity &who = valueOf(identity);
    context.out()
        << QStringLiteral("登录成功：%1（编号 %2，角色 %3）").arg(who.name, who.code, who.role)
        << Qt::endl;
    // Top-up gifts that have fallen due reach the cards at every login.
    const shell::Session session(db, context.interaction(), context.clock(), who);
    members::releaseInstalmentGifts(session);
    return ExitDone;
}

int runOperatorAdd(Context &context, Args &args)
{
    const QString role = args.option(QStringLiteral("--role")).value_or(QString());
    const QString name = takePositional(context, args, 1, 1).first();
    const auto code = shell::addOperator(context.session(), name, role);
    context.out() << valueOf(code) << Qt::endl;
    return ExitDone;
}

int runPasswd(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 2);
    require(shell::changePassword(context.session(), positional[0], positional[1]));
    return ExitDone;
}

int runOperatorLock(Context &context, Args &args, bool locked)
{
    const QString name = takePositional(context, args, 1, 1).first();
    require(shell::setOperatorLocked(context.session(), name, locked));
    return ExitDone;
}

int runParams(Context &context, Args &args)
{
    requireNoMore(context, args);
    const shell::Parameters &params = context.session().params();
    for (const QString &column : params.columns()) {
        if (column == QLatin1String("id"))
            continue;
        const QVariant value = params.value(column);
        context.out() << column << '=' << (value.isNull() ? QString() : value.toString())
                      << Qt::endl;
    }
    return ExitDone;
}

int runParamSet(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 2);
    require(shell::saveParameters(context.session(), { { positional[0], positional[1] } }));
    return ExitDone;
}

int runParamsRestore(Context &context, Args &args)
{
    requireNoMore(context, args);
    require(shell::restoreDefaultParameters(context.session()));
    return ExitDone;
}

int runHasRight(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 2);
    if (!shell::findRightArea(positional[0]))
        return context.usageError(QStringLiteral("没有这个权限区：") + positional[0]);
    bool ok = false;
    const int position = positional[1].toInt(&ok);
    if (!ok || position < 1)
        return context.usageError(QStringLiteral("权限序号应为正整数：") + positional[1]);
    context.out() << yesNo(shell::hasRight(context.session(), positional[0], position)) << Qt::endl;
    return ExitDone;
}

// role-save NAME cggl=1010 xsgl=11 ...: the characters tick the area's operations in order.
int runRoleSave(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 1, 9);
    shell::RoleDraft draft;
    draft.name = positional[0];
    for (const QString &assignment : positional.mid(1)) {
        const qsizetype at = assignment.indexOf(QLatin1Char('='));
        const QString area = assignment.left(at);
        if (at < 0 || !shell::findRightArea(area))
            return context.usageError(
                QStringLiteral("权限应写成 区=字符串，例如 cggl=1100：") + assignment);
        QList<bool> ticked;
        for (QChar c : assignment.mid(at + 1))
            ticked.append(c == QLatin1Char('1'));
        draft.ticked.insert(area, ticked);
    }
    shell::Session &session = context.session();
    for (const shell::Role &role : shell::listRoles(session.db()))
        if (role.name == draft.name.trimmed())
            draft.id = role.id;
    context.out() << valueOf(shell::saveRole(session, draft)) << Qt::endl;
    return ExitDone;
}

int runLog(Context &context, Args &args)
{
    const QString from = args.option(QStringLiteral("--from")).value_or(QString());
    const QString to = args.option(QStringLiteral("--to")).value_or(QString());
    requireNoMore(context, args);
    const QDate first = from.isEmpty() ? QDate() : parseDate(context, from);
    const QDate last = to.isEmpty() ? QDate() : parseDate(context, to);
    const auto entries = shell::viewLog(context.session(), first, last);
    for (const core::LogEntry &entry : valueOf(entries))
        context.out() << entry.time << '\t' << entry.operatorName << '\t' << entry.note << Qt::endl;
    return ExitDone;
}

int runCompany(Context &context, Args &args)
{
    shell::Session &session = context.session();
    shell::Company company = session.company();
    const std::pair<const char *, QString *> fields[] = { { "--name", &company.name },
        { "--short", &company.shortName }, { "--tele", &company.tele },
        { "--contact", &company.contact }, { "--address", &company.address } };
    bool changed = false;
    for (const auto &[option, field] : fields) {
        if (const auto value = args.option(QString::fromLatin1(option))) {
            *field = *value;
            changed = true;
        }
    }
    requireNoMore(context, args);
    if (changed)
        require(shell::saveCompany(session, company));
    const shell::Company &now = session.company();
    context.out() << now.name << '\t' << now.shortName << '\t' << now.tele << '\t' << now.contact
                  << '\t' << now.address << Qt::endl;
    return ExitDone;
}

int runLogClear(Context &context, Args &args)
{
    requireNoMore(context, args);
    require(shell::clearLog(context.session()));
    return ExitDone;
}

} // namespace

void addShellCommands(Registry &registry)
{
    registry.add({ QStringLiteral("sets"), QString(),
        QStringLiteral("列出帐套的编号和名称（无须登录）"), runSets, Access::Open });
    registry.add({ QStringLiteral("set-create"),
        QStringLiteral("NAME [--note TEXT] [--default] [--forbid] [--company NAME] "
                       "[--short NAME] [--tele TEXT]"),
        QStringLiteral("新建帐套，输出帐套编号和文件名"), runSetCreate });
    registry.add(
        { QStringLiteral("operators"), QString(), QStringLiteral("列出操作员"), runOperators });
    registry.add({ QStringLiteral("login"), QString(),
        QStringLiteral("以 --user/--password 登录并记入操作日志"), runLogin, Access::Open });
    registry.add({ QStringLiteral("operator-add"), QStringLiteral("NAME [--role CODE]"),
        QStringLiteral("增加操作员，输出其编号"), runOperatorAdd });
    registry.add({ QStringLiteral("passwd"), QStringLiteral("NAME NEWPASSWORD"),
        QStringLiteral("修改操作员密码"), runPasswd });
    registry.add(
        { QStringLiteral("operator-lock"), QStringLiteral("NAME"), QStringLiteral("停用操作员"),
            [](Context &c, Args &a) { return runOperatorLock(c, a, true); } });
    registry.add(
        { QStringLiteral("operator-unlock"), QStringLiteral("NAME"), QStringLiteral("启用操作员"),
            [](Context &c, Args &a) { return runOperatorLock(c, a, false); } });
    registry.add({ QStringLiteral("params"), QString(), QStringLiteral("列出系统参数（名称=值）"),
        runParams });
    registry.add({ QStringLiteral("param-set"), QStringLiteral("COLUMN VALUE"),
        QStringLiteral("修改一个系统参数"), runParamSet });
    registry.add({ QStringLiteral("params-restore"), QString(),
        QStringLiteral("系统参数恢复默认值"), runParamsRestore });
    registry.add({ QStringLiteral("has-right"), QStringLiteral("AREA POSITION"),
        QStringLiteral("当前操作员是否有该权限（yes/no）"), runHasRight });
    registry.add({ QStringLiteral("role-save"), QStringLiteral("NAME AREA=STRING..."),
        QStringLiteral("新建或修改角色，输出角色编号"), runRoleSave });
    registry.add({ QStringLiteral("log"), QStringLiteral("[--from DATE] [--to DATE]"),
        QStringLiteral("查看操作日志"), runLog });
    registry.add({ QStringLiteral("log-clear"), QString(),
        QStringLiteral("清除全部操作日志（需要 --yes）"), runLogClear });
    registry.add({ QStringLiteral("company"),
        QStringLiteral("[--name NAME] [--short NAME] [--tele TEXT] [--contact NAME] "
                       "[--address TEXT]"),
        QStringLiteral("显示公司信息，给出选项时先修改"), runCompany });
}

} // namespace medistock::cli
