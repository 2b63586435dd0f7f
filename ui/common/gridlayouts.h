#pragma once

#include <QSettings>
#include <QString>

class QTableView;

namespace medistock::ui {

// Column widths and order of the grids, kept per screen and per operator in one settings file,
// so that each operator finds a grid as he left it.
class GridLayouts
{
public:
    explicit GridLayouts(const QString &filePath);

    // The per-user file the desktop program keeps its layouts in.
    static QString defaultFilePath();

    // Applies the layout saved for (screen, operator) to the grid's header, if any, and saves
    // the header again whenever a column is resized or moved. Call once the grid has columns.
    void remember(QTableView *grid, const QString &screen, const QString &operatorCode);

private:
    QSettings m_settings;
};

} // namespace medistock::ui
