// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of the status bar, beside and right of its messages.
#pragma once

#include <QList>
#include <QObject>
#include <QSet>

class PathField;
class QLabel;
class QStatusBar;
class QWidget;
class ScriptFrame;

class StatusIndicators final : public QObject
{
    Q_OBJECT

public:
    static constexpr int kSentenceTime = 10000; // milliseconds, of a message of some length

    explicit StatusIndicators(QStatusBar* bar);

    void Show(const ScriptFrame* frame); // null: all empty

Q_SIGNALS:
    void Chosen(const QString& field); // by its object name, with the mouse

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* AddField(const char* name, const QString& widest, const char* toolTip);
    void MakeRoom();
    static void FitField(QLabel& label);
    static void Put(QLabel& label, const QString& text);
    void PutIfAny(QLabel& label, const QString& text);

    QStatusBar* m_bar;
    PathField* m_path;
    QList<const QLabel*> m_labels;  // from left to right
    QSet<const QLabel*> m_unwanted; // say nothing, and take no room
    QLabel* m_recording;
    QLabel* m_readOnly;
    QLabel* m_modified;
    QLabel* m_problems;
    QLabel* m_caret;
    QLabel* m_catalog;
    QLabel* m_language;
    QLabel* m_encoding;
    QLabel* m_lineEnds;
    QLabel* m_indentation;
    QLabel* m_zoom;
    QLabel* m_overtype;
};
