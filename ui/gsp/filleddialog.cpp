#include "ui/gsp/filleddialog.h"

#include "core/interaction.h"
#include "core/lookups.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/gsp/batchpicker.h"
#include "ui/gsp/recordscreen.h"
#include "ui/gsp/texts.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QSqlRecord>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QDoubleSpinBox *figureField(double low, double high, QWidget *parent)
{
    auto *field = new QDoubleSpinBox(parent);
    field->setRange(low, high);
    field->setDecimals(1);
    field->setMinimumWidth(72);
    return field;
}

QComboBox *employeeBox(Workspace &workspace, QWidget *parent)
{
    auto *box = new QComboBox(parent);
    box->addItem(QString(), QString());
    const masterdata::MasterKind *kind = masterdata::findMasterKind(QStringLiteral("employee"));
    readSafely(workspace.session.ui(), [&] {
        for (const QSqlRecord &row :
            masterdata::searchMasterRows(workspace.session.db(), *kind, {}))
            box->addItem(row.value(QStringLiteral("u_name")).toString(),
                row.value(QStringLiteral("u_sn")).toString());
        box->setCurrentIndex(
            std::max(0, box->findData(core::defaultEmployeeCode(workspace.session.db()))));
    });
    return box;
}

// The four groups of counts in the order of their rows on the form.
QList<gsp::InspectionGroup *> groupsOf(gsp::InspectionHeader &h)
{
    return { &h.herbal, &h.biological, &h.maintained, &h.nearExpiry };
}

} // namespace

FilledDialog::FilledDialog(Workspace &workspace, gsp::FilledKind kind, QWidget *parent)
    : QDialog(parent)
    , m_workspace(workspace)
    , m_kind(kind)
    , m_warehouse(makeWarehouseBox(workspace, false, this))
    , m_date(makeDateField(workspace.session.clock().today(), this))
    , m_employee(employeeBox(workspace, this))
    , m_note(new QLineEdit(this))
    , m_picker(new BatchPicker(workspace, kind, this))
{
    setWindowTitle(gsp::titleOf(kind));
    QHBoxLayout *buttons = saveCancelRow(
        this, [this] { save(); }, false);
    auto *f3 = new QShortcut(QKeySequence(Qt::Key_F3), this);
    connect(f3, &QShortcut::activated, this, &FilledDialog::save);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(buildHeader());
    layout->addWidget(
        kind == gsp::FilledKind::Inspection ? buildInspectionFields() : buildTrackingFields());
    layout->addWidget(m_picker, 1);
    layout->addLayout(buttons);

    connect(m_warehouse, &QComboBox::currentIndexChanged, this, [this] {
        gsp::clearPicks(m_workspace.session, m_kind);
        m_picker->refreshPicks();
        proposeForWarehouse();
    });
    proposeForWarehouse();
    resize(1120, 740);
    m_picker->keyField()->setFocus();
}

QWidget *FilledDialog::buildHeader()
{
    auto *box = new QWidget(this);
    auto *row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    const std::pair<const QString &, QWidget *> fields[]
        = { { gsptexts::warehouse, m_warehouse }, { gsptexts::date, m_date },
              { gsptexts::employee, m_employee }, { gsptexts::note, m_note } };
    for (const auto &[label, field] : fields) {
        row->addWidget(new QLabel(label, box));
        row->addWidget(field, field == m_note ? 1 : 0);
    }
    return box;
}

QWidget *FilledDialog::buildInspectionFields()
{
    auto *box = new QGroupBox(this);
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(8, 6, 8, 6);
    const QString *places[] = { &gsptexts::store, &gsptexts::coldCabinet, &gsptexts::coolCabinet };
    for (int i = 0; i < 3; ++i) {
        auto *temperature = figureField(-50, 60, box);
        auto *humidity = figureField(0, 100, box);
        m_climate << temperature << humidity;
        grid->addWidget(new QLabel(*places[i] + gsptexts::temperature, box), i, 0);
        grid->addWidget(temperature, i, 1);
        grid->addWidget(new QLabel(gsptexts::humidity, box), i, 2);
        grid->addWidget(humidity, i, 3);
    }
    grid->setColumnMinimumWidth(4, 24);
    const QString *columns[]
        = { &gsptexts::groupQuantity, &gsptexts::groupQuality, &gsptexts::groupQualified,
              &gsptexts::groupDamaged, &gsptexts::groupExpired, &gsptexts::groupAbnormal };
    for (int c = 0; c < 6; ++c)
        grid->addWidget(new QLabel(*columns[c], box), 0, 6 + c, Qt::AlignCenter);
    const QString *groups[] = { &gsptexts::herbal, &gsptexts::biological, &gsptexts::maintained,
        &gsptexts::nearExpiry };
    for (int g = 0; g < 4; ++g) {
        grid->addWidget(new QLabel(*groups[g], box), g + 1, 5);
        QList<QWidget *> fields;
        for (int c = 0; c < 6; ++c) {
            QWidget *field = c == 1 ? static_cast<QWidget *>(new QLineEdit(box))
                                    : figureField(0, 999999999, box);
            // The near-expiry group keeps no expired count.
            field->setEnabled(!(g == 3 && c == 4));
            fields.append(field);
            grid->addWidget(field, g + 1, 6 + c);
        }
        m_groups.append(fields);
    }
    return box;
}

QWidget *FilledDialog::buildTrackingFields()
{
    auto *box = new QGroupBox(this);
    auto *row = new QHBoxLayout(box);
    m_unit = new QLineEdit(box);
    m_keeper = new QLineEdit(box);
    m_state = new QLineEdit(box);
    m_days = new QSpinBox(box);
    m_days->setRange(0, 36500);
    const std::pair<const QString &, QWidget *> fields[]
        = { { gsptexts::accountingUnit, m_unit }, { gsptexts::keeper, m_keeper },
              { gsptexts::state, m_state }, { gsptexts::window, m_days } };
    for (const auto &[label, field] : fields) {
        row->addWidget(new QLabel(label, box));
        row->addWidget(field);
    }
    connect(m_days, &QSpinBox::valueChanged, m_picker, &BatchPicker::setWithinDays);
    return box;
}

void FilledDialog::proposeForWarehouse()
{
    const QString warehouse = m_warehouse->currentData().toString();
    readSafely(m_workspace.session.ui(), [&] {
        if (m_kind == gsp::FilledKind::Inspection) {
            gsp::InspectionHeader h = gsp::proposedInspection(m_workspace.session, warehouse);
            const QList<gsp::InspectionGroup *> groups = groupsOf(h);
            for (int g = 0; g < 4; ++g) {
                const gsp::InspectionGroup &group = *groups[g];
                const double figures[] = { group.quantity, 0, group.qualified, group.damaged,
                    group.expired, group.abnormal };
                for (int c = 0; c < 6; ++c) {
                    if (c == 1)
                        static_cast<QLineEdit *>(m_groups[g][c])->setText(group.quality);
                    else
                        static_cast<QDoubleSpinBox *>(m_groups[g][c])->setValue(figures[c]);
                }
            }
            m_picker->setWarehouse(warehouse);
            return;
        }
        const gsp::TrackingHeader h = gsp::proposedTracking(m_workspace.session, warehouse);
        m_unit->setText(h.accountingUnit);
        m_keeper->setText(h.keeper);
        m_state->setText(h.state);
        m_picker->setWarehouse(warehouse);
        m_days->setValue(h.toDays);
        m_picker->setWithinDays(h.toDays);
    });
}

gsp::InspectionHeader FilledDialog::inspectionHeader() const
{
    gsp::InspectionHeader h;
    h.date = m_date->date().toString(QStringLiteral("yyyy-MM-dd"));
    h.warehouse = m_warehouse->currentData().toString();
    h.employee = m_employee->currentData().toString();
    h.note = m_note->text();
    double *climate[] = { &h.storeTemperature, &h.storeHumidity, &h.coldTemperature,
        &h.coldHumidity, &h.coolTemperature, &h.coolHumidity };
    for (int i = 0; i < 6; ++i)
        *climate[i] = m_climate[i]->value();
    const QList<gsp::InspectionGroup *> groups = groupsOf(h);
    for (int g = 0; g < 4; ++g) {
        gsp::InspectionGroup &group = *groups[g];
        const auto figure
            = [&](int c) { return static_cast<QDoubleSpinBox *>(m_groups[g][c])->value(); };
        group.quantity = figure(0);
        group.quality = static_cast<QLineEdit *>(m_groups[g][1])->text();
        group.qualified = figure(2);
        group.damaged = figure(3);
        group.expired = figure(4);
        group.abnormal = figure(5);
    }
    return h;
}

gsp::TrackingHeader FilledDialog::trackingHeader() const
{
    gsp::TrackingHeader h;
    h.date = m_date->date().toString(QStringLiteral("yyyy-MM-dd"));
    h.warehouse = m_warehouse->currentData().toString();
    h.employee = m_employee->currentData().toString();
    h.note = m_note->text();
    h.accountingUnit = m_unit->text();
    h.keeper = m_keeper->text();
    h.state = m_state->text();
    h.toDays = m_days->value();
    return h;
}

void FilledDialog::save()
{
    const Result<QString> saved = m_kind == gsp::FilledKind::Inspection
        ? gsp::saveInspection(m_workspace.session, inspectionHeader())
        : gsp::saveTracking(m_workspace.session, trackingHeader());
    if (!saved)
        return;
    m_saved = saved.value();
    accept();
}

void FilledDialog::reject()
{
    gsp::clearPicks(m_workspace.session, m_kind);
    QDialog::reject();
}

} // namespace medistock::ui
