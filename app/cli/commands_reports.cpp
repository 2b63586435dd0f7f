// Commands of printing: a document through its key into a PDF, every document of a kind in a date
// range into one PDF ("连续打印"), and a template filled with sample data as the designer
// previews it.
#include "app/cli/registry.h"

#include "reports/catalogue.h"
#include "reports/layout.h"
#include "reports/printing.h"
#include "reports/render.h"
#include "reports/samples.h"
#include "reports/template.h"
#include "shell/session.h"

#include <QFileInfo>

namespace medistock::cli {

namespace {

QString requirePdf(Context &context, Args &args)
{
    const std::optional<QString> pdf = args.option(QStringLiteral("--pdf"));
    if (!pdf || pdf->isEmpty())
        throw Stop { context.usageError(QStringLiteral("请用 --pdf FILE 指定输出的 PDF 文件")) };
    return *pdf;
}

reports::TemplateFolders folders(Context &context)
{
    return reports::programTemplateFolders(context.dataFolder());
}

void writeOut(Context &context, const reports::PreparedReport &report, const QString &pdf,
    const QString &title)
{
    const Outcome written = reports::writePdf(report, pdf, title);
    if (!written) {
        context.interaction().inform(written.message());
        throw Stop { ExitError };
    }
    context.out() << QStringLiteral("已打印：") << pdf << QStringLiteral("，共")
                  << report.pages.size() << QStringLiteral("页") << Qt::endl;
}

int runPrint(Context &context, Args &args)
{
    const QString pdf = requirePdf(context, args);
    const QString style = args.option(QStringLiteral("--style")).value_or(QString());
    const QStringList positional = takePositional(context, args, 2, 2);
    shell::Session &session = context.session();
    const Result<reports::PrintedDocument> document = reports::prepareDocument(
        session, folders(context), positional.at(0), positional.at(1), style);
    require(document.outcome());
    writeOut(context, document->report, pdf, document->title);
    return ExitDone;
}

int runPrintAll(Context &context, Args &args)
{
    const QString pdf = requirePdf(context, args);
    const std::optional<QString> from = args.option(QStringLiteral("--from"));
    const std::optional<QString> to = args.option(QStringLiteral("--to"));
    if (!from || !to)
        return context.usageError(QStringLiteral("请用 --from 和 --to 指定日期范围"));
    const QString key = takePositional(context, args, 1, 1).first();
    const QDate first = parseDate(context, *from);
    const QDate last = parseDate(context, *to);
    shell::Session &session = context.session();
    const QStringList numbers = reports::documentNumbersBetween(session, key, first, last);
    reports::PreparedReport all;
    const Result<int> printed = reports::printAll(
        session, folders(context), key, numbers, [&](const reports::PrintedDocument &document) {
            all.pages += document.report.pages;
            return true;
        });
    require(printed.outcome());
    if (printed.value() == 0)
        return ExitDone;
    writeOut(context, all, pdf, reports::templateTitle(key));
    return ExitDone;
}

int runPrintSample(Context &context, Args &args)
{
    const QString pdf = requirePdf(context, args);
    const QString name = takePositional(context, args, 1, 1).first();
    const reports::TemplateFolders where = folders(context);
    const Result<reports::ReportTemplate> report = reports::readTemplate(where.pathOf(name));
    if (!report) {
        context.interaction().inform(report.message());
        return ExitRefused;
    }
    const Result<reports::PreparedReport> prepared
        = reports::prepareReport(report.value(), reports::sampleData(report.value()),
            { QDateTime::currentDateTime() }, QFileInfo(where.pathOf(name)).absolutePath());
    if (!prepared) {
        context.interaction().inform(prepared.message());
        return ExitRefused;
    }
    writeOut(context, prepared.value(), pdf, reports::templateTitle(name));
    return ExitDone;
}

} // namespace

void addReportCommands(Registry &registry)
{
    registry.add({ QStringLiteral("print"), QStringLiteral("KEY NUMBER [--style S] --pdf FILE"),
        QStringLiteral("按单据类型（spxs、cgjh、kcdb……）打印一张单据到 PDF；--style 选打印样式"
                       "（如 spxs4、cgjh2）"),
        runPrint, Access::LogsIn, true });
    registry.add({ QStringLiteral("print-all"),
        QStringLiteral("KIND --from yyyy-MM-dd --to yyyy-MM-dd --pdf FILE"),
        QStringLiteral("连续打印：日期范围内该类单据逐张打印到同一个 PDF（先询问）"), runPrintAll,
        Access::LogsIn, true });
    registry.add({ QStringLiteral("print-sample"), QStringLiteral("TEMPLATE --pdf FILE"),
        QStringLiteral("用示例数据预览报表模板（与报表设计的预览相同）"), runPrintSample,
        Access::Open, true });
}

} // namespace medistock::cli
