// A host that comes up, tells how the library did, changes one setting and goes.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "settings/ConfigFile.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const zncoreeditor::Startup startup = zncoreeditor::GetStartup();
    CZNCoreEditorControlEx control;
    control.SubclassWindow(
        CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 100, 100}, nullptr));
    control.InitializeLanguage(2, 1);
    control.SetWindowTextW(QStringLiteral("text"));
    std::printf("configured %d\nfile %s\nlanguages %d\ntext %s\n", startup.configured ? 1 : 0,
                qPrintable(startup.configFile),
                zncoreeditor::GetFileTypeManager()->GetLanguageCount(),
                qPrintable(control.GetText()));
    if (argc > 1)
        zncoreeditor::GetConfigFile()->SetRightEdgeColumn(77);
    return 0;
}
