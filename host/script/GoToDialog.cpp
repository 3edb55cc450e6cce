// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/GoToDialog.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int kMostLetters = 32;

} // namespace

GoToDialog::GoToDialog(QWidget* parent, long line, long lineCount)
    : QDialog(parent), m_place(new QLineEdit(this)), m_expected(new QLabel(this)),
      m_lineCount(lineCount)
{
    setWindowTitle(tr("Go to Line"));
    m_place->setObjectName(QStringLiteral("place"));
    m_place->setMaxLength(kMostLetters);
    m_place->setText(QString::number(line));
    m_place->selectAll();
    m_expected->setObjectName(QStringLiteral("expected"));
    m_expected->setWordWrap(true);
    const auto tellExpected = [this] {
        Tell(tr("From 1 to %1, or line:column").arg(m_lineCount), false);
    };
    tellExpected();
    connect(m_place, &QLineEdit::textEdited, this, tellExpected);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &GoToDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QFormLayout(this);
    layout->addRow(tr("&Line"), m_place);
    layout->addRow(m_expected);
    layout->addRow(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 2 * kMostLetters);
}

void GoToDialog::accept()
{
    if (Read()) {
        QDialog::accept();
        return;
    }
    Tell(tr("“%1” is no place here: a number from 1 to %2 is expected, or line:column.")
             .arg(m_place->text().trimmed())
             .arg(m_lineCount),
         true);
    QAccessibleEvent alert(m_expected, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    m_place->setFocus();
    m_place->selectAll();
    resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
}

// A colon at the end is left out, as in the name of a file with a place.
bool GoToDialog::Read()
{
    static const QRegularExpression place(
        QRegularExpression::anchoredPattern(QStringLiteral("\\s*([0-9]+)(?::([0-9]*))?\\s*")));
    const QRegularExpressionMatch match = place.match(m_place->text());
    bool isLine = false;
    bool isColumn = true;
    m_line = match.captured(1).toLong(&isLine);
    m_column = match.captured(2).isEmpty() ? 0 : match.captured(2).toLong(&isColumn);
    return isLine && m_line >= 1 && m_line <= m_lineCount && isColumn &&
           (m_column > 0 || match.captured(2).isEmpty());
}

void GoToDialog::Tell(const QString& text, bool isWrong)
{
    QFont font;
    font.setBold(isWrong);
    m_expected->setFont(font);
    m_expected->setText(text);
    m_place->setAccessibleDescription(text);
}
