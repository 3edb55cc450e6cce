// SPDX-License-Identifier: GPL-3.0-or-later
// A workbench of its own on the display, with the script story.sql, driven as by a person.
#pragma once

#include "tests/host/OwnPlaces.h"
#include "tests/host/XDoTool.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

class WindowStory : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_FALSE(qEnvironmentVariableIsEmpty("DISPLAY"));
        Write(FirstText());
        m_workbench.setProcessEnvironment(OwnPlaces(m_folder.path()));
        m_workbench.setProcessChannelMode(QProcess::ForwardedChannels);
        ASSERT_NO_FATAL_FAILURE(Start({Path()}));
    }

    virtual QByteArray FirstText() const { return "select 1;\nselect 2;\n"; }

    void Start(const QStringList& words)
    {
        m_workbench.start(QStringLiteral(ZN_WORKBENCH), words);
        ASSERT_TRUE(m_workbench.waitForStarted());
        ASSERT_TRUE(Eventually([this] {
            m_windowId = Visible("story.sql");
            return !m_windowId.isEmpty();
        })) << "the window does not come";
        Focus();
    }

    static QString Visible(const QString& name)
    {
        return XDoTool({"search", "--onlyvisible", "--name", name}).section('\n', 0, 0);
    }

    void TearDown() override
    {
        if (m_workbench.state() != QProcess::NotRunning) {
            m_workbench.kill();
            m_workbench.waitForFinished();
        }
    }

    QString Path() const { return m_folder.filePath(QStringLiteral("story.sql")); }

    void Write(const QByteArray& bytes) const
    {
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QByteArray Read() const
    {
        QFile file(Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString Title() const { return XDoTool({"getwindowname", m_windowId}); }

    // There is no window manager to give the window the keyboard.
    void Focus()
    {
        XDoTool({"windowfocus", "--sync", m_windowId});
        Click(500, 400);
    }

    void Click(int x, int y)
    {
        XDoTool({"mousemove", "--window", m_windowId, QString::number(x), QString::number(y),
                 "click", "1"});
    }

    // Somebody else writes; the time is another one even within the second.
    void WriteFromOutside(const QByteArray& bytes) const
    {
        Write(bytes);
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-3600),
                                     QFileDevice::FileModificationTime));
    }

    // To the find bar, and back to the script.
    void LeaveAndComeBack()
    {
        Keys({"ctrl+f"});
        Click(500, 200);
    }

    // The question of a box, answered with its key.
    void Answer(const QString& key)
    {
        QString box;
        ASSERT_TRUE(Eventually([&box] {
            box = Visible("^znworkbench$");
            return !box.isEmpty();
        })) << "no question comes";
        XDoTool({"windowfocus", "--sync", box});
        Keys({key});
        ASSERT_TRUE(Eventually([] { return Visible("^znworkbench$").isEmpty(); }));
        XDoTool({"windowfocus", "--sync", m_windowId});
    }

    void Keys(const QStringList& keys) { XDoTool(QStringList{"key", "--delay", "20"} + keys); }
    void Type(const QString& text) { XDoTool({"type", "--delay", "20", "--", text}); }

    QTemporaryDir m_folder;
    QProcess m_workbench;
    QString m_windowId;
};
