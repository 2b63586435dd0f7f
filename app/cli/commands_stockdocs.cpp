// Commands of the stock documents: transfer "DB", stock-taking "PD", loss "BS" and overflow "BY"
// for save FILE, check, uncheck, delete and show through the document registry by prefix, and
// the count sheet a stock-taking starts from.
#include "app/cli/entryjson.h"
#include "app/cli/registry.h"

#include "shell/session.h"
#include "stock/documents/entry.h"
#include "stock/documents/kinds.h"
#include "stock/documents/lossoverflow.h"
#include "stock/documents/stocktaking.h"
#include "stock/documents/transfer.h"
#include "stock/texts.h"

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
}

} // namespace medistock::cli
