#include "ui/common/screenregistry.h"

#include "shell/rights.h"

namespace medistock::ui {

namespace {

QString keyOf(const QString &area, int position)
{
    return area + QLatin1Char('/') + QString::number(position);
}

// The position of an operation in its area, from 1; 0 when the area has no such operation.
int positionOf(const QString &area, const QString &operation)
{
    const shell::RightArea *def = shell::findRightArea(area);
    if (!def)
        return 0;
    for (std::size_t i = 0; i < def->operations.size(); ++i)
        if (operation == QString::fromUtf8(def->operations[i]))
            return int(i) + 1;
    return 0;
}

} // namespace

bool ScreenRegistry::addTab(const QString &area, const QString &operation, TabFactory factory)
{
    return factory && add(area, operation, { std::move(factory), {} });
}

bool ScreenRegistry::addAction(const QString &area, const QString &operation, Action action)
{
    return action && add(area, operation, { {}, std::move(action) });
}

bool ScreenRegistry::add(const QString &area, const QString &operation, Entry entry)
{
    const int position = positionOf(area, operation);
    if (position == 0)
        return false;
    const QString key = keyOf(area, position);
    if (m_entries.contains(key))
        return false;
    m_entries.insert(key, std::move(entry));
    return true;
}

const ScreenRegistry::Entry *ScreenRegistry::find(const QString &area, int position) const
{
    const auto it = m_entries.constFind(keyOf(area, position));
    return it == m_entries.constEnd() ? nullptr : &it.value();
}

} // namespace medistock::ui
