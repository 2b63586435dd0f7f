// Commands of sales: the sales order "XD", the sale "XS" and the customer return "XT" for save
// FILE, check, uncheck, delete and show through the document registry; check-all XS, the
// customer price and the batches proposed first-expiry-first.
#include "app/cli/entryjson.h"
#include "app/cli/registry.h"

#include "accounts/documentsupport.h"
#include "core/numbers.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "sales/entry.h"
#include "sales/fefo.h"
#include "sales/kinds.h"
#include "sales/orders.h"
#include "sales/prices.h"
#include "sales/salecheck.h"
#include "sales/salesreturn.h"
#include "shell/session.h"

#include <QJsonArray>

namespace medistock::cli {

namespace {

using namespace medistock::sales;

enum class Kind { Order, Sale, Return };

const documents::DocumentKind &entryOf(Kind kind)
{
    switch (kind) {
    case Kind::Order:
        return salesOrderKind();
    case Kind::Return:
        return salesReturnKind();
    case Kind::Sale:
        break;
    }
    return saleKind();
}

// The sales header's own fields in JSON, by their column names.
QStringList ownHeaderFields(Kind kind)
{
    switch (kind) {
    case Kind::Order:
        return { "ls_jsfs", "ls_kmmc", "ls_sfje", "gl_djh2" };
    case Kind::Return:
        return { "th_jsfs", "th_kmmc", "th_sfje", "th_fpno", "th_fpje" };
    case Kind::Sale:
        break;
    }
    return { "ls_jsfs", "ls_kmmc", "ls_sfje", "ls_fpno", "ls_fpje", "ls_yf", "ls_bzf", "ls_yffs",
        "gl_djh2", "orders", "order_lines", "fefo" };
}

SaleHeader headerFromJson(Context &context, Kind kind, const QJsonObject &o)
{
    const QString p = kind == Kind::Return ? QStringLiteral("th_") : QStringLiteral("ls_");
    SaleHeader h;
    h.settlementMode = jsonText(o, p + QStringLiteral("jsfs"));
    h.account = jsonText(o, p + QStringLiteral("kmmc"));
    h.paid = jsonNumber(context, o, p + QStringLiteral("sfje"));
    h.invoiceNumber = jsonText(o, p + QStringLiteral("fpno"));
    h.invoiceAmount = jsonNumber(context, o, p + QStringLiteral("fpje"));
    h.freight = jsonNumber(context, o, QStringLiteral("ls_yf"));
    h.packing = jsonNumber(context, o, QStringLiteral("ls_bzf"));
    h.freightTerms = jsonText(o, QStringLiteral("ls_yffs"));
    h.linkNumber = jsonText(o, QStringLiteral("gl_djh2"));
    return h;
}

// A return line names the sales line it returns by "id2".
void readReturnLinks(Context &context, const QJsonObject &o, SaleDraft &draft)
{
    const QJsonArray lines = o.value(QStringLiteral("lines")).toArray();
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QJsonObject line = lines[i].toObject();
        if (line.contains(QStringLiteral("id2")))
            draft.entry.lines[i].columns.set(
                QStringLiteral("id2"), qint64(jsonNumber(context, line, QStringLiteral("id2"))));
    }
}

// "orders" replaces the lines by whole orders' open lines; "order_lines" adds single ones; "fefo"
// splits lines without batch over the batches expiring first.
void takeOver(Context &context, const QJsonObject &o, SaleDraft &draft)
{
    shell::Session &session = context.session();
    const QJsonArray orders = o.value(QStringLiteral("orders")).toArray();
    for (qsizetype i = 0; i < orders.size(); ++i) {
        SaleDraft taken = draft;
        require(takeOverOrder(session, orders[i].toString(), taken));
        if (i == 0)
            draft = taken;
        else
            draft.entry.lines += taken.entry.lines;
    }
    QList<qint64> ids;
    for (const QJsonValue &id : o.value(QStringLiteral("order_lines")).toArray())
        ids.append(qint64(id.toDouble()));
    if (!ids.isEmpty())
        require(takeOverOrderLines(session, ids, draft));
    if (o.value(QStringLiteral("fefo")).toBool())
        applyFefo(session, draft.entry);
}

int saveFile(Context &context, const QJsonObject &o, Kind kind)
{
    SaleDraft draft;
    draft.entry = draftFromJson(context, entryOf(kind), o, ownHeaderFields(kind),
        kind == Kind::Return ? QStringList { QStringLiteral("id2") } : QStringList {});
    draft.header = headerFromJson(context, kind, o);
    shell::Session &session = context.session();
    Result<QString> saved = Outcome::refused(QString());
    switch (kind) {
    case Kind::Order:
        saved = saveSalesOrder(session, draft);
        break;
    case Kind::Sale:
        takeOver(context, o, draft);
        saved = saveSale(session, draft);
        break;
    case Kind::Return:
        readReturnLinks(context, o, draft);
        saved = saveSalesReturn(session, draft);
        break;
    }
    context.out() << valueOf(saved) << Qt::endl;
    return ExitDone;
}

int finish(Context &context, const Outcome &outcome, const QString &done, const QString &number)
{
    require(outcome);
    context.out() << done << number << Qt::endl;
    return ExitDone;
}

using Operation = std::function<Outcome(shell::Session &, const QString &)>;

std::function<int(Context &, const QString &, Args &)> run(Operation operation, QString done)
{
    return [operation, done](Context &c, const QString &number, Args &a) {
        requireNoMore(c, a);
        return finish(c, operation(c.session(), number), done, number);
    };
}

DocumentKind documentKind(Kind kind)
{
    const documents::DocumentKind &entry = entryOf(kind);
    DocumentKind registered { QString::fromLatin1(entry.prefix), QString::fromUtf8(entry.title),
        [kind](Context &c, const QJsonObject &o) { return saveFile(c, o, kind); }, {}, {}, {},
        [&entry](Context &c, const QString &number, Args &a) {
            return showDocumentJson(c, entry, number, a);
        } };
    const QString checked = QStringLiteral("已审核：");
    const QString unchecked = QStringLiteral("已取消审核：");
    const QString deleted = QStringLiteral("已删除：");
    switch (kind) {
    case Kind::Order:
        registered.check = run(
            [](shell::Session &s, const QString &n) { return checkSalesOrder(s, n); }, checked);
        registered.remove = run(deleteSalesOrder, deleted);
        break;
    case Kind::Sale:
        registered.check
            = run([](shell::Session &s, const QString &n) { return checkSale(s, n); }, checked);
        registered.uncheck = run(uncheckSale, unchecked);
        registered.remove = run(deleteSale, deleted);
        break;
    case Kind::Return:
        registered.check = run(
            [](shell::Session &s, const QString &n) { return checkSalesReturn(s, n); }, checked);
        registered.uncheck = run(uncheckSalesReturn, unchecked);
        registered.remove = run(deleteSalesReturn, deleted);
        break;
    }
    return registered;
}

int runCheckAll(Context &context, Args &args)
{
    const auto from = args.option(QStringLiteral("--from"));
    const auto to = args.option(QStringLiteral("--to"));
    const QStringList kind = takePositional(context, args, 1, 1);
    if (kind.first() != QLatin1String("XS"))
        throw Stop { context.usageError(QStringLiteral("只能审核全部销售单：XS")) };
    const QString fromDate = from ? parseDate(context, *from).toString(Qt::ISODate) : QString();
    const QString toDate = to ? parseDate(context, *to).toString(Qt::ISODate) : QString();
    const Result<CheckAllSummary> result = checkAllSales(context.session(), fromDate, toDate);
    const CheckAllSummary &summary = valueOf(result);
    context.out() << QStringLiteral("已审核：%1/%2").arg(summary.checked).arg(summary.listed)
                  << Qt::endl;
    return ExitDone;
}

int runPrice(Context &context, Args &args)
{
    const QStringList p = takePositional(context, args, 2, 3);
    shell::Session &session = context.session();
    const double price = p.size() == 3 ? customerUnitPrice(session, p[0], p[1], p[2])
                                       : customerPrice(session, p[0], p[1]);
    context.out() << QString::number(price, 'f', session.params().priceDecimals()) << Qt::endl;
    return ExitDone;
}

int runFefo(Context &context, Args &args)
{
    const auto date = args.option(QStringLiteral("--date"));
    const QStringList p = takePositional(context, args, 3, 3);
    const double quantity = valueOrReport(
        context, core::readNumber(QStringLiteral("数量"), p[2], core::NumberKind::Quantity));
    if (quantity <= 0)
        throw Stop { context.usageError(QStringLiteral("数量应为正数：") + p[2]) };
    shell::Session &session = context.session();
    const FefoProposal proposal = proposeBatches(session, p[0], p[1], quantity,
        date ? parseDate(context, *date).toString(Qt::ISODate) : session.today());
    context.out() << QStringLiteral("产品批号\t有效期至\t生产日期\t库存数量\t出库数量") << Qt::endl;
    for (const BatchProposal &b : proposal.batches)
        context.out() << b.batch << '\t' << b.expiry << '\t' << b.produced << '\t'
                      << core::plainNumber(b.stock) << '\t' << core::plainNumber(b.quantity)
                      << Qt::endl;
    if (proposal.shortfall > 0)
        context.out() << QStringLiteral("库存不足：") << core::plainNumber(proposal.shortfall)
                      << Qt::endl;
    return ExitDone;
}

} // namespace

void addSalesCommands(Registry &registry)
{
    registry.documents().add(documentKind(Kind::Order));
    registry.documents().add(documentKind(Kind::Sale));
    registry.documents().add(documentKind(Kind::Return));
    registry.add({ QStringLiteral("check-all"), QStringLiteral("XS [--from DATE] [--to DATE]"),
        QStringLiteral("审核列表中所有未审核的销售单"), runCheckAll });
    registry.add({ QStringLiteral("price"), QStringLiteral("GOODS CUSTOMER [UNIT]"),
        QStringLiteral("客户价格：商品对该客户的建议售价"), runPrice });
    registry.add({ QStringLiteral("fefo"), QStringLiteral("GOODS WAREHOUSE QUANTITY [--date DATE]"),
        QStringLiteral("按有效期先到先出建议出库批号"), runFefo });
}

} // namespace medistock::cli
