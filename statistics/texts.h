#pragma once

#include <QString>

namespace medistock::statistics::texts {

// Every text the statistics show or log.

// A range whose ends are not dates "yyyy-MM-dd", or whose start lies after its end.
QString badDate();
QString rangeReversed();
// A long run the operator cancelled; nothing was changed.
QString cancelled();

// The difference check: "<code> <name>，差额：<difference>" per goods, and the all-clear.
QString differenceLine(const QString &goods, const QString &name, double difference);
QString noDifference();

// The outward cost resynchronisation's question and its log line.
QString costSyncQuestion(const QString &from, const QString &to);
QString costSyncLog(const QString &from, const QString &to, int rowsChanged);

// 单据查询: a number whose two letters name no document kind of this system, and a number not
// found.
QString unknownDocumentKind(const QString &number);
QString documentNotFound(const QString &number);

// 批次查询 needs a batch number.
QString batchRequired();
// 单品分析 needs a goods.
QString goodsRequired();

// The commission methods of an employee (u_tcfs).
QString commissionByAmount();
QString commissionByProfit();

} // namespace medistock::statistics::texts
