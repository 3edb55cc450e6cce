// SPDX-License-Identifier: GPL-3.0-or-later
// What happens in which order around a tick and around a recovery: engine messages, calls of what a
// subclass may take part in, the profile and the question, in one list.
#include "tests/control/AutosaveFixture.h"
#include "tests/control/RecordingEngine.h"

namespace {

using recording::AnswerTo;
using Strings = std::vector<std::string>;

std::vector<std::string> events;
std::size_t seen = 0;

// The event, after what the engine was sent since the last one.
void Happened(const std::string& event)
{
    const Strings sentences = recording::Sentences();
    events.insert(events.end(), sentences.begin() + static_cast<long>(seen), sentences.end());
    seen = sentences.size();
    if (!event.empty())
        events.push_back(event);
}

Strings TakeEvents()
{
    Happened("");
    return std::exchange(events, {});
}

class LoudProfile : public IApplicationProfile
{
public:
    LoudProfile() { SetApplicationProfile(this); }
    ~LoudProfile() override { SetApplicationProfile(nullptr); }

    QString GetString(const QString& section, const QString& entry, const QString&) override
    {
        Happened("read " + section.toStdString());
        return entry == QLatin1String("~ZN1.tmp") ? noted : QString();
    }
    bool WriteString(const QString& section, const QString&, const char16_t* value) override
    {
        Happened((value ? "note " : "remove note ") + section.toStdString() + CopyState());
        return false; // a profile that cannot be written changes nothing else
    }

    // Whether the copy that the control names has a text at this moment.
    std::string CopyState() const
    {
        if (!control || control->m_strAutoSaveFile.isEmpty())
            return "";
        const QFileInfo copy(control->m_strAutoSaveFile);
        if (!copy.exists())
            return ", no copy";
        return copy.size() > 0 ? ", full copy" : ", empty copy";
    }

    AutosaveControl* control = nullptr;
    QString noted;
};

class LoudControl : public AutosaveControl
{
public:
    using CZNCoreEditorControl::m_bModified;

    void SetAutoSave(bool on, int minutes) override
    {
        Happened("SetAutoSave " + std::to_string(on) + " " + std::to_string(minutes));
        AutosaveControl::SetAutoSave(on, minutes);
    }

protected:
    void CleanUpAutoSave() override
    {
        Happened("CleanUpAutoSave");
        AutosaveControl::CleanUpAutoSave();
    }
    void DeleteAutoSaveFile() override
    {
        Happened("DeleteAutoSaveFile");
        AutosaveControl::DeleteAutoSaveFile();
    }
};

class AutosaveOrder : public testing::Test
{
protected:
    AutosaveOrder() : folders(folder.path())
    {
        const HWND window = CreateWindowOfClass(engine::kWindowClass, WS_CHILD,
                                                RECT{0, 0, 400, 300}, parent.widget());
        control.SubclassWindow(window);
        profile.control = &control;
        QFile file(PathOf("doc.sql"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("disk");
        recording::Forget();
        events.clear();
        seen = 0;
    }
    ~AutosaveOrder() override { profile.control = nullptr; }

    QString PathOf(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }

    bool Open() { return control.OpenFile(PathOf("doc.sql").toStdU16String().c_str(), kDetect); }

    void PlantCopy()
    {
        const QString copies = PathOf("data/bench/Backup");
        QDir().mkpath(copies);
        QFile copy(copies + QStringLiteral("/~ZN1.tmp"));
        ASSERT_TRUE(copy.open(QIODevice::WriteOnly));
        copy.write("copy");
        profile.noted = PathOf("doc.sql");
        questions.whileAsked = [] { Happened("question"); };
    }

    static void SayModified()
    {
        AnswerTo(engine::message::GetModify, [](WPARAM, LPARAM) { return 1; });
    }

    static void HoldText()
    {
        AnswerTo(engine::message::GetLineCount, [](WPARAM, LPARAM) { return 1; });
        AnswerTo(engine::message::LineLength, [](WPARAM, LPARAM) { return 1; });
        AnswerTo(engine::message::GetLine, [](WPARAM, LPARAM buffer) {
            *reinterpret_cast<char16_t*>(buffer) = u'x';
            return 1;
        });
    }

    Strings Tick()
    {
        TakeEvents();
        SendMessage(control.GetSafeHwnd(), WM_TIMER, kAutosaveTimer, 0);
        return TakeEvents();
    }

    // A document that a tick has a copy to write of.
    void HoldChangedDocument()
    {
        ASSERT_TRUE(Open());
        HoldText();
        control.m_bModified = true;
    }

    QTemporaryDir folder;
    FoldersIn folders;
    AutosaveQuestions questions;
    ParentWindow parent;
    LoudProfile profile;
    LoudControl control;
};

const Strings kLoaded = {"CleanUpAutoSave",       "SetAutoSave 0 0",
                         "DeleteAutoSaveFile",    "ClearAll",
                         "SetUndoCollection 0",   "SetDoingReplaceAll 1",
                         "SetEnableReconciler 0", "AddTextNoProcess(disk)",
                         "SetEnableReconciler 1", "SetDoingReplaceAll 0",
                         "GetLineCount",          "SetSel 0 0",
                         "SetUndoCollection 1",   "SetSavePoint"};

Strings Joined(Strings first, const Strings& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace

TEST_F(AutosaveOrder, ALoadStopsAutosaveFirstAndArmsItLast)
{
    control.m_bAutoSaveOn = true;
    control.m_nAutoSaveMinutes = 3;
    EXPECT_TRUE(Open());
    EXPECT_EQ(TakeEvents(), Joined(kLoaded, {"SetAutoSave 1 3"}));
}

TEST_F(AutosaveOrder, TheOfferComesBehindTheSavePointAndOneUndoHoldsTheCopy)
{
    PlantCopy();
    questions.answer = Answer::Yes;
    EXPECT_TRUE(Open());
    EXPECT_EQ(
        TakeEvents(),
        Joined(kLoaded, {"read Backup", "GetReadOnly", "question", "BeginUndoAction", "ClearAll",
                         "SetDoingReplaceAll 1", "SetEnableReconciler 0", "AddTextNoProcess(copy)",
                         "SetEnableReconciler 1", "SetDoingReplaceAll 0", "GetLineCount",
                         "SetSel 0 0", "EndUndoAction", "DeleteAutoSaveFile",
                         "remove note Backup, full copy", "SetAutoSave 0 1"}));
    EXPECT_FALSE(QFile::exists(PathOf("data/bench/Backup/~ZN1.tmp")));
}

TEST_F(AutosaveOrder, ARefusedOfferSendsTheEngineNothing)
{
    PlantCopy();
    EXPECT_TRUE(Open());
    EXPECT_EQ(TakeEvents(),
              Joined(kLoaded, {"read Backup", "GetReadOnly", "question", "SetAutoSave 0 1"}));
}

TEST_F(AutosaveOrder, AReadOnlyTextIsNotAskedAbout)
{
    PlantCopy();
    AnswerTo(engine::message::GetReadOnly, [](WPARAM, LPARAM) { return 1; });
    EXPECT_TRUE(Open());
    EXPECT_EQ(TakeEvents(), Joined(kLoaded, {"read Backup", "GetReadOnly", "SetAutoSave 0 1"}));
    EXPECT_TRUE(control.m_strAutoSaveFile.endsWith(QStringLiteral("/Backup/~ZN1.tmp")));
}

TEST_F(AutosaveOrder, ATickNotesTheCopyBeforeItWritesIt)
{
    HoldChangedDocument();
    EXPECT_EQ(Tick(), (Strings{"GetReadOnly", "GetLineCount", "read Backup",
                               "note Backup, empty copy", "GetLineCount", "LineLength 0",
                               "GetLine 0", "SetAutoSave 0 1", std::to_string(WM_TIMER)}));
}

TEST_F(AutosaveOrder, ACarefulTickNotesTheCopyBeforeItWritesItToo)
{
    control.SetCarefulFiles(true);
    HoldChangedDocument();
    SayModified();
    EXPECT_EQ(Tick(), (Strings{"GetModify", "GetReadOnly", "GetLineCount", "read Backup",
                               "note Backup, empty copy", "read BackupOrigins",
                               "note BackupOrigins, empty copy", "GetLineCount", "LineLength 0",
                               "GetLine 0", "SetAutoSave 0 1", std::to_string(WM_TIMER)}));
}

TEST_F(AutosaveOrder, ATickAsksTheEngineNothingIfNothingChanged)
{
    HoldChangedDocument();
    control.m_bModified = false;
    EXPECT_EQ(Tick(), (Strings{"SetAutoSave 0 1", std::to_string(WM_TIMER)}));
}

TEST_F(AutosaveOrder, ATickOnATextWithoutLinesWritesNothing)
{
    HoldChangedDocument();
    AnswerTo(engine::message::GetLineCount, [](WPARAM, LPARAM) { return 0; });
    EXPECT_EQ(Tick(), (Strings{"GetReadOnly", "GetLineCount", "SetAutoSave 0 1",
                               std::to_string(WM_TIMER)}));
}

TEST_F(AutosaveOrder, AnotherTimerGoesToTheClassAlone)
{
    TakeEvents();
    SendMessage(control.GetSafeHwnd(), WM_TIMER, 7, 0);
    EXPECT_EQ(TakeEvents(), (Strings{std::to_string(WM_TIMER)}));
    ASSERT_FALSE(recording::Messages().empty());
    EXPECT_EQ(recording::Messages().back().wParam, 7u);
}

TEST_F(AutosaveOrder, ACommittedSaveTakesTheCopyAwayBeforeItWrites)
{
    HoldChangedDocument();
    Tick();
    EXPECT_TRUE(control.SaveFile(PathOf("doc.sql").toStdU16String().c_str(), true));
    EXPECT_EQ(TakeEvents(),
              (Strings{"CleanUpAutoSave", "SetAutoSave 0 0", "DeleteAutoSaveFile",
                       "remove note Backup, full copy", "GetLineCount", "LineLength 0", "GetLine 0",
                       "SetSavePoint", "SetAutoSave 0 1"}));
}

TEST_F(AutosaveOrder, ACarefulSaveTakesTheCopyAwayOnceItHasWritten)
{
    control.SetCarefulFiles(true);
    HoldChangedDocument();
    SayModified();
    Tick();
    EXPECT_TRUE(control.SaveFile(PathOf("doc.sql").toStdU16String().c_str(), true));
    EXPECT_EQ(TakeEvents(),
              (Strings{"GetLineCount", "LineLength 0", "GetLine 0", "CleanUpAutoSave",
                       "SetAutoSave 0 0", "DeleteAutoSaveFile", "remove note Backup, empty copy",
                       "read BackupOrigins", "SetSavePoint", "SetAutoSave 0 1"}));
}
