#include "ui/common/gridlayouts.h"

#include <QDir>
#include <QHeaderView>
#include <QPointer>
#include <QStandardPaths>
#include <QTableView>

namespace medistock::ui {

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
    const QByteArray saved = m_settings.value(key).toByteArray();
    if (!saved.isEmpty())
        header->restoreState(saved);

    QPointer<QHeaderView> watched(header);
    auto save = [this, watched, key] {
        if (watched)
            m_settings.setValue(key, watched->saveState());
    };
    QObject::connect(header, &QHeaderView::sectionResized, header, save);
    QObject::connect(header, &QHeaderView::sectionMoved, header, save);
}

} // namespace medistock::ui
