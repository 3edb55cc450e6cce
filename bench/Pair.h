// SPDX-License-Identifier: GPL-3.0-or-later
// A measured pair: ours and the reference, by turns, in CPU time, so that neither what the caches
// hold nor what else the machine does favours one of them.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <vector>

namespace bench {

// CPU seconds of the process that the work takes.
double CpuSeconds(const std::function<void()>& work);

// 0 if there are none.
double MedianOf(std::vector<double> values);

// Runs both as often as the benchmark iterates and reports the medians as the counters ours_ms,
// reference_ms and ratio, the ratios of single turns as lowest and highest, and with a limit above
// 0 the counter limit.
void MeasurePair(benchmark::State& state, const std::function<void()>& ours,
                 const std::function<void()>& reference, double limit);

// Reports a figure that is not a ratio, as the counter ratio beside its limit; the label names its
// unit. A limit in units of time, "us ..." or "ns ...", is that of the machine it was set on: it
// grows with what fixed work takes in the same run.
void ReportFigure(benchmark::State& state, double value, double limit, const char* unit);

// Reports the median CPU time of the work over a bar, both in milliseconds, as the counter ratio
// with the limit 1. The bar grows with what fixed work takes, measured in turns. The preparation
// before each run is not counted; the label tells what the work is.
void MeasureBar(benchmark::State& state, double barInMilliseconds, const char* label,
                const std::function<void()>& prepare, const std::function<void()>& work);

} // namespace bench
