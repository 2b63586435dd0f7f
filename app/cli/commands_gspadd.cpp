// Entering and deleting GSP records on the command line: "gsp-add KIND ..." and
// "gsp-delete KIND KEY", through the same operations as the screens.
#include "app/cli/registry.h"

#include "gsp/categories.h"
#include "gsp/displaycheck.h"
#include "gsp/filled.h"
#include "gsp/staff.h"
#include "gsp/temperature.h"
#include "gsp/tracking.h"
#include "gsp/training.h"
#include "shell/session.h"

namespace medistock::cli {

namespace {

QString optionText(Args &args, const char *name)
{
    return args.option(QString::fromLatin1(name)).value_or(QString());
}

// Every value of an option given several times.
QStringList repeated(Args &args, const char *name)
{
    QStringList values;
    while (const auto value = args.option(QString::fromLatin1(name)))
        values.append(*value);
    return values;
}

// "T,H": a temperature and a humidity.
void readClimate(Context &context, const QString &text, double &temperature, double &humidity)
{
    if (text.isEmpty())
        return;
    const QStringList parts = text.split(QLatin1Char(','));
    bool ok1 = false;
    bool ok2 = false;
    if (parts.size() == 2) {
        temperature = parts[0].trimmed().toDouble(&ok1);
        humidity = parts[1].trimmed().toDouble(&ok2);
    }
    if (!ok1 || !ok2)
        throw Stop { context.usageError(QStringLiteral("温湿度应写作 温度,湿度：") + text) };
}

// Picks the warehouse's batches named by --batch GOODS[/BATCH] (or all with --all) for a record.
void pickBatches(Context &context, Args &args, gsp::FilledKind kind, gsp::BatchChoice choice)
{
    const bool all = args.flag(QStringLiteral("--all"));
    const QStringList wanted = repeated(args, "--batch");
    if (!all && wanted.isEmpty())
        throw Stop { context.usageError(
            QStringLiteral("请用 --batch 商品编号[/批号] 或 --all 选择批次")) };
    shell::Session &session = context.session();
    require(gsp::clearPicks(session, kind));
    const auto batches = gsp::pickableBatches(session, choice);
    require(batches.outcome());
    for (const gsp::PickableBatch &batch : batches.value()) {
        bool chosen = all;
        for (const QString &named : wanted)
            chosen = chosen || named == batch.goods
                || named == batch.goods + QLatin1Char('/') + batch.batch;
        if (chosen)
            require(gsp::pickBatch(session, kind, choice.warehouse, batch).outcome());
    }
}

gsp::BatchChoice batchChoice(Args &args, const QString &warehouse)
{
    gsp::BatchChoice choice;
    choice.warehouse = warehouse;
    choice.goodsClass = optionText(args, "--class");
    choice.category = optionText(args, "--category");
    return choice;
}

int addInspection(Context &context, Args &args)
{
    const QString warehouse = optionText(args, "--warehouse");
    shell::Session &session = context.session();
    gsp::InspectionHeader header = gsp::proposedInspection(session, warehouse);
    if (const auto date = args.option(QStringLiteral("--date")))
        header.date = *date;
    header.employee = optionText(args, "--employee");
    header.note = optionText(args, "--note");
    readClimate(
        context, optionText(args, "--store"), header.storeTemperature, header.storeHumidity);
    readClimate(context, optionText(args, "--cold"), header.coldTemperature, header.coldHumidity);
    readClimate(context, optionText(args, "--cool"), header.coolTemperature, header.coolHumidity);
    pickBatches(context, args, gsp::FilledKind::Inspection, batchChoice(args, warehouse));
    takePositional(context, args, 0, 0);
    context.out() << valueOf(gsp::saveInspection(session, header)) << Qt::endl;
    return ExitDone;
}

int addTracking(Context &context, Args &args)
{
    const QString warehouse = optionText(args, "--warehouse");
    shell::Session &session = context.session();
    gsp::TrackingHeader header = gsp::proposedTracking(session, warehouse);
    if (const auto date = args.option(QStringLiteral("--date")))
        header.date = *date;
    header.employee = optionText(args, "--employee");
    header.note = optionText(args, "--note");
    if (const auto state = args.option(QStringLiteral("--state")))
        header.state = *state;
    if (const auto keeper = args.option(QStringLiteral("--keeper")))
        header.keeper = *keeper;
    if (const auto unit = args.option(QStringLiteral("--unit")))
        header.accountingUnit = *unit;
    if (const auto days = args.option(QStringLiteral("--days"))) {
        bool ok = false;
        header.toDays = days->toInt(&ok);
        if (!ok)
            return context.usageError(QStringLiteral("天数应为整数：") + *days);
    }
    gsp::BatchChoice choice = batchChoice(args, warehouse);
    choice.withinDays = header.toDays;
    pickBatches(context, args, gsp::FilledKind::Tracking, choice);
    takePositional(context, args, 0, 0);
    context.out() << valueOf(gsp::saveTracking(session, header)) << Qt::endl;
    return ExitDone;
}

int addTemperature(Context &context, Args &args)
{
    shell::Session &session = context.session();
    gsp::TemperatureEntry entry;
    entry.warehouse = optionText(args, "--warehouse");
    entry.date = args.option(QStringLiteral("--date")).value_or(session.today());
    entry.time = args.option(QStringLiteral("--time"))
                     .value_or(session.clock().now().toString(QStringLiteral("HH:mm")));
    entry.temperature = optionText(args, "--temp");
    entry.humidity = optionText(args, "--humidity");
    entry.temperatureAfter = optionText(args, "--temp-after");
    entry.humidityAfter = optionText(args, "--humidity-after");
    entry.measures = optionText(args, "--measures");
    entry.recorder = optionText(args, "--recorder");
    entry.note = optionText(args, "--note");
    takePositional(context, args, 0, 0);
    context.out() << valueOf(gsp::addTemperature(session, entry)) << Qt::endl;
    return ExitDone;
}

int addEmployee(Context &context, Args &args)
{
    shell::Session &session = context.session();
    const QString code = optionText(args, "--code");
    gsp::Employee e = code.isEmpty() ? gsp::Employee() : gsp::employeeOf(session, code);
    e.code = code;
    const std::pair<const char *, QString gsp::Employee::*> texts[] = { { "--name",
                                                                            &gsp::Employee::name },
        { "--mnemonic", &gsp::Employee::mnemonic }, { "--sex", &gsp::Employee::sex },
        { "--duty", &gsp::Employee::duty }, { "--post", &gsp::Employee::post },
        { "--title", &gsp::Employee::title }, { "--qualification", &gsp::Employee::qualification },
        { "--qualified-by", &gsp::Employee::qualifiedBy }, { "--born", &gsp::Employee::born },
        { "--nation", &gsp::Employee::nation }, { "--origin", &gsp::Employee::origin },
        { "--education", &gsp::Employee::education }, { "--major", &gsp::Employee::major },
        { "--graduated", &gsp::Employee::graduated }, { "--joined", &gsp::Employee::joined },
        { "--file", &gsp::Employee::fileNumber }, { "--department", &gsp::Employee::department },
        { "--branch", &gsp::Employee::branch } };
    for (const auto &[name, member] : texts)
        if (const auto value = args.option(QString::fromLatin1(name)))
            e.*member = *value;
    for (const auto &[name, member] : { std::pair { "--pharmacist", &gsp::Employee::pharmacist },
             std::pair { "--left", &gsp::Employee::left } })
        if (const auto value = args.option(QString::fromLatin1(name)))
            e.*member = *value == QLatin1String("1");
    takePositional(context, args, 0, 0);
    context.out() << valueOf(gsp::saveEmployee(session, e)) << Qt::endl;
    return ExitDone;
}

int addCategory(Context &context, Args &args)
{
    const QString id = optionText(args, "--id");
    const QString name = takePositional(context, args, 1, 1).first();
    const auto saved = gsp::saveCategory(context.session(), id.toLongLong(), name);
    context.out() << valueOf(saved) << Qt::endl;
    return ExitDone;
}

int addPlan(Context &context, Args &args)
{
    shell::Session &session = context.session();
    const QStringList employees = repeated(args, "--employee");
    gsp::Plan plan;
    const std::pair<const char *, QString gsp::Plan::*> fields[]
        = { { "--topic", &gsp::Plan::topic }, { "--purpose", &gsp::Plan::purpose },
              { "--content", &gsp::Plan::content }, { "--place", &gsp::Plan::place },
              { "--teacher", &gsp::Plan::teacher }, { "--planned", &gsp::Plan::planned },
              { "--audience", &gsp::Plan::audience }, { "--assessment", &gsp::Plan::assessment },
              { "--method", &gsp::Plan::method }, { "--note", &gsp::Plan::note } };
    for (const auto &[name, member] : fields)
        plan.*member = optionText(args, name);
    takePositional(context, args, 0, 0);
    require(gsp::clearTrainingPicks(session, gsp::TrainingPicks::Plan));
    for (const QString &employee : employees)
        require(gsp::pickForPlan(session, employee).outcome());
    context.out() << valueOf(gsp::savePlan(session, plan)) << Qt::endl;
    return ExitDone;
}

int addTraining(Context &context, Args &args)
{
    shell::Session &session = context.session();
    const QStringList plans = repeated(args, "--plan");
    gsp::Training training;
    const std::pair<const char *, QString gsp::Training::*> fields[]
        = { { "--held", &gsp::Training::held }, { "--performance", &gsp::Training::performance },
              { "--result", &gsp::Training::result }, { "--score", &gsp::Training::score },
              { "--assessor", &gsp::Training::assessor }, { "--note", &gsp::Training::note } };
    for (const auto &[name, member] : fields)
        training.*member = optionText(args, name);
    takePositional(context, args, 0, 0);
    require(gsp::clearTrainingPicks(session, gsp::TrainingPicks::Record));
    for (const QString &plan : plans)
        require(gsp::pickForRecord(session, plan.toLongLong()).outcome());
    context.out() << valueOf(gsp::saveTrainings(session, training)) << Qt::endl;
    return ExitDone;
}

int addSalesman(Context &context, Args &args)
{
    const QString employee = takePositional(context, args, 1, 1).first();
    context.out() << valueOf(gsp::copyToSalesmen(context.session(), employee)) << Qt::endl;
    return ExitDone;
}

int runAdd(Context &context, Args &args)
{
    const QString kind = args.positional().value(0);
    const std::pair<const char *, int (*)(Context &, Args &)> kinds[]
        = { { "inspection", addInspection }, { "tracking", addTracking },
              { "temperature", addTemperature }, { "employee", addEmployee },
              { "category", addCategory }, { "plan", addPlan }, { "training", addTraining },
              { "salesman", addSalesman } };
    for (const auto &[name, run] : kinds) {
        if (kind != QLatin1String(name))
            continue;
        QStringList rest = args.positional();
        Args remaining(QStringList(rest.mid(1)));
        return run(context, remaining);
    }
    return context.usageError(QStringLiteral("没有这种记录：%1（可用：inspection tracking "
                                             "temperature employee category plan training "
                                             "salesman）")
                                  .arg(kind));
}

int runDelete(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 2);
    const QString &kind = positional[0];
    const QString &key = positional[1];
    shell::Session &session = context.session();
    Outcome outcome = Outcome::done();
    if (kind == QLatin1String("inspection"))
        outcome = gsp::deleteFilledRecord(session, gsp::FilledKind::Inspection, key);
    else if (kind == QLatin1String("tracking"))
        outcome = gsp::deleteFilledRecord(session, gsp::FilledKind::Tracking, key);
    else if (kind == QLatin1String("inspection-line"))
        outcome = gsp::deleteFilledLine(session, gsp::FilledKind::Inspection, key.toLongLong());
    else if (kind == QLatin1String("tracking-line"))
        outcome = gsp::deleteFilledLine(session, gsp::FilledKind::Tracking, key.toLongLong());
    else if (kind == QLatin1String("temperature"))
        outcome = gsp::deleteTemperature(session, key.toLongLong());
    else if (kind == QLatin1String("employee"))
        outcome = gsp::deleteEmployee(session, key);
    else if (kind == QLatin1String("category"))
        outcome = gsp::deleteCategory(session, key.toLongLong());
    else if (kind == QLatin1String("plan"))
        outcome = gsp::deletePlan(session, key.toLongLong());
    else if (kind == QLatin1String("training"))
        outcome = gsp::deleteTraining(session, key.toLongLong());
    else
        return context.usageError(QStringLiteral("没有这种记录：%1（可用：inspection tracking "
                                                 "inspection-line tracking-line temperature "
                                                 "employee category plan training）")
                                      .arg(kind));
    require(outcome);
    return ExitDone;
}

} // namespace

void addGspEntryCommands(Registry &registry)
{
    registry.add({ QStringLiteral("gsp-add"),
        QStringLiteral("KIND ...  (inspection|tracking --warehouse W [--batch G[/PH]]... [--all]; "
                       "temperature --warehouse W --temp T --humidity H; employee --name N; "
                       "category NAME; plan --employee U... --topic T --planned DATE; "
                       "training --plan ID... --held DATE; salesman EMPLOYEE)"),
        QStringLiteral("登记GSP记录、温湿度、员工花名册、GSP参数、培训计划与记录，输出其编号"),
        runAdd });
    registry.add({ QStringLiteral("gsp-delete"), QStringLiteral("KIND KEY"),
        QStringLiteral("删除GSP记录（需要 --yes）"), runDelete });
}

} // namespace medistock::cli
