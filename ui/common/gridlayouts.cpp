#include "ui/common/gridlayouts.h"

#include <QDir>
#include <QHeaderView>
#include <QPointer>
#include <QStandardPaths>
#include <QTableView>

namespace medistock::ui {

namespace {

const char *keyProperty = "medistockLayoutKey";
const char *watchedProperty = "medistockLayoutWatched";

} // namespace

GridLayouts::GridLayouts(const QString &filePath)
    : m_settings(filePath, QSettings::IniFormat)
{ }

QString GridLayouts::defaultFilePath()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
        .filePath(QStringLiteral("layout.ini"));
}

void GridLayouts::remember(QTableView *grid, const QString &screen, const QString &operatorCode)
{
    QHeaderView *header = grid->horizontalHeader();
    // Keys are ASCII-safe: screen names are Chinese and may contain slashes.
    const QString key = QStringLiteral("%1/%2/header")
                            .arg(QString::fromLatin1(screen.toUtf8().toHex()), operatorCode);
    // A grid that changes its columns (a query shown by warehouse or by batch) is remembered
    // again under another key; the header is saved under the key it was last given.
    header->setProperty(keyProperty, key);
    const QByteArray saved = m_settings.value(key).toByteArray();
    if (!saved.isEmpty())
        header->restoreState(saved);
    if (header->property(watchedProperty).toBool())
        return;
    header->setProperty(watchedProperty, true);
    QPointer<QHeaderView> watched(header);
    auto save = [this, watched] {
        if (watched)
            m_settings.setValue(watched->property(keyProperty).toString(), watched->saveState());
    };
    QObject::connect(header, &QHeaderView::sectionResized, header, save);
    QObject::connect(header, &QHeaderView::sectionMoved, header, save);
}

} // namespace medistock::ui
