#pragma once

#include "core/outcome.h"
#include "gsp/filters.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::gsp {

// "员工培训计划" (jxc_ygpxjh) and "员工培训记录" (jxc_ygpxjl). A plan is saved once per picked
// employee; each plan row is keyed in id2 by its own id, and the training records of an employee
// name the plan row they follow in their own id2. Employees and plans are picked into the
// operator's rows of the work table jxc_tempspxf (the employee in g_sn, the plan's id2 in ts_sl),
// marked in t_zp as picks for a plan or for records. Staff who have left (u_islz<>0) are never
// offered, picked or saved.

// An employee still employed, as the plan's picker lists him.
struct StaffChoice
{
    QString code;
    QString name;
    QString sex;
    QString duty;
    QString post; // u_gw
};
QList<StaffChoice> employedStaff(const shell::Session &session);

// A plan row of an employed employee, as the record's picker lists it.
struct PlanChoice
{
    qint64 group = 0; // id2
    QString employee;
    QString employeeName;
    QString sex;
    QString duty;
    QString post;
    QString topic; // u_pxzt
    QString planned; // u_ydsj
};
QList<PlanChoice> plansOfEmployedStaff(const shell::Session &session);

enum class TrainingPicks { Plan, Record };
// The operator's picks: employees for a plan, (employee, plan) pairs for records.
struct TrainingPick
{
    qint64 id = 0; // the work row
    QString employee;
    QString employeeName;
    qint64 group = 0; // the plan's id2 (records only)
    QString topic; // the plan's topic (records only)
};
QList<TrainingPick> trainingPicks(const shell::Session &session, TrainingPicks kind);
Outcome clearTrainingPicks(const shell::Session &session, TrainingPicks kind);
// Picks an employee for a plan; false when he is already picked. Someone who left is refused.
Result<bool> pickForPlan(const shell::Session &session, const QString &employee);
// Picks an employee's plan row for records; false when it is already picked.
Result<bool> pickForRecord(const shell::Session &session, qint64 group);
Outcome removeTrainingPick(const shell::Session &session, qint64 id);

// What a plan says; u_ydsj "预定时间" is a date "yyyy-MM-dd", optionally with " hh:mm".
struct Plan
{
    QString topic; // u_pxzt, required
    QString purpose; // u_pxmd
    QString content; // u_pxnr
    QString place; // u_dd
    QString teacher; // u_js
    QString planned; // u_ydsj
    QString audience; // u_pxdx
    QString assessment; // u_khfs "考核方式"
    QString method; // u_pxfs "培训方式"
    QString note; // u_bz
};
// After the question, one plan row per picked employee dated today, each keyed by its own id;
// the picks emptied; in one transaction (right 12). Returns how many rows were written.
Result<int> savePlan(const shell::Session &session, const Plan &plan);

// What a training record says of each picked employee.
struct Training
{
    QString held; // u_pxsj "培训时间", a date as for the plan
    QString performance; // u_pxbx
    QString result; // u_khjg
    QString score; // u_cj
    QString assessor; // u_pdr
    QString note; // u_bz
};
// After the question, one record row per pick with the plan's id2 (right 13). Returns how many.
Result<int> saveTrainings(const shell::Session &session, const Training &training);

struct PlanRow
{
    qint64 id = 0;
    qint64 group = 0; // id2
    QString submitted; // u_rq
    QString employee;
    QString employeeName;
    Plan plan;
    QString operatorName;
};
// The plan rows planned in the range (u_ydsj); keyword on the employee's code, name, mnemonic.
Result<QList<PlanRow>> trainingPlans(const shell::Session &session, const RecordFilter &filter);

struct TrainingRow
{
    qint64 id = 0;
    qint64 group = 0;
    QString employee;
    QString employeeName;
    Training training;
    QString topic; // u_pxzt of the plan
    QString planned; // u_ydsj of the plan
    QString operatorName;
};
// The records held in the range (u_pxsj), each with its plan's topic and planned time.
Result<QList<TrainingRow>> trainingRecords(
    const shell::Session &session, const RecordFilter &filter);

// Changes or deletes one row (the rights of plans and records); a plan row that records follow
// is kept.
Outcome changePlan(const shell::Session &session, qint64 id, const Plan &plan);
Outcome deletePlan(const shell::Session &session, qint64 id);
Outcome changeTraining(const shell::Session &session, qint64 id, const Training &training);
Outcome deleteTraining(const shell::Session &session, qint64 id);

} // namespace medistock::gsp
