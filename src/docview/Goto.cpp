// SPDX-License-Identifier: GPL-3.0-or-later
#include "docview/Goto.h"

#include "common/TextUtil.h"
#include "docview/ZNCoreEditorView.h"
#include "editing/FindDialogs.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Goto)
};

void AskForLine(HWND parent, int line, int lineCount)
{
    CGoto(AttachedWnd(parent), line, lineCount).DoModal();
}

[[maybe_unused]] const bool isKnown = (SetGotoDialog(AskForLine), true);

} // namespace

void CGoto::OnBuild(QWidget* window)
{
    window->setWindowTitle(Texts::tr("Goto"));
    auto* grid = new QGridLayout(window);
    auto* line = AddControl(kLine, new QLineEdit);
    auto* label = new QLabel(Texts::tr("Goto Line :"));
    label->setBuddy(line);
    line->setAccessibleName(Texts::tr("Goto Line"));
    auto* range = AddControl(kRange, new QLabel);
    auto* go = AddControl(IDOK, new QPushButton(Texts::tr("&Go")));
    go->setDefault(true);
    grid->addWidget(label, 0, 0);
    grid->addWidget(line, 0, 1);
    grid->addWidget(range, 0, 2);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(go);
    buttons->addWidget(AddControl(IDCANCEL, new QPushButton(Texts::tr("&Cancel"))));
    grid->addLayout(buttons, 1, 0, 1, 3);
}

bool CGoto::OnInitDialog()
{
    auto* line = GetDlgItem<QLineEdit>(kLine);
    line->setText(QString::number(m_currentLine + 1));
    line->setFocus();
    line->selectAll();
    GetDlgItem<QLabel>(kRange)->setText(QStringLiteral("(1 - %1)").arg(m_lineCount));
    line->setAccessibleDescription(GetDlgItem<QLabel>(kRange)->text());
    return false;
}

// Lines that the text has not are the engine's to refuse.
void CGoto::OnOK()
{
    const int line = CTextUtil().TextToInt(GetDlgItem<QLineEdit>(kLine)->text());
    EndDialog(IDOK);
    auto* view = dynamic_cast<CZNCoreEditorView*>(m_view);
    if (!view || !view->GetSafeHwnd())
        return;
    view->GetCoreEditorControl()->GotoLineEnsureVisible(line - 1);
    view->SetFocus();
}
