// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/MemoryBench.h"
#include "bench/WindowBench.h"
#include "platform/windows/Questions.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>

namespace {

// A message means that what is measured did not happen.
class NoQuestions final : public IUserQuestions
{
public:
    Answer Ask(HWND, const QString& text, Buttons) override
    {
        std::cerr << text.toStdString() << '\n';
        std::abort();
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    NoQuestions questions;
    SetUserQuestions(&questions);
    if (bench::RunAsChild(argc, argv) || bench::RunInWindow(argc, argv))
        return 0;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
