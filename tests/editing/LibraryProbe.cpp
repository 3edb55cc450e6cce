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
#include <QMenu>
#include <QMetaProperty>
#include <QPdfWriter>

#include <cstdio>
#include <memory>
#include <utility>

namespace {

// Everything that a host may ask or tell the face; what of it is not empty.
QStringList AnswersOfTheFace(const QString& path)
{
    using Editor = ZNCoreEditorWidget;
    Editor editor;
    const QMetaObject& meta = Editor::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        meta.property(i).write(&editor, meta.property(i).read(&editor));
    editor.show();
    QApplication::processEvents();
    const QString word = QStringLiteral("a");
    editor.setText(word);
    editor.setPlainText(word);
    editor.appendPlainText(word);
    editor.insertPlainText(word);
    editor.setProblems({{0, 1, word}});
    editor.setBookmark(0, true);
    editor.clearBookmarks();
    editor.markMatches(word);
    editor.addCursor(3);
    editor.setSelections({{0, 1}, {2, 1}});
    editor.setColumnSelection(0, 0, 3, 3);
    editor.dropOtherCursors();
    editor.startRecording();
    editor.stopRecording();
    editor.playMacro();
    editor.setEditorFont(QFont(word, 9));
    editor.centerCursor();
    editor.zoomIn();
    editor.clear();
    editor.selectAll();
    editor.undo();
    editor.redo();
    const std::unique_ptr<QMenu> menu(editor.createStandardContextMenu());
    QPdfWriter pdf(path + QStringLiteral(".pdf"));
    const std::pair<const char*, bool> answers[] = {
        {"text", !editor.text().isEmpty()},
        {"lineText", !editor.lineText(0).isEmpty()},
        {"textOf", !editor.textOf({0, 9}).isEmpty()},
        {"word", !editor.wordUnderCursor().isEmpty()},
        {"selected", editor.hasSelectedText() || !editor.selectedText().isEmpty()},
        {"columns", editor.hasColumnSelection()},
        {"modified", editor.isModified()},
        {"undo", editor.isUndoAvailable() || editor.isRedoAvailable()},
        {"records", editor.isRecording() || editor.hasMacro()},
        {"find", editor.find(word) || !editor.findAll(word).isEmpty()},
        {"replace", editor.replaceAll(word, word) != 0},
        {"problems", !editor.problems().isEmpty() || editor.goToNextProblem()},
        {"bookmarks", !editor.bookmarks().isEmpty() || editor.goToNextBookmark()},
        {"statement", editor.statementAtCursor() != Editor::Range()},
        {"lost", editor.lostBySaving().has_value()},
        {"command", !editor.commands().isEmpty()},
        {"print", editor.print(&pdf)},
        {"open", static_cast<bool>(editor.open(path))},
        {"save", static_cast<bool>(editor.save(path))},
        {"language", !editor.languageName().isEmpty() && Editor::languages().isEmpty()},
    };
    QStringList told;
    for (const auto& [name, isThere] : answers) {
        if (isThere)
            told += QLatin1String(name);
    }
    return told;
}

} // namespace

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
    if (what == QLatin1String("face")) {
        const QString path = QString::fromLocal8Bit(qgetenv("XDG_DATA_HOME") + "/face.sql");
        std::printf("face: %s\n", qPrintable(AnswersOfTheFace(path).join(u' ')));
    } else if (what == QLatin1String("change")) {
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
