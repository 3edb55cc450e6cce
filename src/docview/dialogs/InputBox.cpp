// SPDX-License-Identifier: GPL-3.0-or-later
#include "docview/dialogs/InputBox.h"

#include "platform/windows/Questions.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(InputBox)
};

constexpr int kWidestPrompt = 60; // characters, before it is broken into lines
constexpr int kBesideTitle = 150; // pixels, of the icon and the buttons that windows have there

} // namespace

CInputBox::CInputBox(const QString& prompt, const QString& value, int allowEmpty,
                     const QString& title, CWnd* parent)
    : CDialog(parent), m_value(value), m_prompt(prompt), m_allowEmpty(allowEmpty), m_title(title)
{}

void CInputBox::OnBuild(QWidget* window)
{
    window->setWindowTitle(m_title.isEmpty() ? Texts::tr("Input") : m_title);
    auto* layout = new QVBoxLayout(window);
    auto* prompt = AddControl(kPrompt, new QLabel(m_prompt, window));
    prompt->setTextFormat(Qt::PlainText);
    if (m_prompt.size() > kWidestPrompt) {
        prompt->setWordWrap(true);
        prompt->setMinimumWidth(prompt->fontMetrics().averageCharWidth() * kWidestPrompt);
    }
    auto* value = AddControl(kValue, new QLineEdit(window));
    value->setMinimumWidth(window->fontMetrics().horizontalAdvance(window->windowTitle()) +
                           kBesideTitle);
    value->setAccessibleName(m_prompt.isEmpty() ? window->windowTitle() : m_prompt);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, window);
    AddControl(IDOK, buttons->button(QDialogButtonBox::Ok))->setDefault(true);
    AddControl(IDCANCEL, buttons->button(QDialogButtonBox::Cancel));
    layout->addWidget(prompt);
    layout->addWidget(value);
    layout->addWidget(buttons);
}

bool CInputBox::OnInitDialog()
{
    CDialog::OnInitDialog();
    GetDlgItem(kValue)->setFocus();
    return false;
}

void CInputBox::DoDataExchange(CDataExchange* exchange)
{
    DDX_Text(exchange, kValue, m_value);
}

void CInputBox::OnOK()
{
    UpdateData();
    if (!m_allowEmpty && m_value.isEmpty()) {
        ShowMessage(GetSafeHwnd(), m_prompt + Texts::tr(" Cannot be empty"));
        GetDlgItem(kValue)->setFocus();
        return;
    }
    EndDialog(IDOK);
}
