#include "ui/statistics/charts.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QHorizontalBarSeries>
#include <QLineSeries>
#include <QPieSeries>
#include <QPieSlice>
#include <QValueAxis>

#include <algorithm>

namespace medistock::ui::stats {

namespace {

// A fresh chart for the view; the view owns it and drops the one before.
QChart *freshChart(QChartView *view, const QString &title)
{
    auto *chart = new QChart;
    chart->setTitle(title);
    chart->setAnimationOptions(QChart::NoAnimation);
    chart->legend()->setAlignment(Qt::AlignBottom);
    chart->setMargins(QMargins(4, 4, 4, 4));
    QChart *old = view->chart();
    view->setChart(chart);
    delete old;
    return chart;
}

QValueAxis *valueAxis(double low, double high)
{
    auto *axis = new QValueAxis;
    axis->setRange(std::min(0.0, low), high > 0 ? high * 1.1 : 1);
    axis->applyNiceNumbers();
    axis->setLabelFormat(QStringLiteral("%.0f"));
    return axis;
}

// The category axis on `side`, the value axis across it from low to high, and every series of
// the chart on both.
void setAxes(
    QChart *chart, const QStringList &categories, Qt::Alignment side, double low, double high)
{
    auto *names = new QBarCategoryAxis;
    names->append(categories);
    chart->addAxis(names, side);
    QValueAxis *values = valueAxis(low, high);
    chart->addAxis(values, side == Qt::AlignBottom ? Qt::AlignLeft : Qt::AlignBottom);
    for (QAbstractSeries *series : chart->series()) {
        series->attachAxis(names);
        series->attachAxis(values);
    }
}

} // namespace

QChartView *makeChartView(QWidget *parent)
{
    auto *view = new QChartView(new QChart, parent);
    view->setRenderHint(QPainter::Antialiasing);
    view->setMinimumWidth(360);
    return view;
}

void showSalesAndProfit(QChartView *view, const QStringList &periods, const QList<double> &amounts,
    const QList<double> &profits)
{
    QChart *chart = freshChart(view, QStringLiteral("销售额与毛利"));
    auto *sales = new QBarSet(QStringLiteral("销售额"));
    auto *line = new QLineSeries;
    line->setName(QStringLiteral("毛利"));
    double low = 0;
    double high = 0;
    for (qsizetype i = 0; i < periods.size(); ++i) {
        sales->append(amounts.value(i));
        line->append(double(i), profits.value(i));
        low = std::min({ low, amounts.value(i), profits.value(i) });
        high = std::max({ high, amounts.value(i), profits.value(i) });
    }
    auto *bars = new QBarSeries;
    bars->append(sales);
    chart->addSeries(bars);
    chart->addSeries(line);
    setAxes(chart, periods, Qt::AlignBottom, low, high);
}

void showRanking(
    QChartView *view, const QString &measure, const QStringList &names, const QList<double> &values)
{
    QChart *chart = freshChart(view, QStringLiteral("商品销售排行"));
    chart->legend()->setVisible(false);
    auto *set = new QBarSet(measure);
    QStringList labels;
    double low = 0;
    double high = 0;
    // The bars are drawn bottom up: the first of the ranking goes last.
    for (qsizetype i = names.size() - 1; i >= 0; --i) {
        set->append(values.value(i));
        labels.append(names.value(i));
        low = std::min(low, values.value(i));
        high = std::max(high, values.value(i));
    }
    auto *series = new QHorizontalBarSeries;
    series->append(set);
    series->setLabelsVisible(true);
    chart->addSeries(series);
    setAxes(chart, labels, Qt::AlignLeft, low, high);
}

void showShares(
    QChartView *view, const QString &title, const QStringList &names, const QList<double> &values)
{
    QChart *chart = freshChart(view, title);
    auto *pie = new QPieSeries;
    pie->setPieSize(0.75);
    double total = 0;
    for (const double value : values)
        total += std::max(0.0, value);
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (values.value(i) <= 0)
            continue;
        QPieSlice *slice = pie->append(names.value(i), values.value(i));
        // The legend names the parts; the slices carry their shares.
        slice->setLabel(QStringLiteral("%1 %2%")
                            .arg(names.value(i))
                            .arg(total > 0 ? values.value(i) * 100 / total : 0, 0, 'f', 1));
    }
    chart->addSeries(pie);
}

} // namespace medistock::ui::stats
