#pragma once

#include <QFont>
#include <QString>

namespace medistock::reports {

// The family that prints a template's font name. Templates name the fonts of Chinese Windows
// ("宋体", "黑体", "SimSun", "微软雅黑", "Arial"); on this system those resolve to a Latin face
// whose missing Chinese glyphs come from a Japanese one. Song and Fang Song styles print with
// Noto Serif CJK SC, Courier with Noto Sans Mono CJK SC, other names with Noto Sans CJK SC unless
// the system has that family and it covers Simplified Chinese.
QString printFamily(const QString &templateName);

// A font of the family at a size in pixels of 96 dpi, with hinting off so that a text measures
// the same on the screen, in the preview and in a PDF, and without shaping of Latin runs, so that
// every figure in a PDF reads back as the character it is.
QFont printFont(const QString &templateName, int pixelSize, bool bold = false, bool italic = false,
    bool underline = false, bool strikeOut = false);

} // namespace medistock::reports
