// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/ChannelWalk.h"

#include "tests/engine/MessageAnswers.h"

#include <Qsci/qsciscintillabase.h>

#include <QTest>
#include <QWidget>

#include <algorithm>
#include <climits>
#include <iostream>
#include <utility>

namespace msg = engine::message;
using engine::Kind;
using engine::MessageRow;

namespace {

constexpr long kLongest = 2000;

constexpr std::u16string_view kPieces[] = {
    u"a",
    u"select ",
    u"\t",
    u" ",
    u"\r\n",
    u"\n",
    u"\r",
    u"\ngo\n",
    u"begin\n",
    u"end\n",
    u"/*",
    u"*/",
    u"-- x\n",
    u"'",
    u"{",
    u")",
    u"\u00e9",
    u"\u4e2d\u6587",
    u"a\u0301",
    u"\u05d0\u05d1",
    u"\U0001F600",
    u"\ufeff",
    u"\u2028",
    u"\x01",
    u"\xFFFF",
    u"\xFFFE",
    u"\xFDD0",
    u"\xD83F\xDFFE",
    u"\xDBFF\xDFFF",
    u"\xD800",
    u"\xDC00",
    {u"\0", 1},
};

constexpr long kNumbers[] = {-1,      0,       1,        2,        3,       8,
                             33,      255,     256,      1000,     65536,   1000000000,
                             INT_MAX, INT_MIN, LONG_MAX, LONG_MIN, 1L << 40};

constexpr const char* kImages[] = {"/* XPM", "/* XPM */ \"1 1 1 1\" \"x c #ff8000\" \"x\"",
                                   "/* XPM */ \"9 9 9 9\""};

constexpr int kKeys[] = {Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,        Qt::Key_Down,
                         Qt::Key_Home, Qt::Key_End,    Qt::Key_Backspace, Qt::Key_Delete,
                         Qt::Key_Tab,  Qt::Key_Return, Qt::Key_Insert,    Qt::Key_PageDown,
                         Qt::Key_X,    Qt::Key_Escape, Qt::Key_Z,         Qt::Key_V};

// So many units for the answer, and some behind them that are nobody's.
template <typename T>
class Room
{
public:
    explicit Room(long size)
        : m_size(static_cast<std::size_t>(std::max(size, 0L))), m_units(m_size + kGuard, kUntouched)
    {}
    T* Data() { return m_units.data(); }
    bool IsKept() const
    {
        return std::all_of(m_units.begin() + static_cast<std::ptrdiff_t>(m_size), m_units.end(),
                           [](T unit) { return unit == kUntouched; });
    }

private:
    static constexpr std::size_t kGuard = 64;
    static constexpr T kUntouched = static_cast<T>(0x5A5B);

    std::size_t m_size;
    std::vector<T> m_units;
};

template <typename T>
LPARAM Address(const T* object)
{
    return reinterpret_cast<LPARAM>(object);
}

} // namespace

ChannelWalk::ChannelWalk(Draw draw) : m_draw(std::move(draw))
{
    for (EngineUnderTest& window : m_windows) {
        window.Parent().GetSafeHwnd()->resize(300, 200);
        window.Parent().GetSafeHwnd()->show();
        window.Window()->show();
        m_documents.push_back(window.Send(msg::GetDocPointer));
        window.Send(msg::AddRefDocument, 0, m_documents.back());
        m_held.push_back(m_documents.back());
    }
    for (const char16_t* text : {u"select", u"s\u00e9l", u"\xFFFF"})
        m_proposals.push_back(std::make_shared<znsqlassist::SQLCompletionProposal>(text));
    m_proposals.push_back(nullptr);
}

// Those that the walk has given back meanwhile are given back in vain.
ChannelWalk::~ChannelWalk()
{
    for (const LRESULT document : m_held)
        Send(msg::ReleaseDocument, 0, document);
}

bool ChannelWalk::Step()
{
    m_window = &m_windows[static_cast<std::size_t>(Pick(0, 2))];
    if (Send(msg::GetLength) > kLongest || Pick(0, 400) == 0)
        Renew();
    const long what = Pick(0, 39);
    if (m_isTold)
        std::cerr << m_window - m_windows << ' ' << (what < 4 ? std::to_string(what) + "\n" : "");
    switch (what) {
    case 0:
        Hide();
        break;
    case 1:
        PressKey();
        break;
    case 2:
        UseMouse();
        break;
    case 3:
        m_window->Window()->grab();
        break;
    default:
        SendAny();
    }
    m_window->Parent().heard.clear();
    if (Pick(0, 15) == 0 || m_isTold)
        CheckText();
    return m_fault.empty();
}

std::u16string ChannelWalk::AnyText()
{
    std::u16string text;
    for (long pieces = Pick(0, 12); pieces > 0; --pieces)
        text += AnyOf(kPieces);
    return text;
}

long ChannelWalk::AnyPlace()
{
    return Pick(0, 9) == 0 ? AnyOf(kNumbers) : Pick(-1, Send(msg::GetLength));
}

long ChannelWalk::AnyLine()
{
    return Pick(0, 9) == 0 ? AnyOf(kNumbers) : Pick(-1, Send(msg::GetLineCount));
}

long ChannelWalk::AnyNumber()
{
    return Pick(0, 2) == 0 ? AnyOf(kNumbers) : Pick(-1, 12);
}

// A fresh text, now and then a long one, and settings that make nothing slow.
void ChannelWalk::Renew()
{
    Send(msg::SetReadOnly, WPARAM{0});
    std::u16string text;
    for (long times = Pick(0, 8) == 0 ? 40 : Pick(0, 8); times > 0; --times)
        text += AnyText();
    Send(msg::SetText, WPARAM{0}, text.c_str());
    Send(msg::SetTabWidth, WPARAM{8});
    Send(msg::SetIndent, WPARAM{0});
    Send(msg::SetZoom, WPARAM{0});
    Send(msg::SetWrapMode, static_cast<WPARAM>(Pick(0, 2)));
}

void ChannelWalk::Hide()
{
    const long line = AnyLine();
    if (Pick(0, 1)) {
        Send(msg::SetFoldLevel, static_cast<WPARAM>(line),
             LPARAM{0x400 + Pick(0, 3) + 0x2000 * Pick(0, 1)});
        Send(msg::ToggleFold, static_cast<WPARAM>(line));
    } else {
        const long more = Pick(0, 5);
        Send(msg::HideLines, static_cast<WPARAM>(line),
             LPARAM{line > LONG_MAX - more ? line : line + more});
    }
}

void ChannelWalk::PressKey()
{
    constexpr Qt::KeyboardModifier kModifiers[] = {Qt::NoModifier, Qt::ShiftModifier,
                                                   Qt::ControlModifier, Qt::AltModifier};
    const Qt::KeyboardModifiers modifiers = AnyOf(kModifiers) | AnyOf(kModifiers);
    const int key = AnyOf(kKeys);
    if (m_isTold)
        std::cerr << "key " << std::hex << key << ' ' << modifiers.toInt() << std::dec << std::endl;
    QTest::keyClick(m_window->Window(), static_cast<Qt::Key>(key), modifiers);
}

void ChannelWalk::UseMouse()
{
    auto* viewport =
        m_window->Window()->findChild<QWidget*>(QStringLiteral("qt_scrollarea_viewport"));
    const auto point = [this] {
        return QPoint(static_cast<int>(Pick(0, 300)), static_cast<int>(Pick(0, 200)));
    };
    const Qt::KeyboardModifiers modifiers = Pick(0, 2) ? Qt::NoModifier : Qt::AltModifier;
    QTest::mousePress(viewport, Qt::LeftButton, modifiers, point());
    QTest::mouseMove(viewport, point());
    QTest::mouseRelease(viewport, Qt::LeftButton, modifiers, point());
}

// The row's message with parameters of its kinds, kept alive for as long as it takes.
void ChannelWalk::SendAny()
{
    const MessageRow& row = AnyOf(engine::kMessageRows);
    m_units = AnyText();
    m_key = AnyText();
    LPARAM w = Value(row.wParam, m_key);
    LPARAM l = Value(row.lParam, m_units);
    switch (row.number) {
    case msg::Allocate:
        w = std::min(w, 1000000L);
        break;
    case msg::SetLengthForEncode:
        w = Pick(-1, 8);
        break;
    case msg::GetText:
    case msg::GetCurLine:
        w = Pick(-1, Send(msg::GetLength) + 3);
        return SendWithRoom(row, w, w);
    case msg::GetLine:
        return SendWithRoom(row, w, Send(msg::LineLength, static_cast<WPARAM>(w)) + 1);
    case msg::GetSelText:
        return SendWithRoom(row, 0, Send(msg::GetSelectionEnd) - Send(msg::GetSelectionStart) + 1);
    case msg::GetProperty:
    case msg::GetPropertyExpanded:
        return SendWithRoom(row, w, Send(row.number, static_cast<WPARAM>(w)) + 1);
    case msg::EncodedFromUTF8:
        w = Address("caf\xc3\xa9\xf0\x9f\x98\x80\xff ");
        return SendWithRoom(row, w, Send(row.number, static_cast<WPARAM>(w)) + 1);
    case msg::TargetAsUTF8:
        return SendWithRoom<char>(row, 0, Send(row.number) + 1);
    case msg::GetTextRange:
        return ReadRange(row, 1, 1);
    case msg::GetStyledText:
        return ReadRange(row, 2, 2);
    case msg::CreateDocument:
        return;
    default:
        if (row.wParam == Kind::Count)
            w = Pick(0, 3) ? static_cast<long>(m_units.size()) : Pick(-1, 0);
        if (row.lParam == Kind::StylesIn || row.lParam == Kind::CellsIn)
            w = Pick(0, static_cast<long>(m_units.size()));
    }
    if (m_isTold)
        std::cerr << row.name << ' ' << w << ' ' << l << std::endl;
    if (row.number == msg::AddRefDocument)
        m_held.push_back(l);
    Release(row, Send(row.number, static_cast<WPARAM>(w), l));
}

LPARAM ChannelWalk::Value(Kind kind, std::u16string& text)
{
    switch (kind) {
    case Kind::None:
    case Kind::Pointer:
    case Kind::Window:
        return 0;
    case Kind::Pos:
        return AnyPlace();
    case Kind::Line:
        return AnyLine();
    case Kind::Flag:
        return Pick(0, 1);
    case Kind::TextIn:
    case Kind::CellsIn:
    case Kind::StylesIn:
        text.shrink_to_fit();
        return Address(text.c_str());
    case Kind::BytesIn:
        return Address(AnyOf(kImages));
    case Kind::FindIo:
        m_find = {{static_cast<int>(AnyPlace()), static_cast<int>(AnyPlace())}, text.c_str(), {}};
        return Address(&m_find);
    case Kind::FormatIo:
        m_format = {Pick(0, 1) ? &m_painter : nullptr,
                    nullptr,
                    {0, 0, 90, 60},
                    {0, 0, 100, 70},
                    {static_cast<int>(AnyPlace()), static_cast<int>(AnyPlace())}};
        return Address(&m_format);
    case Kind::Document:
        return Pick(0, 3) ? m_documents[static_cast<std::size_t>(Pick(0, 2))] : 0;
    case Kind::Config:
        m_config = {nullptr, 1, static_cast<int>(AnyNumber()), 1};
        return Address(&m_config);
    case Kind::Proposals:
        return Address(&m_proposals);
    case Kind::ErrorIn:
        m_error.nStart = AnyPlace();
        m_error.nEnd = AnyPlace();
        m_error.nLine = static_cast<int>(AnyLine());
        return Address(&m_error);
    case Kind::PairIn:
        m_pair = {static_cast<int>(AnyPlace()), static_cast<int>(AnyPlace())};
        return Address(&m_pair);
    case Kind::PairIo:
        m_positions = {AnyPlace(), AnyPlace()};
        return Address(&m_positions);
    default:
        return AnyNumber();
    }
}

template <typename T>
void ChannelWalk::SendWithRoom(const MessageRow& row, LPARAM w, long room)
{
    Room<T> buffer(room);
    Send(row.number, static_cast<WPARAM>(w), Address(buffer.Data()));
    if (!buffer.IsKept())
        m_fault = std::string(row.name) + " wrote behind its room";
}

void ChannelWalk::ReadRange(const MessageRow& row, long times, long terminator)
{
    const int start = static_cast<int>(Pick(0, Send(msg::GetLength)));
    const int end = static_cast<int>(Pick(start, Send(msg::GetLength)));
    Room<char16_t> buffer(times * (end - start) + terminator);
    TextRange range{{start, end}, buffer.Data()};
    Send(row.number, WPARAM{0}, Address(&range));
    if (!buffer.IsKept())
        m_fault = std::string(row.name) + " wrote behind its room";
}

void ChannelWalk::CheckText()
{
    const std::u16string text = m_window->Text();
    const auto length = static_cast<LRESULT>(text.size());
    if (Send(msg::GetLength) != length)
        m_fault = "GetLength is not that of the text";
    for (const UINT number :
         {msg::GetCurrentPos, msg::GetAnchor, msg::GetTargetStart, msg::GetTargetEnd}) {
        const LRESULT place = Send(number);
        const bool isInside = place > 0 && place < length &&
                              (text[static_cast<std::size_t>(place)] & 0xFC00) == 0xDC00;
        if (place < 0 || place > length || isInside)
            m_fault = "no place in the text: message " + std::to_string(number) + " answers " +
                      std::to_string(place);
    }
    CheckSelections();
}

// Of all carets, in all windows: an edit moves those of others.
void ChannelWalk::CheckSelections()
{
    using Sci = QsciScintillaBase;
    for (const EngineUnderTest& window : m_windows) {
        const auto& stock = *qobject_cast<const Sci*>(window.Window());
        const long length = stock.SendScintilla(Sci::SCI_GETLENGTH);
        const long selections = stock.SendScintilla(Sci::SCI_GETSELECTIONS);
        for (long each = 0; each < selections; ++each) {
            for (const unsigned end : {Sci::SCI_GETSELECTIONNCARET, Sci::SCI_GETSELECTIONNANCHOR}) {
                const long place = stock.SendScintilla(end, each);
                if (place < 0 || place > length)
                    m_fault = "a selection is at " + std::to_string(place);
            }
        }
    }
}
