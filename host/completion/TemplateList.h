// SPDX-License-Identifier: GPL-3.0-or-later
// TemplateList: the templates of a script's language, by their names. It goes when it is closed.
#pragma once

#include "completion/TemplateFile.h"

#include <QDialog>

class QLineEdit;
class QListWidget;
class QPlainTextEdit;

class TemplateList final : public QDialog
{
    Q_OBJECT

public:
    // A copy: the store may read its file again. The list begins with those that fit what was
    // typed, if there are any.
    TemplateList(std::vector<completion::CodeTemplate> templates, const QString& typed,
                 QWidget* parent);

    void Choose(); // the one that is marked

Q_SIGNALS:
    void Chosen(const completion::CodeTemplate& made); // behind the list, which is closed by then

private:
    void Filter(const QString& words);
    void ShowMarked();
    void ShowText(const QString& text);
    const completion::CodeTemplate* Marked() const;

    std::vector<completion::CodeTemplate> m_templates;
    QLineEdit* m_words;
    QListWidget* m_list;
    QPlainTextEdit* m_text;
};
