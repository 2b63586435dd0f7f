#include "ui/gsp/staffscreen.h"

#include "core/interaction.h"
#include "gsp/texts.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/gsp/texts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <span>

namespace medistock::ui {

namespace {

// The text fields of the dialog: the member they fill and their caption.
struct TextField
{
    const char *name;
    const char *caption;
    QString gsp::Employee::*member;
};

const TextField leftFields[] = { { "name", "姓名", &gsp::Employee::name },
    { "mnemonic", "简码", &gsp::Employee::mnemonic }, { "born", "出生日期", &gsp::Employee::born },
    { "nation", "民族", &gsp::Employee::nation }, { "origin", "籍贯", &gsp::Employee::origin },
    { "education", "学历", &gsp::Employee::education },
    { "major", "所学专业", &gsp::Employee::major },
    { "graduated", "毕业时间", &gsp::Employee::graduated } };
const TextField rightFields[] = { { "duty", "职务", &gsp::Employee::duty },
    { "post", "岗位", &gsp::Employee::post }, { "title", "技术职称", &gsp::Employee::title },
    { "qualification", "职业资格", &gsp::Employee::qualification },
    { "qualifiedBy", "职业资格评定单位", &gsp::Employee::qualifiedBy },
    { "joined", "进本公司时间", &gsp::Employee::joined },
    { "fileNumber", "人事档案编号", &gsp::Employee::fileNumber } };

void choose(QComboBox *box, const QString &value)
{
    const int at = box->findData(value);
    if (at >= 0)
        box->setCurrentIndex(at);
}

} // namespace

StaffScreen::StaffScreen(Workspace &workspace, QWidget *parent)
    : RecordScreen(
        workspace, QStringLiteral("员工花名册"),
        { .dates = false, .warehouse = false, .sex = true, .keyHint = gsptexts::staffHint },
        [&workspace](const RecordScreen &screen) -> Result<gsp::RecordTable> {
            const auto rows
                = gsp::staffRegister(workspace.session, screen.filter().key, screen.sex());
            if (!rows)
                return rows.outcome();
            return gsp::staffTable(rows.value());
        },
        parent)
{
    addButton(gsptexts::add, QKeySequence(Qt::Key_F2), [this] { addEmployee(); });
    addButton(gsptexts::edit, QKeySequence(Qt::Key_F3), [this] { editEmployee(); });
    addButton(gsptexts::remove, QKeySequence(), [this] { deleteEmployee(); });
    addButton(gsptexts::copyToSalesmen, QKeySequence(), [this] { copyEmployee(); });
    connect(this, &RecordScreen::rowActivated, this, &StaffScreen::editEmployee);
    reload();
}

void StaffScreen::openDialog(const QString &code)
{
    EmployeeDialog dialog(m_workspace, code, this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void StaffScreen::addEmployee()
{
    openDialog(QString());
}

void StaffScreen::editEmployee()
{
    const QString code = currentKey().toString();
    if (code.isEmpty())
        m_workspace.session.ui().inform(gsptexts::chooseRowFirst);
    else
        openDialog(code);
}

void StaffScreen::deleteEmployee()
{
    const QString code = currentKey().toString();
    if (code.isEmpty())
        m_workspace.session.ui().inform(gsptexts::chooseRowFirst);
    else if (gsp::deleteEmployee(m_workspace.session, code))
        reload();
}

void StaffScreen::copyEmployee()
{
    const QString code = currentKey().toString();
    if (code.isEmpty()) {
        m_workspace.session.ui().inform(gsptexts::chooseRowFirst);
        return;
    }
    const auto copied = gsp::copyToSalesmen(m_workspace.session, code);
    if (copied)
        m_workspace.session.ui().inform(
            gsptexts::copied(gsp::employeeOf(m_workspace.session, code).name, copied.value()));
}

EmployeeDialog::EmployeeDialog(Workspace &workspace, const QString &code, QWidget *parent)
    : QDialog(parent)
    , m_workspace(workspace)
    , m_code(code)
{
    setWindowTitle(gsptexts::employeeTitle);
    auto *left = new QFormLayout;
    auto *right = new QFormLayout;
    for (const TextField &f : leftFields) {
        auto *edit = new QLineEdit(this);
        m_texts.insert(QString::fromLatin1(f.name), edit);
        left->addRow(QString::fromUtf8(f.caption), edit);
    }
    auto *sex = new QComboBox(this);
    for (const QString &value : { QString(), QStringLiteral("男"), QStringLiteral("女") })
        sex->addItem(value, value);
    m_choices.insert(QStringLiteral("sex"), sex);
    left->insertRow(2, gsptexts::sex, sex);
    for (const TextField &f : rightFields) {
        auto *edit = new QLineEdit(this);
        m_texts.insert(QString::fromLatin1(f.name), edit);
        right->addRow(QString::fromUtf8(f.caption), edit);
    }
    auto *department = new QComboBox(this);
    auto *branch = new QComboBox(this);
    readSafely(workspace.session.ui(), [&] {
        for (const gsp::Place &p : gsp::departments(workspace.session))
            department->addItem(p.name, p.code);
        for (const gsp::Place &p : gsp::branches(workspace.session))
            branch->addItem(p.name, p.code);
    });
    m_choices.insert(QStringLiteral("department"), department);
    m_choices.insert(QStringLiteral("branch"), branch);
    right->addRow(QStringLiteral("部门"), department);
    right->addRow(QStringLiteral("分店"), branch);
    for (const auto &[name, caption] :
        { std::pair { "pharmacist", "执业药师" }, std::pair { "left", "已离职" } }) {
        auto *box = new QCheckBox(QString::fromUtf8(caption), this);
        m_flags.insert(QString::fromLatin1(name), box);
        right->addRow(QString(), box);
    }

    auto *columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addSpacing(16);
    columns->addLayout(right);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(columns);
    layout->addLayout(saveCancelRow(
        this, [this] { save(); }, true));
    if (!code.isEmpty())
        readSafely(workspace.session.ui(), [&] { load(gsp::employeeOf(workspace.session, code)); });
    enableEnterNavigation(this);
    field(QStringLiteral("name"))->setFocus();
}

void EmployeeDialog::load(const gsp::Employee &e)
{
    for (const auto &fields :
        { std::span<const TextField>(leftFields), std::span<const TextField>(rightFields) })
        for (const TextField &f : fields)
            field(QString::fromLatin1(f.name))->setText(e.*f.member);
    choose(choice(QStringLiteral("sex")), e.sex);
    choose(choice(QStringLiteral("department")), e.department);
    choose(choice(QStringLiteral("branch")), e.branch);
    flag(QStringLiteral("pharmacist"))->setChecked(e.pharmacist);
    flag(QStringLiteral("left"))->setChecked(e.left);
}

gsp::Employee EmployeeDialog::typed() const
{
    gsp::Employee e;
    e.code = m_code;
    for (const auto &fields :
        { std::span<const TextField>(leftFields), std::span<const TextField>(rightFields) })
        for (const TextField &f : fields)
            e.*f.member = field(QString::fromLatin1(f.name))->text();
    e.sex = choice(QStringLiteral("sex"))->currentData().toString();
    e.department = choice(QStringLiteral("department"))->currentData().toString();
    e.branch = choice(QStringLiteral("branch"))->currentData().toString();
    e.pharmacist = flag(QStringLiteral("pharmacist"))->isChecked();
    e.left = flag(QStringLiteral("left"))->isChecked();
    return e;
}

void EmployeeDialog::save()
{
    const auto saved = gsp::saveEmployee(m_workspace.session, typed());
    if (!saved)
        return;
    m_saved = saved.value();
    accept();
}

} // namespace medistock::ui
