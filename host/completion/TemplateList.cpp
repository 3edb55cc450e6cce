// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/completion/TemplateList.h"

#include "host/lists/ListKeys.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTextCursor>
#include <QVBoxLayout>

namespace {

constexpr std::size_t kMostRows = 500;

} // namespace

TemplateList::TemplateList(std::vector<completion::CodeTemplate> templates, const QString& typed,
                           QWidget* parent)
    : QDialog(parent, Qt::Popup), m_templates(std::move(templates)), m_words(new QLineEdit(this)),
      m_list(new QListWidget(this)), m_text(new QPlainTextEdit(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("templateList"));
    setAccessibleName(tr("Templates"));
    m_words->setPlaceholderText(tr("Type the name of a template, or first letters of it"));
    m_words->setAccessibleName(tr("Template"));
    m_list->setAccessibleName(tr("Templates"));
    m_list->setUniformItemSizes(true);
    m_text->setAccessibleName(tr("Text of the template"));
    m_text->setReadOnly(true);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setTabChangesFocus(true);
    auto* panes = new QHBoxLayout;
    panes->addWidget(m_list, 2);
    panes->addWidget(m_text, 3);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_words);
    layout->addLayout(panes);
    connect(m_words, &QLineEdit::textChanged, this, &TemplateList::Filter);
    connect(m_list, &QListWidget::currentRowChanged, this, &TemplateList::ShowMarked);
    connect(m_list, &QListWidget::itemClicked, this, &TemplateList::Choose);
    new ListKeys(*m_words, *m_list, [this] { Choose(); }); // goes with the line
    Filter({});
    if (!completion::FindTemplates(m_templates, typed, 1).empty())
        m_words->setText(typed);
    m_words->selectAll();
    constexpr QSize kSize(720, 380);
    resize(kSize);
    m_words->setFocus();
}

void TemplateList::Filter(const QString& words)
{
    m_list->clear();
    for (const int place : completion::FindTemplates(m_templates, words, kMostRows)) {
        const auto& each = m_templates[static_cast<std::size_t>(place)];
        auto* item =
            new QListWidgetItem(each.shortName + QStringLiteral("  \u2013  ") + each.title, m_list);
        item->setData(Qt::UserRole, place);
        item->setData(Qt::AccessibleTextRole, each.shortName + QStringLiteral(", ") + each.title);
    }
    m_list->setCurrentRow(0);
    ShowMarked();
}

const completion::CodeTemplate* TemplateList::Marked() const
{
    const QListWidgetItem* item = m_list->currentItem();
    return item ? &m_templates[static_cast<std::size_t>(item->data(Qt::UserRole).toInt())]
                : nullptr;
}

void TemplateList::ShowMarked()
{
    const completion::CodeTemplate* made = Marked();
    m_text->clear();
    if (made)
        ShowText(made->lines.join(u'\n'));
}

// As it will stand in the script, with the names of what will be asked for.
void TemplateList::ShowText(const QString& text)
{
    static const QRegularExpression kMark(QStringLiteral("\\^!|\\^#(.*?)#\\^"));
    QTextCharFormat asked;
    asked.setFontItalic(true);
    asked.setForeground(m_text->palette().brush(QPalette::Link));
    QTextCursor cursor(m_text->document());
    qsizetype done = 0;
    for (const QRegularExpressionMatch& mark : kMark.globalMatch(text)) {
        cursor.insertText(text.mid(done, mark.capturedStart() - done), QTextCharFormat());
        cursor.insertText(mark.captured(1), asked);
        done = mark.capturedEnd();
    }
    cursor.insertText(text.mid(done), QTextCharFormat());
    m_text->moveCursor(QTextCursor::Start);
}

void TemplateList::Choose()
{
    const completion::CodeTemplate* marked = Marked();
    if (!marked)
        return;
    const completion::CodeTemplate made = *marked;
    close();
    Q_EMIT Chosen(made);
}
