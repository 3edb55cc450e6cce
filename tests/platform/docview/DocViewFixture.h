// SPDX-License-Identifier: GPL-3.0-or-later
// A small application: documents that hold bytes, views that write down what they hear, and a user
// who answers as told.
#pragma once

#include "platform/docview/Archive.h"
#include "platform/docview/CommandIds.h"
#include "platform/docview/DocTemplate.h"
#include "platform/docview/Document.h"
#include "platform/docview/FrameWnd.h"
#include "platform/docview/View.h"
#include "platform/docview/WinApp.h"
#include "platform/windows/Disposal.h"
#include "platform/windows/Questions.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

inline int liveObjects = 0; // documents, views and frames of this file

class NoteDoc : public CDocument
{
public:
    NoteDoc() { ++liveObjects; }
    ~NoteDoc() override { --liveObjects; }
    static CObject* CreateObject() { return new NoteDoc; }
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"NoteDoc", CDocument::GetThisClass(), &CreateObject};
        return &own;
    }

    void Serialize(CArchive& archive) override
    {
        if (archive.IsStoring()) {
            archive.GetFile()->Write(text.data(), static_cast<UINT>(text.size()));
            return;
        }
        text.resize(archive.GetFile()->GetLength());
        archive.GetFile()->Read(text.data(), static_cast<UINT>(text.size()));
    }
    void DeleteContents() override { text.clear(); }

    QByteArray text;
};

class NoteView : public CView
{
public:
    NoteView() { ++liveObjects; }
    ~NoteView() override { --liveObjects; }
    static CObject* CreateObject() { return new NoteView; }
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"NoteView", CView::GetThisClass(), &CreateObject};
        return &own;
    }

    void OnInitialUpdate() override { heard << QStringLiteral("initial"); }
    void OnUpdate(CView* /*sender*/, std::intptr_t hint, CObject* /*object*/) override
    {
        heard << QStringLiteral("update %1").arg(hint);
        if (onUpdate)
            onUpdate(*this);
    }
    void OnActivateView(int activate, CView* /*activated*/, CView* /*deactivated*/) override
    {
        heard << (activate ? QStringLiteral("on") : QStringLiteral("off"));
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_CREATE && refuses)
            return -1;
        if (message == WM_NOTIFY && onNotify)
            onNotify(*this);
        return CView::WindowProc(message, wParam, lParam);
    }

    QStringList heard;
    std::function<void(NoteView&)> onUpdate;
    std::function<void(NoteView&)> onNotify;
    static inline bool refuses = false;
};

class NoteFrame : public CFrameWnd
{
public:
    NoteFrame() { ++liveObjects; }
    ~NoteFrame() override { --liveObjects; }
    static CObject* CreateObject() { return new NoteFrame; }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"NoteFrame", CFrameWnd::GetThisClass(), &CreateObject};
        return &own;
    }
};

class User : public IUserQuestions
{
public:
    User() { SetUserQuestions(this); }
    ~User() override { SetUserQuestions(nullptr); }

    Answer Ask(HWND /*owner*/, const QString& text, Buttons /*buttons*/) override
    {
        asked << text;
        if (meanwhile)
            std::exchange(meanwhile, nullptr)();
        return answer;
    }
    QString AskSaveFile(HWND /*owner*/, const QString& path, const QString& filters) override
    {
        proposed = path;
        offered = filters;
        return saveAs;
    }
    QString AskOpenFile(HWND /*owner*/, const QString& filters) override
    {
        offered = filters;
        return open;
    }

    QStringList asked;
    QString proposed;
    QString offered;
    Answer answer = Answer::Cancel;
    QString saveAs;
    QString open;
    std::function<void()> meanwhile; // happens while the question stands
};

// What the event loop does until it comes to rest. What an event posts waits for the next pass.
inline void Settle()
{
    for (int pass = 0; pass < 3; ++pass)
        QCoreApplication::processEvents();
}

class DocViewTest : public testing::Test
{
protected:
    DocViewTest()
        : notes(app.AddDocTemplate(std::make_unique<CMultiDocTemplate>(
              QStringLiteral("Notes\nNote\nNote\nNotes (*.note)\n.note"), NoteDoc::GetThisClass(),
              NoteFrame::GetThisClass(), NoteView::GetThisClass())))
    {}
    ~DocViewTest() override
    {
        NoteView::refuses = false;
        app.CloseAllDocuments();
        Settle();
        EXPECT_EQ(std::exchange(liveObjects, 0), 0);
    }

    QString Path(const QString& name) const { return folder.filePath(name); }
    QString Write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        return Path(name);
    }
    QByteArray Read(const QString& name) const
    {
        QFile file(Path(name));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    NoteDoc* New() { return static_cast<NoteDoc*>(notes.OpenDocumentFile(QString(), false)); }
    NoteDoc* Open(const QString& path)
    {
        return static_cast<NoteDoc*>(notes.OpenDocumentFile(path, false));
    }
    static NoteView* ViewOf(const CDocument* document, std::size_t at = 0)
    {
        return static_cast<NoteView*>(document->GetViews().at(at));
    }
    NoteView* FurtherView(CDocument* document)
    {
        CFrameWnd* frame = notes.CreateNewFrame(document, nullptr);
        frame->InitialUpdateFrame(document, false);
        return static_cast<NoteView*>(frame->GetActiveView());
    }

    QTemporaryDir folder;
    User user;
    CWinApp app;
    CDocTemplate& notes;
};
