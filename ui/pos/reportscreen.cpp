#include "ui/pos/reportscreen.h"

#include "members/levels.h"
#include "shell/session.h"
#include "ui/common/datefield.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/documents/pickers.h"
#include "ui/pos/texts.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QDate>
#include <QLineEdit>
#include <QPushButton>
#include <QValueAxis>

namespace medistock::ui {

namespace {

QueryColumn queryColumn(const pos::ReportColumn &column, const shell::Parameters &params)
{
    using Kind = pos::ReportColumn::Kind;
    if (column.kind == Kind::Text) {
        // Numbers and times in full; names wide enough for a drug's name.
        const QString &f = column.field;
        const int width = f == QLatin1String("gl_djh")                             ? 130
            : f.endsWith(QLatin1String("rq")) || f.endsWith(QLatin1String("time")) ? 150
            : f.contains(QLatin1String("name")) && f.startsWith(QLatin1Char('g'))  ? 170
                                                                                   : 0;
        return { column.caption, QueryColumn::Kind::Text, 0, false, width, column.field };
    }
    int places = 0;
    switch (column.kind) {
    case Kind::Amount:
        places = params.amountDecimals();
        break;
    case Kind::Quantity:
        places = params.quantityDecimals();
        break;
    case Kind::Price:
        places = params.priceDecimals();
        break;
    case Kind::Rate:
        places = 2;
        break;
    default:
        places = 0;
    }
    return { column.caption, QueryColumn::Kind::Number, places, column.summed, 0, column.field };
}

QComboBox *choiceBox(const QStringList &choices, QWidget *parent)
{
    auto *box = new QComboBox(parent);
    box->addItems(choices);
    return box;
}

} // namespace

PosReportScreen::PosReportScreen(Workspace &workspace, PosReportKind kind, QWidget *parent)
    : QueryScreen(workspace, kind.title, parent)
    , m_kind(std::move(kind))
    , m_from(new DateField(this))
    , m_to(new DateField(this))
{
    const QDate today = workspace.session.clock().today();
    m_from->setText(QDate(today.year(), today.month(), 1).toString(Qt::ISODate));
    m_to->setText(today.toString(Qt::ISODate));
    addFilter(QStringLiteral("从"), m_from);
    addFilter(QStringLiteral("到"), m_to);
    if (m_kind.warehouse) {
        m_warehouse = new QComboBox(this);
        fillMasterBox(m_warehouse, workspace.session, "warehouse", true);
        addFilter(QStringLiteral("仓库"), m_warehouse);
    }
    if (!m_kind.views.isEmpty()) {
        m_view = choiceBox(m_kind.views, this);
        addFilter(QStringLiteral("统计方式"), m_view);
        connect(m_view, &QComboBox::currentIndexChanged, this, &QueryScreen::run);
    }
    if (!m_kind.orders.isEmpty()) {
        m_order = choiceBox(m_kind.orders, this);
        addFilter(QStringLiteral("排序"), m_order);
        connect(m_order, &QComboBox::currentIndexChanged, this, &QueryScreen::run);
    }
    if (m_kind.levels) {
        m_level = new QComboBox(this);
        m_level->addItem(QStringLiteral("所有级别"), QString());
        readSafely(workspace.session.ui(), [&] {
            for (const members::Level &level : members::listLevels(workspace.session.db()))
                m_level->addItem(level.name, level.code);
        });
        addFilter(QStringLiteral("会员级别"), m_level);
    }
    if (!m_kind.chartValue.isEmpty()) {
        m_chart = new QChartView(this);
        m_chart->setRenderHint(QPainter::Antialiasing);
        m_chart->setMinimumHeight(220);
        setDetail(m_chart);
    }
    if (m_kind.printKeys.isEmpty()) {
        auto *print = new QPushButton(texts::printButton(), this);
        print->setEnabled(false);
        print->setToolTip(postexts::noTemplate.arg(m_kind.title));
        addButton(print);
    }
    if (!m_kind.textLabel.isEmpty()) {
        m_text = new QLineEdit(this);
        m_text->setClearButtonEnabled(true);
        addFilter(m_kind.textLabel, m_text);
    }
    run();
}

void PosReportScreen::fetch()
{
    PosReportInputs inputs { { m_from->text(), m_to->text() },
        m_warehouse ? m_warehouse->currentData().toString() : QString(),
        m_text ? m_text->text().trimmed() : QString(),
        m_level ? m_level->currentData().toString() : QString(),
        m_view ? m_view->currentIndex() : 0, m_order ? m_order->currentIndex() : 0 };
    shell::Session &session = m_workspace.session;
    const Result<pos::ReportTable> table = m_kind.run(session, inputs);
    if (!table)
        return;
    // The columns change with the view (goods, class, cashier; the statistics or its lines).
    const QString layout = m_kind.layoutKey + QLatin1Char('/') + QString::number(inputs.view);
    if (layout != m_shownLayout) {
        QList<QueryColumn> columns;
        for (const pos::ReportColumn &column : table->columns)
            columns.append(queryColumn(column, session.params()));
        setColumns(columns, layout);
        m_shownLayout = layout;
    }
    setRows(table->rows);
    if (!m_kind.printKeys.isEmpty())
        setPrintKey(m_kind.printKeys.value(inputs.view, m_kind.printKeys.first()));
    if (m_chart)
        drawChart(table.value());
}

// The first twelve rows as bars, in the table's order.
void PosReportScreen::drawChart(const pos::ReportTable &table)
{
    int label = -1;
    int value = -1;
    for (int c = 0; c < table.columns.size(); ++c) {
        const QString &field = table.columns[c].field;
        if (label < 0 && m_kind.chartLabels.contains(field))
            label = c;
        if (field == m_kind.chartValue)
            value = c;
    }
    auto *chart = new QChart;
    chart->legend()->hide();
    if (label >= 0 && value >= 0) {
        auto *bars = new QBarSet(table.columns[value].caption);
        QStringList names;
        for (const QVariantList &row : table.rows.mid(0, 12)) {
            names.append(row[label].toString());
            *bars << row[value].toDouble();
        }
        auto *series = new QBarSeries;
        series->append(bars);
        chart->addSeries(series);
        auto *axisX = new QBarCategoryAxis;
        axisX->append(names);
        chart->addAxis(axisX, Qt::AlignBottom);
        series->attachAxis(axisX);
        auto *axisY = new QValueAxis;
        axisY->setLabelFormat(QStringLiteral("%.0f"));
        chart->addAxis(axisY, Qt::AlignLeft);
        series->attachAxis(axisY);
        chart->setTitle(table.columns[value].caption);
    }
    QChart *old = m_chart->chart();
    m_chart->setChart(chart);
    delete old;
}

} // namespace medistock::ui
