// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/OpenAsDialog.h"

#include "host/files/Encodings.h"
#include "host/files/FileDialogs.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>

namespace {

const QStringList kScripts = {QStringLiteral("*.sql"), QStringLiteral("*.pks"),
                              QStringLiteral("*.pkb"), QStringLiteral("*.ddl")};

} // namespace

OpenAsDialog::OpenAsDialog(QWidget* parent, const QString& place)
    : QFileDialog(parent, tr("Open with Encoding"),
                  QFileInfo(place).isFile() ? QFileInfo(place).path() : place),
      m_encoding(new QComboBox(this))
{
    // The platform's own dialog has no place for a further row.
    setOption(DontUseNativeDialog);
    setAcceptMode(AcceptOpen);
    setFileMode(ExistingFile);
    setNameFilters({tr("SQL scripts (%1)").arg(kScripts.join(u' ')), tr("All files (*)")});

    m_encoding->setObjectName(QStringLiteral("encoding"));
    m_encoding->addItem(tr("Detect"), -1);
    // A mark at the file's start is read past in any case.
    for (const EncodingChoice& choice : EncodingChoices()) {
        if (m_encoding->findData(choice.encoding) < 0)
            m_encoding->addItem(choice.script ? EncodingTitle(choice)
                                              : EncodingName(choice.encoding, false),
                                choice.encoding);
    }

    if (QFileInfo(place).isFile()) {
        if (!QDir::match(kScripts, QFileInfo(place).fileName()))
            selectNameFilter(tr("All files (*)"));
        selectFile(QFileInfo(place).fileName());
    }

    auto* label = new QLabel(tr("&Encoding:"), this);
    label->setBuddy(m_encoding);
    if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
        const int row = grid->rowCount();
        grid->addWidget(label, row, 0);
        grid->addWidget(m_encoding, row, 1);
    }
    FitColumns(*this);
}

OpenChoice OpenAsDialog::Choice() const
{
    return {selectedFiles().value(0), m_encoding->currentData().toInt()};
}
