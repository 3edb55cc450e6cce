// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/completion/TemplateForm.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kFieldLetters = 36;

const QRegularExpression& Question()
{
    static const QRegularExpression question(QStringLiteral("\\^#(.*?)#\\^"));
    return question;
}

} // namespace

TemplateForm::TemplateForm(const completion::CodeTemplate& made, const QStringList& names,
                           QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("templateForm"));
    setWindowTitle(tr("Insert Template"));
    auto* title = new QLabel(made.shortName + QStringLiteral("  \u2013  ") + made.title, this);
    title->setTextFormat(Qt::PlainText);
    title->setWordWrap(true);
    auto* fields = new QFormLayout;
    for (const QString& name : names) {
        auto* value = new QLineEdit(this);
        value->setAccessibleName(name);
        value->setMinimumWidth(value->fontMetrics().averageCharWidth() * kFieldLetters);
        auto* label = new QLabel(name, this);
        label->setTextFormat(Qt::PlainText);
        fields->addRow(label, value);
        m_values.emplace_back(name, value);
    }
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("&Insert"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addLayout(fields);
    layout->addWidget(buttons);
    if (!m_values.empty())
        m_values.front().second->setFocus();
}

QStringList TemplateForm::NamesIn(const QStringList& lines)
{
    QStringList names;
    for (const QString& line : lines) {
        for (const QRegularExpressionMatch& match : Question().globalMatch(line))
            names << match.captured(1);
    }
    names.removeDuplicates();
    return names;
}

QStringList TemplateForm::Filled(QStringList lines) const
{
    for (QString& line : lines) {
        QString filled;
        qsizetype done = 0;
        for (const QRegularExpressionMatch& match : Question().globalMatch(line)) {
            const auto value =
                std::find_if(m_values.begin(), m_values.end(),
                             [&](const auto& each) { return each.first == match.captured(1); });
            filled += line.mid(done, match.capturedStart() - done);
            filled += value != m_values.end() ? value->second->text() : QString();
            done = match.capturedEnd();
        }
        line = filled + line.mid(done);
    }
    return lines;
}

void TemplateForm::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const auto at = std::find_if(m_values.begin(), m_values.end(),
                                 [this](const auto& each) { return each.second == focusWidget(); });
    if (isEnter && at != m_values.end() && std::next(at) != m_values.end())
        std::next(at)->second->setFocus(Qt::TabFocusReason);
    else
        QDialog::keyPressEvent(event);
}
