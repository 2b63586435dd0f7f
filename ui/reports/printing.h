#pragma once

#include "reports/catalogue.h"
#include "reports/data.h"
#include "reports/printing.h"
#include "ui/common/printing.h"

#include <QString>
#include <QStringList>

#include <functional>

class QAbstractItemModel;
class QWidget;

namespace medistock::ui {

struct Workspace;
class PreviewDialog;

// Printing from the screens, one call each. A document screen's F8:
//     ui::printWithPreview(workspace, QStringLiteral("spxs"), number, this);
// a report screen's F8 with the rows it shows:
//     ui::printRowsWithPreview(workspace, QStringLiteral("kccx"),
//         ui::gridData(workspace, *model, { "ck_name", "g_sn", ... }, filterText), this);
// a query's "连续打印":
//     ui::printAllDirect(workspace, { { QStringLiteral("spxs"), number }, ... }, this);
// The screens reach them through the workspace's handlers, which installPrinting sets.

// Sets the workspace's print handlers: a document through its key with the style question and
// preview, a query's grid through its key's template, "连续打印" on the default printer.
void installPrinting(Workspace &workspace);

// Workspace::print: a request with a number prints that document (printWithPreview), one with a
// grid prints its rows (printRowsWithPreview).
void printRequested(Workspace &workspace, QWidget *parent, const PrintRequest &request);

// The template folders of the workspace: the edited copies in the data folder, the shipped ones
// beside the program.
reports::TemplateFolders templateFolders(const Workspace &workspace);

// Asks for the style when the key offers a choice ("选择打印单据样式"), prepares the document and
// opens the preview (window-modal, deleted when closed). Returns the preview, or nullptr when the
// choice was cancelled or the print refused (the refusal has been told).
PreviewDialog *printWithPreview(
    Workspace &workspace, const QString &key, const QString &number, QWidget *parent);

// Opens the preview of a report template filled with a screen's data ("Lines" and variables).
PreviewDialog *printRowsWithPreview(Workspace &workspace, const QString &templateName,
    const reports::ReportData &data, QWidget *parent);

// A grid's rows as a template's "Lines": column i of the model becomes the field fields[i] (an
// empty name leaves the column out), each cell its edit value (numbers stay numbers); the first
// `rows` rows (all when negative; a totals row is left to the template's own sums). The filter
// text goes into the variable "filter" and the operator into "aName".
reports::ReportData gridData(const Workspace &workspace, const QAbstractItemModel &model,
    const QStringList &fields, const QString &filter, int rows = -1);

// The style dialog: the titles to choose from; the index chosen, or -1 when cancelled.
int chooseStyle(const QList<reports::PrintStyle> &styles, QWidget *parent);

// "连续打印" (Workspace::printAll): the question, then each document (key and number) on the
// default printer without preview, in the order given; nothing after the question when the list
// is empty. `paper` receives each document instead of the printer (tests); without it a missing
// printer is told and nothing printed. Returns how many documents were printed.
int printAllDirect(Workspace &workspace, const QList<PrintRequest> &documents, QWidget *parent,
    const std::function<bool(const reports::PrintedDocument &)> &paper = {});

} // namespace medistock::ui
