// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptDoc: open, language, views. Saving stands in ScriptSaving.
#include "host/script/ScriptDoc.h"
#include "host/files/Prompts.h"

#include "editing/language/FileLanguages.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "host/TextLanguage.h"
#include "host/files/LanguageMemory.h"
#include "host/files/LineEnds.h"
#include "host/problems/ScriptChecker.h"
#include "host/recovery/LineEdits.h"
#include "host/script/ScriptView.h"
#include "host/session/AutosaveSettings.h"
#include "platform/docview/CommandIds.h"
#include "platform/docview/DocTemplate.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/File.h"
#include "platform/windows/Questions.h"
#include "platform/windows/Timer.h"

#include <QDir>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::seconds kCopyPause(4);

int encodingToOpenAs = -1;

bool IsAscii(CZNCoreEditorControlEx& editor)
{
    constexpr long kPiece = 1 << 20; // units
    const long length = editor.GetLength(1);
    std::u16string piece(static_cast<std::size_t>(std::min(length, kPiece)) + 1, u'\0');
    for (long start = 0; start < length; start += kPiece) {
        const long count = std::min(kPiece, length - start);
        editor.GetRange(start, start + count, piece.data());
        if (std::any_of(piece.begin(), piece.begin() + count, [](char16_t c) { return c > 0x7F; }))
            return false;
    }
    return true;
}

// A file of ASCII is in any encoding: it is in that of the options, if that leaves it as it is.
void TakeDefaultEncoding(CZNCoreEditorControlEx& editor)
{
    bool hasMark = false;
    const int type = CZNOptionsServer::GetObjectW()->GetInt(option::DefaultTextType);
    const auto wanted =
        FileEncodeConverter::ConvertToEncodingType(static_cast<znutils::TextType>(type), hasMark);
    if (editor.GetEncoding() == FileEncodeConverter::encANSI &&
        wanted == FileEncodeConverter::encUTF8 && IsAscii(editor))
        editor.SetEncoding(wanted);
}

QString WhyNotRead(const QString& path)
{
    const QFileInfo info(path);
    const QString name = QDir::toNativeSeparators(path);
    // What is not UTF-8 in a name has become this.
    if (!info.exists() && path.contains(QChar::ReplacementCharacter))
        return ScriptDoc::tr("“%1” has a name that is not UTF-8, which cannot be opened. "
                             "Rename the file.")
            .arg(name);
    if (!info.exists())
        return ScriptDoc::tr("“%1” does not exist.").arg(name);
    if (info.isDir())
        return ScriptDoc::tr("“%1” is a folder, not a script.").arg(name);
    return ScriptDoc::tr("“%1” cannot be read. Check that you may read it.").arg(name);
}

QString WhyNotWritten(const QString& path)
{
    const QFileInfo info(path);
    const QFileInfo folder(info.absolutePath());
    QString reason = ScriptDoc::tr("The disk may be full.");
    if (!folder.isDir())
        reason = ScriptDoc::tr("The folder does not exist.");
    else if (info.isDir())
        reason = ScriptDoc::tr("A folder has that name.");
    else if (!folder.isWritable() || (info.exists() && !info.isWritable()))
        reason = ScriptDoc::tr("You may not write there.");
    return ScriptDoc::tr("“%1” could not be saved. %2 The text is still here: "
                         "use Save As to put it in another place.")
        .arg(QDir::toNativeSeparators(path), reason);
}

QString WhyNotRecovered(const RecoverableCopy& copy)
{
    return ScriptDoc::tr("The copy of “%1” cannot be read, or another window of the workbench has "
                         "it by now. It is still there: “%2”.")
        .arg(copy.name, QDir::toNativeSeparators(copy.path));
}

// The document's own, or counted on: a recovered script has brought its number along.
QString FreeTitle(const ScriptDoc& script)
{
    const QString own = script.Name();
    const CDocTemplate* scripts = script.GetDocTemplate();
    QStringList taken;
    if (scripts) {
        for (const CDocument* other : scripts->GetDocuments()) {
            if (const auto* document = dynamic_cast<const ScriptDoc*>(other);
                document && document != &script && document->GetPathName().isEmpty())
                taken << document->Name();
        }
    }
    qsizetype digits = own.size();
    while (digits > 0 && own[digits - 1].isDigit())
        --digits;
    QString title = own;
    for (int number = own.mid(digits).toInt() + 1; taken.contains(title); ++number)
        title = own.left(digits) + QString::number(number);
    return title;
}

int LanguageOfName(const QString& name)
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    for (int language = 0; language < languages.GetLanguageCount(); ++language) {
        if (languages.GetLanguageName(language) == name)
            return language;
    }
    return -1;
}

QString TextOf(CZNCoreEditorControlEx& editor)
{
    QString text(editor.GetLength(1), Qt::Uninitialized);
    if (!text.isEmpty()) // which has no room for the terminator
        editor.GetRange(0, text.size(), reinterpret_cast<char16_t*>(text.data()));
    return text;
}

// A copy has just replaced the text of the file as a whole; only the lines that differ are to count
// as changed. One undo brings the file's text back in either case.
void ChangeLinesAlone(CZNCoreEditorControlEx& editor)
{
    constexpr long kMost = 4'000'000; // units
    if (editor.GetLength(1) > kMost)
        return;
    const QString copied = TextOf(editor);
    editor.Undo(1);
    const QString filed = TextOf(editor);
    if (filed.size() > kMost || filed == copied) {
        editor.Redo(1);
        return;
    }
    editor.BeginUndoAction(1);
    for (const LineEdit& edit : LineEdits(filed, copied)) {
        editor.SetTargetStart(edit.start, 1);
        editor.SetTargetEnd(edit.start + edit.length, 1);
        editor.ReplaceTarget(static_cast<int>(edit.text.size()),
                             reinterpret_cast<const char16_t*>(edit.text.utf16()), 1);
    }
    editor.EndUndoAction(1);
}

} // namespace

ScriptDoc::OpenAs::OpenAs(int encoding)
{
    encodingToOpenAs = encoding;
}

ScriptDoc::OpenAs::~OpenAs()
{
    encodingToOpenAs = -1;
}

ScriptDoc::ScriptDoc()
{
    m_copySoon.setObjectName(QStringLiteral("copySoon"));
    m_copySoon.setSingleShot(true);
    m_copySoon.setInterval(kCopyPause);
    connect(&m_copySoon, &QTimer::timeout, this, &ScriptDoc::CopyNow);
}

ScriptDoc::~ScriptDoc() = default;

const CRuntimeClass* ScriptDoc::GetThisClass()
{
    static const CRuntimeClass own = {"ScriptDoc", CZNCoreEditorDoc::GetThisClass(),
                                      &ScriptDoc::CreateObject};
    return &own;
}

ScriptView* ScriptDoc::FirstView() const
{
    return dynamic_cast<ScriptView*>(GetFirstEditView());
}

// A question belongs to the window that the person is in.
QWidget* ScriptDoc::Window() const
{
    const CView* view = FirstView();
    return view && view->GetSafeHwnd() ? view->GetSafeHwnd()->window() : nullptr;
}

// The base gives the text's number up, and a further view would show a text of its own.
int ScriptDoc::OnNewDocument()
{
    if (!CZNCoreEditorDoc::OnNewDocument())
        return 0;
    m_docPointer = FirstView()->GetCoreEditorControl()->GetDocPointer(1);
    SetTitle(FreeTitle(*this));
    SetLanguage(LanguageNamed(languages::Default(), LanguageOfNewScripts()));
    return 1;
}

// A script that never had a file is copied under its name, with the language that somebody chose.
void ScriptDoc::NameCopies(CZNCoreEditorControlEx& editor) const
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    if (m_strPathName.isEmpty())
        editor.SetUntitledName(
            UntitledName(Name(), languages.GetLanguageName(editor.GetCurrentLanguage())));
}

// The place in the text is that of before, as far as there is one.
bool ScriptDoc::Recover(const RecoverableCopy& copy)
{
    ScriptView* view = FirstView();
    if (!view)
        return false;
    CZNCoreEditorControlEx& editor = view->GetCoreEditorControlRef();
    const long line = editor.LineFromPosition(editor.GetCurrentPos(1), 1);
    if (!editor.RecoverCopy(copy.path, FileEncodeConverter::encodingType(m_chosenEncoding))) {
        if (!IsClosed())
            GetPrompts().Tell(Window(), WhyNotRecovered(copy));
        return false;
    }
    if (!m_strPathName.isEmpty())
        ChangeLinesAlone(editor);
    if (m_strPathName.isEmpty() && !copy.document.isEmpty()) {
        SetPathName(copy.document, false);
        SetLanguage(LanguageOfFile(copy.document));
        m_onlyHere = true;
    } else if (m_strPathName.isEmpty()) {
        SetTitle(copy.name);
        SetTitle(FreeTitle(*this));
        if (const int language = LanguageOfName(copy.language); language >= 0)
            SetLanguage(language);
    }
    SetModifiedFlag(1);
    view->GoToLine(line);
    m_lineEnds->Look();
    Q_EMIT StateChanged();
    return true;
}

int ScriptDoc::OnOpenDocument(const QString& path)
{
    m_chosenEncoding = encodingToOpenAs;
    return OnOpenDocumentEx(path, FileEncodeConverter::encodingType(m_chosenEncoding));
}

int ScriptDoc::OnOpenDocumentEx(const QString& path, FileEncodeConverter::encodingType encoding)
{
    m_told = false;
    const QuietLoad quiet;
    if (QFileInfo(path).isDir() || !CZNCoreEditorDoc::OnOpenDocumentEx(path, encoding)) {
        if (!m_told && !IsClosed())
            ReportSaveLoadException(path, nullptr, false, IDP_FAILED_TO_OPEN);
        return 0;
    }
    LookForUnread();
    if (encoding == FileEncodeConverter::encUnknown)
        TakeDefaultEncoding(FirstView()->GetCoreEditorControlRef());
    m_onlyHere = false;
    m_isTracked = m_lastAccessTime != 0;
    if (IsReadOnly())
        SetTitle(GetTitle()); // which marks it
    SetLanguage(LanguageToOpenWith(path));
    m_lineEnds->Look();
    return 1;
}

// What a person chose for the file counts most, then a name that says more than SQL, then what
// stands in it.
int ScriptDoc::LanguageToOpenWith(const QString& path)
{
    const int byName = LanguageOfFile(path);
    const int chosen = LanguageNamed(languages::ChosenFor(path), -1);
    if (chosen >= 0 || byName != LanguageOfNewScripts())
        return chosen >= 0 ? chosen : byName;
    constexpr long kLookedAt = 65536; // units
    CZNCoreEditorControlEx& editor = FirstView()->GetCoreEditorControlRef();
    QString front(std::min(editor.GetLength(1), kLookedAt), Qt::Uninitialized);
    if (!front.isEmpty()) // which has no room for the terminator
        editor.GetRange(0, front.size(), reinterpret_cast<char16_t*>(front.data()));
    if (const int language = LanguageNamed(DialectOfText(front), -1); language >= 0)
        return language;
    const QString ofFolder = languages::ChosenInFolder(path);
    if (const int language = LanguageNamed(ofFolder, -1); language >= 0) {
        if (language != byName)
            TellLater(tr("%1: %2, as other files of this folder")
                          .arg(QFileInfo(path).fileName(), ofFolder));
        return language;
    }
    return LanguageNamed(languages::Default(), byName);
}

// Once its tab is there and in front; nobody is told of others.
void ScriptDoc::TellLater(const QString& text)
{
    QMetaObject::invokeMethod(
        this,
        [this, text] {
            const ScriptView* view = IsClosed() ? nullptr : FirstView();
            if (view && view->GetSafeHwnd() && view->GetSafeHwnd()->isVisible())
                Q_EMIT Told(text);
        },
        Qt::QueuedConnection);
}

int ScriptDoc::Reopen(int encoding)
{
    if (!SaveModified() || IsClosed())
        return 0;
    m_chosenEncoding = encoding;
    return OnOpenDocumentEx(QString(m_strPathName), FileEncodeConverter::encodingType(encoding));
}

void ScriptDoc::ReportSaveLoadException(const QString& path, const CFileException* /*exception*/,
                                        bool saving, UINT /*prompt*/)
{
    m_told = true;
    GetPrompts().Tell(Window(), saving ? WhyNotWritten(path) : WhyNotRead(path));
}

QString ScriptDoc::Name() const
{
    if (!m_strPathName.isEmpty())
        return QFileInfo(m_strPathName).fileName();
    const QString title = GetTitle();
    return title.endsWith(QLatin1String(" *")) ? title.chopped(2) : title;
}

bool ScriptDoc::IsReadOnly() const
{
    ScriptView* view = FirstView();
    return view && view->GetCoreEditorControl()->GetReadOnly(1) != 0;
}

bool ScriptDoc::IsUntouched()
{
    ScriptView* view = FirstView();
    return view && m_strPathName.isEmpty() && !IsModified() &&
           view->GetCoreEditorControl()->GetLength(1) == 0;
}

int ScriptDoc::Language() const
{
    ScriptView* view = FirstView();
    return view ? view->GetCoreEditorControl()->GetCurrentLanguage() : 0;
}

void ScriptDoc::SetLanguage(int language)
{
    const std::vector<CView*> views = GetViews();
    for (CView* view : views) {
        if (auto* script = dynamic_cast<ScriptView*>(view))
            script->GetCoreEditorControl()->InitializeLanguage(language, 1);
    }
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    const bool isKnown = language >= 0 && language < languages.GetLanguageCount();
    if (m_checker)
        m_checker->SetLanguage(isKnown ? languages.GetLanguageName(language) : QString());
    if (ScriptView* view = FirstView())
        NameCopies(view->GetCoreEditorControlRef());
    Q_EMIT LanguageChanged();
}

void ScriptDoc::FollowOptions()
{
    const std::vector<CView*> views = GetViews();
    for (CView* view : views) {
        if (auto* script = dynamic_cast<ScriptView*>(view))
            SendMessage(script->GetCoreEditorControl()->GetSafeHwnd(), kOptionsChanged, 0, 0);
    }
    Q_EMIT LanguageChanged();
}

void ScriptDoc::OnViewMade(ScriptView& view)
{
    ScriptView* first = FirstView();
    if (first == &view)
        ServeView(view);
    else if (first)
        view.GetCoreEditorControl()->AdoptFile(first->GetCoreEditorControlRef());
}

// The one view that checks the text, watches its line ends and keeps the copies.
void ScriptDoc::ServeView(ScriptView& view)
{
    CZNCoreEditorControlEx& editor = view.GetCoreEditorControlRef();
    AutosaveSettings::Load().ApplyTo(editor);
    m_names.SetEditor(&editor);
    m_checker = std::make_unique<ScriptChecker>(editor, nullptr);
    connect(m_checker.get(), &ScriptChecker::ProblemsChanged, this, &ScriptDoc::ProblemsChanged);
    m_lineEnds = std::make_unique<LineEndWatch>(editor, nullptr);
    connect(m_lineEnds.get(), &LineEndWatch::KindChanged, this, &ScriptDoc::StateChanged);
}

void ScriptDoc::OnViewGoes(ScriptView& view)
{
    if (&view != FirstView())
        return;
    m_checker.reset();
    m_lineEnds.reset();
    m_names.SetEditor(nullptr);
    for (CView* other : GetViews()) {
        auto* next = dynamic_cast<ScriptView*>(other);
        if (!next || next == &view)
            continue;
        CZNCoreEditorControlEx& editor = next->GetCoreEditorControlRef();
        editor.AdoptFile(view.GetCoreEditorControlRef());
        ServeView(*next);
        const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
        m_checker->SetLanguage(languages.GetLanguageName(editor.GetCurrentLanguage()));
        m_lineEnds->Look();
        NameCopies(editor);
        return;
    }
}

void ScriptDoc::OnViewShown()
{
    Q_EMIT LanguageChanged();
}

void ScriptDoc::OnTextChanged()
{
    if (!m_checker)
        return;
    m_checker->CheckSoon();
    m_lineEnds->TextChanged();
    m_copySoon.start();
    Q_EMIT TextChanged();
}

// Keys have rested: what a crash would take is what is typed from now on. A long text takes a
// while to write and is left to the minutes.
void ScriptDoc::CopyNow()
{
    constexpr UINT kAutosave = 100;   // the editor's timer
    constexpr long kMost = 4'000'000; // units
    ScriptView* view = IsClosed() ? nullptr : FirstView();
    if (!view)
        return;
    CZNCoreEditorControlEx& editor = view->GetCoreEditorControlRef();
    if (editor.GetAutoSaveOn() && editor.GetSafeHwnd() && editor.GetLength(1) <= kMost)
        SendMessage(editor.GetSafeHwnd(), WM_TIMER, kAutosave, 0);
}

// The base's questions say nothing of a text that is nowhere else, and their default lets it go.
// That of a file which is gone is asked about like a change by who closes it.
void ScriptDoc::AskBeforeLosingToFile()
{
    if (m_checkingAccessTime || !IsTracked())
        return;
    CFileStatus status;
    if (!CFile::GetStatus(m_strPathName, status)) {
        KeepAsOnlyHere();
        return;
    }
    if (!IsModified() || CZNOptionsServer::GetObjectW()->GetInt(option::ReloadWithoutAsking) ||
        status.m_mtime == m_lastAccessTime)
        return;
    const QScopedValueRollback<bool> checking(m_checkingAccessTime, true);
    m_lastAccessTime = status.m_mtime;
    const bool isToRead = GetPrompts().Confirm(
        Window(),
        tr("“%1” has been changed outside of the workbench. If it is read again, your changes that "
           "are not saved are lost.")
            .arg(Name()),
        tr("&Read Again"));
    if (IsClosed())
        return;
    if (isToRead)
        ReloadFile();
    else
        m_lastAccessTime = 0; // as the base does for a No
}

// A No ends the tracking: the text that is kept is not to be lost without a further question. A Yes
// to a file that is gone ends it too, but the close that it asked for is on its way, ahead of this.
void ScriptDoc::OnFocus()
{
    const auto readAt = m_lastAccessTime;
    {
        const QuietLoad quiet;
        AskBeforeLosingToFile();
        CheckLastAccessTime();
    }
    if (IsClosed())
        return;
    if (m_lastAccessTime != 0 && m_lastAccessTime != readAt)
        LookForUnread();
    TellUnread();
    if (IsClosed())
        return;
    if (m_isTracked && m_lastAccessTime == 0) {
        CFileStatus status;
        m_keptAt = CFile::GetStatus(m_strPathName, status) ? status.m_mtime : 0;
        QMetaObject::invokeMethod(this, &ScriptDoc::MarkAsOnlyHere, Qt::QueuedConnection);
    }
    m_isTracked = m_lastAccessTime != 0;
    Q_EMIT StateChanged();
}

void ScriptDoc::MarkAsOnlyHere()
{
    if (!IsClosed() && m_lastAccessTime == 0)
        KeepAsOnlyHere();
}

void ScriptDoc::KeepAsOnlyHere()
{
    m_onlyHere = true;
    SetModifiedFlag(1);
    if (ScriptView* view = FirstView()) // copies are made of what is modified
        view->GetCoreEditorControl()->SetModified(true);
    Q_EMIT StateChanged();
}

void ScriptDoc::SetModifiedFlag(int modified)
{
    CZNCoreEditorDoc::SetModifiedFlag(modified || m_onlyHere ? 1 : 0);
}

// The base's command, with an end of what was kept against the file.
void ScriptDoc::OnReload()
{
    QString text = tr("Do you want to reload '%1' ?").arg(m_strPathName);
    if (IsModified())
        text += u'\n' + tr("Your changes that are not saved are lost.");
    if (m_strPathName.isEmpty() || !AskYesNo(Window(), text) || IsClosed())
        return;
    m_onlyHere = false;
    const QuietLoad quiet;
    ReloadFile();
    LookForUnread();
    TellUnread();
}

void ScriptDoc::OnReadOnly()
{
    OnFileReadonly();
    Q_EMIT StateChanged();
}

const CommandMap& ScriptDoc::GetCommandMap() const
{
    constexpr UINT kReload = 54008;
    constexpr UINT kReadOnly = 54010;
    using Doc = ScriptDoc;
    // clang-format off
    static constexpr CommandEntry kCommands[] = {
        {kReload,         [](CCmdTarget& t) { static_cast<Doc&>(t).OnReload(); }},
        {kReadOnly,       [](CCmdTarget& t) { static_cast<Doc&>(t).OnReadOnly(); }},
        {ID_FILE_SAVE_AS, [](CCmdTarget& t) { static_cast<Doc&>(t).SaveAs(); }},
    };
    static constexpr UpdateEntry kUpdates[] = {
        {ID_FILE_SAVE, [](CCmdTarget& t, CCmdUI& ui) {
            auto& doc = static_cast<Doc&>(t);
            ui.Enable(doc.IsModified() || doc.GetPathName().isEmpty());
        }},
    };
    // clang-format on
    static const CommandMap map = {&CZNCoreEditorDoc::GetCommandMap(), kCommands, kUpdates};
    return map;
}
