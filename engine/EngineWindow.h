// EngineWindow: the widget of the window class, an editor that is driven by numbered messages.
#pragma once

#include "engine/Engine.h"

#include <QMimeData>

namespace engine {

class EngineWindow : public QsciScintillaBase
{
    Q_OBJECT

public:
    explicit EngineWindow(QWidget* parent);

    // The function for direct calls; the instance is a pointer to the window.
    static LRESULT Direct(LRESULT instance, UINT message, WPARAM wParam, LPARAM lParam);

    // The procedure of the window class.
    static LRESULT Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    QMimeData* toMimeData(const QByteArray& text, bool rectangular) const override;

private:
    Engine m_engine;
};

// Makes the window class known. Once for the process.
void RegisterEngineWindow();

} // namespace engine
