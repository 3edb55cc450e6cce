// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of autosave share: folders and a profile of their own, copies as a crash leaves
// them, ticks by hand and an answer to the question.
#pragma once

#include "platform/system/Profile.h"
#include "platform/windows/Timer.h"
#include "tests/control/ControlFixture.h"
#include "tests/control/FoldersIn.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <algorithm>

inline constexpr UINT kAutosaveTimer = 100;

class AutosaveQuestions : public IUserQuestions
{
public:
    AutosaveQuestions() { SetUserQuestions(this); }
    ~AutosaveQuestions() override { SetUserQuestions(nullptr); }

    Answer Ask(HWND owner, const QString& text, Buttons buttons) override
    {
        asked << text;
        owners.push_back(owner);
        if (whileAsked)
            whileAsked();
        return buttons == Buttons::Ok ? Answer::Ok : answer;
    }

    QStringList asked;
    std::vector<HWND> owners;
    Answer answer = Answer::No;
    std::function<void()> whileAsked;
};

class AutosaveControl : public CZNCoreEditorControl
{
public:
    using CZNCoreEditorControl::m_bAutoSaveOn;
    using CZNCoreEditorControl::m_nAutoSaveMinutes;
    using CZNCoreEditorControl::m_strAutoSaveFile;
    using CZNCoreEditorControl::m_strFileName;

    void SetAutoSave(bool on, int minutes) override
    {
        calls.push_back("SetAutoSave " + std::to_string(on) + " " + std::to_string(minutes));
        CZNCoreEditorControl::SetAutoSave(on, minutes);
    }

    std::vector<std::string> calls;
};

// A control in a parent that hands its notifications back to it.
struct Editor
{
    Editor()
    {
        const HWND window = CreateWindowOfClass(engine::kWindowClass, WS_CHILD,
                                                RECT{0, 0, 400, 300}, parent.widget());
        control->SubclassWindow(window);
        parent.control = control.get();
    }
    ~Editor() { Close(); }

    void Close()
    {
        parent.control = nullptr;
        control.reset();
    }

    void Tick(UINT id = kAutosaveTimer) const
    {
        SendMessage(control->GetSafeHwnd(), WM_TIMER, id, 0);
    }

    UINT Interval() const { return TimerInterval(control->GetSafeHwnd(), kAutosaveTimer); }

    void Type(const char16_t* text) const { control->ReplaceSel(text, 1); }

    std::u16string Text() const
    {
        std::u16string text(static_cast<std::size_t>(control->GetLength(1)) + 1, u'\0');
        control->GetText(static_cast<int>(text.size()), text.data(), 1);
        text.pop_back();
        return text;
    }

    ParentWindow parent;
    std::unique_ptr<AutosaveControl> control = std::make_unique<AutosaveControl>();
};

class AutosaveTest : public testing::Test
{
protected:
    AutosaveTest() : folders(folder.path()) {}

    AutosaveControl& control() const { return *editor.control; }

    QString PathOf(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
    QString BackupFolder() const { return PathOf("data/bench/Backup/"); }

    static QByteArray Read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    static void Write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    // Opens a file with these bytes.
    bool Open(const QByteArray& bytes, const char* name = "doc.sql")
    {
        Write(PathOf(name), bytes);
        return Reopen(name);
    }

    bool Reopen(const char* name = "doc.sql")
    {
        return control().OpenFile(PathOf(name).toStdU16String().c_str(), kDetect);
    }

    static QString Note(const QString& copyName)
    {
        return ApplicationProfile().GetString(QStringLiteral("Backup"), copyName, QString());
    }

    // A copy as a crash leaves it, with a note for the file; its path.
    QString Plant(const char* copyName, const QByteArray& bytes, const char* name = "doc.sql")
    {
        QDir().mkpath(BackupFolder());
        const QString copy = BackupFolder() + QString::fromLatin1(copyName);
        Write(copy, bytes);
        ApplicationProfile().WriteString(QStringLiteral("Backup"), QString::fromLatin1(copyName),
                                         PathOf(name).toStdU16String().c_str());
        return copy;
    }

    // The names of the copies, in the order of the file system.
    QStringList Copies() const
    {
        QStringList names;
        QDirIterator files(BackupFolder(), QDir::Files);
        while (files.hasNext())
            names << QFileInfo(files.next()).fileName();
        return names;
    }

    QString OnlyCopy() const
    {
        const QStringList copies = Copies();
        EXPECT_EQ(copies.size(), 1);
        return copies.isEmpty() ? QString() : BackupFolder() + copies.front();
    }

    QTemporaryDir folder;
    FoldersIn folders;
    AutosaveQuestions questions;
    Editor editor;
};

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << text.toStdString();
}
