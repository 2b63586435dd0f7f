#pragma once

#include <memory>

namespace medistock::bench {

// Account sets a benchmark builds once and reuses across its runs live until the runs are over,
// and are closed before the application object goes: the SQL driver is a plugin that is unloaded
// with it, and a connection closed after that crashes the exit.
void keep(std::shared_ptr<void> object);
void releaseKept(); // benchmain calls it after the last run

template<typename T> T &keepForRun(std::unique_ptr<T> object)
{
    T &kept = *object;
    keep(std::shared_ptr<void>(std::move(object)));
    return kept;
}

} // namespace medistock::bench
