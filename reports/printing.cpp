#include "reports/printing.h"

#include "core/connection.h"
#include "core/operation.h"
#include "reports/documentdata.h"
#include "reports/layout.h"
#include "reports/template.h"
#include "reports/texts.h"
#include "shell/rights.h"
#include "shell/session.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QSqlQuery>

namespace medistock::reports {

namespace {

const QSet<QString> &withCostPrices()
{
    static const QSet<QString> names { QStringLiteral("cgjh"), QStringLiteral("cgth"),
        QStringLiteral("cgd"), QStringLiteral("bsby"), QStringLiteral("cfd"),
        QStringLiteral("kbd") };
    return names;
}

// The form of a template without sale prices.
QString withoutSalePrices(const QString &name)
{
    static const QHash<QString, QString> forms {
        { QStringLiteral("spxs"), QStringLiteral("spxs4") },
        { QStringLiteral("spxs2"), QStringLiteral("spxs4") },
        { QStringLiteral("spxs3"), QStringLiteral("spxs4") },
        { QStringLiteral("xsth"), QStringLiteral("xsth4") },
        { QStringLiteral("xsth2"), QStringLiteral("xsth4") },
        { QStringLiteral("xsd"), QStringLiteral("xsd2") },
        { QStringLiteral("kcdbd2"), QStringLiteral("kcdbd") },
    };
    return forms.value(name, name);
}

// Positions of "其它操作": 7 "显示商品成本价", 9 "显示商品销售价".
constexpr int showCostPrice = 7;
constexpr int showSalePrice = 9;

} // namespace

QList<PrintStyle> stylesOf(const QString &key)
{
    if (key == QLatin1String("spxs"))
        return { { templateTitle(QStringLiteral("spxs")), QStringLiteral("spxs") },
            { templateTitle(QStringLiteral("spxs4")), QStringLiteral("spxs4") },
            { templateTitle(QStringLiteral("spxs2")), QStringLiteral("spxs2") } };
    if (key == QLatin1String("cgjh"))
        return { { templateTitle(QStringLiteral("cgjh")), QStringLiteral("cgjh") },
            { templateTitle(QStringLiteral("cgjh2")), QStringLiteral("cgjh2") } };
    const DocumentPrint *print = documentPrint(key);
    if (!print)
        return {};
    return { { templateTitle(print->defaultTemplate), print->defaultTemplate } };
}

QList<PrintStyle> styleChoices(const shell::Session &session, const QString &key)
{
    if ((key == QLatin1String("spxs") && session.params().flag("cs_cs010"))
        || (key == QLatin1String("cgjh") && session.params().flag("cs_cs011")))
        return stylesOf(key);
    return {};
}

QString templateFor(const shell::Session &session, const QString &key, const QString &chosen)
{
    const DocumentPrint *print = documentPrint(key);
    QString name = !chosen.isEmpty() ? chosen : (print ? print->defaultTemplate : key);
    if (withCostPrices().contains(name)
        && !shell::hasRight(session, QStringLiteral("qtcz"), showCostPrice))
        name += QLatin1Char('2');
    if (!shell::hasRight(session, QStringLiteral("qtcz"), showSalePrice))
        name = withoutSalePrices(name);
    return name;
}

namespace {

Result<ReportTemplate> loadTemplate(const TemplateFolders &folders, const QString &name)
{
    return readTemplate(folders.pathOf(name));
}

} // namespace

Result<PrintedDocument> prepareDocument(const shell::Session &session,
    const TemplateFolders &folders, const QString &key, const QString &number, const QString &style,
    const QDateTime &printed)
{
    core::Interaction &ui = session.ui();
    Result<PrintedDocument> result = Outcome::done();
    const Outcome outcome = core::guarded(ui, [&]() -> Outcome {
        if (!documentPrint(key))
            return core::refuse(ui, texts::unknownKey(key));
        if (!style.isEmpty()) {
            bool offered = false;
            for (const PrintStyle &s : stylesOf(key))
                offered = offered || s.templateName == style;
            if (!offered)
                return core::refuse(ui, texts::styleNotOffered(style, key));
        }
        const QString name = templateFor(session, key, style);
        Result<ReportTemplate> report = loadTemplate(folders, name);
        if (!report)
            return core::refuse(ui, report.message());
        Result<ReportData> data = documentData(session, key, number, name);
        if (!data)
            return core::refuse(ui, data.message());
        Result<PreparedReport> prepared = prepareReport(report.value(), data.value(), { printed },
            QFileInfo(folders.pathOf(name)).absolutePath());
        if (!prepared)
            return core::refuse(ui, prepared.message());
        result = PrintedDocument { key, number, name,
            templateTitle(name) + QLatin1Char(' ') + number, std::move(prepared.value()) };
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return result;
}

Result<PreparedReport> prepareWithData(const shell::Session &session,
    const TemplateFolders &folders, const QString &templateName, const ReportData &data,
    const QDateTime &printed)
{
    Result<ReportTemplate> report = loadTemplate(folders, templateName);
    if (!report)
        return core::refuse(session.ui(), report.message());
    ReportData filled = data;
    addCompanyVariables(session, filled);
    Result<PreparedReport> prepared = prepareReport(report.value(), filled, { printed },
        QFileInfo(folders.pathOf(templateName)).absolutePath());
    if (!prepared)
        return core::refuse(session.ui(), prepared.message());
    return prepared;
}

QStringList documentNumbersBetween(
    const shell::Session &session, const QString &key, QDate from, QDate to)
{
    QStringList numbers;
    const DocumentPrint *print = documentPrint(key);
    if (!print)
        return numbers;
    // Names from the print table, which holds schema names only.
    const QString sql = QStringLiteral("select distinct %1,%2 from %3 where %2>=? and %2<=? "
                                       "order by %2,%1")
                            .arg(print->numberColumn, print->dateColumn, print->table);
    session.db().forEach(sql,
        { from.toString(QStringLiteral("yyyy-MM-dd")),
            to.toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral(" 23:59:59") },
        [&](const QSqlQuery &q) {
            const QString number = q.value(0).toString();
            // The registrations' kinds share one table; each key takes its own prefix.
            if (print->table == QLatin1String("jxc_ysyfk_dj")
                && !print->prefixes.contains(number.left(2).toUpper()))
                return;
            if (!numbers.contains(number))
                numbers.append(number);
        });
    return numbers;
}

Result<int> printAll(const shell::Session &session, const TemplateFolders &folders,
    const QString &key, const QStringList &numbers,
    const std::function<bool(const PrintedDocument &)> &print, const QDateTime &printed)
{
    if (!documentPrint(key))
        return core::refuse(session.ui(), texts::unknownKey(key));
    QList<DocumentToPrint> documents;
    for (const QString &number : numbers)
        documents.append({ key, number });
    return printAll(session, folders, documents, print, printed);
}

Result<int> printAll(const shell::Session &session, const TemplateFolders &folders,
    const QList<DocumentToPrint> &documents,
    const std::function<bool(const PrintedDocument &)> &print, const QDateTime &printed)
{
    for (const DocumentToPrint &document : documents)
        if (!documentPrint(document.key))
            return core::refuse(session.ui(), texts::unknownKey(document.key));
    if (!session.ui().ask(texts::printAllQuestion()))
        return Outcome::refused(texts::printAllQuestion());
    int handed = 0;
    for (const DocumentToPrint &wanted : documents) {
        Result<PrintedDocument> document
            = prepareDocument(session, folders, wanted.key, wanted.number, {}, printed);
        if (!document)
            return document.outcome();
        if (!print(document.value()))
            break;
        ++handed;
    }
    return handed;
}

} // namespace medistock::reports
