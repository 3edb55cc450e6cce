// SPDX-License-Identifier: GPL-3.0-or-later
// The editor as plain Qt hosts see it.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "platform/text/CodePage.h"
#include "platform/windows/ActionUI.h"
#include "tests/platform/file/FullDisk.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

TEST(EditorWidget, FillsItselfWithTheEngine)
{
    ZNCoreEditorWidget editor;
    editor.resize(300, 200);
    editor.show();
    QApplication::processEvents();
    const HWND window = editor.control().GetSafeHwnd();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->parentWidget(), &editor);
    EXPECT_EQ(window->geometry(), editor.rect());
    EXPECT_EQ(editor.focusProxy(), window);
    EXPECT_FALSE(window->accessibleName().isEmpty());
}

// The menu that a person gets by the key for it, with the items by their numbers.
TEST(EditorWidget, ShowsAContextMenuWhoseItemsAreGreyAsTheyShould)
{
    ZNCoreEditorWidget editor;
    editor.show();
    editor.setText(QStringLiteral("select one"));
    const HWND window = editor.control().GetSafeHwnd();
    const auto isPossible = [&](UINT id) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1),
                                window->mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(window, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        bool found = false;
        for (const QAction* action : menu ? menu->actions() : QList<QAction*>())
            found = found || (CommandOf(*action) == id && action->isEnabled());
        if (menu)
            menu->close();
        QApplication::processEvents();
        return found;
    };
    EXPECT_FALSE(isPossible(57635)) << "Cut, with nothing selected";
    EXPECT_TRUE(isPossible(57642)) << "Select All";
    EXPECT_TRUE(isPossible(57643)) << "Undo";
    editor.control().SetSel(0, 6, 1);
    EXPECT_TRUE(isPossible(57635));
    editor.control().SetReadOnly(true, 1);
    EXPECT_FALSE(isPossible(57635));
    EXPECT_TRUE(isPossible(57636)) << "Find, for what is selected";
}

TEST(EditorWidget, HoldsItsTextWhole)
{
    ZNCoreEditorWidget editor;
    const QString text = QStringLiteral("a\r\n\u00e9\U0001F600") + QChar(0) + u'z';
    editor.setText(text);
    EXPECT_EQ(editor.text(), text);
    editor.setText(QString());
    EXPECT_EQ(editor.text(), QString());
    editor.control().Undo(1);
    EXPECT_EQ(editor.text(), text);
}

TEST(EditorWidget, TellsOfChangesAndSavePoints)
{
    ZNCoreEditorWidget editor;
    QSignalSpy changed(&editor, &ZNCoreEditorWidget::textChanged);
    QSignalSpy modified(&editor, &ZNCoreEditorWidget::modificationChanged);
    QSignalSpy notified(&editor, &ZNCoreEditorWidget::notified);
    editor.setText(QStringLiteral("text"));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_GE(notified.count(), 2);
    ASSERT_EQ(modified.count(), 1);
    EXPECT_TRUE(modified.takeFirst().at(0).toBool());
    EXPECT_TRUE(editor.isModified());
    editor.control().SetSavePoint(1);
    ASSERT_EQ(modified.count(), 1);
    EXPECT_FALSE(modified.takeFirst().at(0).toBool());
    EXPECT_FALSE(editor.isModified());
}

TEST(EditorWidget, TellsOfChangesAsSoonAsSomebodyListens)
{
    ZNCoreEditorWidget editor;
    editor.setText(QStringLiteral("before"));
    QSignalSpy changed(&editor, &ZNCoreEditorWidget::textChanged);
    editor.control().AppendText(1, u"x", 1);
    EXPECT_EQ(changed.count(), 1);

    ZNCoreEditorWidget other;
    other.setText(QStringLiteral("before"));
    long heard = 0;
    QObject::connect(
        &other, &ZNCoreEditorWidget::notified, &other,
        [&heard](const SCNotification& record) { heard += record.nmhdr.code == notify::Modified; });
    other.control().AppendText(1, u"x", 1);
    EXPECT_EQ(heard, 1);
}

TEST(EditorWidget, TellsOfALineThatIsDrawnCoarsely)
{
    constexpr int kDefaultStyle = 32;
    ZNCoreEditorWidget editor;
    editor.control().StyleSetSize(kDefaultStyle, 60, 1);
    QSignalSpy told(&editor, &ZNCoreEditorWidget::longLineShown);
    const std::u16string line(600'000, u'x');
    editor.control().SetText((u"a\n" + line).c_str(), 1);
    editor.grab();
    QApplication::processEvents();
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told[0][0].toLongLong(), 1);
    EXPECT_GT(told[0][1].toLongLong(), 0);
    EXPECT_LT(told[0][1].toLongLong(), 600'000);
}

TEST(EditorWidget, TellsWhereTheCaretWent)
{
    ZNCoreEditorWidget editor;
    editor.resize(300, 200);
    editor.show();
    editor.setText(QStringLiteral("some text"));
    QApplication::processEvents();
    QSignalSpy moved(&editor, &ZNCoreEditorWidget::cursorPositionChanged);
    editor.control().GotoPos(4, 1);
    while (moved.isEmpty())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(moved.takeLast().at(0).toLongLong(), 4);
}

TEST(EditorWidget, TellsOfTypedCharacters)
{
    ZNCoreEditorWidget editor;
    editor.show();
    QSignalSpy added(&editor, &ZNCoreEditorWidget::charAdded);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
    QApplication::sendEvent(editor.control().GetSafeHwnd(), &key);
    EXPECT_EQ(added.count(), 1);
    EXPECT_EQ(editor.text(), QStringLiteral("x"));
}

TEST(EditorWidget, OpensAndSavesFiles)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("\u00e9.sql"));
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("\xEF\xBB\xBFselect '\xC3\xA9'");
    }
    ZNCoreEditorWidget editor;
    EXPECT_FALSE(editor.openFile(folder.filePath(QStringLiteral("missing"))));
    ASSERT_TRUE(editor.openFile(path));
    EXPECT_EQ(editor.text(), QStringLiteral("select '\u00e9'"));
    EXPECT_FALSE(editor.isModified());
    const QString copy = folder.filePath(QStringLiteral("copy.sql"));
    ASSERT_TRUE(editor.saveFile(copy));
    QFile first(path);
    QFile second(copy);
    ASSERT_TRUE(first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly));
    EXPECT_EQ(first.readAll(), second.readAll());
}

// A copy for a crash is found by the path, whatever the folder is then.
TEST(EditorWidget, KnowsTheFileOfARelativePathInAnyFolder)
{
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    ZNCoreEditorWidget editor;
    editor.setText(QStringLiteral("1"));
    EXPECT_TRUE(editor.save(QStringLiteral("a.sql")));
    const QString whole = QDir::current().filePath(QStringLiteral("a.sql"));
    EXPECT_EQ(editor.fileName(), whole);
    ZNCoreEditorWidget other;
    EXPECT_TRUE(other.open(QStringLiteral("a.sql")));
    EXPECT_EQ(other.fileName(), whole);
    QDir::setCurrent(before);
    other.setText(QStringLiteral("2"));
    EXPECT_TRUE(other.save(other.fileName()));
    QFile file(whole);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "2");
}

// Only what the library exports is linked here.
TEST(EditorWidget, ReadsFilesInTheCodePageThatTheHostSets)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.sql"));
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("\xEF\xF0\xE8");
    }
    ASSERT_EQ(platform::GetSystemCodePage(), 1252);
    platform::SetSystemCodePage(1251);
    ZNCoreEditorWidget editor;
    const bool opened = editor.openFile(path);
    platform::SetSystemCodePage(1252);
    ASSERT_TRUE(opened);
    EXPECT_EQ(editor.text(), QStringLiteral("\u043f\u0440\u0438"));
}

TEST(EditorWidget, HandlesFilesWithCareAndSaysWhatFailed)
{
    const QTemporaryDir folder;
    ZNCoreEditorWidget editor;
    EXPECT_TRUE(editor.control().GetCarefulFiles());
    const QString path = folder.filePath(QStringLiteral("a.sql"));
    EXPECT_EQ(editor.open(path).problem, FileProblem::Missing);
    EXPECT_EQ(editor.open(folder.path()).problem, FileProblem::NoFile);
    editor.setText(QStringLiteral("text"));
    EXPECT_TRUE(editor.save(path));
    EXPECT_TRUE(editor.save(path).Reason().isEmpty());
    const FileResult elsewhere = editor.save(folder.filePath(QStringLiteral("no/a.sql")));
    EXPECT_EQ(elsewhere.problem, FileProblem::NoFolder);
    EXPECT_EQ(elsewhere.Reason(), QStringLiteral("The folder does not exist."));
    {
        const FullDisk full(2);
        EXPECT_EQ(editor.save(path).problem, FileProblem::NoRoom);
    }
    EXPECT_TRUE(editor.open(path));
    EXPECT_EQ(editor.text(), QStringLiteral("text"));
}

TEST(EditorWidget, TellsWhatASaveWouldLose)
{
    ZNCoreEditorWidget editor;
    editor.setText(QStringLiteral("a\u0416"));
    editor.control().SetEncoding(FileEncodeConverter::encUTF8);
    EXPECT_FALSE(editor.lostBySaving());
    editor.control().SetEncoding(FileEncodeConverter::encANSI);
    ASSERT_TRUE(editor.lostBySaving());
    EXPECT_EQ(editor.lostBySaving()->position, 1);
}

TEST(EditorWidget, MayBeDeletedByASlot)
{
    auto* editor = new ZNCoreEditorWidget;
    QPointer<ZNCoreEditorWidget> alive = editor;
    editor->setText(QStringLiteral("text"));
    editor->control().SetSavePoint(1);
    QObject::connect(editor, &ZNCoreEditorWidget::notified, editor, &QObject::deleteLater);
    editor->control().AddText(1, u"x", 1);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(alive.isNull());
}

// The text as each signal finds it.
struct TextsHeard
{
    explicit TextsHeard(ZNCoreEditorWidget& editor)
    {
        QObject::connect(&editor, &ZNCoreEditorWidget::textChanged, &editor,
                         [this, &editor] { texts.push_back(editor.text()); });
    }
    QStringList texts;
};

// An editor whose slot deletes it, and whether it did.
template <typename Signal>
QPointer<ZNCoreEditorWidget> DeletedBy(Signal signal)
{
    auto* editor = new ZNCoreEditorWidget;
    editor->resize(300, 200);
    editor->show();
    editor->setText(QStringLiteral("text"));
    QApplication::processEvents();
    QObject::connect(editor, signal, editor, [editor] { delete editor; });
    return editor;
}

void RunEvents()
{
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
}

TEST(EditorWidget, TellsAnOperationOnceAndOnlyWhenItIsDone)
{
    ZNCoreEditorWidget editor;
    editor.setText(QStringLiteral("one"));
    TextsHeard heard(editor);
    editor.setText(QStringLiteral("two"));
    EXPECT_EQ(heard.texts, QStringList{QStringLiteral("two")});
    editor.control().Undo(1);
    EXPECT_EQ(heard.texts.value(1), QStringLiteral("one"));
    editor.control().Redo(1);
    EXPECT_EQ(heard.texts.value(2), QStringLiteral("two"));
    EXPECT_EQ(heard.texts.size(), 3);
}

TEST(EditorWidget, TellsAnOpenedFileOnce)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.sql"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("select 1");
    file.close();
    ZNCoreEditorWidget editor;
    editor.setText(QStringLiteral("old"));
    TextsHeard heard(editor);
    QSignalSpy modified(&editor, &ZNCoreEditorWidget::modificationChanged);
    ASSERT_TRUE(editor.openFile(path));
    EXPECT_EQ(heard.texts, QStringList{QStringLiteral("select 1")});
    ASSERT_EQ(modified.count(), 1);
    EXPECT_FALSE(modified.takeFirst().at(0).toBool());
}

TEST(EditorWidget, TellsASaveOnce)
{
    const QTemporaryDir folder;
    ZNCoreEditorWidget editor;
    editor.setText(QStringLiteral("text"));
    QSignalSpy modified(&editor, &ZNCoreEditorWidget::modificationChanged);
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(editor.saveFile(folder.filePath(QStringLiteral("a.sql"))));
    ASSERT_EQ(modified.count(), 1);
    EXPECT_FALSE(modified.takeFirst().at(0).toBool());
    EXPECT_FALSE(editor.isModified());
}

TEST(EditorWidget, MayBeDeletedByASlotOfItsOwnCalls)
{
    auto editor = DeletedBy(&ZNCoreEditorWidget::textChanged);
    editor->setText(QStringLiteral("other"));
    EXPECT_TRUE(editor.isNull());
    editor = DeletedBy(&ZNCoreEditorWidget::modificationChanged);
    editor->saveFile(QTemporaryDir().filePath(QStringLiteral("a")));
    EXPECT_TRUE(editor.isNull());
    RunEvents();
}

TEST(EditorWidget, MayBeDeletedByASlotOfTheControlsMessages)
{
    auto editor = DeletedBy(&ZNCoreEditorWidget::textChanged);
    editor->control().Undo(1);
    EXPECT_TRUE(editor.isNull());
    editor = DeletedBy(&ZNCoreEditorWidget::textChanged);
    editor->control().SetText(u"other", 1);
    EXPECT_TRUE(editor.isNull());
    editor = DeletedBy(&ZNCoreEditorWidget::modificationChanged);
    editor->control().SetSavePoint(1);
    EXPECT_TRUE(editor.isNull());
    RunEvents();
}

TEST(EditorWidget, MayBeDeletedByASlotOfAKey)
{
    const auto type = [](ZNCoreEditorWidget& editor, int key, const QString& text) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(editor.control().GetSafeHwnd(), &press);
    };
    auto editor = DeletedBy(&ZNCoreEditorWidget::charAdded);
    type(*editor, Qt::Key_X, QStringLiteral("x"));
    EXPECT_TRUE(editor.isNull());
    editor = DeletedBy(&ZNCoreEditorWidget::textChanged);
    type(*editor, Qt::Key_Delete, QString());
    EXPECT_TRUE(editor.isNull());
    RunEvents();
}

TEST(EditorWidget, MayBeDeletedByASlotOfThePaintedCaret)
{
    for (const bool byCaret : {true, false}) {
        auto editor = byCaret ? DeletedBy(&ZNCoreEditorWidget::cursorPositionChanged)
                              : DeletedBy(&ZNCoreEditorWidget::updateUi);
        editor->control().GotoPos(3, 1);
        for (int i = 0; i < 1000 && editor; ++i)
            QApplication::processEvents(QEventLoop::AllEvents, 10);
        EXPECT_TRUE(editor.isNull());
    }
    RunEvents();
}

TEST(EditorWidget, TwoLiveSideBySide)
{
    QWidget window;
    QVBoxLayout layout(&window);
    auto* one = new ZNCoreEditorWidget;
    auto* two = new ZNCoreEditorWidget;
    layout.addWidget(one);
    layout.addWidget(two);
    QSignalSpy changed(two, &ZNCoreEditorWidget::textChanged);
    one->setText(QStringLiteral("one"));
    EXPECT_TRUE(changed.isEmpty());
    two->setText(QStringLiteral("two"));
    EXPECT_EQ(one->text(), QStringLiteral("one"));
    delete one;
    EXPECT_EQ(two->text(), QStringLiteral("two"));
}

} // namespace
