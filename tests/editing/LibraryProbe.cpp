// SPDX-License-Identifier: GPL-3.0-or-later
// A host that comes up, tells how the library did, and goes: before it does, it changes one setting
// of each kind, or opens and saves a file. A second argument is the folder of its settings.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "platform/base/Units.h"
#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"

#include <QApplication>
#include <QLabel>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (const QString folder = QApplication::arguments().value(2); !folder.isEmpty())
        std::printf("folder %d\n", zncoreeditor::SetSettingsFolder(folder) ? 1 : 0);
    const zncoreeditor::Startup startup = zncoreeditor::GetStartup();
    CZNCoreEditorControlEx control;
    control.SubclassWindow(
        CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 100, 100}, nullptr));
    control.InitializeLanguage(2, 1);
    control.SetWindowTextW(QStringLiteral("text"));
    std::printf("engine %d %s\n", startup.hasEngine ? 1 : 0, qPrintable(startup.engineProblem));
    std::printf("configured %d\nfile %s\nlanguages %d\ntext %s\n", startup.configured ? 1 : 0,
                qPrintable(startup.configFile),
                zncoreeditor::GetFileTypeManager()->GetLanguageCount(),
                qPrintable(control.GetText()));
    const QString what = QApplication::arguments().value(1);
    if (what == QLatin1String("change")) {
        zncoreeditor::GetConfigFile()->SetRightEdgeColumn(77);
        if (CSyntaxFile* syntax = zncoreeditor::GetFileTypeManager()->GetSyntaxFile(0)) {
            syntax->SetSyntaxHighlighting(false);
            syntax->Save();
        }
    } else if (!what.isEmpty()) {
        const bool opened = control.OpenFile(Units(what), FileEncodeConverter::encUnknown);
        const bool saved = control.SaveFile(Units(what), true);
        std::printf("opened %d\nsaved %d\n", opened ? 1 : 0, saved ? 1 : 0);
        ZNCoreEditorWidget editor;
        const auto* problem = editor.findChild<QLabel*>();
        std::printf("widget %d %s\n", editor.openFile(what) || editor.saveFile(what) ? 1 : 0,
                    qPrintable(problem ? problem->text() : QString()));
    }
    return 0;
}
