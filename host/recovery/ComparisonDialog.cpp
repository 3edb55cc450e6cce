// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/recovery/ComparisonDialog.h"

#include "host/recovery/ComparisonView.h"
#include "search/files/ReadFileText.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <optional>

ComparisonDialog::ComparisonDialog(QWidget* parent, const Comparison& comparison) : QDialog(parent)
{
    setObjectName(QStringLiteral("compare"));
    setWindowTitle(tr("Compare"));
    auto* view = new ComparisonView(this);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setText(tr("&Close"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(view, 1);
    layout->addWidget(buttons);
    resize(760, 460);

    const std::optional<QString> file =
        ReadFileText(comparison.path, ComparisonView::kMostBytes, comparison.codePage);
    const QString text = file ? comparison.text() : QString();
    if (!file || text.size() > ComparisonView::kMostBytes)
        view->ShowText(tr("%1 is not compared: what is no text, longer than 8 MB or cannot be read "
                          "is not shown.")
                           .arg(comparison.name),
                       QString());
    else if (!view->ShowDifferences(tr("%1: lines with - are in the file alone, those with + in "
                                       "the script alone.")
                                        .arg(comparison.name),
                                    *file, text))
        view->SetHeading(tr("%1: script and file have the same text.").arg(comparison.name));
}
