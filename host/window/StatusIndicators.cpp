// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/StatusIndicators.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "host/files/Encodings.h"
#include "host/files/LineEnds.h"
#include "host/problems/ScriptChecker.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptView.h"
#include "host/window/FieldMenus.h"
#include "host/window/PathField.h"

#include <QEvent>
#include <QLabel>
#include <QStatusBar>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int kBetween = 6; // pixels from field to field

QString LanguageName(int language)
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    const bool isKnown = language >= 0 && language < languages.GetLanguageCount();
    return isKnown ? languages.GetLanguageName(language) : QString();
}

} // namespace

StatusIndicators::StatusIndicators(QStatusBar* bar)
    : QObject(bar), m_bar(bar), m_path(new PathField(bar)),
      m_recording(AddField("recording", tr("REC"), QT_TR_NOOP("A macro is recorded; stop it"))),
      m_readOnly(
          AddField("readOnly", tr("Read-only"), QT_TR_NOOP("Whether the script can be changed"))),
      m_modified(AddField("modified", tr("Modified"), QT_TR_NOOP("Save"))),
      m_problems(AddField("problemCount", tr("Problems: %1").arg(88),
                          QT_TR_NOOP("What is wrong with the script"))),
      m_caret(AddField("caret", tr("Line %1, column %2").arg(99999).arg(999),
                       QT_TR_NOOP("Go to a line"))),
      m_catalog(AddField("catalog", QStringLiteral("production_db"),
                         QT_TR_NOOP("The database in force at the caret"))),
      m_language(AddField("language", QStringLiteral("InterBase/Firebird"),
                          QT_TR_NOOP("The language of the script"))),
      m_encoding(
          AddField("encoding", EncodingName(2, true), QT_TR_NOOP("Open with another encoding"))),
      m_lineEnds(AddField("lineEnds", QStringLiteral("CR LF"), QT_TR_NOOP("Convert line ends"))),
      m_indentation(AddField("indentation", tr("Spaces: %1").arg(8), QT_TR_NOOP("Indentation"))),
      m_zoom(AddField("zoom", QStringLiteral("100 %"), QT_TR_NOOP("Zoom"))),
      m_overtype(AddField("overtype", tr("OVR"), QT_TR_NOOP("Whether typing replaces")))
{
    bar->addWidget(m_path, 1); // a message stands in its place for a while
    connect(m_path, &PathField::Chosen, this, [this] { Q_EMIT Chosen(m_path->objectName()); });
    connect(bar, &QStatusBar::messageChanged, this, &StatusIndicators::MakeRoom);
    bar->setMinimumWidth(1); // a window is not as wide as all fields need, they give way
    bar->installEventFilter(this);
}

// A message has the room that it needs, and the path some of it: fields give way, first those that
// say nothing, then the least important, and the place of the caret to a message alone. A message
// is there as a tip as well.
void StatusIndicators::MakeRoom()
{
    constexpr int kAir = 40;   // pixels, of both ends and the size grip
    constexpr int kPath = 120; // pixels, enough for most names
    const QString message = m_bar->currentMessage();
    m_bar->setToolTip(message);
    const QSize room = static_cast<const QWidget*>(m_path)->sizeHint();
    int missing = kAir - m_bar->width();
    missing += message.isEmpty() ? std::min(room.width(), kPath)
                                 : m_bar->fontMetrics().horizontalAdvance(message);
    QList<const QLabel*> shown;
    for (const QLabel* label : std::as_const(m_labels)) {
        if (m_unwanted.contains(label))
            continue;
        shown << label;
        missing += label->parentWidget()->width() + kBetween;
    }
    QList<const QLabel*> yielding;
    std::ranges::copy_if(shown, std::back_inserter(yielding),
                         [](const QLabel* label) { return label->text().isEmpty(); });
    yielding << m_overtype << m_zoom << m_indentation << m_lineEnds << m_encoding << m_language
             << m_catalog << m_modified;
    if (!message.isEmpty())
        yielding << m_caret;
    yielding << m_readOnly << m_problems << m_recording;
    for (const QLabel* label : std::as_const(yielding)) {
        if (missing > 0 && shown.removeOne(label))
            missing -= label->parentWidget()->width() + kBetween;
    }
    for (const QLabel* label : std::as_const(m_labels))
        label->parentWidget()->setVisible(shown.contains(label));
}

// As wide as its widest text from the start, so that the fields beside it do not jump. A label
// whose text changes has the layout around it made again, and the whole bar painted: the field that
// it stands in keeps that off.
QLabel* StatusIndicators::AddField(const char* name, const QString& widest, const char* toolTip)
{
    constexpr int kMargin = 6;
    auto* field = new QWidget(m_bar);
    auto* label = new QLabel(field);
    label->setObjectName(QLatin1String(name));
    label->setAlignment(Qt::AlignCenter);
    label->setContentsMargins(kMargin, 0, kMargin, 0);
    label->setToolTip(tr(toolTip));
    label->installEventFilter(this);
    label->setText(widest);
    FitField(*label);
    label->clear();
    m_bar->addPermanentWidget(field);
    m_labels << label;
    return label;
}

bool StatusIndicators::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_bar) {
        if (event->type() == QEvent::Resize)
            MakeRoom();
        return false;
    }
    if (event->type() == QEvent::MouseButtonRelease &&
        !static_cast<QLabel*>(watched)->text().isEmpty())
        Q_EMIT Chosen(watched->objectName());
    return QObject::eventFilter(watched, event);
}

// A field never shrinks again.
void StatusIndicators::FitField(QLabel& label)
{
    QWidget& field = *label.parentWidget();
    const QSize size = label.sizeHint().expandedTo(field.minimumSize());
    if (field.minimumSize() == size)
        return;
    field.setFixedSize(size);
    label.resize(size);
}

void StatusIndicators::Put(QLabel& label, const QString& text)
{
    if (label.text() == text)
        return;
    label.setText(text);
    FitField(label);
}

// One that mostly says nothing leaves its room to the path.
void StatusIndicators::PutIfAny(QLabel& label, const QString& text)
{
    Put(label, text);
    if (text.isEmpty())
        m_unwanted.insert(&label);
    else
        m_unwanted.remove(&label);
}

void StatusIndicators::Show(const ScriptFrame* frame)
{
    ScriptDoc* script = frame ? frame->Script() : nullptr;
    m_path->Show(script ? script->GetPathName() : QString());
    if (!script || !script->LineEnds()) {
        for (QLabel* label :
             {m_recording, m_readOnly, m_modified, m_problems, m_caret, m_catalog, m_language,
              m_encoding, m_lineEnds, m_indentation, m_zoom, m_overtype})
            label->clear();
        MakeRoom();
        return;
    }
    const SaveTarget target = script->CurrentTarget();
    CZNCoreEditorControlEx& editor = frame->Editor();
    PutIfAny(*m_recording, frame->View()->IsRecording() ? tr("REC") : QString());
    PutIfAny(*m_readOnly, script->IsReadOnly() ? tr("Read-only") : QString());
    Put(*m_modified, script->IsModified() ? tr("Modified") : QString());
    const ScriptChecker* checker = script->Checker();
    const std::size_t problems = checker ? checker->Problems().size() : 0;
    PutIfAny(*m_problems, problems > 0 ? tr("Problems: %1").arg(problems) : QString());
    Put(*m_caret, frame->View()->CaretText());
    PutIfAny(*m_catalog, frame->View()->Catalog());
    Put(*m_language, LanguageName(script->Language()));
    Put(*m_encoding, EncodingName(target.encoding, target.mark));
    Put(*m_lineEnds, LineEndText(script->LineEnds()->Kind(), editor.GetEOLMode(1)));
    Put(*m_indentation, IndentationText(editor));
    Put(*m_zoom, ZoomText(editor));
    Put(*m_overtype, editor.GetOvertype(1) ? tr("OVR") : tr("INS"));
    MakeRoom();
}
