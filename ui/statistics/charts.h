#pragma once

#include <QList>
#include <QString>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QChartView;
QT_END_NAMESPACE
class QWidget;

namespace medistock::ui::stats {

// The pictures beside the grids, redrawn from the rows a report shows.

// An empty chart view of the report's side.
QChartView *makeChartView(QWidget *parent);

// Sales amount as bars and profit as a line, per period.
void showSalesAndProfit(QChartView *view, const QStringList &periods, const QList<double> &amounts,
    const QList<double> &profits);

// The first entries of a ranking as horizontal bars, the highest on top.
void showRanking(QChartView *view, const QString &measure, const QStringList &names,
    const QList<double> &values);

// Each part's share of a whole (stock value by class), as a pie.
void showShares(
    QChartView *view, const QString &title, const QStringList &names, const QList<double> &values);

} // namespace medistock::ui::stats
