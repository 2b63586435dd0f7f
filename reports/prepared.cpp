#include "reports/prepared.h"

namespace medistock::reports {

QStringList PreparedPage::textsOf(const QString &source) const
{
    QStringList found;
    for (const PreparedItem &item : items)
        if (item.source == source && !item.text.isEmpty())
            found.append(item.text);
    return found;
}

QStringList PreparedPage::texts() const
{
    QStringList found;
    for (const PreparedItem &item : items)
        if (!item.text.isEmpty())
            found.append(item.text);
    return found;
}

const PreparedItem *PreparedPage::first(const QString &source) const
{
    for (const PreparedItem &item : items)
        if (item.source == source)
            return &item;
    return nullptr;
}

QString PreparedReport::allText() const
{
    QStringList lines;
    for (const PreparedPage &page : pages)
        lines += page.texts();
    return lines.join(QLatin1Char('\n'));
}

} // namespace medistock::reports
