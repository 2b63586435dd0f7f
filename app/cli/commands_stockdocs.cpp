// Commands of the stock documents: transfer "DB", stock-taking "PD", loss "BS" and overflow "BY"
// for save FILE, check, uncheck, delete and show through the document registry by prefix, and
// the count sheet a stock-taking starts from, and the opening stock.
#include "app/cli/entryjson.h"
#include "app/cli/registry.h"

#include "shell/session.h"
#include "stock/documents/entry.h"
#include "stock/documents/kinds.h"
#include "stock/documents/lossoverflow.h"
#include "stock/documents/openingstock.h"
#include "stock/documents/stocktaking.h"
#include "stock/documents/transfer.h"
#include "stock/texts.h"

#include <QFile>
#include <QJsonDocument>

namespace medistock::cli {

namespace {

using Save = Result<QString> (*)(const shell::Session &, const documents::DocumentDraft &);
using Operation = Outcome (*)(shell::Session &, const QString &);

QString num(double value)
{
    return QString::number(value, 'g', 15);
}

std::function<int(Context &, const QString &, Args &)> numberCommand(
    Operation operation, const QString &done)
{
    return [operation, done](Context &context, const QString &number, Args &args) {
        requireNoMore(context, args);
        require(operation(context.session(), number));
        context.out() << done << number << Qt::endl;
        return int(ExitDone);
    };
}

DocumentKind documentKind(
    const documents::DocumentKind &entry, Save save, Operation check, Operation uncheck)
{
    return { QString::fromLatin1(entry.prefix), QString::fromUtf8(entry.title),
        [&entry, save](Context &c, const QJsonObject &o) {
            const documents::DocumentDraft draft = draftFromJson(c, entry, o);
            c.out() << valueOf(save(c.session(), draft)) << Qt::endl;
            return int(ExitDone);
        },
        numberCommand(check, QStringLiteral("已审核：")),
        numberCommand(uncheck, QStringLiteral("已取消审核：")),
        [&entry](Context &c, const QString &number, Args &a) {
            requireNoMore(c, a);
            require(documents::deleteDocument(c.session(), entry, number));
            c.out() << QStringLiteral("已删除：") << number << Qt::endl;
            return int(ExitDone);
        },
        [&entry](Context &c, const QString &number, Args &a) {
            return showDocumentJson(c, entry, number, a);
        } };
}

int runCountSheet(Context &context, Args &args)
{
    const QString warehouse = takePositional(context, args, 1, 1).first();
    shell::Session &session = context.session();
    if (!session.db().exists(
            QStringLiteral("select id from jxc_ckxx where ck_sn=? limit 1"), { warehouse })) {
        context.interaction().inform(stock::unknownWarehouseText(warehouse));
        return ExitRefused;
    }
    const QStringList captions { QStringLiteral("商品编号"), QStringLiteral("商品名称"),
        QStringLiteral("单位"), QStringLiteral("产品批号"), QStringLiteral("有效期至"),
        QStringLiteral("生产日期"), QStringLiteral("库存数"), QStringLiteral("核算单价") };
    context.out() << captions.join(QLatin1Char('\t')) << Qt::endl;
    for (const stock::BatchLine &line : stock::countSheet(session, warehouse))
        context.out() << QStringList { line.goods, line.goodsName, line.unit, line.batch,
            line.expiry, line.produced, num(line.quantity), num(line.price) }
                             .join(QLatin1Char('\t'))
                      << Qt::endl;
    return ExitDone;
}

// One opening line from a JSON object of the file: g_sn, ck_sn, dw_name (empty: the base unit),
// sl (quantity), dj (cost per unit), t_ph, t_scrq, t_yxq, bz.
stock::OpeningLine openingLine(Context &context, const QJsonObject &o)
{
    requireKnownFields(context, o,
        { QStringLiteral("g_sn"), QStringLiteral("ck_sn"), QStringLiteral("dw_name"),
            QStringLiteral("sl"), QStringLiteral("dj"), QStringLiteral("t_ph"),
            QStringLiteral("t_scrq"), QStringLiteral("t_yxq"), QStringLiteral("bz") });
    const auto text = [&](const char *field) { return jsonText(o, QString::fromLatin1(field)); };
    stock::OpeningLine line;
    line.warehouse = text("ck_sn");
    line.line.goods = text("g_sn");
    line.line.unit = text("dw_name");
    line.line.quantity = text("sl");
    line.line.price = text("dj");
    line.line.batch = text("t_ph");
    line.line.produced = text("t_scrq");
    line.line.expiry = text("t_yxq");
    line.line.remark = text("bz");
    return line;
}

// The file holds one JSON object per line; blank lines are skipped.
QList<stock::OpeningLine> openingLines(Context &context, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        throw Stop { context.usageError(QStringLiteral("无法读取文件：") + path) };
    QList<stock::OpeningLine> lines;
    int number = 0;
    while (!file.atEnd()) {
        const QByteArray text = file.readLine().trimmed();
        ++number;
        if (text.isEmpty())
            continue;
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(text, &error);
        if (error.error != QJsonParseError::NoError || !document.isObject())
            throw Stop { context.usageError(
                QStringLiteral("第%1行不是 JSON 对象：%2").arg(number).arg(path)) };
        lines.append(openingLine(context, document.object()));
    }
    return lines;
}

int runOpeningStock(Context &context, Args &args)
{
    const std::optional<QString> date = args.option(QStringLiteral("--date"));
    const QString path = takePositional(context, args, 1, 1).first();
    stock::OpeningDraft draft;
    draft.date = date ? parseDate(context, *date).toString(QStringLiteral("yyyy-MM-dd"))
                      : context.session().today();
    draft.lines = openingLines(context, path);
    context.out() << valueOf(stock::postOpeningStock(context.session(), draft)) << Qt::endl;
    return ExitDone;
}

int runOpeningList(Context &context, Args &args)
{
    requireNoMore(context, args);
    context.out() << QStringList { QStringLiteral("单据号"), QStringLiteral("日期"),
        QStringLiteral("仓库编号"), QStringLiteral("仓库"), QStringLiteral("品种数"),
        QStringLiteral("数量"), QStringLiteral("金额"), QStringLiteral("操作员") }
                         .join(QLatin1Char('\t'))
                  << Qt::endl;
    for (const stock::OpeningEntry &entry : stock::openingEntries(context.session()))
        context.out() << QStringList { entry.number, entry.date, entry.warehouse,
            entry.warehouseName, QString::number(entry.rows), num(entry.quantity),
            num(entry.amount), entry.operatorName }
                             .join(QLatin1Char('\t'))
                      << Qt::endl;
    return ExitDone;
}

int runOpeningRemove(Context &context, Args &args)
{
    const QString number = takePositional(context, args, 1, 1).first();
    require(stock::removeOpeningStock(context.session(), number));
    context.out() << QStringLiteral("已删除：") << number << Qt::endl;
    return ExitDone;
}

} // namespace

void addStockDocumentCommands(Registry &registry)
{
    DocumentKinds &kinds = registry.documents();
    kinds.add(documentKind(
        stock::transferEntry(), stock::saveTransfer, stock::checkTransfer, stock::uncheckTransfer));
    kinds.add(documentKind(stock::stockTakingEntry(), stock::saveStockTaking,
        stock::checkStockTaking, stock::uncheckStockTaking));
    kinds.add(
        documentKind(stock::lossEntry(), stock::saveLoss, stock::checkLoss, stock::uncheckLoss));
    kinds.add(documentKind(
        stock::overflowEntry(), stock::saveOverflow, stock::checkOverflow, stock::uncheckOverflow));
    registry.add({ QStringLiteral("count-sheet"), QStringLiteral("WAREHOUSE"),
        QStringLiteral("盘点表：仓库各批次的帐面库存和核算单价（新盘点单由此开始）"),
        runCountSheet });
    registry.add({ QStringLiteral("opening-stock"), QStringLiteral("FILE [--date DATE]"),
        QStringLiteral("商品期初建账：文件每行一个 JSON 对象（g_sn ck_sn dw_name sl dj t_ph t_scrq "
                       "t_yxq bz），输出单据号"),
        runOpeningStock });
    registry.add({ QStringLiteral("opening-stock-list"), QString(),
        QStringLiteral("列出期初建账单据（每个仓库一行）"), runOpeningList });
    registry.add({ QStringLiteral("opening-stock-remove"), QStringLiteral("NUMBER"),
        QStringLiteral("删除一张期初建账单据，冲回其库存"), runOpeningRemove });
}

} // namespace medistock::cli
