#include "host/StatusIndicators.h"

#include "control/ZNCoreEditorControl.h"
#include "host/EditorTab.h"
#include "host/Encodings.h"

#include <QLabel>
#include <QStatusBar>

StatusIndicators::StatusIndicators(QStatusBar* bar)
    : QObject(bar), m_bar(bar), m_readOnly(AddField("readOnly", QStringLiteral("Read-only"))),
      m_modified(AddField("modified", QStringLiteral("Modified"))),
      m_caret(AddField("caret", QStringLiteral("Line 99999, column 999"))),
      m_encoding(AddField("encoding", QStringLiteral("UTF-16 LE with mark"))),
      m_lineEnds(AddField("lineEnds", QStringLiteral("CR LF"))),
      m_overtype(AddField("overtype", QStringLiteral("OVR")))
{}

// As wide as its widest text from the start, so that the fields beside it do not jump.
QLabel* StatusIndicators::AddField(const char* name, const QString& widest)
{
    auto* label = new QLabel(m_bar);
    label->setObjectName(QLatin1String(name));
    label->setAlignment(Qt::AlignCenter);
    label->setContentsMargins(6, 0, 6, 0);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(widest) + 16);
    m_bar->addPermanentWidget(label);
    return label;
}

void StatusIndicators::Show(const EditorTab* tab)
{
    if (!tab) {
        for (QLabel* label : {m_readOnly, m_modified, m_caret, m_encoding, m_lineEnds, m_overtype})
            label->clear();
        return;
    }
    const SaveTarget target = tab->CurrentTarget();
    m_readOnly->setText(tab->IsReadOnly() ? QStringLiteral("Read-only") : QString());
    m_modified->setText(tab->IsModified() ? QStringLiteral("Modified") : QString());
    m_caret->setText(tab->CaretText());
    m_encoding->setText(EncodingName(target.encoding, target.mark));
    m_lineEnds->setText(LineEndName(tab->Editor().GetEOLMode(1)));
    m_overtype->setText(tab->Editor().GetOvertype(1) ? QStringLiteral("OVR")
                                                     : QStringLiteral("INS"));
}
