// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptDoc: open, language, views, what others do to the file. Saving stands in ScriptSaving,
// copies in ScriptRecovery.
#include "host/script/ScriptDoc.h"
#include "host/files/Prompts.h"

#include "editing/language/FileLanguages.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "host/TextLanguage.h"
#include "host/files/Encodings.h"
#include "host/files/FileMemory.h"
#include "host/files/LanguageMemory.h"
#include "host/files/LineEnds.h"
#include "host/problems/ScriptChecker.h"
#include "host/script/ScriptView.h"
#include "host/session/AutosaveSettings.h"
#include "platform/docview/CommandIds.h"
#include "platform/docview/DocTemplate.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/File.h"
#include "platform/windows/Questions.h"

#include <QDir>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::seconds kCopyPause(4);
constexpr std::int64_t kGone = -1; // the write time of a file that there is none of

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
    SetTitle(FreeTitle());
    SetLanguage(LanguageNamed(languages::Default(), LanguageOfNewScripts()));
    return 1;
}

int ScriptDoc::OnOpenDocument(const QString& path)
{
    m_chosenEncoding = encodingToOpenAs;
    return OnOpenDocumentEx(path, FileEncodeConverter::encodingType(FormOf(m_chosenEncoding)));
}

int ScriptDoc::OnOpenDocumentEx(const QString& path, FileEncodeConverter::encodingType encoding)
{
    m_told = false;
    const QuietLoad quiet;
    // What is kept because the file was not read is still in the page that it was read in.
    int codePage = CodePageToOpenWith(path);
    const auto exchange = [&] {
        if (ScriptView* view = FirstView()) {
            CZNCoreEditorControlEx& editor = view->GetCoreEditorControlRef();
            const int before = editor.GetFileCodePage();
            editor.SetFileCodePage(std::exchange(codePage, before));
        }
    };
    exchange();
    if (QFileInfo(path).isDir() || !CZNCoreEditorDoc::OnOpenDocumentEx(path, encoding)) {
        exchange();
        if (!m_told && !IsClosed())
            ReportSaveLoadException(path, nullptr, false, IDP_FAILED_TO_OPEN);
        return 0;
    }
    LookForUnread();
    if (encoding == FileEncodeConverter::encUnknown)
        TakeDefaultEncoding(FirstView()->GetCoreEditorControlRef());
    TellCodePage();
    m_onlyHere = false;
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
            TellOfFolder(FileMemory(QStringLiteral("ToldLanguages")), path, ofFolder);
        return language;
    }
    return LanguageNamed(languages::Default(), byName);
}

// Which what is Unicode does without.
int ScriptDoc::CodePageToOpenWith(const QString& path) const
{
    if (m_chosenEncoding > FileEncodeConverter::encUnknown)
        return CodePageOf(m_chosenEncoding);
    if (const int chosen = ChosenCodePage(path); chosen != 0)
        return chosen;
    const int ofFolder = ChosenCodePageInFolder(path);
    return ofFolder != 0 ? ofFolder : DefaultCodePage();
}

// One that nobody chose for this file.
void ScriptDoc::TellCodePage()
{
    const int encoding = CurrentTarget().encoding;
    if (m_chosenEncoding > FileEncodeConverter::encUnknown) {
        RememberCodePage(m_strPathName, encoding);
        return;
    }
    if (encoding == ChosenCodePageInFolder(m_strPathName) && encoding != DefaultCodePage() &&
        ChosenCodePage(m_strPathName) == 0)
        TellOfFolder(FileMemory(QStringLiteral("ToldCodePages")), m_strPathName,
                     EncodingName(encoding, false));
}

// Once for a file, not at each start; and once its tab is there and in front: nobody is told of
// others.
void ScriptDoc::TellOfFolder(const FileMemory& told, const QString& path, const QString& choice)
{
    if (told.Of(path) == choice)
        return;
    QMetaObject::invokeMethod(
        this,
        [this, told, path, choice] {
            const ScriptView* view = IsClosed() ? nullptr : FirstView();
            if (!view || !view->GetSafeHwnd() || !view->GetSafeHwnd()->isVisible())
                return;
            told.Remember(path, choice);
            Q_EMIT Told(tr("%1: %2, as other files of this folder")
                            .arg(QFileInfo(path).fileName(), choice));
        },
        Qt::QueuedConnection);
}

int ScriptDoc::Reopen(int encoding)
{
    if (!SaveModified() || IsClosed())
        return 0;
    const int before = std::exchange(m_chosenEncoding, encoding);
    if (OnOpenDocumentEx(QString(m_strPathName),
                         FileEncodeConverter::encodingType(FormOf(encoding))))
        return 1;
    m_chosenEncoding = before;
    return 0;
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
        return m_strPathName.mid(m_strPathName.lastIndexOf(u'/') + 1);
    const QString title = GetTitle();
    return title.endsWith(QLatin1String(" *")) ? title.chopped(2) : title;
}

bool ScriptDoc::IsReadOnly() const
{
    ScriptView* view = FirstView();
    return view && view->GetCoreEditorControl()->GetReadOnly(1) != 0;
}

void ScriptDoc::TellReadOnly()
{
    const QString text = IsFileReadOnly()
                             ? tr("“%1” is read-only, and nothing was changed. Save As makes a "
                                  "copy that you can change.")
                             : tr("“%1” is read-only, and nothing was changed. File > Read Only "
                                  "ends that.");
    Q_EMIT Told(text.arg(Name()));
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

std::vector<ScriptDoc*> ScriptDoc::OpenBeside() const
{
    std::vector<ScriptDoc*> scripts;
    const CDocTemplate* made = GetDocTemplate();
    if (!made)
        return scripts;
    for (CDocument* document : made->GetDocuments()) {
        auto* script = dynamic_cast<ScriptDoc*>(document);
        if (script && script != this)
            scripts.push_back(script);
    }
    return scripts;
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
    const bool isReadUnasked =
        CZNOptionsServer::GetObjectW()->GetInt(option::ReloadWithoutAsking) && !m_onlyHere;
    if (!IsModified() || isReadUnasked || status.m_mtime == m_lastAccessTime)
        return;
    const QScopedValueRollback<bool> checking(m_checkingAccessTime, true);
    m_lastAccessTime = status.m_mtime;
    const bool isToRead = GetPrompts().ConfirmComparing(
        Window(),
        tr("“%1” has been changed outside of the workbench. If it is read again, your changes that "
           "are not saved are lost.")
            .arg(Name()),
        tr("&Read Again"), WithFile());
    if (IsClosed())
        return;
    m_onlyHere = !isToRead;
    if (isToRead) {
        ReloadFile();
        LookForUnread();
    } else {
        KeepAsOnlyHere();
    }
}

// The base ends the tracking with a No, and leaves what others do from then on to the save. Here
// the text is kept against the file of that moment alone, and each further change is asked about. A
// Yes to a file that is gone ends the tracking too, but the close that it asked for is on its way,
// ahead of this.
void ScriptDoc::OnFocus()
{
    CFileStatus file;
    const bool isThere = CFile::GetStatus(m_strPathName, file);
    const bool wasTracked = m_lastAccessTime != 0;
    auto known = m_lastAccessTime;
    if (isThere || known != kGone) {
        const QuietLoad quiet;
        AskBeforeLosingToFile();
        known = m_lastAccessTime;
        CheckLastAccessTime();
    }
    if (IsClosed())
        return;
    if (wasTracked && m_lastAccessTime == 0) {
        m_lastAccessTime = isThere ? file.m_mtime : kGone;
        const auto keep = [this, keptAt = m_lastAccessTime] {
            if (!IsClosed() && m_lastAccessTime == keptAt)
                KeepAsOnlyHere();
        };
        QMetaObject::invokeMethod(this, keep, Qt::QueuedConnection);
    } else if (m_lastAccessTime != known) {
        LookForUnread();
    }
    TellUnread();
    if (!IsClosed())
        Q_EMIT StateChanged();
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
