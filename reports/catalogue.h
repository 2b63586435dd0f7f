#pragma once

#include <QList>
#include <QString>

namespace medistock::reports {

// A template file of the report folder: its name without ".fr3" and the title the report-design
// screen shows on its button (empty for the templates only report screens use).
struct TemplateEntry
{
    QString name;
    QString title;
};

// The 66 templates offered for design, in the order of their buttons.
QList<TemplateEntry> designableTemplates();
// The templates report screens print with that are not offered for design and that this
// version ships (the POS reports, the GSP records, the return print of the drug ledger).
QList<TemplateEntry> reportOnlyTemplates();
// Every template shipped in the report folder.
QList<TemplateEntry> shippedTemplates();
// The title of a template; the name itself when it has none.
QString templateTitle(const QString &name);

// Where templates are read from: a user's edited copy in the data folder's "report" folder wins
// over the one shipped beside the program.
struct TemplateFolders
{
    QString user;
    QString shipped;

    // The file a print reads: the user's copy when there is one, else the shipped one.
    QString pathOf(const QString &name) const;
    // The file the designer saves to.
    QString userPathOf(const QString &name) const;
    bool hasUserCopy(const QString &name) const;
};

// The program's folders: the shipped templates in "report" beside the program (the environment
// variable MEDISTOCK_REPORT_DIR names another folder, for a program run from its build tree),
// the edited copies in "report" of the data folder.
TemplateFolders programTemplateFolders(const QString &dataFolder);

} // namespace medistock::reports
