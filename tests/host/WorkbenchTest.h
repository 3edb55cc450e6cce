// SPDX-License-Identifier: GPL-3.0-or-later
// A workbench window with scripted prompts and a folder of its own.
#pragma once

#include "editing/ZNCoreEditorControlEx.h"
#include "editing/operations/Macro.h"
#include "host/files/LanguageMemory.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptView.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"
#include "platform/base/Units.h"
#include "platform/windows/Disposal.h"
#include "tests/host/ScriptedPrompts.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>

#include <gtest/gtest.h>

class WorkbenchTest : public testing::Test
{
protected:
    explicit WorkbenchTest(Workbench::Keeps keeps = Workbench::Keeps::Nothing)
        : m_app(keeps), m_window(*new MainWindow(m_app))
    {
        // What an earlier test may have left, of settings and in the process.
        languages::SetDefault({});
        SetMacroRecording(0);
        FreeMacro();
        m_window.show();
        QApplication::processEvents();
    }

    QString PathOf(const QString& name) const { return m_folder.filePath(name); }

    QString Write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(PathOf(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            ADD_FAILURE() << file.errorString().toStdString();
        return file.fileName();
    }

    QByteArray Read(const QString& name) const
    {
        QFile file(PathOf(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    ScriptFrame& Frame() const { return *m_window.CurrentFrame(); }
    ScriptDoc& Script() const { return *Frame().Script(); }
    CZNCoreEditorControlEx& Editor() const { return Frame().Editor(); }

    void Open(const QString& name, const QByteArray& bytes)
    {
        ASSERT_TRUE(m_app.OpenDocumentFile(Write(name, bytes)));
    }

    // Until the window shows all that has happened; only the tests of what waits for the keys to
    // rest wait for that.
    void Settle()
    {
        QApplication::processEvents();
        m_window.FollowNow();
    }

    void Type(const char16_t* text)
    {
        Editor().ReplaceSel(text, 1);
        Settle();
    }

    QString Text() const
    {
        const long length = Editor().GetLength(1);
        std::u16string buffer(size_t(length) + 1, u'\0');
        Editor().GetText(int(buffer.size()), buffer.data(), 1);
        return FromUnits({buffer.data(), size_t(length)});
    }

    QAction& Action(const char* name) const
    {
        return *m_window.findChild<QAction*>(QLatin1String(name));
    }

    void Trigger(const char* name)
    {
        Action(name).trigger();
        QApplication::processEvents();
        Disposal::Run(); // no loop runs that would
        m_window.FollowNow();
    }

    // Whether the window has gone; what it was is not to be touched then.
    bool CloseWindow()
    {
        m_window.close();
        return !m_app.GetMainWnd();
    }

    QString Status(const char* name) const
    {
        return m_window.findChild<QLabel*>(QLatin1String(name))->text();
    }

    QTemporaryDir m_folder;
    ScriptedPrompts m_prompts;
    Workbench m_app;
    MainWindow& m_window; // gone once it has been closed
};
