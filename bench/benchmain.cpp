#include "bench/keep.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <vector>

namespace medistock::bench {

namespace {
std::vector<std::shared_ptr<void>> &kept()
{
    static std::vector<std::shared_ptr<void>> objects;
    return objects;
}
} // namespace

void keep(std::shared_ptr<void> object)
{
    kept().push_back(std::move(object));
}

void releaseKept()
{
    while (!kept().empty())
        kept().pop_back();
}

} // namespace medistock::bench

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    medistock::bench::releaseKept();
    return 0;
}
