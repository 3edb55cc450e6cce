#include "bench/Pair.h"

#include <algorithm>
#include <ctime>
#include <vector>

namespace bench {
namespace {

double Now()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

} // namespace

double MedianOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

double CpuSeconds(const std::function<void()>& work)
{
    const double start = Now();
    work();
    return Now() - start;
}

void MeasurePair(benchmark::State& state, const std::function<void()>& ours,
                 const std::function<void()>& reference, double limit)
{
    std::vector<double> oursTimes;
    std::vector<double> referenceTimes;
    for (auto _ : state) {
        oursTimes.push_back(CpuSeconds(ours));
        referenceTimes.push_back(CpuSeconds(reference));
        state.SetIterationTime(oursTimes.back());
    }
    const double mine = MedianOf(oursTimes);
    const double theirs = MedianOf(referenceTimes);
    state.counters["ours_ms"] = mine * 1e3;
    state.counters["reference_ms"] = theirs * 1e3;
    state.counters["ratio"] = theirs > 0 ? mine / theirs : 0;
    if (limit > 0)
        state.counters["limit"] = limit;
}

void ReportFigure(benchmark::State& state, double value, double limit, const char* unit)
{
    state.counters["ratio"] = value;
    state.counters["limit"] = limit;
    state.SetLabel(unit);
}

void MeasureBar(benchmark::State& state, double barInMilliseconds, const char* label,
                const std::function<void()>& prepare, const std::function<void()>& work)
{
    constexpr int kRounds = 9;
    std::vector<double> times;
    for (auto _ : state) {
        for (int round = 0; round < kRounds; ++round) {
            prepare();
            times.push_back(CpuSeconds(work) * 1e3);
        }
    }
    const double median = MedianOf(times);
    state.counters["ours_ms"] = median;
    state.counters["reference_ms"] = barInMilliseconds;
    ReportFigure(state, median / barInMilliseconds, 1, label);
}

} // namespace bench
