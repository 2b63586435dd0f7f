#include "gsp/categories.h"
#include "gsp/staff.h"
#include "gsp/training.h"
#include "tests/gsp/gsptest.h"
#include "tests/support/documentrows.h"

namespace medistock::test {

namespace {

gsp::Employee employee(const QString &name, bool left = false)
{
    gsp::Employee e;
    e.name = name;
    e.sex = QStringLiteral("女");
    e.duty = QStringLiteral("营业员");
    e.left = left;
    return e;
}

gsp::Plan plan(const QString &topic = QStringLiteral("药品储存养护"))
{
    gsp::Plan p;
    p.topic = topic;
    p.planned = QStringLiteral("2025-03-20");
    p.teacher = QStringLiteral("陈药师");
    return p;
}

} // namespace

// The register holds 刘敏 (100001), 赵静 (100002) and 孙强 (100003, who has left).
class StaffRecords : public GspTest
{
protected:
    void SetUp() override
    {
        GspTest::SetUp();
        for (const gsp::Employee &e : { employee(QStringLiteral("刘敏")),
                 employee(QStringLiteral("赵静")), employee(QStringLiteral("孙强"), true) })
            ASSERT_TRUE(gsp::saveEmployee(session(), e).ok());
    }
};

TEST_F(StaffRecords, TheRegisterKeepsNamesUniqueAndFillsTheMnemonicDepartmentAndBranch)
{
    EXPECT_EQ(rows(QStringLiteral("select u_sn,u_name,u_jm,u_sex,u_islz,de_sn,fd_sn from jxc_yghmc "
                                  "order by id")),
        (QStringList { QStringLiteral("100001|刘敏|LM|女|0|100001|100001"),
            QStringLiteral("100002|赵静|ZJ|女|0|100001|100001"),
            QStringLiteral("100003|孙强|SQ|女|1|100001|100001") }));
    const QString before = snapshot();
    EXPECT_FALSE(gsp::saveEmployee(session(), employee(QStringLiteral("赵静"))).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("员工花名册中已有“赵静”，姓名不能重复！"));
    gsp::Employee renamed = gsp::employeeOf(session(), QStringLiteral("100001"));
    renamed.name = QStringLiteral("赵静");
    EXPECT_FALSE(gsp::saveEmployee(session(), renamed).ok());
    gsp::Employee bad = employee(QStringLiteral("周平"));
    bad.born = QStringLiteral("1990-13-01");
    EXPECT_FALSE(gsp::saveEmployee(session(), bad).ok());
    EXPECT_EQ(ui.informed.last(),
        QStringLiteral("出生日期“1990-13-01”不是正确的日期，请按 yyyy-MM-dd 输入！"));
    EXPECT_EQ(snapshot(), before);
    // Keeping one's own name is no clash.
    gsp::Employee same = gsp::employeeOf(session(), QStringLiteral("100002"));
    same.post = QStringLiteral("质量管理员");
    EXPECT_TRUE(gsp::saveEmployee(session(), same).ok());
}

TEST_F(StaffRecords, TheListTakesAKeywordAndASex)
{
    gsp::Employee man = employee(QStringLiteral("周平"));
    man.sex = QStringLiteral("男");
    man.origin = QStringLiteral("杭州");
    ASSERT_TRUE(gsp::saveEmployee(session(), man).ok());
    const auto codes = [&](const QString &key, const QString &sex) {
        QStringList list;
        const auto listed = gsp::staffRegister(session(), key, sex);
        for (const gsp::StaffRow &row : listed.value())
            list.append(row.employee.code);
        return list;
    };
    EXPECT_EQ(codes({}, {}).size(), 4);
    EXPECT_EQ(codes({}, QStringLiteral("男")), QStringList { QStringLiteral("100004") });
    EXPECT_EQ(codes(QStringLiteral("杭州"), {}), QStringList { QStringLiteral("100004") });
    EXPECT_EQ(codes(QStringLiteral("ZJ"), {}), QStringList { QStringLiteral("100002") });
    EXPECT_EQ(gsp::staffRegister(session(), {}).value().first().departmentName,
        QStringLiteral("默认部门"));
}

TEST_F(StaffRecords, CopyingToTheSalesmenAsksAndSkipsANameTheyHave)
{
    const int salesmen = rowCount(db(), QStringLiteral("jxc_user"));
    ui.answerNext(false);
    EXPECT_FALSE(gsp::copyToSalesmen(session(), QStringLiteral("100001")).ok());
    EXPECT_EQ(ui.asked.last(),
        QStringLiteral("您的操作会将员工：刘敏 "
                       "的信息复制到业务员信息中，以后可以在业务员中使用该员工信息。确认吗？"));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_user")), salesmen);
    const auto copied = gsp::copyToSalesmen(session(), QStringLiteral("100001"));
    ASSERT_TRUE(copied.ok());
    EXPECT_EQ(rows(QStringLiteral("select u_sn,u_name,u_jm,u_duty,u_tc,u_cg,u_xs,u_kc,u_cgpl,u_jy,"
                                  "ck_sn from jxc_user where u_name=?"),
                  { QStringLiteral("刘敏") }),
        QStringList { copied.value() + QStringLiteral("|刘敏|LM|营业员|0|1|1|1|0|0|-1") });
    const QString before = snapshot();
    EXPECT_FALSE(gsp::copyToSalesmen(session(), QStringLiteral("100001")).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("业务员中已有“刘敏”，不再复制！"));
    EXPECT_EQ(snapshot(), before);
}

TEST_F(StaffRecords, AnEmployeeWhoLeftIsNeverPutOnAPlan)
{
    QStringList offered;
    for (const gsp::StaffChoice &choice : gsp::employedStaff(session()))
        offered.append(choice.name);
    EXPECT_EQ(offered, (QStringList { QStringLiteral("刘敏"), QStringLiteral("赵静") }));
    EXPECT_FALSE(gsp::pickForPlan(session(), QStringLiteral("100003")).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("员工“孙强”已离职，不能安排培训！"));
    // Picked while employed, gone by the save: nothing is written.
    ASSERT_TRUE(gsp::pickForPlan(session(), QStringLiteral("100002")).value());
    gsp::Employee leaving = gsp::employeeOf(session(), QStringLiteral("100002"));
    leaving.left = true;
    ASSERT_TRUE(gsp::saveEmployee(session(), leaving).ok());
    EXPECT_FALSE(gsp::savePlan(session(), plan()).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("员工“赵静”已离职，不能安排培训！"));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_ygpxjh")), 0);
}

TEST_F(StaffRecords, APlanIsSavedPerPickedEmployeeEachKeyedByItsOwnId)
{
    EXPECT_FALSE(gsp::savePlan(session(), plan()).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("请先选择参加培训的员工！"));
    ASSERT_TRUE(gsp::pickForPlan(session(), QStringLiteral("100001")).value());
    EXPECT_FALSE(gsp::pickForPlan(session(), QStringLiteral("100001")).value());
    ASSERT_TRUE(gsp::pickForPlan(session(), QStringLiteral("100002")).value());
    ui.answerNext(false);
    EXPECT_FALSE(gsp::savePlan(session(), plan()).ok());
    EXPECT_EQ(ui.asked.last(),
        QStringLiteral(
            "培训记录保存后如果有问题可以在“培训记录”\r\n\r\n界面中删除或修改，是否确认保存？"));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_ygpxjh")), 0);
    ASSERT_EQ(gsp::savePlan(session(), plan()).value(), 2);
    EXPECT_EQ(
        rows(QStringLiteral("select id-id2,u_rq,u_sn,u_pxzt,u_ydsj,u_js,a_name from jxc_ygpxjh "
                            "order by id")),
        (QStringList { QStringLiteral("0|2025-03-14|100001|药品储存养护|2025-03-20|陈药师|admin"),
            QStringLiteral("0|2025-03-14|100002|药品储存养护|2025-03-20|陈药师|admin") }));
    EXPECT_TRUE(gsp::trainingPicks(session(), gsp::TrainingPicks::Plan).isEmpty());
    EXPECT_EQ(gsp::trainingPlans(session(), filter(QStringLiteral("刘敏"))).value().size(), 1);
    EXPECT_TRUE(gsp::trainingPlans(session(), filter({}, {}, QStringLiteral("2025-03-21")))
                    .value()
                    .isEmpty());
}

TEST_F(StaffRecords, ATrainingRecordFollowsItsPlanRow)
{
    ASSERT_TRUE(gsp::pickForPlan(session(), QStringLiteral("100001")).value());
    ASSERT_TRUE(gsp::pickForPlan(session(), QStringLiteral("100002")).value());
    ASSERT_TRUE(gsp::savePlan(session(), plan()).ok());
    const QList<gsp::PlanChoice> plans = gsp::plansOfEmployedStaff(session());
    ASSERT_EQ(plans.size(), 2);
    EXPECT_EQ(plans[1].employeeName, QStringLiteral("赵静"));
    ASSERT_TRUE(gsp::pickForRecord(session(), plans[1].group).value());
    EXPECT_FALSE(gsp::pickForRecord(session(), plans[1].group).value());
    gsp::Training training;
    training.held = QStringLiteral("2025-03-20 14:30");
    training.result = QStringLiteral("合格");
    training.score = QStringLiteral("92");
    ASSERT_EQ(gsp::saveTrainings(session(), training).value(), 1);
    const auto listed = gsp::trainingRecords(session(), filter());
    ASSERT_EQ(listed->size(), 1);
    EXPECT_EQ(listed->first().employeeName, QStringLiteral("赵静"));
    EXPECT_EQ(listed->first().topic, QStringLiteral("药品储存养护"));
    EXPECT_EQ(listed->first().planned, QStringLiteral("2025-03-20"));
    EXPECT_EQ(listed->first().training.score, QStringLiteral("92"));
    // The plan row the record follows stays; the other one may go.
    const QList<gsp::PlanRow> planRows = gsp::trainingPlans(session(), filter()).value();
    EXPECT_FALSE(gsp::deletePlan(session(), planRows[0].id).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("该培训计划已有培训记录，不能删除！"));
    EXPECT_TRUE(gsp::deletePlan(session(), planRows[1].id).ok());
    // So does an employee on a plan.
    EXPECT_FALSE(gsp::deleteEmployee(session(), QStringLiteral("100002")).ok());
    EXPECT_EQ(ui.informed.last(),
        QStringLiteral("员工“赵静”已有培训计划或培训记录，不能删除；如已离职，请标为离职。"));
    EXPECT_TRUE(gsp::deleteEmployee(session(), QStringLiteral("100001")).ok());
}

TEST_F(StaffRecords, ATrainingTimeMustBeADate)
{
    ASSERT_TRUE(gsp::pickForPlan(session(), QStringLiteral("100001")).value());
    gsp::Plan undated = plan();
    undated.planned = QStringLiteral("下周三");
    EXPECT_FALSE(gsp::savePlan(session(), undated).ok());
    EXPECT_EQ(ui.informed.last(),
        QStringLiteral("预定时间“下周三”不是正确的日期，请按 yyyy-MM-dd 输入！"));
    gsp::Plan untitled = plan(QString());
    EXPECT_FALSE(gsp::savePlan(session(), untitled).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("请输入培训主题！"));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_ygpxjh")), 0);
}

using GspCategories = GspTest;

TEST_F(GspCategories, CodesStartAt1001AndNamesAreUnique)
{
    db().exec(QStringLiteral("delete from jxc_gspcs"));
    const qint64 first = gsp::saveCategory(session(), 0, QStringLiteral("中药饮片")).value();
    gsp::saveCategory(session(), 0, QStringLiteral("生物制品"));
    EXPECT_EQ(rows(QStringLiteral("select gsp_sn,gsp_name from jxc_gspcs order by id")),
        (QStringList { QStringLiteral("1001|中药饮片"), QStringLiteral("1002|生物制品") }));
    EXPECT_FALSE(gsp::saveCategory(session(), 0, QStringLiteral("生物制品")).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("药品类型“生物制品”已经存在，请换一个名称！"));
    EXPECT_TRUE(gsp::saveCategory(session(), first, QStringLiteral("中药饮片")).ok());
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_gspcs")), 2);
}

TEST_F(GspCategories, RenamingReachesTheGoodsAndACategoryInUseStays)
{
    const qint64 herbal
        = db().firstValue(QStringLiteral("select id from jxc_gspcs where gsp_name=?"),
                  { QStringLiteral("中药饮片") })
              .toLongLong();
    ASSERT_TRUE(gsp::saveCategory(session(), herbal, QStringLiteral("中药饮片类")).ok());
    EXPECT_EQ(db().firstText(QStringLiteral("select gsp_name from jxc_goods where g_sn='200003'")),
        QStringLiteral("中药饮片类"));
    EXPECT_FALSE(gsp::deleteCategory(session(), herbal).ok());
    EXPECT_EQ(
        ui.informed.last(), QStringLiteral("药品类型“中药饮片类”已被商品资料使用，不能删除！"));
    const qint64 unused
        = db().firstValue(QStringLiteral("select id from jxc_gspcs where gsp_name=?"),
                  { QStringLiteral("医疗器械") })
              .toLongLong();
    EXPECT_TRUE(gsp::deleteCategory(session(), unused).ok());
    EXPECT_EQ(ui.asked.last(), QStringLiteral("您的操作将删除药品类型：医疗器械，确认吗？"));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_gspcs")), 12);
}

TEST_F(GspCategories, EveryStaffChangeNeedsItsRight)
{
    addOperatorWithRights(session(), QStringLiteral("小王"),
        { { QStringLiteral("gspgl"), QStringLiteral("1111111") } });
    loginAs(QStringLiteral("小王"));
    EXPECT_FALSE(gsp::saveEmployee(session(), employee(QStringLiteral("周平"))).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("您没有“员工花名册”的权限！"));
    EXPECT_FALSE(gsp::saveCategory(session(), 0, QStringLiteral("新类型")).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("您没有“GSP参数”的权限！"));
    EXPECT_FALSE(gsp::savePlan(session(), plan()).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("您没有“员工培训计划”的权限！"));
}

TEST_F(StaffRecords, APlanRowAndATrainingRowAreChangedAndDeletedOnTheirOwn)
{
    ASSERT_TRUE(gsp::pickForPlan(session(), QStringLiteral("100001")).value());
    ASSERT_TRUE(gsp::savePlan(session(), plan()).ok());
    const qint64 planId = gsp::trainingPlans(session(), filter()).value().first().id;
    gsp::Plan changed = plan(QStringLiteral("处方药管理"));
    changed.planned = QStringLiteral("2025-03-21 14:00");
    ASSERT_TRUE(gsp::changePlan(session(), planId, changed).ok());
    EXPECT_EQ(rows(QStringLiteral("select u_pxzt,u_ydsj,id2-id from jxc_ygpxjh")),
        QStringList { QStringLiteral("处方药管理|2025-03-21 14:00|0") });
    // A time of day still falls within its day's range.
    EXPECT_EQ(gsp::trainingPlans(session(),
                  filter({}, {}, QStringLiteral("2025-03-21"), QStringLiteral("2025-03-21")))
                  .value()
                  .size(),
        1);

    ASSERT_TRUE(gsp::pickForRecord(session(), planId).value());
    gsp::Training training;
    training.held = QStringLiteral("2025-03-21");
    ASSERT_TRUE(gsp::saveTrainings(session(), training).ok());
    const qint64 trainingId = gsp::trainingRecords(session(), filter()).value().first().id;
    training.score = QStringLiteral("88");
    training.held = QStringLiteral("21/03/2025");
    EXPECT_FALSE(gsp::changeTraining(session(), trainingId, training).ok());
    EXPECT_EQ(ui.informed.last(),
        QStringLiteral("培训时间“21/03/2025”不是正确的日期，请按 yyyy-MM-dd 输入！"));
    training.held = QStringLiteral("2025-03-21");
    ASSERT_TRUE(gsp::changeTraining(session(), trainingId, training).ok());
    EXPECT_EQ(rows(QStringLiteral("select u_sn,u_pxsj,u_cj from jxc_ygpxjl")),
        QStringList { QStringLiteral("100001|2025-03-21|88") });
    ui.answerNext(false);
    EXPECT_FALSE(gsp::deleteTraining(session(), trainingId).ok());
    EXPECT_EQ(ui.asked.last(), QStringLiteral("您的操作将删除刘敏的这条培训记录，确认吗？"));
    EXPECT_TRUE(gsp::deleteTraining(session(), trainingId).ok());
    EXPECT_TRUE(gsp::deletePlan(session(), planId).ok());
    EXPECT_EQ(
        rowCount(db(), QStringLiteral("jxc_ygpxjh")) + rowCount(db(), QStringLiteral("jxc_ygpxjl")),
        0);
}

} // namespace medistock::test
