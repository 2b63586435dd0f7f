// The GSP records on the command line: "gsp RECORD ..." prints a record as tab-separated rows
// under a header line (or writes it to a spreadsheet with --export).
#include "app/cli/registry.h"

#include "core/rounding.h"
#include "gsp/derived.h"
#include "gsp/tables.h"
#include "shell/session.h"

namespace medistock::cli {

namespace {

// What a record takes besides the dates and the export.
enum Takes { Dates = 1, Warehouse = 2, Key = 4, Days = 8, Sex = 16, Summary = 32, Number = 64 };

struct Options
{
    gsp::RecordFilter filter;
    int days = -1;
    QString sex;
    bool summary = false;
    QString number;
};

struct RecordCommand
{
    const char *name;
    int takes;
    std::function<Result<gsp::RecordTable>(Context &, const Options &)> table;
};

QString cell(const QVariant &value)
{
    if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Int
        || value.typeId() == QMetaType::LongLong)
        return core::plainNumber(value.toDouble());
    return value.toString();
}

void printTable(Context &context, const gsp::RecordTable &table)
{
    context.out() << table.headers.join(QLatin1Char('\t')) << Qt::endl;
    for (const QVariantList &row : table.rows) {
        QStringList cells;
        for (const QVariant &value : row)
            cells.append(cell(value));
        context.out() << cells.join(QLatin1Char('\t')) << Qt::endl;
    }
}

// A list's rows as its table, or the list's refusal (already told).
template<class Rows, class Make>
Result<gsp::RecordTable> tableOf(const Result<Rows> &rows, Make make)
{
    if (!rows)
        return rows.outcome();
    return make(rows.value());
}

const std::vector<RecordCommand> &recordCommands()
{
    using gsp::RecordTable;
    static const std::vector<RecordCommand> commands {
        { "acceptance", Dates | Warehouse | Key,
            [](Context &c, const Options &o) {
                return tableOf(gsp::acceptanceRecord(c.session(), o.filter), gsp::acceptanceTable);
            } },
        { "prescriptions", Dates | Warehouse | Key,
            [](Context &c, const Options &o) {
                return tableOf(
                    gsp::prescriptionRecord(c.session(), o.filter), gsp::prescriptionTable);
            } },
        { "prescription-sales", Dates | Warehouse | Key,
            [](Context &c, const Options &o) {
                return tableOf(
                    gsp::prescriptionRecord(c.session(), o.filter), gsp::prescriptionSalesTable);
            } },
        { "splitting", Dates | Warehouse | Key,
            [](Context &c, const Options &o) {
                return tableOf(gsp::splittingRecord(c.session(), o.filter), gsp::splittingTable);
            } },
        { "expiry", Warehouse | Key | Days,
            [](Context &c, const Options &o) {
                const int days = o.days >= 0 ? o.days : gsp::nearExpiryDays(c.session().params());
                return tableOf(
                    gsp::expiryQuery(c.session(), days, o.filter.warehouse, o.filter.key),
                    [days](const auto &rows) { return gsp::expiryTable(rows, days); });
            } },
        { "restricted", Dates | Warehouse | Key | Summary,
            [](Context &c, const Options &o) {
                if (o.summary)
                    return tableOf(
                        gsp::restrictedSummary(c.session(), o.filter), gsp::restrictedSummaryTable);
                return tableOf(gsp::restrictedLedger(c.session(), o.filter), gsp::restrictedTable);
            } },
        { "inspections", Dates | Warehouse | Key | Number,
            [](Context &c, const Options &o) -> Result<RecordTable> {
                if (!o.number.isEmpty())
                    return gsp::filledLinesTable(gsp::FilledKind::Inspection,
                        gsp::filledLines(c.session(), gsp::FilledKind::Inspection, o.number));
                return tableOf(gsp::inspectionRecords(c.session(), o.filter), gsp::inspectionTable);
            } },
        { "tracking", Dates | Warehouse | Key | Number,
            [](Context &c, const Options &o) -> Result<RecordTable> {
                if (!o.number.isEmpty())
                    return gsp::filledLinesTable(gsp::FilledKind::Tracking,
                        gsp::filledLines(c.session(), gsp::FilledKind::Tracking, o.number));
                return tableOf(gsp::trackingRecords(c.session(), o.filter), gsp::trackingTable);
            } },
        { "temperatures", Dates | Warehouse,
            [](Context &c, const Options &o) {
                return tableOf(gsp::temperatureLog(c.session(), o.filter), gsp::temperatureTable);
            } },
        { "staff", Key | Sex,
            [](Context &c, const Options &o) {
                return tableOf(
                    gsp::staffRegister(c.session(), o.filter.key, o.sex), gsp::staffTable);
            } },
        { "plans", Dates | Key,
            [](Context &c, const Options &o) {
                return tableOf(gsp::trainingPlans(c.session(), o.filter), gsp::planTable);
            } },
        { "trainings", Dates | Key,
            [](Context &c, const Options &o) {
                return tableOf(gsp::trainingRecords(c.session(), o.filter), gsp::trainingTable);
            } },
    };
    return commands;
}

Options takeOptions(Context &context, Args &args, int takes)
{
    Options options;
    const auto text = [&](int flag, const char *name) {
        return (takes & flag) ? args.option(QString::fromLatin1(name)).value_or(QString())
                              : QString();
    };
    options.filter.from = text(Dates, "--from");
    options.filter.to = text(Dates, "--to");
    for (const QString &date : { options.filter.from, options.filter.to })
        if (!date.isEmpty())
            parseDate(context, date);
    options.filter.warehouse = text(Warehouse, "--warehouse");
    options.filter.key = text(Key, "--key");
    options.sex = text(Sex, "--sex");
    options.number = text(Number, "--number");
    options.summary = (takes & Summary) && args.flag(QStringLiteral("--summary"));
    const QString days = text(Days, "--days");
    if (!days.isEmpty()) {
        const Result<int> parsed = gsp::expiryDays(days);
        if (!parsed)
            throw Stop { context.usageError(parsed.message()) };
        options.days = parsed.value();
    }
    return options;
}

int runGsp(Context &context, Args &args)
{
    const std::optional<QString> exportTo = args.option(QStringLiteral("--export"));
    const QStringList positional = args.positional();
    const QString name = positional.value(0);
    for (const RecordCommand &command : recordCommands()) {
        if (name != QLatin1String(command.name))
            continue;
        const Options options = takeOptions(context, args, command.takes);
        takePositional(context, args, 1, 1);
        const Result<gsp::RecordTable> table = command.table(context, options);
        require(table.outcome());
        if (!exportTo) {
            printTable(context, table.value());
            return ExitDone;
        }
        const Outcome written = gsp::exportTable(table.value(), *exportTo);
        if (!written)
            context.interaction().inform(written.message());
        require(written);
        return ExitDone;
    }
    QStringList names;
    for (const RecordCommand &command : recordCommands())
        names.append(QString::fromLatin1(command.name));
    return context.usageError(
        QStringLiteral("没有这种记录：%1（可用：%2）").arg(name, names.join(QLatin1Char(' '))));
}

} // namespace

void addGspCommands(Registry &registry)
{
    registry.add({ QStringLiteral("gsp"),
        QStringLiteral("RECORD [--from DATE] [--to DATE] [--warehouse W] [--key K] [--days N] "
                       "[--sex S] [--summary] [--number NO] [--export FILE.xlsx]"),
        QStringLiteral("GSP记录：acceptance prescriptions prescription-sales splitting expiry "
                       "restricted inspections tracking temperatures staff plans trainings"),
        runGsp });
    addGspEntryCommands(registry);
}

} // namespace medistock::cli
