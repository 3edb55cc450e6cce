// Documents and views as a host has them: a further view of a large text, a key on its whole way,
// and many documents at once.
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "docview/ZNCoreEditorDoc.h"
#include "docview/ZNCoreEditorView.h"
#include "platform/docview/DocTemplate.h"
#include "platform/docview/FrameWnd.h"
#include "platform/docview/LabelUI.h"
#include "platform/docview/WinApp.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>
#include <QTabWidget>

#include <algorithm>
#include <memory>
#include <vector>

namespace bench {
namespace {

constexpr int kSqlLanguage = 2;
constexpr UINT kPlace = 1; // the host's number for line and column

QTabWidget* theTabs = nullptr;

class TabView final : public CZNCoreEditorView
{
public:
    TabView() { GetCoreEditorControl()->SetCarefulFiles(true); }
    static CObject* CreateObject() { return new TabView; }
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"TabView", CZNCoreEditorView::GetThisClass(),
                                          &CreateObject};
        return &own;
    }

protected:
    const CommandMap& GetCommandMap() const override
    {
        static constexpr UpdateEntry kUpdates[] = {
            {kPlace,
             [](CCmdTarget& t, CCmdUI& ui) { static_cast<TabView&>(t).OnUpdateLineCol(ui); }},
        };
        static const CommandMap map = {&CZNCoreEditorView::GetCommandMap(), {}, kUpdates};
        return map;
    }
};

class TabFrame final : public CFrameWnd
{
public:
    static CObject* CreateObject() { return new TabFrame; }
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"TabFrame", CFrameWnd::GetThisClass(), &CreateObject};
        return &own;
    }

    void OnUpdateFrameTitle() override
    {
        CFrameWnd::OnUpdateFrameTitle();
        if (GetSafeHwnd())
            theTabs->setTabText(theTabs->indexOf(GetSafeHwnd()), GetSafeHwnd()->windowTitle());
    }
    void ActivateFrame() override
    {
        theTabs->setCurrentWidget(GetSafeHwnd());
        CFrameWnd::ActivateFrame();
    }

protected:
    HWND MakeWidget() override
    {
        auto* page = new QWidget;
        theTabs->addTab(page, QString());
        return page;
    }
};

// A window with tabs and a status bar.
class Host
{
public:
    Host()
    {
        auto* tabs = new QTabWidget(&m_window);
        theTabs = tabs;
        m_window.setCentralWidget(tabs);
        for (const UINT id : {kPlace, 54003u, 54006u, 53893u}) {
            auto* label = new QLabel(&m_window);
            m_window.statusBar()->addPermanentWidget(label);
            m_panes.emplace_back(id, *label);
        }
        kind = &m_app.AddDocTemplate(std::make_unique<CMultiDocTemplate>(
            QStringLiteral("\nScript\n\nScripts (*.sql)\n.sql"), CZNCoreEditorDoc::GetThisClass(),
            TabFrame::GetThisClass(), TabView::GetThisClass()));
        m_window.resize(1000, 700);
        m_window.show();
        QApplication::setActiveWindow(&m_window);
    }
    ~Host()
    {
        m_app.CloseAllDocuments();
        Rest();
    }

    CDocument* Open(const std::string& path)
    {
        return m_app.OpenDocumentFile(QString::fromStdString(path));
    }

    void UpdatePanes(CFrameWnd& frame)
    {
        for (Pane& pane : m_panes)
            LabelUI(pane.id, pane.label).DoUpdate(frame);
    }

    static void Rest()
    {
        for (int pass = 0; pass < 3; ++pass)
            QCoreApplication::processEvents();
    }

    CDocTemplate* kind;

private:
    struct Pane
    {
        Pane(UINT number, QLabel& shown) : id(number), label(shown) {}
        UINT id;
        QLabel& label;
    };

    CWinApp m_app;
    QMainWindow m_window;
    std::vector<Pane> m_panes;
};

CZNCoreEditorView* FirstView(CDocument* document)
{
    return static_cast<CZNCoreEditorView*>(document->GetViews().front());
}

void TenthView(benchmark::State& state)
{
    Host host;
    CDocument* document = host.Open(WriteFile("views.sql", Sql64(Script::Mixed)));
    FirstView(document)->GetCoreEditorControl()->InitializeLanguage(kSqlLanguage, 0);
    const auto open = [&] {
        CFrameWnd* frame = host.kind->CreateNewFrame(document, nullptr);
        frame->InitialUpdateFrame(document, true);
        Host::Rest();
        return frame;
    };
    for (int view = 2; view < 10; ++view)
        open();
    CFrameWnd* tenth = nullptr;
    MeasureBar(
        state, 50, "view of 64 MB, painted",
        [&] {
            if (tenth)
                tenth->DestroyWindow();
            Host::Rest();
        },
        [&] { tenth = open(); });
}
BENCHMARK(TenthView)->Iterations(1)->UseManualTime();

// Lines of sixty keys, some of them commands of the key table.
QKeyEvent KeyOf(int number)
{
    constexpr int kKeysInLine = 60;
    switch (number % kKeysInLine) {
    case kKeysInLine - 1:
        return QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
    case kKeysInLine - 2:
        return QKeyEvent(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier, "\x1a");
    case kKeysInLine - 3:
        return QKeyEvent(QEvent::KeyPress, Qt::Key_ParenRight, Qt::NoModifier, ")");
    default:
        return QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    }
}

// From the key event until the loop rests: what it changed is painted, title and panes too.
void KeyOnItsWay(benchmark::State& state)
{
    constexpr int kKeys = 1000;
    Host host;
    CDocument* document = host.Open(WriteFile("keys.sql", MakeSql(Script::Mixed, kMegabyte)));
    CZNCoreEditorView* view = FirstView(document);
    view->GetCoreEditorControl()->InitializeLanguage(kSqlLanguage, 0);
    const HWND window = view->GetCoreEditorControl()->GetSafeHwnd();
    window->setFocus();
    Host::Rest();
    std::vector<double> times;
    for (auto _ : state) {
        for (int key = 0; key < kKeys; ++key) {
            QKeyEvent press = KeyOf(key);
            times.push_back(CpuSeconds([&] {
                QApplication::sendEvent(window, &press);
                host.UpdatePanes(*view->GetParentFrame());
                if (state.range(0))
                    QCoreApplication::processEvents();
            }));
        }
    }
    if (!document->IsModified() || !document->GetTitle().endsWith(" *"))
        state.SkipWithError("no key arrived");
    std::sort(times.begin(), times.end());
    ReportFigure(state, times[times.size() / 2] * 1e6, 200, state.range(0) ? "us, painted" : "us");
    document->SetModifiedFlag(0);
}
BENCHMARK(KeyOnItsWay)->Arg(0)->Arg(1)->Iterations(1)->UseManualTime();

void HundredDocuments(benchmark::State& state)
{
    constexpr int kDocuments = 100;
    const std::string text = MakeSql(Script::Mixed, 100 * 1024);
    std::vector<std::string> paths;
    for (int file = 0; file < kDocuments; ++file)
        paths.push_back(WriteFile("many" + std::to_string(file) + ".sql", text));
    double seconds = 0;
    for (auto _ : state) {
        Host host;
        seconds = CpuSeconds([&] {
            for (const std::string& path : paths) {
                CDocument* document = host.Open(path);
                FirstView(document)->GetCoreEditorControl()->InitializeLanguage(kSqlLanguage, 0);
                Host::Rest();
            }
        });
    }
    ReportFigure(state, seconds, 3, "s for 100 documents of 100 KB, painted");
}
BENCHMARK(HundredDocuments)->Iterations(1)->UseManualTime();

} // namespace
} // namespace bench
