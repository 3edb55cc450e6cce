#include "host/OpenAsDialog.h"

#include "host/Encodings.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

OpenAsDialog::OpenAsDialog(QWidget* parent, const QString& folder)
    : QFileDialog(parent, QStringLiteral("Open with Encoding"), folder),
      m_encoding(new QComboBox(this))
{
    // The platform's own dialog has no place for a further row.
    setOption(DontUseNativeDialog);
    setAcceptMode(AcceptOpen);
    setFileMode(ExistingFile);
    setNameFilters(
        {QStringLiteral("SQL scripts (*.sql *.pks *.pkb *.ddl)"), QStringLiteral("All files (*)")});

    m_encoding->setObjectName(QStringLiteral("encoding"));
    m_encoding->addItem(QStringLiteral("Detect"), -1);
    // A mark at the file's start is read past in any case.
    for (const EncodingChoice& choice : EncodingChoices()) {
        if (m_encoding->findData(choice.encoding) < 0)
            m_encoding->addItem(EncodingName(choice.encoding, false), choice.encoding);
    }

    auto* label = new QLabel(QStringLiteral("&Encoding:"), this);
    label->setBuddy(m_encoding);
    if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
        const int row = grid->rowCount();
        grid->addWidget(label, row, 0);
        grid->addWidget(m_encoding, row, 1);
    }
}

OpenChoice OpenAsDialog::Choice() const
{
    return {selectedFiles().value(0), m_encoding->currentData().toInt()};
}
