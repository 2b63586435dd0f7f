#include "ui/common/application.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QStyleFactory>
#include <QTranslator>

// Resources of a static library are registered by name from the global namespace.
static void registerIconResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace medistock::ui {

namespace {

// The first installed family that has Chinese glyphs; the platform's default otherwise.
QString chineseFamily()
{
    const QStringList families = QFontDatabase::families(QFontDatabase::SimplifiedChinese);
    for (const char *preferred : { "Noto Sans CJK SC", "Source Han Sans SC", "WenQuanYi Zen Hei",
             "Microsoft YaHei", "SimSun" })
        if (families.contains(QString::fromUtf8(preferred)))
            return QString::fromUtf8(preferred);
    return QString();
}

} // namespace

void prepareApplication(QApplication &app)
{
    registerIconResources();
    QApplication::setApplicationName(QStringLiteral("medistock"));
    QApplication::setOrganizationName(QStringLiteral("medistock"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/medistock.svg")));
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    if (QStyle *fusion = QStyleFactory::create(QStringLiteral("Fusion")))
        QApplication::setStyle(fusion);

    const QString family = chineseFamily();
    if (!family.isEmpty()) {
        QFont font(family);
        font.setPointSize(10);
        QApplication::setFont(font);
    }

    auto *translator = new QTranslator(&app);
    if (translator->load(QLocale(QLocale::Chinese, QLocale::China), QStringLiteral("qtbase"),
            QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(translator);
}

} // namespace medistock::ui
