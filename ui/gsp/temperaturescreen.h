#pragma once

#include "gsp/temperature.h"
#include "ui/gsp/recordscreen.h"

#include <QDialog>

class QChart;
class QChartView;
class QTimeEdit;

namespace medistock::ui {

// "仓库温湿度管理": the log of the chosen dates and warehouse, entries added (F2) and deleted,
// and beside it the temperature and humidity of one warehouse over time with the bounds of its
// storage class drawn as dashed lines.
class TemperatureScreen : public RecordScreen
{
    Q_OBJECT
public:
    explicit TemperatureScreen(Workspace &workspace, QWidget *parent = nullptr);

    QChart *chart() const;
    QComboBox *chartWarehouseBox() const { return m_chartWarehouse; }
    QComboBox *storageClassBox() const { return m_class; }

public slots:
    void addEntry();
    void deleteEntry();
    void drawChart();

private:
    QWidget *buildChartPanel();

    QList<gsp::TemperatureRow> m_rows;
    QComboBox *m_chartWarehouse = nullptr;
    QComboBox *m_class = nullptr;
    QChartView *m_view = nullptr;
};

// Enters one reading: warehouse, date and time (now), temperature and humidity, and when the
// reading was out of bounds the measures taken and what was read after them.
class TemperatureDialog : public QDialog
{
    Q_OBJECT
public:
    TemperatureDialog(Workspace &workspace, QWidget *parent = nullptr);

    QComboBox *warehouseBox() const { return m_warehouse; }
    QLineEdit *field(const QString &name) const;
    QTimeEdit *timeField() const { return m_time; }

public slots:
    void save();

private:
    Workspace &m_workspace;
    QComboBox *m_warehouse;
    QDateEdit *m_date;
    QTimeEdit *m_time;
};

} // namespace medistock::ui
