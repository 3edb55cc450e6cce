// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of the error list share: a script with its problems, and what is to be seen of
// them in the stock engine.
#pragma once

#include "tests/engine/EngineFixture.h"

#include <Qsci/qsciscintillabase.h>

#include <gtest/gtest.h>

inline constexpr int kErrorIndicator = 3;
inline constexpr int kWarningIndicator = 5;
inline constexpr int kErrorMarker = 2;
inline constexpr int kWarningMarker = 9;

// The engine's answers about one text, through one window that shows it.
class Errors
{
public:
    explicit Errors(const EngineUnderTest& window) : m_engine(window) {}

    void SetNumbers() const
    {
        m_engine.Send(engine::message::ErrorsSetIndic, kErrorIndicator);
        m_engine.Send(engine::message::WarningsSetIndic, kWarningIndicator);
        m_engine.Send(engine::message::ErrorsSetMarkNum, kErrorMarker);
        m_engine.Send(engine::message::WarningsSetMarkNum, kWarningMarker);
    }

    int Add(const ErrorInfo& record, int owner = 1) const
    {
        return static_cast<int>(
            m_engine.Send(engine::message::ErrorAdd, static_cast<WPARAM>(owner), &record));
    }
    int Add(long start, long end, int severity = problem::Error, int owner = 1) const
    {
        ErrorInfo record;
        record.nStart = start;
        record.nEnd = end;
        record.nSeverity = severity;
        return Add(record, owner);
    }

    const ErrorInfo* First(int owner = problem::kAny) const
    {
        return Record(m_engine.Send(engine::message::ErrorGetFirst, static_cast<WPARAM>(owner)));
    }
    const ErrorInfo* Next(int owner = problem::kAny) const
    {
        return Record(m_engine.Send(engine::message::ErrorGetNext, static_cast<WPARAM>(owner)));
    }
    const ErrorInfo* Over(long position) const
    {
        return Record(
            m_engine.Send(engine::message::ErrorGetOverPos, static_cast<WPARAM>(position)));
    }
    ErrorMap& All(int owner = problem::kAny, int kind = problem::kAny) const
    {
        return *reinterpret_cast<ErrorMap*>(
            m_engine.Send(engine::message::ErrorsGetAll, static_cast<WPARAM>(owner), kind));
    }

    // "start-end" for each problem of the walk.
    std::string Walk(int owner = problem::kAny) const
    {
        std::string walk;
        for (const ErrorInfo* each = First(owner); each; each = Next(owner))
            walk += (walk.empty() ? "" : " ") + std::to_string(each->nStart) + '-' +
                    std::to_string(each->nEnd);
        return walk;
    }

    // The text that an indicator lies below, pieces divided by a bar.
    std::string Underlined(int indicator) const
    {
        std::string result;
        bool before = false;
        const long length = Stock(QsciScintillaBase::SCI_GETLENGTH);
        for (long at = 0; at < length; ++at) {
            const bool is = Stock(QsciScintillaBase::SCI_INDICATORVALUEAT,
                                  static_cast<unsigned long>(indicator), at) != 0;
            if (is && !before && !result.empty())
                result += '|';
            if (is)
                result += static_cast<char>(
                    Stock(QsciScintillaBase::SCI_GETCHARAT, static_cast<unsigned long>(at)));
            before = is;
        }
        return result;
    }

    std::vector<int> Lines(int marker) const
    {
        std::vector<int> lines;
        for (LRESULT line = 0; line < m_engine.Send(engine::message::GetLineCount); ++line) {
            if (m_engine.Send(engine::message::MarkerGet, static_cast<WPARAM>(line)) &
                (1 << marker))
                lines.push_back(static_cast<int>(line));
        }
        return lines;
    }

    void Show() const { m_engine.Send(engine::message::ErrorsShow); }
    // What the stock engine does before it paints.
    void Update() const
    {
        Q_EMIT static_cast<QsciScintillaBase*>(m_engine.Window())->SCN_UPDATEUI(0);
    }

    long Stock(unsigned message, unsigned long wParam = 0, long lParam = 0) const
    {
        return static_cast<QsciScintillaBase*>(m_engine.Window())
            ->SendScintilla(message, wParam, lParam);
    }

private:
    static const ErrorInfo* Record(LRESULT answer)
    {
        return reinterpret_cast<const ErrorInfo*>(answer);
    }

    const EngineUnderTest& m_engine;
};

using Lines = std::vector<int>;

class ErrorListTest : public testing::Test
{
protected:
    ErrorListTest()
    {
        m_engine.SetText(u"select one\nfrom two\nwhere three\n");
        m_errors.SetNumbers();
    }

    EngineUnderTest m_engine;
    Errors m_errors{m_engine};
};
