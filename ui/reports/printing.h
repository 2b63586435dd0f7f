#pragma once

#include "reports/catalogue.h"
#include "reports/data.h"
#include "reports/printing.h"

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
//     ui::printAllDirect(workspace, QStringLiteral("spxs"), numbers, this);

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
// empty name leaves the column out), each cell its edit value (numbers stay numbers); the filter
// text goes into the variable "filter" and the operator into "aName".
reports::ReportData gridData(const Workspace &workspace, const QAbstractItemModel &model,
    const QStringList &fields, const QString &filter);

// The style dialog: the titles to choose from; the index chosen, or -1 when cancelled.
int chooseStyle(const QList<reports::PrintStyle> &styles, QWidget *parent);

// "连续打印": the question, then each document on the default printer without preview, in the
// order given; nothing after the question when the list is empty. `paper` receives each
// document instead of the printer (tests); without it a missing printer is told and nothing
// printed. Returns how many documents were printed.
int printAllDirect(Workspace &workspace, const QString &key, const QStringList &numbers,
    QWidget *parent, const std::function<bool(const reports::PrintedDocument &)> &paper = {});

} // namespace medistock::ui
