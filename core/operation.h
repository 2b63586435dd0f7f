#pragma once

#include "core/dberror.h"
#include "core/interaction.h"
#include "core/outcome.h"

#include <utility>

namespace medistock::core {

// Tells the operator a refusal and returns it as the operation's outcome.
inline Outcome refuse(Interaction &interaction, const QString &message)
{
    interaction.inform(message);
    return Outcome::refused(message);
}

// Runs an operation's body and turns a database error into a shown, failed outcome. The body's
// transaction guard has already rolled everything back by the time the error arrives here.
template<class Body> Outcome guarded(Interaction &interaction, Body &&body)
{
    try {
        return std::forward<Body>(body)();
    } catch (const DbError &error) {
        interaction.inform(error.message());
        return Outcome::failed(error.message());
    }
}

} // namespace medistock::core
