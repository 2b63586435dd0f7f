#include "ui/reports/printing.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "reports/render.h"
#include "reports/texts.h"
#include "ui/common/workspace.h"
#include "ui/reports/previewdialog.h"

#include <QAbstractItemModel>
#include <QInputDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace medistock::ui {

reports::TemplateFolders templateFolders(const Workspace &workspace)
{
    return reports::programTemplateFolders(workspace.folder());
}

reports::ReportData gridData(const Workspace &workspace, const QAbstractItemModel &model,
    const QStringList &fields, const QString &filter, int rows)
{
    reports::DataSet set;
    set.name = QStringLiteral("Lines");
    QList<int> columns;
    for (int c = 0; c < std::min(int(fields.size()), model.columnCount()); ++c)
        if (!fields.at(c).isEmpty()) {
            columns.append(c);
            set.fields.append(fields.at(c));
        }
    const int count = rows < 0 ? model.rowCount() : std::min(rows, model.rowCount());
    for (int row = 0; row < count; ++row) {
        QVariantList values;
        for (int c : columns)
            values.append(model.data(model.index(row, c), Qt::EditRole));
        set.rows.append(values);
    }
    reports::ReportData data;
    data.setText(QStringLiteral("filter"), filter);
    data.setText(QStringLiteral("aName"), workspace.session.user().name);
    data.datasets.append(set);
    return data;
}

int chooseStyle(const QList<reports::PrintStyle> &styles, QWidget *parent)
{
    QStringList titles;
    for (const reports::PrintStyle &style : styles)
        titles.append(style.title);
    bool ok = false;
    const QString chosen = QInputDialog::getItem(
        parent, reports::texts::styleTitle(), reports::texts::stylePrompt(), titles, 0, false, &ok);
    return ok ? int(titles.indexOf(chosen)) : -1;
}

namespace {

PreviewDialog *openPreview(reports::PreparedReport report, const QString &title, QWidget *parent)
{
    auto *preview = new PreviewDialog(std::move(report), title, parent);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->open();
    return preview;
}

} // namespace

PreviewDialog *printWithPreview(
    Workspace &workspace, const QString &key, const QString &number, QWidget *parent)
{
    QString style;
    const QList<reports::PrintStyle> styles = reports::styleChoices(workspace.session, key);
    if (!styles.isEmpty()) {
        const int chosen = chooseStyle(styles, parent);
        if (chosen < 0)
            return nullptr;
        style = styles.at(chosen).templateName;
    }
    Result<reports::PrintedDocument> document = reports::prepareDocument(
        workspace.session, templateFolders(workspace), key, number, style);
    if (!document)
        return nullptr;
    return openPreview(std::move(document->report), document->title, parent);
}

PreviewDialog *printRowsWithPreview(Workspace &workspace, const QString &templateName,
    const reports::ReportData &data, QWidget *parent)
{
    Result<reports::PreparedReport> report = reports::prepareWithData(
        workspace.session, templateFolders(workspace), templateName, data);
    if (!report)
        return nullptr;
    return openPreview(std::move(report.value()), reports::templateTitle(templateName), parent);
}

int printAllDirect(Workspace &workspace, const QList<PrintRequest> &documents, QWidget *parent,
    const std::function<bool(const reports::PrintedDocument &)> &paper)
{
    Q_UNUSED(parent);
    std::function<bool(const reports::PrintedDocument &)> print = paper;
    std::unique_ptr<QPrinter> printer;
    if (!print) {
        const QPrinterInfo chosen = QPrinterInfo::defaultPrinter();
        print = [&](const reports::PrintedDocument &document) {
            if (!printer) {
                if (chosen.isNull()) {
                    workspace.session.ui().inform(reports::texts::noPrinter());
                    return false;
                }
                printer = std::make_unique<QPrinter>(chosen, QPrinter::HighResolution);
                printer->setFullPage(true);
            }
            printer->setDocName(document.title);
            return reports::paintReport(*printer, document.report);
        };
    }
    QList<reports::DocumentToPrint> wanted;
    for (const PrintRequest &document : documents)
        wanted.append({ document.key, document.number });
    const Result<int> printed
        = reports::printAll(workspace.session, templateFolders(workspace), wanted, print);
    return printed ? printed.value() : 0;
}

void printRequested(Workspace &workspace, QWidget *parent, const PrintRequest &request)
{
    if (!request.number.isEmpty())
        printWithPreview(workspace, request.key, request.number, parent);
    else if (request.grid) {
        reports::ReportData data
            = gridData(workspace, *request.grid, request.fields, request.filter, request.gridRows);
        for (const auto &[name, value] : request.variables)
            data.setText(name, value);
        printRowsWithPreview(workspace, request.key, data, parent);
    }
}

void installPrinting(Workspace &workspace)
{
    workspace.print = printRequested;
    workspace.printAll
        = [](Workspace &where, QWidget *parent, const QList<PrintRequest> &documents) {
              return printAllDirect(where, documents, parent);
          };
}

} // namespace medistock::ui
