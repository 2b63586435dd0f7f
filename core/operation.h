#pragma once

#include "core/dberror.h"
#include "core/interaction.h"
#include "core/outcome.h"

namespace medistock::core {

// Tells the operator a refusal and returns it as the operation's outcome.
inline Outcome refuse(Interaction &interaction, const QString &message)
{
    interaction.inform(message);
    return Outcome::refused(message);
}

// How often an operation runs when another workstation keeps the database busy: each try waits
// the connection's busy timeout first.
constexpr int busyAttempts = 3;
// How often it runs when the server gives up its transaction for a conflict with another
// workstation's: such a try fails at once, so it gets more of them, each after a short pause.
constexpr int conflictAttempts = 12;

// Whether an operation that failed with `error` on its `attempt`-th run is run again; after a
// conflict it waits a short random while first, so that the two workstations part.
bool runAgain(const DbError &error, int attempt);

// Runs an operation's body and turns a database error into a shown, failed outcome. The body's
// transaction guard has already rolled everything back by the time the error arrives here. When
// the database stayed busy past the busy timeout the whole body runs again (it re-reads what it
// decides on, the document's status among it, so nothing it read before counts), up to
// busyAttempts times; after a server's conflict up to conflictAttempts times. Bodies ask their
// questions before they are guarded.
template<class Body> Outcome guarded(Interaction &interaction, Body &&body)
{
    for (int attempt = 1;; ++attempt) {
        try {
            return body();
        } catch (const DbError &error) {
            if (runAgain(error, attempt))
                continue;
            interaction.inform(error.message());
            return Outcome::failed(error.message());
        }
    }
}

} // namespace medistock::core
