#include "host/StatusIndicators.h"

#include "editing/FileTypeManager.h"
#include "editing/Library.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "host/Encodings.h"
#include "host/LineEnds.h"
#include "host/ScriptDoc.h"
#include "host/ScriptFrame.h"
#include "host/ScriptView.h"

#include <QLabel>
#include <QStatusBar>

namespace {

QString LanguageName(int language)
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    const bool isKnown = language >= 0 && language < languages.GetLanguageCount();
    return isKnown ? languages.GetLanguageName(language) : QString();
}

} // namespace

StatusIndicators::StatusIndicators(QStatusBar* bar)
    : QObject(bar), m_bar(bar), m_readOnly(AddField("readOnly", QStringLiteral("Read-only"))),
      m_modified(AddField("modified", QStringLiteral("Modified"))),
      m_caret(AddField("caret", QStringLiteral("Line 99999, column 999"))),
      m_catalog(AddField("catalog", QStringLiteral("production_db"))),
      m_language(AddField("language", QStringLiteral("InterBase/Firebird"))),
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

void StatusIndicators::Show(const ScriptFrame* frame)
{
    ScriptDoc* script = frame ? frame->Script() : nullptr;
    if (!script || !script->LineEnds()) {
        for (QLabel* label : {m_readOnly, m_modified, m_caret, m_catalog, m_language, m_encoding,
                              m_lineEnds, m_overtype})
            label->clear();
        return;
    }
    const SaveTarget target = script->CurrentTarget();
    CZNCoreEditorControlEx& editor = frame->Editor();
    m_readOnly->setText(script->IsReadOnly() ? QStringLiteral("Read-only") : QString());
    m_modified->setText(script->IsModified() ? QStringLiteral("Modified") : QString());
    m_caret->setText(frame->View()->CaretText());
    m_catalog->setText(frame->View()->Catalog());
    m_language->setText(LanguageName(script->Language()));
    m_encoding->setText(EncodingName(target.encoding, target.mark));
    m_lineEnds->setText(LineEndText(script->LineEnds()->Kind(), editor.GetEOLMode(1)));
    m_overtype->setText(editor.GetOvertype(1) ? QStringLiteral("OVR") : QStringLiteral("INS"));
}
