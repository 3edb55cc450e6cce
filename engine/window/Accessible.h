// SPDX-License-Identifier: GPL-3.0-or-later
// Accessible: an engine window as assistive technology sees it. It answers by line, through the
// line index, so that no answer costs the length of the text; offsets count UTF-16 units.
#pragma once

#include "engine/window/EngineWindow.h"

#include <QAccessibleWidget>

namespace engine {

class Accessible : public QAccessibleWidget,
                   public QAccessibleTextInterface,
                   public QAccessibleEditableTextInterface
{
public:
    explicit Accessible(EngineWindow& window);

    // So that the stock accessible object, which counts from the text's start, is never made.
    static void InstallFactory();

    long BytesRead() const { return m_bytesRead; } // of the text, so far

    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    int characterCount() const override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int startOffset, int endOffset) const override;
    using QAccessibleWidget::text;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* startOffset,
                             int* endOffset) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* startOffset,
                            int* endOffset) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* startOffset,
                         int* endOffset) const override;

    int selectionCount() const override;
    void selection(int selectionIndex, int* startOffset, int* endOffset) const override;
    void addSelection(int startOffset, int endOffset) override;
    void removeSelection(int selectionIndex) override;
    void setSelection(int selectionIndex, int startOffset, int endOffset) override;

    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int startIndex, int endIndex) override;
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

    void deleteText(int startOffset, int endOffset) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int startOffset, int endOffset, const QString& text) override;

private:
    struct Piece
    {
        long start = 0;
        long end = 0;
    };

    long StyleAt(long position) const;
    long Ask(UINT number, long wParam = 0, LPARAM lParam = 0) const;
    long Offset(int offset) const; // resolved: the end, the caret, or clamped
    Piece LineAt(long offset) const;
    Piece Near(long offset) const;
    Piece PieceAt(long offset, QAccessible::TextBoundaryType boundary) const;
    QString Give(Piece piece, int* startOffset, int* endOffset) const;
    QString Read(Piece piece) const;

    EngineWindow& m_window;
    Engine& m_engine;
    mutable long m_bytesRead = 0;
};

} // namespace engine
