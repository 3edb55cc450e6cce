// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Pair.h"

#include "platform/text/VectorState.h"

#include <algorithm>
#include <ctime>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace bench {
namespace {

double Now()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

// Work of the kind that editing is, the same each time: small texts made, compared and moved.
void Yardstick()
{
    std::vector<std::string> words;
    unsigned state = 1;
    for (int i = 0; i < 4000; ++i) {
        state = state * 1664525 + 1013904223;
        words.push_back("word " + std::to_string(state >> 8) + " of a script");
    }
    std::sort(words.begin(), words.end());
    benchmark::DoNotOptimize(words.data());
}

// What it takes, in milliseconds, on the machine that the limits in units of time were set on.
constexpr double kYardstick = 0.45;

// How much slower this machine is at this moment.
double SlownessOf(std::vector<double> yardsticks)
{
    return MedianOf(std::move(yardsticks)) * 1e3 / kYardstick;
}

bool IsTime(std::string_view unit)
{
    return unit.starts_with("us ") || unit.starts_with("ns ");
}

} // namespace

double MedianOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

double CpuSeconds(const std::function<void()>& work)
{
    platform::ClearUpperHalves(); // what the turn before has left is not this one's
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
    std::vector<double> ratios;
    for (std::size_t i = 0; i < oursTimes.size(); ++i)
        ratios.push_back(oursTimes[i] / referenceTimes[i]);
    const auto [lowest, highest] = std::minmax_element(ratios.begin(), ratios.end());
    state.counters["lowest"] = *lowest;
    state.counters["highest"] = *highest;
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
    std::vector<double> yardsticks;
    for (int i = 0; IsTime(unit) && i < 9; ++i)
        yardsticks.push_back(CpuSeconds(Yardstick));
    state.counters["ratio"] = value;
    state.counters["limit"] = yardsticks.empty() ? limit : limit * SlownessOf(yardsticks);
    state.SetLabel(unit);
}

void MeasureBar(benchmark::State& state, double barInMilliseconds, const char* label,
                const std::function<void()>& prepare, const std::function<void()>& work)
{
    constexpr int kRounds = 9;
    std::vector<double> times;
    std::vector<double> yardsticks;
    for (auto _ : state) {
        for (int round = 0; round < kRounds; ++round) {
            prepare();
            times.push_back(CpuSeconds(work) * 1e3);
            yardsticks.push_back(CpuSeconds(Yardstick));
        }
    }
    const double median = MedianOf(times);
    const double bar = barInMilliseconds * SlownessOf(yardsticks);
    const auto [lowest, highest] = std::minmax_element(times.begin(), times.end());
    state.counters["lowest"] = *lowest / bar;
    state.counters["highest"] = *highest / bar;
    state.counters["ours_ms"] = median;
    state.counters["reference_ms"] = bar;
    ReportFigure(state, median / bar, 1, label);
}

} // namespace bench
