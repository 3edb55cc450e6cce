// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of the control share: a parent that hears notifications, files in a folder of
// their own, and answers to questions.
#pragma once

#include "control/ZNCoreEditorControl.h"
#include "platform/windows/Questions.h"

#include <QStringList>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

// Opens what the control keeps for its subclasses.
class OpenControl : public CZNCoreEditorControl
{
public:
    using CZNCoreEditorControl::CountLineEnds;
    using CZNCoreEditorControl::m_aNumberedBookmarks;
    using CZNCoreEditorControl::m_bAutoSaveOn;
    using CZNCoreEditorControl::m_bCreated;
    using CZNCoreEditorControl::m_bFirstInstance;
    using CZNCoreEditorControl::m_hEditorWnd;
    using CZNCoreEditorControl::m_nAutoSaveMinutes;
    using CZNCoreEditorControl::m_pDirectFunction;
    using CZNCoreEditorControl::m_strFileName;
    using CZNCoreEditorControl::ReadInFileContents;

    std::vector<std::string> autoSaveCalls;

protected:
    void SetAutoSave(bool on, int minutes) override
    {
        autoSaveCalls.push_back("set " + std::to_string(on) + " " + std::to_string(minutes));
    }
    void CleanUpAutoSave() override { autoSaveCalls.push_back("clean up"); }
};

// The window around the control's: keeps the records it is told, and hands them on.
class ParentWindow : public CWnd
{
public:
    ParentWindow() { Attach(&m_widget); }
    ~ParentWindow() override { Detach(); }

    QWidget* widget() { return &m_widget; }

    std::vector<SCNotification> records;
    std::vector<std::pair<WPARAM, LPARAM>> editChanges;
    CZNCoreEditorControl* control = nullptr;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == ZNBASEM_ON_EDITCHANGE)
            editChanges.emplace_back(wParam, lParam);
        if (message == WM_NOTIFY) {
            records.push_back(*reinterpret_cast<const SCNotification*>(lParam));
            if (control && control->IsBaseEditorNotify(lParam))
                control->HandleNotify(lParam);
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    QWidget m_widget;
};

class Questions : public IUserQuestions
{
public:
    Questions() { SetUserQuestions(this); }
    ~Questions() override { SetUserQuestions(nullptr); }

    Answer Ask(HWND /*owner*/, const QString& text, Buttons /*buttons*/) override
    {
        asked << text;
        return Answer::Ok;
    }

    QStringList asked;
};

inline const QString kTruncated = QStringLiteral(
    "Errors occurred while reading file contents from the disk. The file has been truncated.");
inline const QString kNoMemory =
    QStringLiteral("No more memory available. Try quitting other applications and then retry.");

// A control whose window is a subclassed engine window inside a parent.
class ControlTest : public testing::Test
{
protected:
    ControlTest()
    {
        const HWND window = CreateWindowOfClass(engine::kWindowClass, WS_CHILD,
                                                RECT{0, 0, 400, 300}, parent.widget());
        control.SubclassWindow(window);
        parent.control = &control;
    }
    ~ControlTest() override { parent.control = nullptr; }

    std::u16string PathOf(const std::string& name) const
    {
        return folder.filePath(QString::fromStdString(name)).toStdU16String();
    }

    std::u16string WriteFile(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(folder.filePath(QString::fromStdString(name)).toStdString(), std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return PathOf(name);
    }

    std::string ReadFile(const std::string& name) const
    {
        std::ifstream file(folder.filePath(QString::fromStdString(name)).toStdString(),
                           std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

    QTemporaryDir folder;
    Questions questions;
    ParentWindow parent;
    OpenControl control;
};

inline constexpr auto kDetect = FileEncodeConverter::encUnknown;
