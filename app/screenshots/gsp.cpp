#include "app/screenshots/gsp.h"

#include "gsp/displaycheck.h"
#include "gsp/filled.h"
#include "gsp/picking.h"
#include "gsp/restricted.h"
#include "gsp/staff.h"
#include "gsp/tables.h"
#include "gsp/temperature.h"
#include "gsp/tracking.h"
#include "gsp/training.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "purchasing/entry.h"
#include "purchasing/receipt.h"
#include "sales/entry.h"
#include "sales/salecheck.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "ui/common/workspace.h"
#include "ui/gsp/batchpicker.h"
#include "ui/gsp/filleddialog.h"
#include "ui/gsp/recordscreen.h"
#include "ui/gsp/registration.h"
#include "ui/gsp/restrictedscreen.h"
#include "ui/gsp/staffscreen.h"
#include "ui/gsp/tablemodel.h"
#include "ui/gsp/temperaturescreen.h"
#include "ui/gsp/trainingscreens.h"
#include "ui/reports/previewdialog.h"
#include "ui/shell/mainwindow.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlRecord>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>

using namespace medistock;

namespace {

QString day(const shell::Session &s, int offset)
{
    return s.clock().today().addDays(offset).toString(QStringLiteral("yyyy-MM-dd"));
}

QString goodsCode(shell::Session &s, const QString &name)
{
    return masterdata::searchMasterRows(s.db(), masterdata::goodsKind(), name)
        .value(0)
        .value(QStringLiteral("g_sn"))
        .toString();
}

QString addGoods(
    shell::Session &s, std::initializer_list<std::pair<const char *, const char *>> columns)
{
    masterdata::Values values;
    for (const auto &[column, value] : columns)
        values.insert(QString::fromLatin1(column), QString::fromUtf8(value));
    return masterdata::addMasterRow(s, masterdata::goodsKind(), values).value();
}

documents::LineDraft line(const QString &goods, const QString &quantity, const QString &price,
    const QString &batch, const QString &expiry)
{
    documents::LineDraft l;
    l.goods = goods;
    l.quantity = quantity;
    l.price = price;
    l.batch = batch;
    l.produced = QStringLiteral("2024-06-01");
    l.expiry = expiry;
    return l;
}

void receive(shell::Session &s, const QString &date, const QList<documents::LineDraft> &lines,
    bool check = true)
{
    purchasing::PurchaseDraft draft;
    draft.entry.date = date;
    draft.entry.party = QStringLiteral("100002");
    draft.entry.warehouse = QStringLiteral("100001");
    draft.entry.lines = lines;
    const auto saved = purchasing::savePurchaseReceipt(s, draft);
    if (!saved)
        qWarning("receipt: %s", qPrintable(saved.message()));
    if (saved && check)
        purchasing::checkPurchaseReceipt(s, saved.value());
}

void sell(shell::Session &s, const QString &date, documents::LineDraft l, const QString &patient)
{
    l.columns.set(QStringLiteral("t_cfhm"), QStringLiteral("CF") + date.mid(5, 2) + date.mid(8, 2));
    l.columns.set(QStringLiteral("ls_xm"), patient);
    l.columns.set(QStringLiteral("t_yaoshi"), QStringLiteral("陈建华"));
    l.columns.set(QStringLiteral("t_cfsm"), QStringLiteral("遵医嘱"));
    sales::SaleDraft draft;
    draft.entry.date = date;
    draft.entry.party = QStringLiteral("100001");
    draft.entry.warehouse = QStringLiteral("100001");
    draft.entry.lines = { l };
    draft.header.settlementMode = QStringLiteral("1");
    const auto saved = sales::saveSale(s, draft);
    if (!saved)
        qWarning("sale: %s", qPrintable(saved.message()));
    if (saved)
        sales::checkSale(s, saved.value());
}

// Receipts and sales of drugs that the records read: prescription, split and restricted goods,
// batches near their expiry.
void seedDocuments(shell::Session &s)
{
    const QString amoxicillin = goodsCode(s, QStringLiteral("阿莫西林胶囊"));
    const QString cold = goodsCode(s, QStringLiteral("感冒灵颗粒"));
    const QString vitamin = goodsCode(s, QStringLiteral("维生素C片"));
    const QString ephedrine = addGoods(s,
        { { "g_name", "复方盐酸伪麻黄碱缓释胶囊" }, { "gc_sn", "1001" }, { "gg_name", "10粒" },
            { "dw_name", "盒" }, { "g_sccs", "中美天津史克制药有限公司" }, { "g_xzsl", "2" },
            { "gsp_name", "化学原制剂" }, { "g_yhlx", "一般养护" }, { "g_iscf", "0" } });
    const QString herb = addGoods(s,
        { { "g_name", "西洋参饮片" }, { "gc_sn", "1003" }, { "gg_name", "50g" },
            { "dw_name", "袋" }, { "g_sccs", "亳州中药饮片厂" }, { "gsp_name", "中药饮片" },
            { "g_yhlx", "重点养护" } });
    masterdata::updateMasterRow(s, masterdata::goodsKind(), amoxicillin,
        { { QStringLiteral("g_clxs"), QStringLiteral("24") } });
    receive(s, day(s, -40),
        { line(amoxicillin, QStringLiteral("100"), QStringLiteral("6.8"), QStringLiteral("A240601"),
              day(s, 65)),
            line(cold, QStringLiteral("60"), QStringLiteral("8.2"), QStringLiteral("G240520"),
                day(s, 75)),
            line(ephedrine, QStringLiteral("40"), QStringLiteral("11.5"), QStringLiteral("M240310"),
                day(s, 425)) });
    receive(s, day(s, -12),
        { line(vitamin, QStringLiteral("200"), QStringLiteral("2.1"), QStringLiteral("V240801"),
              day(s, 30)),
            line(herb, QStringLiteral("30"), QStringLiteral("45"), QStringLiteral("X240901"),
                day(s, 245)),
            line(amoxicillin, QStringLiteral("50"), QStringLiteral("6.6"),
                QStringLiteral("A240902"), day(s, 605)) });
    receive(s, day(s, -1),
        { line(cold, QStringLiteral("30"), QStringLiteral("8.3"), QStringLiteral("G241101"),
            day(s, 545)) },
        false);
    sell(s, day(s, -20),
        line(amoxicillin, QStringLiteral("2"), QStringLiteral("12"), QStringLiteral("A240601"),
            day(s, 65)),
        QStringLiteral("王秀英"));
    sell(s, day(s, -6),
        line(amoxicillin, QStringLiteral("1"), QStringLiteral("12"), QStringLiteral("A240902"),
            day(s, 605)),
        QStringLiteral("李建国"));
    sell(s, day(s, -5),
        line(ephedrine, QStringLiteral("2"), QStringLiteral("19.8"), QStringLiteral("M240310"),
            day(s, 425)),
        QStringLiteral("张丽"));
    sell(s, day(s, -2),
        line(ephedrine, QStringLiteral("1"), QStringLiteral("19.8"), QStringLiteral("M240310"),
            day(s, 425)),
        QStringLiteral("刘伟"));
}

void seedTemperatures(shell::Session &s)
{
    const double readings[][4]
        = { { 21.5, 55, 18.2, 52 }, { 24.0, 58, 19.5, 60 }, { 22.8, 61, 18.8, 57 },
              { 31.5, 68, 21.6, 63 }, { 23.2, 57, 19.0, 55 }, { 20.6, 52, 17.9, 50 } };
    for (int i = 0; i < 6; ++i) {
        for (const QString &warehouse : { QStringLiteral("100001"), QStringLiteral("100002") }) {
            const bool main = warehouse == QLatin1String("100001");
            gsp::TemperatureEntry e;
            e.warehouse = warehouse;
            e.date = day(s, -3 + i / 2);
            e.time = i % 2 == 0 ? QStringLiteral("09:00") : QStringLiteral("15:00");
            e.temperature = QString::number(readings[i][main ? 0 : 2]);
            e.humidity = QString::number(readings[i][main ? 1 : 3]);
            e.recorder = QStringLiteral("张伟");
            if (main && readings[i][0] > 30) {
                e.measures = QStringLiteral("开启空调降温");
                e.temperatureAfter = QStringLiteral("25");
                e.humidityAfter = QStringLiteral("60");
            }
            gsp::addTemperature(s, e);
        }
    }
}

void seedStaff(shell::Session &s)
{
    const struct
    {
        const char *name;
        const char *sex;
        const char *post;
        const char *title;
        const char *education;
        bool pharmacist;
        bool left;
    } staff[] = { { "陈建华", "男", "质量负责人", "主管药师", "本科", true, false },
        { "张伟", "男", "养护员", "药士", "大专", false, false },
        { "王芳", "女", "营业员", "", "中专", false, false },
        { "李娜", "女", "验收员", "药师", "大专", false, false },
        { "赵强", "男", "营业员", "", "高中", false, true } };
    for (const auto &p : staff) {
        gsp::Employee e;
        e.name = QString::fromUtf8(p.name);
        e.sex = QString::fromUtf8(p.sex);
        e.post = QString::fromUtf8(p.post);
        e.duty = e.post;
        e.title = QString::fromUtf8(p.title);
        e.education = QString::fromUtf8(p.education);
        e.pharmacist = p.pharmacist;
        e.left = p.left;
        e.born = QStringLiteral("1988-05-16");
        e.origin = QStringLiteral("浙江");
        e.joined = QStringLiteral("2019-03");
        gsp::saveEmployee(s, e);
    }
    for (const QString &employee :
        { QStringLiteral("100002"), QStringLiteral("100003"), QStringLiteral("100004") })
        gsp::pickForPlan(s, employee);
    gsp::Plan plan;
    plan.topic = QStringLiteral("药品储存与养护");
    plan.purpose = QStringLiteral("掌握温湿度管理要求");
    plan.place = QStringLiteral("会议室");
    plan.teacher = QStringLiteral("陈建华");
    plan.planned = day(s, -10);
    plan.assessment = QStringLiteral("笔试");
    plan.method = QStringLiteral("集中授课");
    gsp::savePlan(s, plan);
    for (const gsp::PlanChoice &p : gsp::plansOfEmployedStaff(s))
        gsp::pickForRecord(s, p.group);
    gsp::Training training;
    training.held = day(s, -10);
    training.performance = QStringLiteral("认真");
    training.result = QStringLiteral("合格");
    training.score = QStringLiteral("90");
    training.assessor = QStringLiteral("陈建华");
    gsp::saveTrainings(s, training);
}

void seedFilledRecords(shell::Session &s)
{
    for (const gsp::FilledKind kind : { gsp::FilledKind::Inspection, gsp::FilledKind::Tracking }) {
        gsp::BatchChoice choice;
        choice.warehouse = QStringLiteral("100001");
        if (kind == gsp::FilledKind::Tracking)
            choice.withinDays = 180;
        const auto batches = gsp::pickableBatches(s, choice);
        for (const gsp::PickableBatch &b : batches.value())
            gsp::pickBatch(s, kind, choice.warehouse, b);
        if (kind == gsp::FilledKind::Inspection) {
            gsp::InspectionHeader h = gsp::proposedInspection(s, QStringLiteral("100001"));
            h.storeTemperature = 22;
            h.storeHumidity = 56;
            h.coldTemperature = 5;
            h.coldHumidity = 48;
            h.coolTemperature = 17;
            h.coolHumidity = 52;
            h.employee = QStringLiteral("100001");
            gsp::saveInspection(s, h);
        } else {
            gsp::TrackingHeader h = gsp::proposedTracking(s, QStringLiteral("100001"));
            h.employee = QStringLiteral("100001");
            gsp::saveTracking(s, h);
        }
    }
}

// The records' print previews: F8 on the acceptance record, the splitting record and the staff
// register, each with the rows the screen lists.
void shootGspPrints(
    const std::function<void(QWidget *, const QString &)> &shoot, ui::MainWindow &window)
{
    const std::pair<int, const char *> records[] = { { 1, "220-preview-gspysjl" },
        { 4, "221-preview-ypcljl" }, { 8, "222-preview-gspyghmc" } };
    for (const auto &[position, name] : records) {
        window.openOperation(QStringLiteral("gspgl"), position);
        auto *screen = qobject_cast<ui::RecordScreen *>(window.tabs()->currentWidget());
        if (!screen || !screen->printButton()->isEnabled())
            continue;
        screen->printButton()->click();
        // Found first, shot after: shooting lets the previous preview's deletion happen.
        ui::PreviewDialog *preview = nullptr;
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (auto *open = qobject_cast<ui::PreviewDialog *>(widget); open && open->isVisible())
                preview = open;
        if (!preview)
            continue;
        if (preview->report().pages.first().sizeMm.width() > 250)
            preview->setZoom(0.8);
        shoot(preview, QString::fromLatin1(name));
        preview->close();
    }
}

} // namespace

void shootGsp(const std::function<void(QWidget *, const QString &)> &shoot, ui::MainWindow &window,
    ui::Workspace &workspace)
{
    shell::Session &s = workspace.session;
    seedDocuments(s);
    seedTemperatures(s);
    seedStaff(s);
    seedFilledRecords(s);
    ui::addGspReminders(window, workspace);
    // The smallest screen a pharmacy counter is likely to have.
    window.resize(1366, 768);

    const std::pair<int, const char *> screens[]
        = { { 1, "61-gsp-acceptance" }, { 2, "62-gsp-prescriptions" }, { 3, "63-gsp-inspections" },
              { 4, "65-gsp-splitting" }, { 5, "66-gsp-restricted" }, { 6, "69-gsp-tracking" },
              { 7, "71-gsp-prescription-sales" }, { 8, "72-gsp-staff" }, { 9, "74-gsp-categories" },
              { 11, "75-gsp-temperatures" }, { 12, "77-gsp-plans" }, { 13, "79-gsp-trainings" } };
    for (const auto &[position, name] : screens) {
        window.openOperation(QStringLiteral("gspgl"), position);
        shoot(&window, QString::fromLatin1(name));
        if (position == 5) {
            auto *restricted = qobject_cast<ui::RestrictedScreen *>(window.tabs()->currentWidget());
            restricted->setSummary(true);
            shoot(&window, QStringLiteral("67-gsp-restricted-summary"));
            restricted->setSummary(false);
            ui::TableDialog document(workspace,
                gsp::postedLinesTable(QStringLiteral("单据明细"),
                    gsp::postedLines(
                        s, restricted->model()->table().rows.value(0).value(1).toString())),
                &window);
            shoot(&document, QStringLiteral("68-gsp-restricted-document"));
            document.hide();
        }
    }
    shootGspPrints(shoot, window);
    window.openOperation(QStringLiteral("kcgl"), 16);
    shoot(&window, QStringLiteral("60-expiry-query"));

    ui::FilledDialog inspection(workspace, gsp::FilledKind::Inspection, &window);
    for (int i = 0; i < 3; ++i) {
        inspection.picker()->batchGrid()->selectRow(i);
        inspection.picker()->pickCurrent();
    }
    shoot(&inspection, QStringLiteral("64-gsp-inspection-new"));
    gsp::clearPicks(s, gsp::FilledKind::Inspection);
    inspection.hide();
    ui::FilledDialog tracking(workspace, gsp::FilledKind::Tracking, &window);
    shoot(&tracking, QStringLiteral("70-gsp-tracking-new"));
    tracking.hide();
    ui::EmployeeDialog employee(workspace, QStringLiteral("100001"), &window);
    shoot(&employee, QStringLiteral("73-gsp-employee"));
    employee.hide();
    ui::TemperatureDialog entry(workspace, &window);
    entry.field(QStringLiteral("temperature"))->setText(QStringLiteral("22.5"));
    entry.field(QStringLiteral("humidity"))->setText(QStringLiteral("58"));
    shoot(&entry, QStringLiteral("76-gsp-temperature-entry"));
    entry.hide();
    ui::TrainingDialog plan(workspace, ui::TrainingScreen::Mode::Plans, 0, &window);
    plan.field(QStringLiteral("topic"))->setText(QStringLiteral("处方药销售管理"));
    plan.offered()->selectRow(0);
    plan.pickCurrent();
    shoot(&plan, QStringLiteral("78-gsp-plan-new"));
    gsp::clearTrainingPicks(s, gsp::TrainingPicks::Plan);
    plan.hide();
    ui::TrainingDialog record(workspace, ui::TrainingScreen::Mode::Records, 0, &window);
    shoot(&record, QStringLiteral("80-gsp-training-new"));
    record.hide();
}
