// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CZNCoreEditorControl: an editor window of the engine, its whole command surface, load and save.
/// Everything that reaches the engine goes through Call. Positions and lengths count UTF-16 units,
/// lines count from 0. Created, used and destroyed on the GUI thread.
#pragma once

#include "common/Export.h"
#include "control/EngineMessages.h"
#include "control/FileResult.h"
#include "control/FileStamp.h"
#include "encoding/FileEncodeConverter.h"
#include "platform/windows/Wnd.h"

#include <QString>

#include <array>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

class CopyClaim;
class FileBlocks;
class TargetFile;
struct FilePolicy;

/// Sent to the parent when the user edits; wParam is the control's window, lParam 1.
extern ZN_API unsigned int ZNBASEM_ON_EDITCHANGE;

/// How the fold margin looks.
enum EFoldStyle : int
{
    BoxTree = 0,    ///< boxes with lines between them
    CircleTree = 1, ///< circles with lines between them
    PlusMinus = 2,  ///< plus and minus alone
    Arrows = 3,     ///< and any other value
};

/// The last argument of most operations, `direct`, chooses the way to the engine: nonzero calls its
/// function, which is cheap; zero sends a window message, which passes through the message maps.
/// An engine whose window is gone answers 0 to everything.
class ZN_API CZNCoreEditorControl : public CWnd
{
public:
    CZNCoreEditorControl(); ///< loads the engine once for the process
    ~CZNCoreEditorControl() override;

    using CWnd::Create;
    using CWnd::SetFocus; // beside the message of that name
    /// A window attached to this control. Direct access is the subclass's to set up, in its handler
    /// of WM_CREATE; until then a direct call answers 0. Gives 0 if there is no engine.
    virtual int Create(unsigned long style, const RECT& rect, CWnd* parent, unsigned int id,
                       CCreateContext* context);
    /// A window that is not attached: the caller attaches it, then calls SetupDirectAccess. Null if
    /// there is no engine.
    HWND Create(HWND parent, HINSTANCE instance);
    void PreSubclassWindow() override;

    /// Asks the window for its function, which direct calls take from then on.
    void SetupDirectAccess();
    /// The engine's function, an engine::DirectFunction; 0 without a window.
    LRESULT GetDirectFunction();
    LRESULT GetDirectPointer(); ///< what that function takes first; 0 without a window

    /// The engine's answer; 0 if the window is gone, or if direct access is asked and not set up.
    LRESULT Call(unsigned int message, WPARAM wParam, LPARAM lParam, int direct)
    {
        const HWND window = GetSafeHwnd();
        if (!window)
            return 0;
        if (!direct)
            return SendMessage(window, message, wParam, lParam);
        return m_pDirectFunction ? m_pDirectFunction(m_pDirectPointer, message, wParam, lParam) : 0;
    }

    /// The window that notifies, else the one that is attached.
    HWND GetHwnd() const { return m_hEditorWnd ? m_hEditorWnd.data() : GetSafeHwnd(); }

    /// Whether the record behind lParam of WM_NOTIFY comes from this control; asked first.
    bool IsBaseEditorNotify(LPARAM lParam) const;
    virtual int HandleNotify(LPARAM lParam); ///< the record's code

    /// The control's own record, which follows the engine's save-point notifications.
    void SetModified(bool modified) { m_bModified = modified; }
    bool GetModified() const { return m_bModified; } ///< true from the first change to a save

    int GetSelLength() const { return m_nSelLength; } ///< as of the last update notification
    void SetInitialTabWidth(int width) { m_nInitialTabWidth = width; } ///< kept for a derived class
    void SetLineEndingStyle(int mode) { m_nLineEndingStyle = mode; }   ///< for Copy alone
    /// -1: copies keep the line ends as they stand.
    int GetLineEndingStyle() const { return m_nLineEndingStyle; }

    /// The file behind the text: a number of FileEncodeConverter, and whether a byte-order mark is
    /// written.
    void SetEncoding(int encoding) { m_nEncoding = encoding; }
    int GetEncoding() const { return m_nEncoding; } ///< of the file, or of the next save
    /// The code page that the encoding 0 stands for in the files of this control, as they are read,
    /// saved, inserted and copied for a crash. 0, as at first: the system's. Set it in front of
    /// OpenFile. False for one that is not known, and nothing changes.
    bool SetFileCodePage(int codePage);
    int GetFileCodePage() const { return m_nFileCodePage; } ///< as it was set
    /// Of the next save.
    void SetWriteEncodingSig(const bool& write) { m_bWriteEncodingSig = write; }
    /// Whether the next save writes one.
    bool GetWriteEncodingSig() const { return m_bWriteEncodingSig; }
    const QString& GetFileName() const { return m_strFileName; } ///< empty: there is no file yet

    /// Replaces the text by the file's; encoding -1 means detect. False for a file that is missing
    /// or cannot be read, and without an engine; true also for one that was cut short, which a box
    /// tells the user as well. A text that is read-only stays as it is, though the result is true;
    /// with care it is replaced all the same.
    virtual bool OpenFile(const char16_t* path, FileEncodeConverter::encodingType encoding);
    /// With commit the file becomes the one behind the text; without it this is an export that
    /// changes nothing here. False if a write failed. A target that cannot be opened gives true,
    /// unless files are handled with care.
    virtual bool SaveFile(const char16_t* path, FileEncodeConverter::encodingType encoding,
                          bool commit, bool writeMark);
    virtual bool SaveFile(const char16_t* path, bool commit); ///< as the file behind the text is
    /// Replaces the text undoably; the file behind the text and the save point stay. Nothing
    /// happens if the file cannot be read or is empty.
    void ReplaceTextWithFile(const char16_t* path, FileEncodeConverter::encodingType encoding);

    /// Care for files, off by default: a load carries every character over the seams of its blocks
    /// and begins a history of its own, a save replaces the target as a whole or not at all and
    /// tells every failure.
    void SetCarefulFiles(bool careful) { m_bCarefulFiles = careful; }
    bool GetCarefulFiles() const { return m_bCarefulFiles; } ///< off at first
    /// What the last OpenFile or SaveFile met, also where its result does not tell. A load that was
    /// cut short is a problem, and its result is true.
    const FileResult& GetFileResult() const { return m_fileResult; }
    /// Whether the file holds more than was loaded, so that a save over it would lose the rest.
    bool WasCutShort() const { return m_bCutShort; }
    /// Puts the other control's file behind this one's text, with all that is known of it. For the
    /// last view of a text whose other views go.
    void AdoptFile(const CZNCoreEditorControl& other);

    /// Autosave: while a document with a file behind it is modified, a copy of it is written each
    /// time the minutes have passed, and taken away when the text is saved or closed. A copy that
    /// is found when its file is opened comes from a crash, and is offered. Minutes below 1 stop
    /// it.
    void setAutoSaveOn(bool on);
    void setAutoSaveMinutes(int minutes); ///< between two copies, while autosave is on
    bool GetAutoSaveOn() const { return m_bAutoSaveOn; }          ///< off at first
    int GetAutoSaveMinutes() const { return m_nAutoSaveMinutes; } ///< 1 at first
    /// Whether the latest copy could not be written, for want of room or rights: what was typed
    /// since the one before is in memory alone. It is tried again at the next interval.
    bool AutoSaveFailed() const { return m_bCopyFailed; }
    /// A name makes copies of a text without a file, too, which are noted under it and offered to
    /// nobody: a host finds them by LeftCopies. It is no absolute path. Empty, as from the start:
    /// there are none.
    void SetUntitledName(const QString& name);
    /// Whether OpenFile offers what it finds. A host that does not want its question shows what
    /// LeftCopies lists, and has what a person chooses loaded.
    void SetOffersCopies(bool offers) { m_offersCopies = offers; }
    /// Puts a crash's copy in the place of the text, undoably, and goes on with it as this
    /// control's own; a text without a file gets the one that the copy stands for. False if the
    /// copy is another's (a LeftCopies that lists it has to release it first) or cannot be opened,
    /// if the text is read-only, or if this was closed meanwhile.
    bool RecoverCopy(const QString& copyPath, FileEncodeConverter::encodingType encoding);
    /// Starts or stops the timer without keeping what it is told.
    virtual void SetAutoSave(bool on, int minutes);

    /// Sets the mode of new line ends by the majority in the first lines.
    void DiscoverEOLSetting(int maxLines);

    /// Empty without a selection; of a rectangle a line for each line, of several selections the
    /// main one.
    virtual QString GetSelText();
    /// Kept for a derived class.
    virtual void EnableSymbolSupport(bool enable) { m_bSymbolSupport = enable; }

    // The wrappers: one for each row of the table, with its parameters and `int direct`.
    // clang-format off
#define ZN_A(name, number, result) \
    engine::CppType<engine::Kind::result> name(int direct);
#define ZN_B(name, number, result, kind, arg) \
    engine::CppType<engine::Kind::result> name(engine::CppType<engine::Kind::kind> arg, int direct);
#define ZN_C(name, number, result, kind, arg, kind2, arg2) \
    engine::CppType<engine::Kind::result> name(engine::CppType<engine::Kind::kind> arg, \
                                               engine::CppType<engine::Kind::kind2> arg2, int direct);
#define ZN_D(name, number, result, kind, arg) \
    engine::CppType<engine::Kind::result> name(engine::CppType<engine::Kind::kind> arg, int direct);
#define ZN_OWN(...)
    // clang-format on
#include "control/EngineMessages.def"

    /// Text entry in the line ends of the engine's mode. With a mode of 1 to 3 the text always runs
    /// to its terminator, whatever length says; with mode 0 exactly length units go in.
    void AddText(int length, const char16_t* text, int direct);
    /// The selection becomes the text, in the line ends of the engine's mode.
    void ReplaceSel(const char16_t* text, int direct);
    int ReplaceTarget(int length, const char16_t* text, int direct); ///< the length put in

    void Copy(int direct);                          ///< with the line ends of SetLineEndingStyle
    void SetText(const char16_t* text, int direct); ///< GetModified reads false afterwards
    int GetRange(int start, int end, char16_t* buffer); ///< buffer: end - start + 1 units
    void GetSel(CharacterRange& range);                 ///< where the selection begins and ends
    void SetTarget(int start, int end);    ///< what SearchInTarget and ReplaceTarget work on
    void SetTarget(CharacterRange* range); ///< the same; not null
    /// Bytes for UTF-16 LE only; for every other encoding the count of units.
    int GetFileByteLength();

    /// The script analysis, as far as its operations are not rows of the table (AnalysisWrappers).
    int PartitionerInit(void* pointer, bool flag, int direct);
    /// The first is a partitioner::ResetScope, the others a range.
    int PartitionerReset(int first, int second, int third, int direct);
    /// 1 and the partition; 0 leaves out as it was. What out held is released.
    int PartitionGetAt(PartitionInfo& out, int at, int direct);
    /// Appends to out; 1 always. The records' pNext must not be followed.
    int PartitionGetAll(std::vector<PartitionInfo>& out, int from, int to, int direct);
    std::u16string GetCatalogForOffset(int offset, int direct); ///< empty: none is known
    std::u16string GetBatchSeparator(int direct);               ///< empty: none
    /// 1 if a batch was found. The engine reads and writes third and fourth.
    int DoFindBatch(long first, long second, long& third, long& fourth, int direct);
    /// Off, every question is answered with nothing.
    void SetEnablePartitioner(bool enable, int direct);
    int GetMultiCodePage(); ///< 65001
    /// The engine's analysis rests while it is off, and while a bulk change is announced.
    void SetEnableReconciler(bool enable, int direct);
    /// Announces a change of many places, and its end.
    void SetDoingReplaceAll(bool bulk, int direct);
    int GetIsReconcilerEnabled(); ///< whether the analysis follows edits

    /// Errors: indicator 0, red; warnings: indicator 1, yellow. Always 0.
    int DefineErrorIndicators();

    /// What ends a statement until the script says other, in every window of the document: at most
    /// 15 bytes of UTF-8 without a blank. Null or empty: ;. Another language leaves it.
    void SetStatementTerminator(const char16_t* text, int direct);
    std::u16string GetStatementTerminator(int direct); ///< never empty
    /// What a marker looks like: a symbol of engine::marker and its colours.
    void DefineMarker(int marker, int symbol, unsigned long fore, unsigned long back);

    /// Bookmarks: marker 0, and the numbers 0 to 9 on the markers from firstMarker on, one of them
    /// on a line at most. Other numbers do nothing. DefineNumberedBookmarks forgets where they
    /// stood.
    void DefineBookmarks();
    /// Ten markers from firstMarker on, in the colours of the system or of their own.
    void DefineNumberedBookmarks(int firstMarker, bool systemColours);
    void ToggleNumberedBookmark(int number, int firstMarker); ///< at the caret's line
    void JumpToNumberedBookmark(int number, int firstMarker); ///< nothing happens if it is not set

    void SetFoldingMargins(EFoldStyle style); ///< defines the markers of folds
    /// Walks the children of the header at line, and leaves line behind them. With force they are
    /// shown to that many levels and hidden below, else they are shown if doExpand is set. A level
    /// other than -1 is taken for that of every line.
    void Expand(int& line, bool doExpand, bool force, int visibleLevels, int level);
    void FoldAll(); ///< toggles all folds of the first level
    /// A line that becomes a header shows its lines; one that was a folded header shows them again.
    void FoldChanged(int line, int levelNow, int levelPrevious);
    /// A click in the fold margin, modifiers: 1 shift, 2 control. True always.
    bool MarginClick(long position, int modifiers);
    void EnsureRangeVisible(long from, long to); ///< opens every fold that hides a line of it
    /// Opens what hides the line, and sets the caret to its start.
    void GotoLineEnsureVisible(int line);

    static HINSTANCE
        m_hEditorDllHandle; ///< the engine, null until the first control; never released
    /// Loads the engine unless it is there. What the loader said, empty if there is an engine.
    static const QString& LoadEngine();
    static int refs; ///< live controls

protected:
    virtual void CleanUpAutoSave();    ///< stops the timer and deletes the copy
    virtual void DeleteAutoSaveFile(); ///< the copy and its note, if there are any
    void OnTimer(UINT id);             ///< number 100 writes the autosave copy

    /// Reads and closes the file, inserting at the caret; null does nothing. convertEOLs brings the
    /// text to the engine's line-end mode.
    void ReadInFileContents(std::FILE* file, FileEncodeConverter::encodingType encoding,
                            bool convertEOLs);
    /// What the last read left over, of whichever file.
    void SetCutShort(bool cutShort)
    {
        m_bCutShort = cutShort;
    }
    /// Counts each kind until one reaches 10; maxLines 0 means all lines.
    void CountLineEnds(int& cr, int& lf, int& crlf, int maxLines);

    const MessageMap& GetMessageMap() const override;

    /// In the order in which they are destroyed from the last on.
    bool m_bSymbolSupport = false;
    int m_bCreated = 0;       ///< made by a Create, so subclassing has nothing to do
    int m_bFirstInstance = 0; ///< no other control was alive when this one was constructed
    int m_nEncoding = FileEncodeConverter::encUTF16LE;  ///< of the file behind the text
    int m_nFileCodePage = 0;                            ///< 0: the system's
    int m_nLineEndingStyle = -1;                        ///< for Copy; -1: as they stand
    engine::DirectFunction m_pDirectFunction = nullptr; ///< null until SetupDirectAccess
    LRESULT m_pDirectPointer = 0;                       ///< what it takes first
    QPointer<QWidget> m_hEditorWnd;                     ///< the window that notifies
    bool m_bModified = false;                           ///< follows the save-point notifications
    int m_nInitialTabWidth = 0;                         ///< kept for a derived class
    int m_nSelLength = 0;                               ///< as of the last update notification
    std::array<int, 10> m_aNumberedBookmarks{};         ///< marker handles
    QString m_strFileName;                              ///< empty: none yet
    QString m_strAutoSaveDir;                           ///< where copies are written
    QString m_strAutoSaveFile;                          ///< the copy; empty: none yet
    bool m_bAutoSaveOn = false;      ///< whether the timer runs while there is something to save
    int m_nAutoSaveMinutes = 1;      ///< between two copies
    bool m_bWriteEncodingSig = true; ///< whether a save writes a byte-order mark

private:
    bool DiffersFromFile();
    void WriteAutoSaveCopy(const QString& documentPath);
    void MakeAutoSaveFile();
    void OfferAutoSaveCopy(FileEncodeConverter::encodingType encoding);
    bool LoadAutoSaveCopy(FileEncodeConverter::encodingType encoding);
    const QString& NameForNote() const;
    void LeaveAutoSaveCopy();
    LRESULT OnGetSel(WPARAM wParam, LPARAM lParam);
    LRESULT OnLineLength(WPARAM wParam, LPARAM lParam);
    void OnModified(const SCNotification& record);
    void FreeLineOfNumberedBookmarks(int line, int firstMarker);
    bool FoldsAreToOpen(int lines);
    const FilePolicy& Policy() const;
    bool CanHoldText() const;
    bool Fails(FileProblem problem, const char16_t* path); // false always
    void RecordEncoding(FileEncodeConverter::encodingType found);
    void AdoptEncoding(FileEncodeConverter::encodingType found, bool hadMark);
    void EnterBlocks(FileBlocks& blocks, int selector, bool replacesTarget);
    bool WriteToFile(const char16_t* path, FileEncodeConverter::encodingType encoding,
                     bool writeMark);
    bool WriteToFile(const char16_t* path);
    bool WriteText(TargetFile& target, FileEncodeConverter::encodingType encoding, bool writeMark);
    FileEncodeConverter::encodingType EncodingForSave() const;
    // UTF-8 with a terminator, which the count includes.
    int ConvertTCharToUtf8(const char16_t* text, std::vector<char>& out) const;

    bool m_bCarefulFiles = false;
    FileResult m_fileResult;
    FileStamp m_fileStamp; // of the file behind the text when it was read or written
    QString m_untitledName;
    bool m_offersCopies = true;
    bool m_bHasWrittenCopy = false; // the autosave file has a text of this control's
    bool m_bCopyFailed = false;     // the latest one was not written
    bool m_bCutShort = false;
    std::unique_ptr<CopyClaim> m_copyClaim; // on the autosave file
};
