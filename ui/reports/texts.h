#pragma once

#include <QString>

// The words of the preview, the report-design screen and the designer.
namespace medistock::ui::reporttexts {

// Preview
inline const QString previewTitle = QStringLiteral("打印预览");
inline const QString firstPage = QStringLiteral("首页");
inline const QString previousPage = QStringLiteral("上一页");
inline const QString nextPage = QStringLiteral("下一页");
inline const QString lastPage = QStringLiteral("末页");
inline const QString pageOf = QStringLiteral("共 %1 页");
inline const QString pageWidth = QStringLiteral("页宽");
inline const QString wholePage = QStringLiteral("整页");
inline const QString print = QStringLiteral("打印(&P)");
inline const QString savePdf = QStringLiteral("另存为PDF(&S)");
inline const QString close = QStringLiteral("关闭(&C)");
inline const QString pdfFilter = QStringLiteral("PDF 文件 (*.pdf)");
inline const QString pdfSaved = QStringLiteral("已保存：");

// Report design screen
inline const QString designIntro = QStringLiteral(
    "选择要设计的报表（双击或按回车打开）；修改后的报表保存在数据目录的 report 文件夹，"
    "打印时优先使用。");
inline const QString filter = QStringLiteral("查找：");
inline const QString open = QStringLiteral("打开设计(&O)");
inline const QString restore = QStringLiteral("恢复原始样式(&R)");
inline const QString edited = QStringLiteral("（已修改）");
inline const QString restoreQuestion
    = QStringLiteral("将删除对报表“%1”所做的修改，恢复为系统原始样式，确认吗？");

// Designer
inline const QString designerTitle = QStringLiteral("报表设计 - %1");
inline const QString save = QStringLiteral("保存(&S)");
inline const QString undo = QStringLiteral("撤销(&Z)");
inline const QString redo = QStringLiteral("重做(&Y)");
inline const QString addMemo = QStringLiteral("文本");
inline const QString addLine = QStringLiteral("线条");
inline const QString addPicture = QStringLiteral("图片");
inline const QString addBarcode = QStringLiteral("条码");
inline const QString remove = QStringLiteral("删除");
inline const QString preview = QStringLiteral("预览(&V)");
inline const QString closeDesigner = QStringLiteral("关闭");
inline const QString newMemoText = QStringLiteral("文本");
inline const QString saved = QStringLiteral("报表已保存：");
inline const QString unsavedQuestion = QStringLiteral("报表已修改，是否保存？");
inline const QString pictureFilter = QStringLiteral("图片 (*.png *.jpg *.jpeg *.bmp)");
inline const QString choosePicture = QStringLiteral("选择图片");

// Property panel
inline const QString propertyName = QStringLiteral("名称：");
inline const QString propertyLeft = QStringLiteral("左(毫米)：");
inline const QString propertyTop = QStringLiteral("上(毫米)：");
inline const QString propertyWidth = QStringLiteral("宽(毫米)：");
inline const QString propertyHeight = QStringLiteral("高(毫米)：");
inline const QString propertyText = QStringLiteral("内容：");
inline const QString insertVariable = QStringLiteral("插入变量…");
inline const QString insertField = QStringLiteral("插入字段…");
inline const QString propertyFont = QStringLiteral("字体：");
inline const QString propertySize = QStringLiteral("字号(像素)：");
inline const QString bold = QStringLiteral("粗体");
inline const QString italic = QStringLiteral("斜体");
inline const QString underline = QStringLiteral("下划线");
inline const QString propertyAlign = QStringLiteral("对齐：");
inline const QString alignLeft = QStringLiteral("左");
inline const QString alignCenter = QStringLiteral("中");
inline const QString alignRight = QStringLiteral("右");
inline const QString alignTop = QStringLiteral("上");
inline const QString alignMiddle = QStringLiteral("中");
inline const QString alignBottom = QStringLiteral("下");
inline const QString propertyFrame = QStringLiteral("边框：");
inline const QString frameLeft = QStringLiteral("左");
inline const QString frameRight = QStringLiteral("右");
inline const QString frameTop = QStringLiteral("上");
inline const QString frameBottom = QStringLiteral("下");
inline const QString propertyFrameWidth = QStringLiteral("线宽：");
inline const QString propertyFormat = QStringLiteral("显示格式：");
inline const QString formatNone = QStringLiteral("文本");
inline const QString formatNumber = QStringLiteral("数字");
inline const QString formatDate = QStringLiteral("日期");
inline const QString wordWrap = QStringLiteral("自动换行");
inline const QString propertyBarType = QStringLiteral("条码类型：");
inline const QString propertyFillRows = QStringLiteral("每页行数(补空行)：");
inline const QString nothingSelected = QStringLiteral("选择一个对象或报表区域以修改其属性");

} // namespace medistock::ui::reporttexts
