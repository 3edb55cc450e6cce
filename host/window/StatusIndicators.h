// The fields of the status bar, right of its messages.
#pragma once

#include <QObject>

class QLabel;
class QStatusBar;
class ScriptFrame;

class StatusIndicators final : public QObject
{
public:
    explicit StatusIndicators(QStatusBar* bar);

    void Show(const ScriptFrame* frame); // null: all empty

private:
    QLabel* AddField(const char* name, const QString& widest);
    static void FitField(QLabel& label);
    static void Put(QLabel& label, const QString& text);

    QStatusBar* m_bar;
    QLabel* m_readOnly;
    QLabel* m_modified;
    QLabel* m_caret;
    QLabel* m_catalog;
    QLabel* m_language;
    QLabel* m_encoding;
    QLabel* m_lineEnds;
    QLabel* m_overtype;
};
