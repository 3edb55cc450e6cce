// SPDX-License-Identifier: GPL-3.0-or-later
// The menu of languages: every language of the registry, the present one marked.
#pragma once

#include <QElapsedTimer>
#include <QMenu>

class QActionGroup;

class LanguageMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget* parent);

    void ShowLanguage(int language); // -1: none

Q_SIGNALS:
    void DefaultWanted(); // the language that is shown, for scripts of which nothing tells
    void Chosen(int language);

protected:
    // The first letters of a name lead to it.
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void AddLanguage(int language);
    bool GoToName(const QString& letters);

    QActionGroup* m_group;
    QString m_letters;       // typed so far
    QElapsedTimer m_pressed; // since the last of them
};
