#pragma once

#include <QString>

namespace medistock::masterdata {

// What the master-data operations say when they refuse.
namespace texts {

QString nameRequired(const QString &nameLabel); // "商品名称必须填写！"
QString codeTaken(const QString &code); // "编号：100002 已经存在，请重新输入！"
QString nameTaken(
    const QString &nameLabel, const QString &name); // "单位名称：盒 已经存在，请重新输入！"
QString notADate(const QString &field,
    const QString &text); // "开始日期不是正确的日期（yyyy-MM-dd）：2025-02-30"
QString tooLong(const QString &field, int limit); // "商品名称不能超过128个字！"
QString unknownColumn(const QString &column); // "没有这个字段：xyz"
QString notFound(const QString &label, const QString &code); // "没有这个商品：100009"
QString inUse(const QString &label, const QString &name, const QString &what, bool canDisable);
QString codeRequired(); // "编号必须填写！"
QString barcodeTaken(const QString &barcode, const QString &goodsName);
QString unitTaken(const QString &unit); // "单位：箱 已经存在，请重新输入！"
QString classNotEmpty(const QString &name);
QString classCycle();
QString classNotFound();
QString unknownClass(const QString &name);

// The questions and reports around deleting and importing, shared by the screens and commands.
QString deleteQuestion(
    const QString &label, const QString &name); // "确实要删除商品：阿莫西林 吗？"
QString importSummary(int accepted, int rejected); // "可以导入 3 行，有错误 1 行。"
QString importQuestion(int accepted, int rejected);
QString imported(int written); // "已导入 3 行。"

} // namespace texts
} // namespace medistock::masterdata
