#pragma once

#include "gsp/displaycheck.h"
#include "gsp/tracking.h"

#include <QDialog>

class QComboBox;
class QDateEdit;
class QDoubleSpinBox;
class QGridLayout;
class QLineEdit;
class QSpinBox;
class QWidget;

namespace medistock::ui {

struct Workspace;
class BatchPicker;

// A new "陈列药品维护检查记录" or "近效期跟踪记录": the header (warehouse, date, inspector, note,
// and the record's own fields: the climate and the four groups of counts, or the tracking window
// and its keepers), the batch picker, and save (F3 or 保存). Choosing another warehouse proposes
// its figures anew and drops the picks, which belong to a warehouse. Cancel drops the picks;
// closing the program keeps them for the next record.
class FilledDialog : public QDialog
{
    Q_OBJECT
public:
    FilledDialog(Workspace &workspace, gsp::FilledKind kind, QWidget *parent = nullptr);

    BatchPicker *picker() const { return m_picker; }
    QComboBox *warehouseBox() const { return m_warehouse; }
    QDoubleSpinBox *climateField(int index) const { return m_climate.value(index); }
    QString savedNumber() const { return m_saved; }

public slots:
    void save();
    void reject() override;

private:
    QWidget *buildHeader();
    QWidget *buildInspectionFields();
    QWidget *buildTrackingFields();
    void proposeForWarehouse();
    gsp::InspectionHeader inspectionHeader() const;
    gsp::TrackingHeader trackingHeader() const;

    Workspace &m_workspace;
    gsp::FilledKind m_kind;
    QComboBox *m_warehouse;
    QDateEdit *m_date;
    QComboBox *m_employee;
    QLineEdit *m_note;
    BatchPicker *m_picker;
    // Inspection: store, cold and cool cabinet temperature and humidity, and per group its
    // quantity, quality and the four counts.
    QList<QDoubleSpinBox *> m_climate;
    QList<QList<QWidget *>> m_groups;
    // Tracking
    QLineEdit *m_unit = nullptr;
    QLineEdit *m_keeper = nullptr;
    QLineEdit *m_state = nullptr;
    QSpinBox *m_days = nullptr;
    QString m_saved;
};

} // namespace medistock::ui
