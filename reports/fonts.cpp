#include "reports/fonts.h"

#include <QFontDatabase>
#include <QHash>
#include <QMutex>

namespace medistock::reports {

namespace {

const QString serif = QStringLiteral("Noto Serif CJK SC");
const QString sans = QStringLiteral("Noto Sans CJK SC");
const QString mono = QStringLiteral("Noto Sans Mono CJK SC");

QString mapped(const QString &name)
{
    static const QHash<QString, QString> table {
        { QStringLiteral("宋体"), serif },
        { QStringLiteral("新宋体"), serif },
        { QStringLiteral("simsun"), serif },
        { QStringLiteral("nsimsun"), serif },
        { QStringLiteral("仿宋"), serif },
        { QStringLiteral("仿宋_gb2312"), serif },
        { QStringLiteral("fangsong"), serif },
        { QStringLiteral("楷体"), serif },
        { QStringLiteral("楷体_gb2312"), serif },
        { QStringLiteral("kaiti"), serif },
        { QStringLiteral("华文宋体"), serif },
        { QStringLiteral("stsong"), serif },
        { QStringLiteral("times new roman"), serif },
        { QStringLiteral("黑体"), sans },
        { QStringLiteral("simhei"), sans },
        { QStringLiteral("微软雅黑"), sans },
        { QStringLiteral("microsoft yahei"), sans },
        { QStringLiteral("幼圆"), sans },
        { QStringLiteral("arial"), sans },
        { QStringLiteral("tahoma"), sans },
        { QStringLiteral("verdana"), sans },
        { QStringLiteral("ms sans serif"), sans },
        { QStringLiteral("courier new"), mono },
        { QStringLiteral("courier"), mono },
    };
    return table.value(name.trimmed().toLower());
}

} // namespace

QString printFamily(const QString &templateName)
{
    static QMutex mutex;
    static QHash<QString, QString> resolved;
    const QMutexLocker lock(&mutex);
    const auto known = resolved.constFind(templateName);
    if (known != resolved.constEnd())
        return *known;
    QString family = mapped(templateName);
    if (family.isEmpty()) {
        const bool chinese = QFontDatabase::families().contains(templateName)
            && QFontDatabase::writingSystems(templateName)
                   .contains(QFontDatabase::SimplifiedChinese);
        family = chinese ? templateName : sans;
    }
    resolved.insert(templateName, family);
    return family;
}

QFont printFont(const QString &templateName, int pixelSize, bool bold, bool italic, bool underline,
    bool strikeOut)
{
    QFont font(printFamily(templateName));
    font.setPixelSize(std::max(pixelSize, 1));
    font.setBold(bold);
    font.setItalic(italic);
    font.setUnderline(underline);
    font.setStrikeOut(strikeOut);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
    // Shaped Latin runs of the Chinese faces take figures that have no character of their own,
    // so a PDF would lose the digits of "XS25031410001" to a reader or a search.
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

} // namespace medistock::reports
