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

} // namespace medistock::ui::texts
