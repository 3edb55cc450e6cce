// SPDX-License-Identifier: GPL-3.0-or-later
// Views of the editor over the engine itself, with what they keep for their subclasses opened.
#pragma once

#include "tests/docview/EditDocFixture.h"

#include "control/EngineRecords.h"
#include "tests/docview/OpenView.h"

class ViewTest : public EditDocTest
{
protected:
    ViewTest()
        : viewed(app.AddDocTemplate(std::make_unique<CMultiDocTemplate>(
              QStringLiteral("\nScript\n\nScripts (*.sql)\n.sql"), OpenDoc::GetThisClass(),
              CFrameWnd::GetThisClass(), OpenView::GetThisClass())))
    {
        doc = static_cast<OpenDoc*>(viewed.OpenDocumentFile(QString(), false));
        view = static_cast<OpenView*>(doc->GetViews().front());
    }

    CZNCoreEditorControlEx& Control() { return view->GetCoreEditorControlRef(); }
    using EditDocTest::Control;

    // A view of the same document in a frame of its own, shown its contents.
    OpenView* FurtherView()
    {
        CFrameWnd* frame = viewed.CreateNewFrame(doc, nullptr);
        auto* further = static_cast<OpenView*>(doc->GetViews().back());
        frame->InitialUpdateFrame(doc, false);
        return further;
    }

    // A view that stands alone.
    OpenView* ViewWithoutDocument()
    {
        auto* alone = new OpenView;
        CCreateContext context;
        alone->CreateViewIn(&desk, &context);
        return alone;
    }

    // A plain text without a language, with brackets for braces.
    void Put(const QString& text, long anchor, long caret)
    {
        Control().SetReadOnly(0, 1);
        Control().SetText(text.toStdU16String().c_str(), 1);
        Control().EmptyUndoBuffer(1);
        Control().SetBraces(QStringLiteral("()[]{}"));
        Control().SetSel(anchor, caret, 1);
    }

    QWidget desk;
    CDocTemplate& viewed;
    OpenDoc* doc = nullptr;
    OpenView* view = nullptr;
};

class Probe final : public CCmdUI
{
public:
    explicit Probe(UINT id, CCmdTarget& target) : CCmdUI(id) { known = target.OnCmdMsg(id, this); }
    void Enable(bool on) override { enabled = on ? 1 : 0; }
    void SetCheck(int state) override { checked = state; }
    void SetRadio(bool on) override { radio = on ? 1 : 0; }
    void SetText(const QString& given) override { text = given; }

    bool known = false; // somebody has a rule
    int enabled = -1;   // -1: not said, as for the next two
    int checked = -1;
    int radio = -1;
    QString text = QStringLiteral("(none)");
};
