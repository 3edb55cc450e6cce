#include "host/EditorTab.h"

#include "editing/FileTypeManager.h"
#include "editing/Library.h"
#include "editing/ZNCoreEditorWidget.h"
#include "host/AutosaveSettings.h"
#include "host/BatchMark.h"
#include "host/Encodings.h"
#include "host/FileLanguages.h"
#include "host/ScriptChecker.h"
#include "host/ScrollRange.h"
#include "platform/OptionsServer.h"
#include "platform/Units.h"

#include <QDir>
#include <QFileInfo>
#include <QVBoxLayout>

#include <utility>
#include <vector>

namespace {

QString WhyNotRead(const QString& path)
{
    const QFileInfo info(path);
    const QString name = QDir::toNativeSeparators(path);
    if (!info.exists())
        return QStringLiteral("“%1” does not exist.").arg(name);
    if (info.isDir())
        return QStringLiteral("“%1” is a folder, not a script.").arg(name);
    return QStringLiteral("“%1” cannot be read. Check that you may read it.").arg(name);
}

QString WhyNotWritten(const QString& path)
{
    const QFileInfo info(path);
    const QFileInfo folder(info.absolutePath());
    QString reason = QStringLiteral("The disk may be full.");
    if (!folder.isDir())
        reason = QStringLiteral("The folder does not exist.");
    else if (info.isDir())
        reason = QStringLiteral("A folder has that name.");
    else if (!folder.isWritable() || (info.exists() && !info.isWritable()))
        reason = QStringLiteral("You may not write there.");
    return QStringLiteral("“%1” could not be saved. %2 The text is still here: "
                          "use Save As to put it in another place.")
        .arg(QDir::toNativeSeparators(path), reason);
}

} // namespace

EditorTab::EditorTab(const QString& untitledName, QWidget* parent)
    : QWidget(parent), m_widget(new ZNCoreEditorWidget(this)),
      m_checker(new ScriptChecker(m_widget->control(), this)), m_untitledName(untitledName)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_widget);
    setFocusProxy(m_widget);

    Editor().SetCarefulFiles(true);
    AutosaveSettings::Load().ApplyTo(Editor());
    Editor().SetEncoding(FileEncodeConverter::encUTF8);
    Editor().SetWriteEncodingSig(false);
    Editor().SetScrollWidth(1, 1);
    DefineBatchMark(Editor());
    SetLanguage(LanguageOfNewScripts());
    connect(m_widget, &ZNCoreEditorWidget::notified, this, &EditorTab::OnNotified);
}

// The editor goes after this part of the tab does, and tells of it.
EditorTab::~EditorTab()
{
    m_widget->disconnect(this);
    delete m_checker;
}

CZNCoreEditorControlEx& EditorTab::Editor() const
{
    return m_widget->control();
}

void EditorTab::OnNotified(const SCNotification& record)
{
    switch (record.nmhdr.code) {
    case notify::SavePointReached:
    case notify::SavePointLeft:
        Q_EMIT StateChanged(); // at once: the keys for saving may be next in line
        break;
    case notify::Modified:
        m_checker->CheckSoon();
        AnnounceSoon();
        break;
    case notify::UpdateUi:
    case notify::Zoom:
        AnnounceSoon();
        break;
    default:
        break;
    }
}

// A load or a replacement of all brings thousands of notifications; the window follows once.
void EditorTab::AnnounceSoon()
{
    if (std::exchange(m_announcing, true))
        return;
    QMetaObject::invokeMethod(this, &EditorTab::Announce, Qt::QueuedConnection);
}

void EditorTab::Announce()
{
    m_announcing = false;
    MarkBatch(Editor());
    HighlightBraces();
    FitScrollRange();
    Q_EMIT StateChanged();
}

// Of the brace at the caret, else of the one in front of it.
void EditorTab::HighlightBraces()
{
    CZNCoreEditorControlEx& editor = Editor();
    if (!zncoreeditor::GetFileTypeManager()->GetBraceMatching(Language()))
        return;
    const long caret = editor.GetCurrentPos(1);
    const auto isBrace = [&editor](long position) {
        return position >= 0 &&
               editor.IsBrace(static_cast<char16_t>(editor.GetCharAt(position, 1)));
    };
    if (isBrace(caret))
        editor.HighlightBraces(caret);
    else if (isBrace(caret - 1))
        editor.HighlightBraces(caret - 1);
    else
        editor.BraceHighlight(-1, -1, 1);
}

// The whole screen after a scroll, else the line that is being typed in.
void EditorTab::FitScrollRange()
{
    const int first = Editor().GetFirstVisibleLine(1);
    if (std::exchange(m_measuredFrom, first) != first) {
        const int from = Editor().DocLineFromVisible(first, 1);
        FitScrollWidth(Editor(), from, from + Editor().LinesOnScreen(1));
    } else {
        const int line = Editor().LineFromPosition(Editor().GetCurrentPos(1), 1);
        FitScrollWidth(Editor(), line, line);
    }
}

QString EditorTab::Load(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    Editor().SetReadOnly(0, 1);
    if (QFileInfo(absolute).isDir() ||
        !Editor().OpenFile(Units(absolute), FileEncodeConverter::encUnknown))
        return WhyNotRead(path);
    m_path = absolute;
    m_measuredFrom = -1;
    SetLanguage(LanguageOfFile(m_path));
    Editor().SetReadOnly(QFileInfo(absolute).isWritable() ? 0 : 1, 1);
    Announce();
    return {};
}

QString EditorTab::Save(const SaveTarget& target)
{
    const auto encoding = FileEncodeConverter::encodingType(target.encoding);
    if (!Editor().SaveFile(Units(target.path), encoding, true, target.mark))
        return WhyNotWritten(target.path);
    m_path = QFileInfo(target.path).absoluteFilePath();
    Editor().SetReadOnly(QFileInfo(m_path).isWritable() ? 0 : 1, 1);
    Q_EMIT StateChanged();
    return {};
}

SaveTarget EditorTab::CurrentTarget() const
{
    return {m_path, Editor().GetEncoding(), Editor().GetWriteEncodingSig()};
}

QString EditorTab::Name() const
{
    return m_path.isEmpty() ? m_untitledName : QFileInfo(m_path).fileName();
}

int EditorTab::Language() const
{
    return m_widget->language();
}

void EditorTab::SetLanguage(int language)
{
    m_widget->setLanguage(language);
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    const bool isKnown = language >= 0 && language < languages.GetLanguageCount();
    m_checker->SetLanguage(isKnown ? languages.GetLanguageName(language) : QString());
    Q_EMIT LanguageChanged();
}

void EditorTab::FollowOptions()
{
    SendMessage(Editor().GetSafeHwnd(), kOptionsChanged, 0, 0);
    Q_EMIT LanguageChanged();
}

bool EditorTab::IsModified() const
{
    return Editor().GetModify(1) != 0;
}

bool EditorTab::IsReadOnly() const
{
    return Editor().GetReadOnly(1) != 0;
}

bool EditorTab::IsUntouched() const
{
    return m_path.isEmpty() && !IsModified() && Editor().GetLength(1) == 0;
}

bool EditorTab::HasSelection() const
{
    return Editor().GetSelectionStart(1) != Editor().GetSelectionEnd(1);
}

QString EditorTab::CaretText() const
{
    const long caret = Editor().GetCurrentPos(1);
    return QStringLiteral("Line %1, column %2")
        .arg(Editor().LineFromPosition(caret, 1) + 1)
        .arg(Editor().GetColumn(caret, 1) + 1);
}

QString EditorTab::Catalog() const
{
    const long caret = Editor().GetCurrentPos(1);
    return QString::fromStdU16String(Editor().GetCatalogForOffset(static_cast<int>(caret), 1));
}

void EditorTab::SelectRange(long start, long end)
{
    Editor().EnsureRangeVisible(static_cast<int>(start), static_cast<int>(end));
    Editor().SetSel(start, end, 1);
    setFocus();
}

bool EditorTab::CanHold(int encoding) const
{
    if (encoding != FileEncodeConverter::encANSI)
        return true;
    std::vector<char16_t> line;
    for (int i = 0; i < Editor().GetLineCount(1); ++i) {
        line.resize(size_t(Editor().LineLength(i, 1)) + 1);
        const auto count = size_t(Editor().GetLine(i, line.data(), 1));
        if (!FitsWindows1252(QStringView(line.data(), qsizetype(count))))
            return false;
    }
    return true;
}
