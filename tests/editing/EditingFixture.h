// SPDX-License-Identifier: GPL-3.0-or-later
// An extended control over the engine, with a language of the test's own making. Texts show the
// selection in themselves: "a[bc]|d" has bc selected with the caret behind it, "a|[bc]d" with the
// caret in front, "a|b" has none.
#pragma once

#include "editing/ZNCoreEditorControlEx.h"
#include "platform/services/OptionsServer.h"
#include "tests/control/ControlFixture.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <memory>
#include <random>
#include <string>

// Opens what the control keeps for its subclasses.
class OpenControlEx : public CZNCoreEditorControlEx
{
public:
    using CZNCoreEditorControlEx::AutoIndentIn;
    using CZNCoreEditorControlEx::AutomaticCommenting;
    using CZNCoreEditorControlEx::m_bookmarkHandles;
    using CZNCoreEditorControlEx::RangeExtendAndGrab;
    using CZNCoreEditorControlEx::SetLineIndentationEx;
};

class ContinuedComments : public CZNOptionsServer
{
public:
    ContinuedComments() { SetOptionsServer(this); }
    ~ContinuedComments() override { SetOptionsServer(nullptr); }

    bool GetBool(int key) override
    {
        return key == option::ContinueComments ? on : CZNOptionsServer::GetBool(key);
    }

    bool on = true;
};

enum LineEndMode
{
    kCrLf = 1,
    kCr = 2,
    kLf = 3,
};

// Its window is one for the suite: making one reads the settings of every language.
class EditingTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { s_window = std::make_unique<Window>(); }
    static void TearDownTestSuite() { s_window.reset(); }

    EditingTest()
    {
        PutPlain(u"");
        control.Reset();
        control.AddSingleLineComment(QStringLiteral("--"));
        control.AddBlockComment(QStringLiteral("/*"), QStringLiteral("*/"));
        control.SetWordChars(u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_");
        control.SetBraces(QStringLiteral("(){}[]"));
        control.SetAutoIndent(0);
        control.SetTabWidth(4, 1);
        control.SetIndent(0, 1);
        control.SetUseTabs(0, 1);
        control.SetEOLMode(kLf, 1);
        control.SetSearchFlags(0, 1);
        control.ClearBookmarks();
    }

    // Nothing of what was there before can be undone.
    void Put(std::u16string marked)
    {
        const auto take = [&marked](char16_t mark) {
            const auto at = marked.find(mark);
            if (at != std::u16string::npos)
                marked.erase(at, 1);
            return static_cast<long>(at); // -1 for none
        };
        const long caret = take(u'|');
        const long start = take(u'[');
        const long end = take(u']');
        PutPlain(marked);
        if (start < 0)
            control.SetSel(std::max(caret, 0L), std::max(caret, 0L), 1);
        else if (caret >= 0 && caret <= start)
            control.SetSel(end, start, 1);
        else
            control.SetSel(start, end, 1);
    }

    void PutPlain(const std::u16string& text)
    {
        control.SetReadOnly(0, 1);
        control.SetUndoCollection(0, 1);
        control.ClearAll(1);
        control.AddTextNoProcess(static_cast<int>(text.size()), text.data(), 1);
        control.SetUndoCollection(1, 1);
        control.EmptyUndoBuffer(1);
        control.SetSavePoint(1);
        control.SetSel(0, 0, 1);
    }

    std::u16string Text()
    {
        std::u16string text(static_cast<std::size_t>(control.GetLength(1)), u'\0');
        control.GetText(static_cast<int>(text.size()) + 1, text.data(), 1);
        return text;
    }

    std::u16string Marked()
    {
        std::u16string text = Text();
        const auto caret = static_cast<std::size_t>(control.GetCurrentPos(1));
        const auto anchor = static_cast<std::size_t>(control.GetAnchor(1));
        if (caret == anchor)
            return text.insert(caret, u"|");
        text.insert(std::max(caret, anchor), caret > anchor ? u"]|" : u"]");
        return text.insert(std::min(caret, anchor), caret < anchor ? u"|[" : u"[");
    }

    std::u16string TextAfterUndo()
    {
        control.Undo(1);
        return Text();
    }

    void Type(char16_t c)
    {
        const int key = c == u'\r' ? static_cast<int>(Qt::Key_Return) : static_cast<int>(Qt::Key_A);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(QChar(c)));
        QApplication::sendEvent(control.GetSafeHwnd(), &press);
    }
    void Enter() { Type(u'\r'); }

private:
    struct Window
    {
        Window()
        {
            control.SubclassWindow(CreateWindowOfClass(engine::kWindowClass, WS_CHILD,
                                                       RECT{0, 0, 400, 300}, parent.widget()));
            parent.control = &control;
        }
        ~Window() { parent.control = nullptr; }

        ParentWindow parent;
        OpenControlEx control;
    };
    static inline std::unique_ptr<Window> s_window;

protected:
    OpenControlEx& control = s_window->control;
};

// Texts of what the operations look at, with what text may hold besides.
class RandomText
{
public:
    explicit RandomText(unsigned seed) : m_random(seed) {}

    int Number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }

    std::u16string Text(int pieces)
    {
        static const std::u16string kPieces[] = {u"a",
                                                 u"b1",
                                                 u" ",
                                                 u"  ",
                                                 u"\t",
                                                 u"--",
                                                 u"-- ",
                                                 u"/*",
                                                 u"*/",
                                                 u"**",
                                                 u"\n",
                                                 u"\n",
                                                 u"\r",
                                                 u"{",
                                                 u"}",
                                                 u"(",
                                                 u")",
                                                 u"é",
                                                 u"İ",
                                                 u"漢",
                                                 u"\U0001F600",
                                                 u"_x",
                                                 u"*",
                                                 u"/",
                                                 u"\"",
                                                 u"10",
                                                 u"9",
                                                 u"'",
                                                 u";",
                                                 u"\r\n",
                                                 std::u16string(1, u'\0'),
                                                 std::u16string(1, char16_t(0xD800))};
        std::u16string text;
        for (int i = Number(pieces + 1); i > 0; --i)
            text += kPieces[static_cast<std::size_t>(Number(std::size(kPieces)))];
        return text;
    }

private:
    std::mt19937 m_random;
};
