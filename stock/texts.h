#pragma once

#include <QString>
#include <QStringList>

namespace medistock::stock {

// Every text the stock engine shows or logs, worded as the system words it.

// The batch check's message for a document kind ("CJ", "CT", "XS", "XT", "DB", "JH"): the
// opening text, the short goods code and the closing text that fits the negative-stock setting.
QString batchShortageText(const QString &kind, const QString &goods, bool negativeAllowed);

// The sale limit message around "<goods name> 每次最多销售数量为<limit>".
QString saleLimitText(const QString &goodsName, double limit);

// The log line of a posted purchase receipt.
QString receiptPostedLogText(const QString &number, int rowCount);

// The guard of the receipt posting: a receipt is posted once.
QString receiptAlreadyPostedText(const QString &number);

// A rerun asked for a ledger row that does not exist.
QString noLedgerRowText(qint64 id);

// A goods code that is not in jxc_goods.
QString unknownGoodsText(const QString &goods);

// A warehouse code that is not in jxc_ckxx.
QString unknownWarehouseText(const QString &warehouse);

// A document kind the batch check does not know.
QString unknownCheckKindText(const QString &kind);

// What a ledger row is, by its kind gl_flag and the sign of its quantity: "采购入库单",
// "库存调拨入库" ... The kind itself for one without a name.
QString ledgerKindText(const QString &kind, double quantity);

// The kinds a ledger may be narrowed to, in the order a list offers them, and the name of each
// kind as a whole ("库存调拨单" for both sides of a transfer).
QStringList ledgerKinds();

// The average changed by hand: the typed field, the question and the log line.
QString averageField(); // "成本均价"
QString changeAverageQuestion(const QString &goodsName, double from, double to);
QString averageChangedLog(const QString &goods, const QString &goodsName, double from, double to);
QString ledgerKindName(const QString &kind);

} // namespace medistock::stock
