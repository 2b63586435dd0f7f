#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::gsp {

// "员工花名册": the staff register with the qualifications the GSP rules ask for (jxc_yghmc).
// Every employee belongs to a department (jxc_dept) and a branch (jxc_fd), the first of each
// when none is given: the register lists only employees whose department and branch exist.
struct Employee
{
    QString code; // u_sn; empty for a new employee, who gets the next code from "100001"
    QString name; // u_name, unique in the register
    QString mnemonic; // u_jm; from the name when empty
    QString sex; // u_sex: "男", "女" or empty
    QString duty; // u_duty "职务"
    QString post; // u_gw "岗位"
    QString title; // u_jszc "技术职称"
    QString qualification; // u_zyzg "职业资格"
    QString qualifiedBy; // u_pddw "职业资格评定单位"
    bool pharmacist = false; // u_isys "执业药师"
    bool left = false; // u_islz "是否离职"
    QString born; // u_csrq "出生日期", "yyyy-MM-dd" or empty
    QString nation; // u_mz "民族"
    QString origin; // u_jg "籍贯"
    QString education; // u_xl "学历"
    QString major; // u_zy "所学专业"
    QString graduated; // u_bysj "毕业时间"
    QString joined; // u_gsny "进本公司时间"
    QString fileNumber; // u_dabh "人事档案编号"
    QString department; // de_sn
    QString branch; // fd_sn
};

struct StaffRow
{
    Employee employee;
    QString departmentName; // de_name
    QString branchName; // fd_name
};

// The register: code, name, mnemonic, duty or origin containing the key (empty: everyone), of
// one sex when `sex` is given, by code.
Result<QList<StaffRow>> staffRegister(
    const shell::Session &session, const QString &key, const QString &sex = {});
// One employee; an empty code when there is none.
Employee employeeOf(const shell::Session &session, const QString &code);

// The departments (jxc_dept) and branches (jxc_fd) an employee may belong to, by code.
struct Place
{
    QString code;
    QString name;
};
QList<Place> departments(const shell::Session &session);
QList<Place> branches(const shell::Session &session);

// Adds or changes an employee ("员工花名册", right 8) in one transaction; returns the code.
Result<QString> saveEmployee(const shell::Session &session, const Employee &employee);
// Deletes an employee after the question; one who is on a training plan or record stays (he can
// be marked as having left instead).
Outcome deleteEmployee(const shell::Session &session, const QString &code);

// Copies an employee to the salesmen (jxc_user) after the question, with the next salesman code,
// commission 0 and purchase, sales and stock work allowed. Refused, with nothing written, when a
// salesman of that name exists. Returns the salesman's code.
Result<QString> copyToSalesmen(const shell::Session &session, const QString &code);

} // namespace medistock::gsp
