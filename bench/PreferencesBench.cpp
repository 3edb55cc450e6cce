// SPDX-License-Identifier: GPL-3.0-or-later
// What a person waits for in the preferences: the dialog to open, Apply, another scheme. Beside
// bars in CPU milliseconds.
#include "bench/Pair.h"

#include "editing/ZNCoreEditorWidget.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "editing/language/UserFolder.h"
#include "prefs/controls/ColorButton.h"
#include "prefs/pages/EditorPrefsDialog.h"
#include "settings/SyntaxFile.h"

#include <QApplication>
#include <QFile>
#include <QSaveFile>
#include <QVBoxLayout>
#include <QWidget>

#include <cstdlib>
#include <memory>
#include <vector>

namespace bench {
namespace {

constexpr int kTransactSql = 3;
constexpr int kColorPage = 11; // of Transact-SQL, in the tree

std::unique_ptr<CEditorPrefsDialog> Opened()
{
    auto dialog = std::make_unique<CEditorPrefsDialog>(QStringLiteral("Preferences"),
                                                       *zncoreeditor::GetConfigFile(),
                                                       *zncoreeditor::GetFileTypeManager());
    dialog->Create(nullptr);
    dialog->GetSafeHwnd()->show();
    QApplication::processEvents();
    return dialog;
}

// Editors in a window, with a text that fills them.
class Editors
{
public:
    explicit Editors(int count)
    {
        auto* layout = new QVBoxLayout(&m_window);
        for (int i = 0; i < count; ++i) {
            auto* editor = new ZNCoreEditorWidget(&m_window);
            editor->setLanguage(kTransactSql);
            editor->setText(
                QStringLiteral("SELECT name, 'text' FROM orders; -- all\n").repeated(60));
            layout->addWidget(editor);
            m_editors.push_back(editor);
        }
        m_window.resize(800, 1200);
        m_window.show();
        QApplication::processEvents();
    }

    void SetScheme(const QString& name)
    {
        for (ZNCoreEditorWidget* editor : m_editors)
            editor->setScheme(name);
        QApplication::processEvents();
    }

private:
    QWidget m_window;
    std::vector<ZNCoreEditorWidget*> m_editors;
};

void SettingsDialogOpens(benchmark::State& state)
{
    std::unique_ptr<CEditorPrefsDialog> dialog;
    MeasureBar(
        state, 150, "times 150 ms, the preferences of all languages opened",
        [&dialog] { dialog.reset(); }, [&dialog] { dialog = Opened(); });
    dialog.reset();
}
BENCHMARK(SettingsDialogOpens)->Name("Settings/dialogOpens")->Iterations(1);

void SettingsApplyAColour(benchmark::State& state)
{
    const Editors editors(10);
    const auto dialog = Opened();
    dialog->ShowPage(kColorPage);
    CEditorPrefsSubDlg& page = *dialog->Pages()[kColorPage].page;
    COLORREF color = 0;
    MeasureBar(
        state, 50, "times 50 ms, one colour applied and in force in ten scripts",
        [&] {
            color = color == 0 ? 0x0000FF : 0;
            SendMessage(page.GetSafeHwnd(), colornews::Chosen, prefscontrol::Foreground,
                        static_cast<LPARAM>(color));
        },
        [&] {
            if (!dialog->Apply(false))
                std::abort();
        });
}
BENCHMARK(SettingsApplyAColour)->Name("Settings/applyAColour")->Iterations(1);

// What Apply writes for a language: its two files.
void SettingsSaveALanguage(benchmark::State& state)
{
    CSyntaxFile& syntax = *zncoreeditor::GetFileTypeManager()->GetSyntaxFile(kTransactSql);
    unsigned long color = 0;
    MeasureBar(
        state, 10, "times 10 ms, a colour of a language saved",
        [&] { syntax.SetStyleColorForeground(0, color = color == 0 ? 0x0000FF : 0); },
        [&] {
            if (!syntax.Save())
                std::abort();
        });
}
BENCHMARK(SettingsSaveALanguage)->Name("Settings/saveALanguage")->Iterations(1);

void SettingsOfAnotherScheme(benchmark::State& state)
{
    Editors editors(20);
    bool isDark = false;
    MeasureBar(
        state, 200, "times 200 ms, another scheme in twenty scripts",
        [&isDark] { isDark = !isDark; },
        [&] { editors.SetScheme(isDark ? QStringLiteral("Dark") : QStringLiteral("Light")); });
}
BENCHMARK(SettingsOfAnotherScheme)->Name("Settings/anotherScheme")->Iterations(1);

} // namespace
} // namespace bench
