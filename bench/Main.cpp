#include "bench/MemoryBench.h"

#include <QApplication>

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (bench::RunAsChild(argc, argv))
        return 0;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
