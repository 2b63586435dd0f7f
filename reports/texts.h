#pragma once

#include <QString>

// The words of printing and of the report templates.
namespace medistock::reports::texts {

QString templateMissing(const QString &path); // "报表文件不存在：" ...
QString templateUnreadable(const QString &path);
QString templateDamaged(qint64 line, const QString &reason);
QString notATemplate();
QString templateNotSaved(const QString &path);
QString expressionError(const QString &expression, int column);
// A fault of one object of a template, named so that its author finds it in the designer.
QString objectFault(const QString &objectName, const QString &fault);

QString styleTitle(); // "选择打印单据样式"
QString stylePrompt(); // "请选择需要的单据样式："
QString styleNotOffered(const QString &style, const QString &key);
QString unknownKey(const QString &key);
QString printAllQuestion(); // "您的操作将打印当前查询中的所有单据，..."
QString noPrinter();

QString loanTitle(); // "借货"
QString loanReturnTitle(); // "还货"
QString lossTitle(); // "商品报损单"
QString overflowTitle(); // "商品报溢单"
QString posSaleTitle(); // "POS销售单"
QString posReturnTitle(); // "POS退货单"

} // namespace medistock::reports::texts
