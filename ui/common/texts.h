#pragma once

#include <QString>

// Words every screen shares; a module's own texts live in its folder's texts.h.
namespace medistock::ui::texts {

QString promptTitle(); // "系统提示"
QString yes(); // "是(&Y)"
QString no(); // "否(&N)"
QString ok(); // "确定"
QString cancel(); // "取消"
QString notAvailable(); // "此功能尚未提供"
QString checkButton(); // "审核通过(F5)"
QString pleaseWait(); // "请稍候"

// Query screens and grids
QString printButton(); // "打印(F8)"
QString printingNotBuilt(); // the tooltip of a print button while printing is not built
QString queryButton(); // "查询(F5)"
QString query(); // "查询"
QString exportButton(); // "导出(&X)"
QString exportTitle(); // "导出到Excel表格"
QString xlsxFilter(); // "Excel表格 (*.xlsx)"
QString exported(const QString &path); // "已导出到：/home/…/库存.xlsx"
QString rowCount(int rows); // "记录数：12"
QString totalRow(); // "合计"
QString all(); // "全部"
QString allWarehouses(); // "所有仓库"
QString dateFrom(); // "日期从"
QString dateTo(); // "到"
QString calendar(); // the tooltip of a date field's calendar button
QString nothingFound(const QString &text); // "没有找到：amx"
QString choose(); // "选择"
QString choiceTitle(const QString &what); // "选择供货商"

} // namespace medistock::ui::texts
