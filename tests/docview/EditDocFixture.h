// SPDX-License-Identifier: GPL-3.0-or-later
// A document of the editor with its view over the engine itself, real files, a clock that is set by
// hand and a user who answers as told.
#pragma once

#include "docview/ZNCoreEditorDoc.h"
#include "docview/ZNCoreEditorView.h"
#include "editing/language/Library.h"
#include "platform/docview/CreateContext.h"
#include "platform/docview/DocTemplate.h"
#include "platform/docview/FrameWnd.h"
#include "platform/docview/WinApp.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/SpecialFolders.h"
#include "platform/windows/Questions.h"
#include "settings/ConfigFile.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

#include <functional>

class OpenDoc : public CZNCoreEditorDoc
{
public:
    static CObject* CreateObject() { return new OpenDoc; }
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"OpenDoc", CZNCoreEditorDoc::GetThisClass(),
                                          &CreateObject};
        return &own;
    }

    using CZNCoreEditorDoc::m_changedTime;
    using CZNCoreEditorDoc::m_checkingAccessTime;
    using CZNCoreEditorDoc::m_docPointer;
    using CZNCoreEditorDoc::m_fileFrozen;
    using CZNCoreEditorDoc::m_lastAccessTime;
    using CZNCoreEditorDoc::m_parsedTime;
    using CZNCoreEditorDoc::m_tempCopySaved;
    using CZNCoreEditorDoc::RemoveTempCopy;

    std::int64_t clock = 1000;
    bool configured = true;

protected:
    std::int64_t Now() const override { return clock; }
    CConfigFile* Configuration() const override
    {
        return configured ? CZNCoreEditorDoc::Configuration() : nullptr;
    }
};

class EditUser : public IUserQuestions
{
public:
    EditUser() { SetUserQuestions(this); }
    ~EditUser() override { SetUserQuestions(nullptr); }

    Answer Ask(HWND /*owner*/, const QString& text, Buttons buttons) override
    {
        asked << text;
        if (meanwhile)
            std::exchange(meanwhile, nullptr)();
        return buttons == Buttons::Ok ? Answer::Ok : answer;
    }
    QString AskSaveFile(HWND /*owner*/, const QString& /*path*/, const QString&) override
    {
        ++namesAsked;
        return QString();
    }

    QStringList asked;
    int namesAsked = 0;
    Answer answer = Answer::No;
    std::function<void()> meanwhile;
};

// Options of nobody's: what a test sets, and the defaults.
class EditOptions : public CZNOptionsServer
{
public:
    EditOptions() { SetOptionsServer(this); }
    ~EditOptions() override { SetOptionsServer(nullptr); }
    int GetInt(int key) override
    {
        return key == option::ReloadWithoutAsking ? reload : CZNOptionsServer::GetInt(key);
    }
    int reload = 0;
};

class Folders : public ISpecialFolders
{
public:
    Folders() { SetSpecialFolders(this); }
    ~Folders() override { SetSpecialFolders(nullptr); }
    QString AppTemp() const override { return there ? folder.path() : QString(); }

    QTemporaryDir folder;
    bool there = true;
};

// Facts about files as a test wants them; whatever it does not set is the file system's.
class Facts : public IFileFacts
{
public:
    Facts() { SetFileFacts(this); }
    ~Facts() override { SetFileFacts(nullptr); }
    bool GetStatus(const QString& path, CFileStatus& status) const override
    {
        if (fails || !IFileFacts::GetStatus(path, status))
            return false;
        if (neverRead)
            status.m_atime = status.m_mtime;
        return true;
    }
    bool fails = false;
    bool neverRead = false;
};

inline void Settle()
{
    for (int pass = 0; pass < 3; ++pass)
        QCoreApplication::processEvents();
}

class EditDocTest : public testing::Test
{
protected:
    EditDocTest()
        : kind(app.AddDocTemplate(std::make_unique<CMultiDocTemplate>(
              QStringLiteral("\nScript\n\nScripts (*.sql)\n.sql"), OpenDoc::GetThisClass(),
              CFrameWnd::GetThisClass(), CZNCoreEditorView::GetThisClass())))
    {
        zncoreeditor::GetConfigFile()->SetFileTracking(1);
    }
    ~EditDocTest() override
    {
        app.CloseAllDocuments();
        Settle();
    }

    QString Path(const QString& name) const { return folder.filePath(name); }

    // Times are far from the clock's, so that a file written later never has the same.
    QString Write(const QString& name, const QByteArray& bytes, std::int64_t time = 100000) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        file.close();
        SetTime(name, time);
        return Path(name);
    }
    void SetTime(const QString& name, std::int64_t seconds) const
    {
        const timespec times[] = {{seconds + 5, 0}, {seconds, 0}};
        utimensat(AT_FDCWD, QFile::encodeName(Path(name)).constData(), times, 0);
    }
    void Protect(const QString& name, bool on = true) const
    {
        chmod(QFile::encodeName(Path(name)).constData(), on ? 0444 : 0644);
    }
    QByteArray Read(const QString& path) const
    {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    OpenDoc* New() { return static_cast<OpenDoc*>(kind.OpenDocumentFile(QString(), false)); }
    OpenDoc* Open(const QString& path)
    {
        return static_cast<OpenDoc*>(kind.OpenDocumentFile(path, false));
    }
    OpenDoc* OpenScript() { return Open(Write("a.sql", "select 1")); }

    static CZNCoreEditorControlEx& Control(OpenDoc* doc)
    {
        return doc->GetFirstEditView()->GetCoreEditorControlRef();
    }
    static QString Text(OpenDoc* doc) { return Control(doc).GetText(); }
    static void Type(OpenDoc* doc, const QString& text)
    {
        Control(doc).ReplaceSel(text.toStdU16String().c_str(), 1);
    }

    QTemporaryDir folder;
    EditUser user;
    EditOptions options;
    Folders folders;
    Facts facts;
    CWinApp app;
    CDocTemplate& kind;
};
