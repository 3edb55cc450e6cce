#include "engine/EngineWindow.h"

#include "platform/Window.h"

#include <QScrollBar>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

// Tells what an event of the user's has changed, once the event is over.
template <typename Handle>
bool TellAfter(Handle handle)
{
    bool handled = false;
    {
        const ChangeReporter::Scope scope;
        handled = handle();
    }
    if (ChangeReporter::AnyPending())
        ChangeReporter::FlushAll();
    return handled;
}

QByteArray WithLineEnds(const QByteArray& text, int mode)
{
    const char* eol = mode == 1 ? "\r\n" : mode == 2 ? "\r" : "\n";
    QByteArray result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char byte = text[i];
        if (byte != '\r' && byte != '\n') {
            result.append(byte);
            continue;
        }
        if (byte == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            ++i;
        result.append(eol);
    }
    return result;
}

} // namespace

EngineWindow::EngineWindow(QWidget* parent) : QsciScintillaBase(parent), m_engine(*this)
{
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Text editor"));
}

LRESULT EngineWindow::Direct(LRESULT instance, UINT message, WPARAM wParam, LPARAM lParam)
{
    return reinterpret_cast<EngineWindow*>(instance)->m_engine.Perform(message, wParam, lParam);
}

LRESULT EngineWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* self = static_cast<EngineWindow*>(window);
    if (message == message::GetDirectFunction)
        return reinterpret_cast<LRESULT>(&EngineWindow::Direct);
    if (message == message::GetDirectPointer)
        return reinterpret_cast<LRESULT>(self);
    return self->m_engine.Perform(message, wParam, lParam);
}

bool EngineWindow::event(QEvent* event)
{
    return TellAfter([&] { return QsciScintillaBase::event(event); });
}

bool EngineWindow::viewportEvent(QEvent* event)
{
    return TellAfter([&] { return QsciScintillaBase::viewportEvent(event); });
}

QMimeData* EngineWindow::toMimeData(const QByteArray& text, bool rectangular) const
{
    return QsciScintillaBase::toMimeData(
        m_engine.copyEol > 0 ? WithLineEnds(text, m_engine.copyEol) : text, rectangular);
}

void RegisterEngineWindow()
{
    RegisterWindowClass({kWindowClass,
                         [](QWidget* parent) -> QWidget* { return new EngineWindow(parent); },
                         &EngineWindow::Procedure});
}

} // namespace engine
