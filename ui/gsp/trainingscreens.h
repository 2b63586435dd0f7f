#pragma once

#include "gsp/training.h"
#include "ui/gsp/recordscreen.h"

#include <QDialog>
#include <QHash>

class QTableWidget;

namespace medistock::ui {

// "员工培训计划" and "员工培训记录": the plans by planned time or the records by training time,
// each row changed or deleted; a new plan is made for the employees picked, new records for the
// plans picked. Staff who have left are never offered.
class TrainingScreen : public RecordScreen
{
    Q_OBJECT
public:
    enum class Mode { Plans, Records };
    TrainingScreen(Workspace &workspace, Mode mode, QWidget *parent = nullptr);

public slots:
    void addRows();
    void editRow();
    void deleteRow();

private:
    Mode m_mode;
    QList<gsp::PlanRow> m_plans;
    QList<gsp::TrainingRow> m_trainings;
};

// A new plan or new records (with the picker of employees or of their plans), or one row changed
// (its fields only).
class TrainingDialog : public QDialog
{
    Q_OBJECT
public:
    TrainingDialog(
        Workspace &workspace, TrainingScreen::Mode mode, qint64 id = 0, QWidget *parent = nullptr);

    void load(const gsp::Plan &plan);
    void load(const gsp::Training &training);
    QLineEdit *field(const QString &name) const { return m_fields.value(name); }
    QTableWidget *offered() const { return m_offered; }
    QTableWidget *picked() const { return m_picked; }

public slots:
    void pickCurrent();
    void removePick();
    void save();
    void reject() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *buildPicker();
    void fillOffered();
    void refreshPicks();
    gsp::Plan plan() const;
    gsp::Training training() const;

    Workspace &m_workspace;
    TrainingScreen::Mode m_mode;
    qint64 m_id;
    QHash<QString, QLineEdit *> m_fields;
    QTableWidget *m_offered = nullptr;
    QTableWidget *m_picked = nullptr;
    QList<gsp::TrainingPick> m_picks;
};

} // namespace medistock::ui
