// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dialogs/MyComboBox.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

CMyComboBox::CMyComboBox(QWidget* parent) : QComboBox(parent)
{
    constexpr int kCharacters = 24;
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr); // a text that is searched for is not to be finished for the user
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kCharacters);
    setMaxVisibleItems(20);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CMyComboBox::showPopup()
{
    const QString text = currentText();
    Q_EMIT DropsDown();
    if (count() == 0)
        setEditText(text);
    const int scrollBar =
        count() > maxVisibleItems() ? view()->verticalScrollBar()->sizeHint().width() : 0;
    constexpr int kRim = 8;
    const int wanted = view()->sizeHintForColumn(0) + scrollBar + kRim;
    view()->setMinimumWidth(std::min(wanted, screen()->availableGeometry().width()));
    QComboBox::showPopup();
}

// The edit, which hears of the focus through the box, gives its selection up when it goes by a key.
void CMyComboBox::focusOutEvent(QFocusEvent* event)
{
    RememberEditSelection();
    QComboBox::focusOutEvent(event);
}

void CMyComboBox::RememberEditSelection()
{
    const QLineEdit* edit = lineEdit();
    m_caret = edit->cursorPosition();
    m_selectionStart = edit->hasSelectedText() ? edit->selectionStart() : m_caret;
    m_selectionLength = edit->selectionLength();
}

void CMyComboBox::RestoreEditSelection()
{
    QLineEdit* edit = lineEdit();
    if (edit->hasFocus())
        return;
    if (m_selectionLength > 0)
        edit->setSelection(m_selectionStart, m_selectionLength);
    else
        edit->setCursorPosition(m_caret);
}
