// SPDX-License-Identifier: GPL-3.0-or-later
// EngineWindow: the widget of the window class, an editor that is driven by numbered messages.
// A parent that closes the window from inside one of its notifications does so by deleteLater: the
// stock engine goes on with the message or the event that it was told from.
#pragma once

#include "engine/core/Engine.h"
#include "engine/window/Carets.h"
#include "engine/window/FineScroll.h"
#include "engine/window/InputMethod.h"
#include "engine/window/PixelPlace.h"
#include "engine/window/ScrollReports.h"

#include <QMimeData>

#include <utility>
#include <vector>

namespace engine {

class EngineWindow : public QsciScintillaBase
{
    Q_OBJECT

public:
    explicit EngineWindow(QWidget* parent);
    ~EngineWindow() override;

    // The function for direct calls; the instance is a pointer to the window.
    static LRESULT Direct(LRESULT instance, UINT message, WPARAM wParam, LPARAM lParam);

    // The procedure of the window class.
    static LRESULT Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    Engine& GetEngine() { return m_engine; }

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    QMimeData* toMimeData(const QByteArray& text, bool rectangular) const override;
    QByteArray fromMimeData(const QMimeData* source, bool& rectangular) const override;
    void dropEvent(QDropEvent* event) override;

private Q_SLOTS:
    void OnModified(int position, int type, const char* text, int length, int linesAdded, int line,
                    int foldNow, int foldPrev, int token, int annotationLinesAdded);

private:
    struct Told // to assistive technology; units
    {
        int caret = 0;
        int start = 0; // of the selection
        int end = 0;
    };

    void TellCaret();
    QPointF BesideCharacter(QPointF point) const;
    bool IsInSelection(long place) const;
    std::vector<std::pair<long, long>> SelectedRanges() const; // first and behind the last, bytes
    void MoveHere(QDropEvent* event, const EngineWindow& from);
    void EndComposition();
    void TypeText(const QString& text);
    void PressKey(QKeyEvent* event);
    bool IsFar(QPoint point, bool makesColumns) const;
    void PressFar(const QMouseEvent& event);
    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);
    bool TypeInLongLine(const QKeyEvent& event);
    bool IsTurnTaken(const QWheelEvent& event, int step);

    Engine m_engine;
    InputMethod m_inputMethod{m_engine};
    Carets m_carets{m_engine.raw};
    ScrollReports m_scrollReports{*this};
    PixelPlace m_place{*this, m_engine.raw, [this](int top, int bottom) {
                           setViewportMargins(0, top, viewportMargins().right(), bottom);
                       }};
    FineScroll m_fineScroll{*this, m_place};
    bool m_addsCaret = false; // the button that is down
    bool m_isDropping = false;
    Told m_told;
    bool m_hasMoved = false; // the caret, since something was typed
    int m_turn = 0;          // of the wheel, beyond its last whole step
};

// Makes the window class known. Once for the process.
void RegisterEngineWindow();

} // namespace engine
