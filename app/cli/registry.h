#pragma once

#include "app/cli/args.h"
#include "app/cli/context.h"
#include "app/cli/documents.h"

#include <functional>
#include <vector>

namespace medistock::cli {

// Every command that reads or writes an account set logs in first (--user/--password), so that a
// wrong password stops it before it has read or written anything. Open commands touch no books
// (text helpers, creating the data folder, the names of the sets) or log in themselves (login).
enum class Access { LogsIn, Open };

struct Command
{
    QString name;
    QString usage; // the arguments, as shown in the help text
    QString summary; // one line
    std::function<int(Context &, Args &)> run;
    Access access = Access::LogsIn;
    bool paints = false; // lays out text, so the program starts with fonts (a GUI application)
};

class Registry
{
public:
    void add(Command command) { m_commands.push_back(std::move(command)); }
    const Command *find(const QString &name) const;
    const std::vector<Command> &commands() const { return m_commands; }
    // The document kinds that save, check, uncheck, delete and show dispatch to by prefix.
    DocumentKinds &documents() { return m_documents; }

private:
    std::vector<Command> m_commands;
    DocumentKinds m_documents;
};

// Each module's commands, added by the file that wires them.
void addCoreCommands(Registry &registry);
void addShellCommands(Registry &registry);
// The stock documents "DB", "PD", "BS", "BY" in the document registry, and count-sheet.
void addStockDocumentCommands(Registry &registry);
void addAccountsCommands(Registry &registry);
// save, check, uncheck, delete, show: dispatched to registry.documents() by prefix.
void addDocumentCommands(Registry &registry);
void addMasterDataCommands(Registry &registry);
void addStockCommands(Registry &registry);
// The purchase receipt "CJ" and return "CT" in the document registry.
void addPurchasingCommands(Registry &registry);
void addSalesCommands(Registry &registry);
// The loan "JH" and the return "HH" in the document registry, loan-open and loan-return.
void addLoansCommands(Registry &registry);
// statement: the customer and supplier statements as tab-separated rows.
void addStatementCommands(Registry &registry);
// gsp (the GSP records), with gsp-add and gsp-delete.
void addGspCommands(Registry &registry);
void addGspEntryCommands(Registry &registry);
// Members, points, top-ups, gifts and the till's documents.
void addMembersCommands(Registry &registry);
// "stats": the statistics reports, the summary's difference check and the cost resync.
void addStatisticsCommands(Registry &registry);
// print, print-all and print-sample.
void addReportCommands(Registry &registry);
// The till's reports, cash in and out and the shift handover.
void addPosCommands(Registry &registry);
// verify, backup and restore.
void addMaintenanceCommands(Registry &registry);

// The command an argument list runs (global options skipped); empty when there is none.
QString commandName(const QStringList &arguments);
// Parses the global options, runs the command and returns the exit status.
int runCli(
    const Registry &registry, const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace medistock::cli
