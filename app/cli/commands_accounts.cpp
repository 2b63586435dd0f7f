// Commands of the money module: balances and recalculations, cash and bank accounts, and the
// registrations, movements and expenses that save/check/uncheck/delete/show reach by prefix.
#include "app/cli/registry.h"

#include "accounts/bankaccounts.h"
#include "accounts/cashbook.h"
#include "accounts/documentsupport.h"
#include "accounts/expenses.h"
#include "accounts/invoices.h"
#include "accounts/ledger.h"
#include "accounts/registrations.h"
#include "accounts/texts.h"
#include "core/numbers.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "shell/session.h"

#include <QJsonArray>
#include <QSqlRecord>

namespace medistock::cli {

namespace {

using namespace medistock::accounts;

QString amountText(const shell::Session &session, double value)
{
    const int decimals = session.params().amountDecimals();
    return QString::number(core::roundTo(value, decimals), 'f', decimals);
}

PartyKind partyKindArgument(Context &context, const QString &text)
{
    const auto kind = partyKindFromCode(text);
    if (!kind)
        throw Stop { context.usageError(QStringLiteral("往来单位类型应为 kh 或 ghs：") + text) };
    return *kind;
}

// An opening amount: money either way (an account may start overdrawn).
double openingArgument(Context &context, const QString &text)
{
    return valueOrReport(
        context, core::readNumber(texts::openingField(), text, core::NumberKind::SignedAmount));
}

QDate requiredDate(Context &context, Args &args, const QString &option)
{
    const auto text = args.option(option);
    if (!text)
        throw Stop { context.usageError(QStringLiteral("缺少选项 ") + option) };
    return parseDate(context, *text);
}

int runBalance(Context &context, Args &args)
{
    const auto asOf = args.option(QStringLiteral("--as-of"));
    const QStringList positional = takePositional(context, args, 2, 2);
    const PartyKind kind = partyKindArgument(context, positional[0]);
    shell::Session &session = context.session();
    if (!partyExists(session.db(), kind, positional[1]))
        require(core::refuse(session.ui(), texts::partyMissing(kind, positional[1])));
    const int decimals = session.params().amountDecimals();
    const double balance = asOf ? ledgerBalanceAsOf(session.db(), kind, positional[1],
                               parseDate(context, *asOf).toString(QStringLiteral("yyyy-MM-dd")))
                                : currentLedgerBalance(session.db(), kind, positional[1], decimals);
    context.out() << amountText(session, balance) << Qt::endl;
    return ExitDone;
}

int runRecalcInvoices(Context &context, Args &args, const QString &party, QDate from)
{
    const auto side = args.option(QStringLiteral("--side"));
    requireNoMore(context, args);
    shell::Session &session = context.session();
    QList<PartyKind> kinds;
    if (side)
        kinds = { partyKindArgument(context, *side) };
    for (PartyKind kind : { PartyKind::Customer, PartyKind::Supplier })
        if (!side && (party.isEmpty() || partyExists(session.db(), kind, party)))
            kinds.append(kind);
    if (kinds.isEmpty())
        require(core::refuse(session.ui(), texts::partyMissing(PartyKind::Customer, party)));
    for (PartyKind kind : kinds)
        require(recalculateAllInvoices(session, kind, party, from));
    return ExitDone;
}

int runRecalc(Context &context, Args &args)
{
    const QString party = args.option(QStringLiteral("--party")).value_or(QString());
    const QDate from = requiredDate(context, args, QStringLiteral("--from"));
    const QStringList arguments = args.positional();
    const QString subject = arguments.value(0);
    Args rest(arguments.mid(1));
    if (subject == QLatin1String("invoices"))
        return runRecalcInvoices(context, rest, party, from);
    if (subject == QLatin1String("cash")) {
        const QString account = takePositional(context, rest, 1, 1).first();
        shell::Session &session = context.session();
        require(recalculateCashBook(session, account, from));
        context.out() << amountText(session, cashBalance(session.db(), account)) << Qt::endl;
        return ExitDone;
    }
    if (subject != QLatin1String("receivables") && subject != QLatin1String("payables"))
        return context.usageError(
            QStringLiteral("recalc 之后应为 receivables、payables、invoices 或 cash"));
    requireNoMore(context, rest);
    const PartyKind kind
        = subject == QLatin1String("receivables") ? PartyKind::Customer : PartyKind::Supplier;
    require(recalculateAllLedgers(context.session(), kind, party, from));
    return ExitDone;
}

int runCashBalance(Context &context, Args &args)
{
    const QString account = takePositional(context, args, 1, 1).first();
    shell::Session &session = context.session();
    if (!knownCashAccount(session.db(), account))
        require(core::refuse(session.ui(), texts::accountMissing(account)));
    context.out() << amountText(session, cashBalance(session.db(), account)) << Qt::endl;
    return ExitDone;
}

int runAccounts(Context &context, Args &args)
{
    requireNoMore(context, args);
    shell::Session &session = context.session();
    for (const BankAccount &account : listBankAccounts(session.db()))
        context.out() << account.code << '\t' << account.name << '\t' << account.type.trimmed()
                      << '\t' << amountText(session, account.opening) << '\t'
                      << amountText(session, cashBalance(session.db(), account.name)) << Qt::endl;
    return ExitDone;
}

int runAccountAdd(Context &context, Args &args)
{
    const QString type = args.option(QStringLiteral("--type")).value_or(QString());
    const QString note = args.option(QStringLiteral("--note")).value_or(QString());
    const QString name = takePositional(context, args, 1, 1).first();
    context.out() << valueOf(addBankAccount(context.session(), name, type, note)) << Qt::endl;
    return ExitDone;
}

int runAccountRename(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 2);
    require(renameBankAccount(context.session(), positional[0], positional[1]));
    return ExitDone;
}

int runRegistrationDate(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 2);
    require(changeRegistrationDate(context.session(), positional[0], positional[1]));
    return ExitDone;
}

int runAccountOpening(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 2);
    require(setOpeningAmount(
        context.session(), positional[0], openingArgument(context, positional[1])));
    return ExitDone;
}

int runAccountDelete(Context &context, Args &args)
{
    const QString name = takePositional(context, args, 1, 1).first();
    require(deleteBankAccount(context.session(), name));
    return ExitDone;
}

// What the document kinds share: the operation on the number, and its line on stdout.
int finish(Context &context, const Outcome &outcome, const QString &done, const QString &number)
{
    require(outcome);
    context.out() << done << number << Qt::endl;
    return ExitDone;
}

int printSaved(Context &context, const Result<QString> &saved)
{
    context.out() << valueOf(saved) << Qt::endl;
    return ExitDone;
}

int showDocument(Context &context, const QString &number, Args &args)
{
    requireNoMore(context, args);
    shell::Session &session = context.session();
    const QList<QSqlRecord> rows = documentRows(session.db(), number);
    if (rows.isEmpty())
        require(core::refuse(session.ui(), texts::documentMissing(number)));
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (i > 0)
            context.out() << Qt::endl;
        for (int c = 0; c < rows[i].count(); ++c)
            context.out() << rows[i].fieldName(c) << '=' << rows[i].value(c).toString() << Qt::endl;
    }
    return ExitDone;
}

using Operation = Outcome (*)(shell::Session &, const QString &);

std::function<int(Context &, const QString &, Args &)> numberCommand(
    Operation operation, const QString &done)
{
    return [operation, done](Context &context, const QString &number, Args &args) {
        requireNoMore(context, args);
        return finish(context, operation(context.session(), number), done, number);
    };
}

QString dateOrToday(Context &context, const QJsonObject &object, const QString &field)
{
    const QString date = jsonText(object, field);
    return date.isEmpty() ? context.session().today() : date;
}

int saveRegistrationFile(Context &context, const QJsonObject &o, RegistrationKind kind)
{
    requireKnownFields(context, o,
        { QStringLiteral("gl_djh"), QStringLiteral("k_ghskh"), QStringLiteral("k_rq"),
            QStringLiteral("k_yfje"), QStringLiteral("k_sfje"), QStringLiteral("k_yhje"),
            QStringLiteral("k_mlje"), QStringLiteral("k_fkfs"), QStringLiteral("u_sn"),
            QStringLiteral("gl_djh2"), QStringLiteral("k_note") });
    RegistrationDraft draft;
    draft.kind = kind;
    draft.number = jsonText(o, QStringLiteral("gl_djh"));
    draft.party = jsonText(o, QStringLiteral("k_ghskh"));
    draft.date = dateOrToday(context, o, QStringLiteral("k_rq"));
    draft.due = jsonNumber(context, o, QStringLiteral("k_yfje"));
    draft.paid = jsonNumber(context, o, QStringLiteral("k_sfje"));
    draft.discount = jsonNumber(context, o, QStringLiteral("k_yhje"));
    draft.changeWrittenOff = jsonNumber(context, o, QStringLiteral("k_mlje"));
    draft.account = jsonText(o, QStringLiteral("k_fkfs"));
    draft.salesman = jsonText(o, QStringLiteral("u_sn"));
    draft.link = jsonText(o, QStringLiteral("gl_djh2"));
    draft.note = jsonText(o, QStringLiteral("k_note"));
    return printSaved(context, saveRegistration(context.session(), draft));
}

// A transfer's lines are its two rows as stored: out of the first account (negative), into the
// second (positive), one amount.
void readTransferLines(Context &context, const QJsonObject &o, MovementDraft &draft)
{
    const QJsonArray lines = o.value(QStringLiteral("lines")).toArray();
    const QString usage = QStringLiteral(
        "转账单的 lines 应为两行：转出账户 xj_je 为负数，转入账户 xj_je 为相同的正数");
    if (lines.size() != 2)
        throw Stop { context.usageError(usage) };
    const QJsonObject out = lines[0].toObject();
    const QJsonObject in = lines[1].toObject();
    for (const QJsonObject &line : { out, in })
        requireKnownFields(context, line, { QStringLiteral("xj_kmmc"), QStringLiteral("xj_je") });
    const double amount = jsonNumber(context, in, QStringLiteral("xj_je"));
    if (jsonNumber(context, out, QStringLiteral("xj_je")) != -amount)
        throw Stop { context.usageError(usage) };
    draft.amount = amount;
    draft.account = jsonText(out, QStringLiteral("xj_kmmc"));
    draft.targetAccount = jsonText(in, QStringLiteral("xj_kmmc"));
}

int saveMovementFile(Context &context, const QJsonObject &o, MovementKind kind)
{
    QStringList fields { QStringLiteral("gl_djh"), QStringLiteral("xj_rq"),
        QStringLiteral("u_name"), QStringLiteral("xj_note") };
    fields += kind == MovementKind::Transfer
        ? QStringList { QStringLiteral("lines") }
        : QStringList { QStringLiteral("xj_je"), QStringLiteral("xj_kmmc") };
    requireKnownFields(context, o, fields);
    MovementDraft draft;
    draft.kind = kind;
    draft.number = jsonText(o, QStringLiteral("gl_djh"));
    draft.date = dateOrToday(context, o, QStringLiteral("xj_rq"));
    draft.salesmanName = jsonText(o, QStringLiteral("u_name"));
    draft.note = jsonText(o, QStringLiteral("xj_note"));
    if (kind == MovementKind::Transfer) {
        readTransferLines(context, o, draft);
    } else {
        draft.amount = jsonNumber(context, o, QStringLiteral("xj_je"));
        draft.account = jsonText(o, QStringLiteral("xj_kmmc"));
    }
    return printSaved(context, saveMovement(context.session(), draft));
}

int saveExpenseFile(Context &context, const QJsonObject &o, ExpenseKind kind)
{
    requireKnownFields(context, o,
        { QStringLiteral("gl_djh"), QStringLiteral("fy_rq"), QStringLiteral("fy_lx"),
            QStringLiteral("fy_je"), QStringLiteral("u_sn"), QStringLiteral("de_sn"),
            QStringLiteral("fy_kmmc"), QStringLiteral("fy_note") });
    ExpenseDraft draft;
    draft.kind = kind;
    draft.number = jsonText(o, QStringLiteral("gl_djh"));
    draft.date = dateOrToday(context, o, QStringLiteral("fy_rq"));
    draft.type = jsonText(o, QStringLiteral("fy_lx"));
    draft.amount = jsonNumber(context, o, QStringLiteral("fy_je"));
    draft.salesman = jsonText(o, QStringLiteral("u_sn"));
    draft.department = jsonText(o, QStringLiteral("de_sn"));
    draft.account = jsonText(o, QStringLiteral("fy_kmmc"));
    draft.note = jsonText(o, QStringLiteral("fy_note"));
    return printSaved(context, saveExpense(context.session(), draft));
}

DocumentKind documentKind(const QString &prefix, const QString &title,
    std::function<int(Context &, const QJsonObject &)> save, Operation check, Operation uncheck,
    Operation remove)
{
    return { prefix, title, std::move(save), numberCommand(check, QStringLiteral("已审核：")),
        numberCommand(uncheck, QStringLiteral("已取消审核：")),
        numberCommand(remove, QStringLiteral("已删除：")), showDocument };
}

void addDocumentKinds(DocumentKinds &kinds)
{
    for (RegistrationKind kind : { RegistrationKind::Receivable, RegistrationKind::Collection,
             RegistrationKind::Payable, RegistrationKind::Payment })
        kinds.add(documentKind(
            registrationPrefix(kind), texts::registrationText(kind),
            [kind](Context &c, const QJsonObject &o) { return saveRegistrationFile(c, o, kind); },
            checkRegistration, uncheckRegistration, deleteRegistration));
    const QList<QPair<MovementKind, QString>> movements { { MovementKind::Receipt,
                                                              texts::cashReceiptKind() },
        { MovementKind::Payment, texts::cashPaymentKind() },
        { MovementKind::Transfer, texts::cashTransferKind() } };
    for (const auto &[kind, title] : movements)
        kinds.add(documentKind(
            movementPrefix(kind), title,
            [kind](Context &c, const QJsonObject &o) { return saveMovementFile(c, o, kind); },
            checkMovement, uncheckMovement, deleteMovement));
    for (ExpenseKind kind : { ExpenseKind::Expense, ExpenseKind::Income })
        kinds.add(documentKind(
            expensePrefix(kind), texts::expenseFlag(kind),
            [kind](Context &c, const QJsonObject &o) { return saveExpenseFile(c, o, kind); },
            checkExpense, uncheckExpense, deleteExpense));
}

} // namespace

void addAccountsCommands(Registry &registry)
{
    registry.add({ QStringLiteral("balance"), QStringLiteral("kh|ghs PARTY [--as-of DATE]"),
        QStringLiteral("客户应收或供货商应付的当前余额（或截至某日的余额）"), runBalance });
    registry.add({ QStringLiteral("recalc"),
        QStringLiteral("receivables|payables|invoices [--side kh|ghs] [--party CODE] --from DATE"
                       " | cash ACCOUNT --from DATE"),
        QStringLiteral("从某日起重新计算应收款、应付款、发票数据或现金银行余额"), runRecalc });
    registry.add({ QStringLiteral("cash-balance"), QStringLiteral("ACCOUNT"),
        QStringLiteral("现金银行账户的当前余额"), runCashBalance });
    registry.add({ QStringLiteral("accounts"), QString(),
        QStringLiteral("列出现金银行账户（编号、名称、类型、期初金额、余额）"), runAccounts });
    registry.add(
        { QStringLiteral("account-add"), QStringLiteral("NAME [--type TYPE] [--note TEXT]"),
            QStringLiteral("增加现金银行账户，输出其编号"), runAccountAdd });
    registry.add({ QStringLiteral("account-rename"), QStringLiteral("NAME NEWNAME"),
        QStringLiteral("修改现金银行账户名称"), runAccountRename });
    registry.add({ QStringLiteral("registration-date"), QStringLiteral("NUMBER DATE"),
        QStringLiteral("修改收付款日期（已审核的登记连同其帐款与现金记录）"),
        runRegistrationDate });
    registry.add({ QStringLiteral("account-opening"), QStringLiteral("NAME AMOUNT"),
        QStringLiteral("建立现金银行账户的期初金额"), runAccountOpening });
    registry.add({ QStringLiteral("account-delete"), QStringLiteral("NAME"),
        QStringLiteral("删除现金银行账户"), runAccountDelete });
    addDocumentKinds(registry.documents());
}

} // namespace medistock::cli
