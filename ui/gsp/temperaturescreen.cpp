#include "ui/gsp/temperaturescreen.h"

#include "core/interaction.h"
#include "gsp/texts.h"
#include "ui/common/keys.h"
#include "ui/common/workspace.h"
#include "ui/gsp/texts.h"

#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QDateEdit>
#include <QDateTimeAxis>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLegend>
#include <QLineEdit>
#include <QLineSeries>
#include <QPen>
#include <QPushButton>
#include <QTimeEdit>
#include <QVBoxLayout>
#include <QValueAxis>

namespace medistock::ui {

namespace {

const QColor temperatureColour(0xd0, 0x4a, 0x2a);
const QColor humidityColour(0x2a, 0x6f, 0xb8);

// A dashed horizontal line across the chart's time range.
QLineSeries *boundLine(const QString &name, double value, const QDateTime &from,
    const QDateTime &to, const QColor &colour)
{
    auto *line = new QLineSeries;
    line->setName(name);
    line->append(double(from.toMSecsSinceEpoch()), value);
    line->append(double(to.toMSecsSinceEpoch()), value);
    QPen pen(colour);
    pen.setStyle(Qt::DashLine);
    pen.setWidthF(1.2);
    line->setPen(pen);
    return line;
}

void attach(QChart *chart, QLineSeries *series, QAbstractAxis *x, QAbstractAxis *y)
{
    chart->addSeries(series);
    series->attachAxis(x);
    series->attachAxis(y);
}

} // namespace

TemperatureScreen::TemperatureScreen(Workspace &workspace, QWidget *parent)
    : RecordScreen(
        workspace, QStringLiteral("温湿度"), { .key = false },
        [this](const RecordScreen &screen) -> Result<gsp::RecordTable> {
            const auto rows = gsp::temperatureLog(m_workspace.session, screen.filter());
            if (!rows)
                return rows.outcome();
            m_rows = rows.value();
            return gsp::temperatureTable(m_rows);
        },
        parent)
{
    setBeside(buildChartPanel());
    addButton(gsptexts::add, QKeySequence(Qt::Key_F2), [this] { addEntry(); });
    addButton(gsptexts::remove, QKeySequence(), [this] { deleteEntry(); });
    reload();
    drawChart();
    connect(warehouseBox(), &QComboBox::currentIndexChanged, this, [this] {
        const int at = m_chartWarehouse->findData(warehouseBox()->currentData());
        if (at >= 0)
            m_chartWarehouse->setCurrentIndex(at);
    });
}

QWidget *TemperatureScreen::buildChartPanel()
{
    auto *panel = new QWidget(this);
    m_chartWarehouse = makeWarehouseBox(m_workspace, false, panel);
    m_class = new QComboBox(panel);
    for (const gsp::StorageClass storage :
        { gsp::StorageClass::Normal, gsp::StorageClass::Cool, gsp::StorageClass::Cold })
        m_class->addItem(gsp::nameOf(storage), int(storage));
    m_view = new QChartView(new QChart, panel);
    m_view->setRenderHint(QPainter::Antialiasing);
    m_view->setMinimumWidth(380);
    auto *bar = new QHBoxLayout;
    bar->addWidget(new QLabel(gsptexts::warehouse, panel));
    bar->addWidget(m_chartWarehouse);
    bar->addWidget(new QLabel(gsptexts::storageClass, panel));
    bar->addWidget(m_class);
    bar->addStretch(1);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(m_view, 1);
    connect(m_chartWarehouse, &QComboBox::currentIndexChanged, this, [this] {
        m_class->setCurrentIndex(int(gsp::storageClassOf(m_chartWarehouse->currentText())));
        drawChart();
    });
    connect(m_class, &QComboBox::currentIndexChanged, this, &TemperatureScreen::drawChart);
    connect(this, &RecordScreen::currentRowChanged, this, &TemperatureScreen::drawChart);
    m_class->setCurrentIndex(int(gsp::storageClassOf(m_chartWarehouse->currentText())));
    return panel;
}

QChart *TemperatureScreen::chart() const
{
    return m_view->chart();
}

void TemperatureScreen::drawChart()
{
    if (!m_view)
        return;
    auto *chart = new QChart;
    chart->setTitle(gsptexts::chartTitle + QStringLiteral(" - ") + m_chartWarehouse->currentText());
    chart->legend()->setAlignment(Qt::AlignBottom);
    const QList<gsp::Reading> readings
        = gsp::readingsOf(m_rows, m_chartWarehouse->currentData().toString());
    if (readings.isEmpty()) {
        chart->setTitle(gsptexts::noReadings);
        m_view->setChart(chart);
        return;
    }
    auto *time = new QDateTimeAxis;
    time->setFormat(QStringLiteral("MM-dd HH:mm"));
    auto *degrees = new QValueAxis;
    degrees->setTitleText(gsptexts::temperature);
    degrees->setRange(-10, 40);
    auto *percent = new QValueAxis;
    percent->setTitleText(gsptexts::humidity);
    percent->setRange(0, 100);
    chart->addAxis(time, Qt::AlignBottom);
    chart->addAxis(degrees, Qt::AlignLeft);
    chart->addAxis(percent, Qt::AlignRight);
    auto *temperature = new QLineSeries;
    temperature->setName(gsptexts::temperature);
    temperature->setPen(QPen(temperatureColour, 2));
    auto *humidity = new QLineSeries;
    humidity->setName(gsptexts::humidity);
    humidity->setPen(QPen(humidityColour, 2));
    for (const gsp::Reading &r : readings) {
        temperature->append(double(r.at.toMSecsSinceEpoch()), r.temperature);
        humidity->append(double(r.at.toMSecsSinceEpoch()), r.humidity);
        degrees->setRange(std::min(degrees->min(), r.temperature - 5),
            std::max(degrees->max(), r.temperature + 5));
    }
    const QDateTime from = readings.first().at;
    const QDateTime to = readings.size() > 1 ? readings.last().at : from.addSecs(3600);
    time->setRange(from, to);
    attach(chart, temperature, time, degrees);
    attach(chart, humidity, time, percent);
    const gsp::StorageLimits limits
        = gsp::limitsOf(gsp::StorageClass(m_class->currentData().toInt()));
    if (limits.lowTemperature)
        attach(chart,
            boundLine(gsptexts::limitLabel(QStringLiteral("温度下限"), *limits.lowTemperature),
                *limits.lowTemperature, from, to, temperatureColour),
            time, degrees);
    attach(chart,
        boundLine(gsptexts::limitLabel(QStringLiteral("温度上限"), limits.highTemperature),
            limits.highTemperature, from, to, temperatureColour),
        time, degrees);
    attach(chart,
        boundLine(gsptexts::limitLabel(QStringLiteral("湿度下限"), limits.lowHumidity),
            limits.lowHumidity, from, to, humidityColour),
        time, percent);
    attach(chart,
        boundLine(gsptexts::limitLabel(QStringLiteral("湿度上限"), limits.highHumidity),
            limits.highHumidity, from, to, humidityColour),
        time, percent);
    m_view->setChart(chart);
}

void TemperatureScreen::addEntry()
{
    TemperatureDialog dialog(m_workspace, this);
    const int at = dialog.warehouseBox()->findData(warehouseBox()->currentData());
    if (at >= 0)
        dialog.warehouseBox()->setCurrentIndex(at);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void TemperatureScreen::deleteEntry()
{
    const QVariant id = currentKey();
    if (!id.isValid()) {
        m_workspace.session.ui().inform(gsptexts::chooseRowFirst);
        return;
    }
    if (gsp::deleteTemperature(m_workspace.session, id.toLongLong()))
        reload();
}

TemperatureDialog::TemperatureDialog(Workspace &workspace, QWidget *parent)
    : QDialog(parent)
    , m_workspace(workspace)
    , m_warehouse(makeWarehouseBox(workspace, false, this))
    , m_date(makeDateField(workspace.session.clock().today(), this))
    , m_time(new QTimeEdit(workspace.session.clock().now().time(), this))
{
    setWindowTitle(gsptexts::entryTitle);
    m_time->setDisplayFormat(QStringLiteral("HH:mm"));
    auto *form = new QFormLayout;
    form->addRow(gsptexts::warehouse, m_warehouse);
    form->addRow(gsptexts::date, m_date);
    form->addRow(gsptexts::time, m_time);
    const std::pair<const char *, const QString &> fields[]
        = { { "temperature", gsptexts::temperature }, { "humidity", gsptexts::humidity },
              { "measures", gsptexts::measures },
              { "temperatureAfter", gsptexts::temperatureAfter },
              { "humidityAfter", gsptexts::humidityAfter }, { "recorder", gsptexts::recorder },
              { "note", gsptexts::note } };
    for (const auto &[name, label] : fields) {
        auto *edit = new QLineEdit(this);
        edit->setObjectName(QString::fromLatin1(name));
        form->addRow(label, edit);
    }
    field(QStringLiteral("recorder"))->setText(workspace.session.user().name);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(saveCancelRow(
        this, [this] { save(); }, true));
    enableEnterNavigation(this);
    field(QStringLiteral("temperature"))->setFocus();
    resize(420, 0);
}

QLineEdit *TemperatureDialog::field(const QString &name) const
{
    return findChild<QLineEdit *>(name);
}

void TemperatureDialog::save()
{
    gsp::TemperatureEntry entry;
    entry.warehouse = m_warehouse->currentData().toString();
    entry.date = m_date->date().toString(QStringLiteral("yyyy-MM-dd"));
    entry.time = m_time->time().toString(QStringLiteral("HH:mm"));
    entry.temperature = field(QStringLiteral("temperature"))->text();
    entry.humidity = field(QStringLiteral("humidity"))->text();
    entry.measures = field(QStringLiteral("measures"))->text();
    entry.temperatureAfter = field(QStringLiteral("temperatureAfter"))->text();
    entry.humidityAfter = field(QStringLiteral("humidityAfter"))->text();
    entry.recorder = field(QStringLiteral("recorder"))->text();
    entry.note = field(QStringLiteral("note"))->text();
    if (gsp::addTemperature(m_workspace.session, entry))
        accept();
}

} // namespace medistock::ui
