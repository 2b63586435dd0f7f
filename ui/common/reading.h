#pragma once

#include "core/operation.h"

#include <utility>

namespace medistock::ui {

// Runs a screen's read (a list, a lookup) and tells a database error instead of letting it
// escape into the event loop. True when the read went through.
template<class Body> bool readSafely(core::Interaction &interaction, Body &&body)
{
    return core::guarded(interaction, [&] {
        std::forward<Body>(body)();
        return Outcome::done();
    }).ok();
}

} // namespace medistock::ui
