// Commands of the customer loans: the loan "JH" for save FILE, check, uncheck, delete and show,
// the return "HH" for uncheck and show through the document registry by prefix, and loan-return,
// which returns a loan's goods or sells them to the customer.
#include "app/cli/entryjson.h"
#include "app/cli/registry.h"

#include "core/rounding.h"
#include "loans/entry.h"
#include "loans/kinds.h"
#include "loans/loancheck.h"
#include "loans/loanreturn.h"
#include "loans/loansale.h"
#include "shell/session.h"

#include <QJsonArray>

namespace medistock::cli {

namespace {

// A loan line's own fields: deposit, rent per unit and day, and the rent's account.
const QStringList termFields { QStringLiteral("jh_yj"), QStringLiteral("jh_zj"),
    QStringLiteral("jh_kmmc") };

int saveLoanFile(Context &context, const QJsonObject &object)
{
    loans::LoanDraft draft;
    draft.entry = draftFromJson(context, loans::loanKind(), object, {}, termFields);
    for (const QJsonValue &line : object.value(QStringLiteral("lines")).toArray()) {
        const QJsonObject o = line.toObject();
        draft.terms.append(
            { jsonText(o, termFields[0]), jsonText(o, termFields[1]), jsonText(o, termFields[2]) });
    }
    context.out() << valueOf(loans::saveLoan(context.session(), draft)) << Qt::endl;
    return ExitDone;
}

using Operation = Outcome (*)(shell::Session &, const QString &);

std::function<int(Context &, const QString &, Args &)> onNumber(
    Operation operation, const QString &done)
{
    return [operation, done](Context &context, const QString &number, Args &args) {
        requireNoMore(context, args);
        require(operation(context.session(), number));
        context.out() << done << number << Qt::endl;
        return int(ExitDone);
    };
}

std::function<int(Context &, const QString &, Args &)> show()
{
    return [](Context &context, const QString &number, Args &args) {
        return showDocumentJson(context, loans::loanKind(), number, args);
    };
}

Outcome deleteLoan(shell::Session &session, const QString &number)
{
    return loans::deleteLoan(session, number);
}

// An option's number, stopping with a usage error when it is not one.
double optionNumber(Context &context, const std::optional<QString> &value, const QString &name)
{
    if (!value)
        return 0;
    bool ok = false;
    const double number = value->toDouble(&ok);
    if (!ok)
        throw Stop { context.usageError(QStringLiteral("%1 应为数字：%2").arg(name, *value)) };
    return number;
}

int runLoanReturn(Context &context, Args &args)
{
    const auto line = args.option(QStringLiteral("--line"));
    const auto quantity = args.option(QStringLiteral("--quantity"));
    const auto date = args.option(QStringLiteral("--date"));
    const auto note = args.option(QStringLiteral("--note"));
    const auto price = args.option(QStringLiteral("--price"));
    const auto paid = args.option(QStringLiteral("--paid"));
    const auto mode = args.option(QStringLiteral("--mode"));
    const auto account = args.option(QStringLiteral("--account"));
    const bool toSale = args.flag(QStringLiteral("--to-sale"));
    const QString loan = takePositional(context, args, 1, 1).first();
    if ((quantity || price) && !line)
        throw Stop { context.usageError(QStringLiteral("--quantity 和 --price 须与 --line 同用")) };
    if (!toSale && (price || paid || mode || account))
        throw Stop { context.usageError(
            QStringLiteral("--price、--paid、--mode、--account 只用于 --to-sale")) };
    const QString day = date ? parseDate(context, *date).toString(Qt::ISODate) : QString();
    qint64 lineId = 0;
    if (line) {
        bool ok = false;
        lineId = line->toLongLong(&ok);
        if (!ok)
            throw Stop { context.usageError(
                QStringLiteral("--line 应为借货明细的编号：") + *line) };
    }
    shell::Session &session = context.session();
    if (!toSale) {
        loans::ReturnDraft draft { loan, day, note.value_or(QString()), {} };
        if (line)
            draft.lines.append({ lineId, quantity.value_or(QString()) });
        context.out() << valueOf(loans::saveReturn(session, draft)) << Qt::endl;
        return ExitDone;
    }
    loans::LoanSaleDraft draft;
    draft.loan = loan;
    draft.date = day;
    draft.note = note.value_or(QString());
    if (line)
        draft.lines.append({ lineId, quantity.value_or(QString()), price.value_or(QString()) });
    draft.header.paid = optionNumber(context, paid, QStringLiteral("--paid"));
    draft.header.settlementMode = mode.value_or(QString());
    draft.header.account = account.value_or(QString());
    const loans::LoanSale &sold = valueOf(loans::sellLoanedGoods(session, draft));
    context.out() << sold.returnNumber << Qt::endl << sold.saleNumber << Qt::endl;
    return ExitDone;
}

// What is still out on a loan, line by line, with what returning it today would cost.
int runLoanOpen(Context &context, Args &args)
{
    const auto date = args.option(QStringLiteral("--date"));
    const QString loan = takePositional(context, args, 1, 1).first();
    shell::Session &session = context.session();
    const Result<loans::ReturnPlan> plan = loans::prepareReturn(session, loan, std::nullopt,
        date ? parseDate(context, *date).toString(Qt::ISODate) : QString());
    const loans::ReturnPlan &p = valueOf(plan);
    context.out() << QStringList { QStringLiteral("借货明细"), QStringLiteral("商品编号"),
        QStringLiteral("商品名称"), QStringLiteral("产品批号"), QStringLiteral("借货数量"),
        QStringLiteral("还货数量"), QStringLiteral("销售数量"), QStringLiteral("未还数量"),
        QStringLiteral("押金"), QStringLiteral("天数"), QStringLiteral("租金合计"),
        QStringLiteral("退回押金") }
                         .join(QLatin1Char('\t'))
                  << Qt::endl;
    for (const loans::ReturnLine &r : p.lines)
        context.out() << QStringList { QString::number(r.loan.line), r.loan.goods, r.loan.goodsName,
            r.loan.batch, core::plainNumber(r.loan.lent), core::plainNumber(r.loan.returned),
            core::plainNumber(r.loan.sold), core::plainNumber(r.quantity),
            core::plainNumber(r.deposit), QString::number(r.days), core::plainNumber(r.rent),
            core::plainNumber(r.refund) }
                             .join(QLatin1Char('\t'))
                      << Qt::endl;
    return ExitDone;
}

} // namespace

void addLoansCommands(Registry &registry)
{
    const QString checked = QStringLiteral("已审核：");
    const QString unchecked = QStringLiteral("已取消审核：");
    registry.documents().add({ QStringLiteral("JH"), QStringLiteral("客户借货单"), saveLoanFile,
        onNumber(loans::checkLoan, checked), onNumber(loans::uncheckLoan, unchecked),
        onNumber(deleteLoan, QStringLiteral("已删除：")), show() });
    registry.documents().add({ QStringLiteral("HH"), QStringLiteral("客户还货单"), {}, {},
        onNumber(loans::uncheckReturn, unchecked), {}, show() });
    registry.add({ QStringLiteral("loan-open"), QStringLiteral("LOAN [--date DATE]"),
        QStringLiteral("借货单未还的商品：各行的未还数量、押金、天数、租金和退回押金"),
        runLoanOpen });
    registry.add({ QStringLiteral("loan-return"),
        QStringLiteral("LOAN [--line ID [--quantity Q] [--price P]] [--date DATE] [--note TEXT] "
                       "[--to-sale [--paid AMOUNT] [--mode 1|2|0] [--account NAME]]"),
        QStringLiteral("还货（整单或一行），或 --to-sale 借货转销售；输出还货单号（及销售单号）"),
        runLoanReturn });
}

} // namespace medistock::cli
