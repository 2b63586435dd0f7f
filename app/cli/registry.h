#pragma once

#include "app/cli/args.h"
#include "app/cli/context.h"

#include <functional>
#include <vector>

namespace medistock::cli {

struct Command
{
    QString name;
    QString usage; // the arguments, as shown in the help text
    QString summary; // one line
    std::function<int(Context &, Args &)> run;
};

class Registry
{
public:
    void add(Command command) { m_commands.push_back(std::move(command)); }
    const Command *find(const QString &name) const;
    const std::vector<Command> &commands() const { return m_commands; }

private:
    std::vector<Command> m_commands;
};

// Each module's commands, added by the file that wires them.
void addCoreCommands(Registry &registry);
void addShellCommands(Registry &registry);
void addStockCommands(Registry &registry);

// Parses the global options, runs the command and returns the exit status.
int runCli(
    const Registry &registry, const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace medistock::cli
