// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/SaveAsDialog.h"

#include "host/files/Encodings.h"
#include "host/files/FileDialogs.h"

#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>

SaveAsDialog::SaveAsDialog(QWidget* parent, const SaveTarget& proposal)
    : QFileDialog(parent, tr("Save As")), m_encoding(new QComboBox(this))
{
    // The platform's own dialog has no place for a further row.
    setOption(DontUseNativeDialog);
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    setNameFilters({tr("SQL scripts (*.sql)"), tr("All files (*)")});
    setDefaultSuffix(QStringLiteral("sql"));
    setDirectory(QFileInfo(proposal.path).absolutePath());
    selectFile(QFileInfo(proposal.path).fileName());

    for (const EncodingChoice& choice : EncodingChoices())
        m_encoding->addItem(EncodingTitle(choice));
    m_encoding->setCurrentIndex(IndexOfEncoding(proposal.encoding, proposal.mark));
    m_encoding->setObjectName(QStringLiteral("encoding"));

    auto* label = new QLabel(tr("&Encoding:"), this);
    label->setBuddy(m_encoding);
    if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
        const int row = grid->rowCount();
        grid->addWidget(label, row, 0);
        grid->addWidget(m_encoding, row, 1);
    }
    FitColumns(*this);
}

SaveTarget SaveAsDialog::Target() const
{
    const EncodingChoice& choice = EncodingChoices()[size_t(m_encoding->currentIndex())];
    return {selectedFiles().value(0), choice.encoding, choice.mark};
}
