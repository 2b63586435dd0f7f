#include "ui/gsp/trainingscreens.h"

#include "core/interaction.h"
#include "ui/common/grid.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/gsp/texts.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <span>

namespace medistock::ui {

namespace {

using Mode = TrainingScreen::Mode;

struct Field
{
    const char *name;
    const char *caption;
};

const Field planFields[] = { { "topic", "培训主题" }, { "planned", "预定时间" },
    { "purpose", "培训目的" }, { "content", "培训内容" }, { "place", "地点" },
    { "teacher", "讲师" }, { "audience", "培训对象" }, { "assessment", "考核方式" },
    { "method", "培训方式" }, { "note", "备注" } };
const Field trainingFields[] = { { "held", "培训时间" }, { "performance", "培训表现" },
    { "result", "考核结果" }, { "score", "成绩" }, { "assessor", "评定人" }, { "note", "备注" } };

// The plan's fields in the order of planFields.
QList<QString gsp::Plan::*> planMembers()
{
    return { &gsp::Plan::topic, &gsp::Plan::planned, &gsp::Plan::purpose, &gsp::Plan::content,
        &gsp::Plan::place, &gsp::Plan::teacher, &gsp::Plan::audience, &gsp::Plan::assessment,
        &gsp::Plan::method, &gsp::Plan::note };
}

QList<QString gsp::Training::*> trainingMembers()
{
    return { &gsp::Training::held, &gsp::Training::performance, &gsp::Training::result,
        &gsp::Training::score, &gsp::Training::assessor, &gsp::Training::note };
}

std::span<const Field> fieldsOf(Mode mode)
{
    return mode == Mode::Plans ? std::span<const Field>(planFields)
                               : std::span<const Field>(trainingFields);
}

} // namespace

TrainingScreen::TrainingScreen(Workspace &workspace, Mode mode, QWidget *parent)
    : RecordScreen(
        workspace, mode == Mode::Plans ? QStringLiteral("培训计划") : QStringLiteral("培训记录"),
        { .warehouse = false, .keyHint = gsptexts::staffHint },
        [this](const RecordScreen &screen) -> Result<gsp::RecordTable> {
            if (m_mode == Mode::Plans) {
                const auto rows = gsp::trainingPlans(m_workspace.session, screen.filter());
                if (!rows)
                    return rows.outcome();
                m_plans = rows.value();
                return gsp::planTable(m_plans);
            }
            const auto rows = gsp::trainingRecords(m_workspace.session, screen.filter());
            if (!rows)
                return rows.outcome();
            m_trainings = rows.value();
            return gsp::trainingTable(m_trainings);
        },
        parent)
    , m_mode(mode)
{
    addButton(gsptexts::add, QKeySequence(Qt::Key_F2), [this] { addRows(); });
    addButton(gsptexts::edit, QKeySequence(Qt::Key_F3), [this] { editRow(); });
    addButton(gsptexts::remove, QKeySequence(), [this] { deleteRow(); });
    connect(this, &RecordScreen::rowActivated, this, &TrainingScreen::editRow);
    reload();
}

void TrainingScreen::addRows()
{
    TrainingDialog dialog(m_workspace, m_mode, 0, this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void TrainingScreen::editRow()
{
    const int row = currentRow();
    if (row < 0) {
        m_workspace.session.ui().inform(gsptexts::chooseRowFirst);
        return;
    }
    TrainingDialog dialog(m_workspace, m_mode, currentKey().toLongLong(), this);
    if (m_mode == Mode::Plans)
        dialog.load(m_plans.value(row).plan);
    else
        dialog.load(m_trainings.value(row).training);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void TrainingScreen::deleteRow()
{
    const QVariant id = currentKey();
    if (!id.isValid()) {
        m_workspace.session.ui().inform(gsptexts::chooseRowFirst);
        return;
    }
    const Outcome deleted = m_mode == Mode::Plans
        ? gsp::deletePlan(m_workspace.session, id.toLongLong())
        : gsp::deleteTraining(m_workspace.session, id.toLongLong());
    if (deleted)
        reload();
}

TrainingDialog::TrainingDialog(Workspace &workspace, Mode mode, qint64 id, QWidget *parent)
    : QDialog(parent)
    , m_workspace(workspace)
    , m_mode(mode)
    , m_id(id)
{
    setWindowTitle(mode == Mode::Plans ? gsptexts::planTitle : gsptexts::trainingTitle);
    auto *form = new QFormLayout;
    for (const Field &f : fieldsOf(mode)) {
        auto *edit = new QLineEdit(this);
        m_fields.insert(QString::fromLatin1(f.name), edit);
        form->addRow(QString::fromUtf8(f.caption), edit);
    }
    field(mode == Mode::Plans ? QStringLiteral("planned") : QStringLiteral("held"))
        ->setText(workspace.session.today());
    auto *top = new QHBoxLayout;
    top->addLayout(form, 2);
    if (id == 0)
        top->addWidget(buildPicker(), 3);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addLayout(saveCancelRow(
        this, [this] { save(); }, false));
    enableEnterNavigation(this);
    m_fields.value(QString::fromLatin1(fieldsOf(mode).front().name))->setFocus();
    resize(id == 0 ? 1000 : 420, id == 0 ? 560 : 0);
}

QWidget *TrainingDialog::buildPicker()
{
    const bool plans = m_mode == Mode::Plans;
    auto *box = new QGroupBox(plans ? gsptexts::staffToPick : gsptexts::plansToPick, this);
    m_offered = makeGrid(plans
            ? QStringList { QStringLiteral("编号"), QStringLiteral("姓名"), QStringLiteral("性别"),
                QStringLiteral("职务"), QStringLiteral("岗位") }
            : QStringList { QStringLiteral("编号"), QStringLiteral("姓名"),
                QStringLiteral("培训主题"), QStringLiteral("预定时间"), QStringLiteral("岗位") },
        box);
    m_picked = makeGrid(
        { QStringLiteral("编号"), QStringLiteral("姓名"), QStringLiteral("培训主题") }, box);
    m_offered->installEventFilter(this);
    connect(m_offered, &QTableWidget::cellDoubleClicked, this, &TrainingDialog::pickCurrent);
    auto *pick = new QPushButton(gsptexts::pick, box);
    auto *remove = new QPushButton(gsptexts::removeLine, box);
    for (QPushButton *button : { pick, remove })
        button->setAutoDefault(false);
    connect(pick, &QPushButton::clicked, this, &TrainingDialog::pickCurrent);
    connect(remove, &QPushButton::clicked, this, &TrainingDialog::removePick);
    auto *bar = new QHBoxLayout;
    bar->addWidget(pick);
    bar->addStretch(1);
    bar->addWidget(remove);
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(m_offered, 3);
    layout->addLayout(bar);
    layout->addWidget(m_picked, 2);
    fillOffered();
    refreshPicks();
    return box;
}

void TrainingDialog::fillOffered()
{
    QList<QStringList> rows;
    QVariantList keys;
    readSafely(m_workspace.session.ui(), [&] {
        if (m_mode == Mode::Plans) {
            for (const gsp::StaffChoice &s : gsp::employedStaff(m_workspace.session)) {
                rows.append({ s.code, s.name, s.sex, s.duty, s.post });
                keys.append(s.code);
            }
            return;
        }
        for (const gsp::PlanChoice &p : gsp::plansOfEmployedStaff(m_workspace.session)) {
            rows.append({ p.employee, p.employeeName, p.topic, p.planned, p.post });
            keys.append(p.group);
        }
    });
    fillGrid(m_offered, rows);
    for (int row = 0; row < rows.size(); ++row)
        m_offered->item(row, 0)->setData(Qt::UserRole, keys[row]);
    if (!rows.isEmpty())
        m_offered->selectRow(0);
}

void TrainingDialog::refreshPicks()
{
    const auto kind = m_mode == Mode::Plans ? gsp::TrainingPicks::Plan : gsp::TrainingPicks::Record;
    readSafely(
        m_workspace.session.ui(), [&] { m_picks = gsp::trainingPicks(m_workspace.session, kind); });
    QList<QStringList> rows;
    for (const gsp::TrainingPick &p : std::as_const(m_picks))
        rows.append({ p.employee, p.employeeName, p.topic });
    fillGrid(m_picked, rows);
}

void TrainingDialog::pickCurrent()
{
    const int row = m_offered->currentRow();
    if (row < 0)
        return;
    const QVariant key = m_offered->item(row, 0)->data(Qt::UserRole);
    const bool picked = m_mode == Mode::Plans
        ? gsp::pickForPlan(m_workspace.session, key.toString()).ok()
        : gsp::pickForRecord(m_workspace.session, key.toLongLong()).ok();
    if (picked)
        refreshPicks();
}

void TrainingDialog::removePick()
{
    const int row = m_picked->currentRow();
    if (row >= 0 && row < m_picks.size()
        && gsp::removeTrainingPick(m_workspace.session, m_picks[row].id))
        refreshPicks();
}

void TrainingDialog::load(const gsp::Plan &p)
{
    const QList<QString gsp::Plan::*> members = planMembers();
    for (int i = 0; i < members.size(); ++i)
        field(QString::fromLatin1(planFields[i].name))->setText(p.*members[i]);
}

void TrainingDialog::load(const gsp::Training &t)
{
    const QList<QString gsp::Training::*> members = trainingMembers();
    for (int i = 0; i < members.size(); ++i)
        field(QString::fromLatin1(trainingFields[i].name))->setText(t.*members[i]);
}

gsp::Plan TrainingDialog::plan() const
{
    gsp::Plan p;
    const QList<QString gsp::Plan::*> members = planMembers();
    for (int i = 0; i < members.size(); ++i)
        p.*members[i] = field(QString::fromLatin1(planFields[i].name))->text();
    return p;
}

gsp::Training TrainingDialog::training() const
{
    gsp::Training t;
    const QList<QString gsp::Training::*> members = trainingMembers();
    for (int i = 0; i < members.size(); ++i)
        t.*members[i] = field(QString::fromLatin1(trainingFields[i].name))->text();
    return t;
}

bool TrainingDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_offered && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            pickCurrent();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void TrainingDialog::reject()
{
    if (m_id == 0)
        gsp::clearTrainingPicks(m_workspace.session,
            m_mode == Mode::Plans ? gsp::TrainingPicks::Plan : gsp::TrainingPicks::Record);
    QDialog::reject();
}

void TrainingDialog::save()
{
    shell::Session &session = m_workspace.session;
    Outcome outcome = Outcome::done();
    if (m_mode == Mode::Plans)
        outcome = m_id ? gsp::changePlan(session, m_id, plan())
                       : gsp::savePlan(session, plan()).outcome();
    else
        outcome = m_id ? gsp::changeTraining(session, m_id, training())
                       : gsp::saveTrainings(session, training()).outcome();
    if (outcome)
        accept();
}

} // namespace medistock::ui
