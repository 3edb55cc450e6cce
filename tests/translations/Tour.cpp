// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/translations/Tour.h"

#include "common/Translations.h"
#include "docview/dialogs/InputBox.h"
#include "host/completion/TemplateList.h"
#include "host/files/OpenAsDialog.h"
#include "host/files/SaveAsDialog.h"
#include "host/options/OptionsDialog.h"
#include "host/outline/SymbolPicker.h"
#include "host/recovery/RecoveryDialog.h"
#include "host/session/AutosaveDialog.h"
#include "host/translations/Translations.h"
#include "host/window/FieldMenus.h"

#include <QMenuBar>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

Spoken::Spoken(const QString& language)
{
    zncoreeditor::SetUiLanguage(language);
    InstallTranslations();
}

Spoken::~Spoken()
{
    zncoreeditor::SetUiLanguage({});
    InstallTranslations();
}

Tour::Tour(const QString& language) : Spoken(language)
{
    Open(QStringLiteral("a.sql"), "create table stock (id int);\nselect nothing from;\n");
    Trigger("find");
    Trigger("replace");
    Settle();
}

namespace {

void LookInside(QWidget& around, const std::function<void(QMenu&)>& look)
{
    for (auto* menu : around.findChildren<QMenu*>()) {
        Q_EMIT menu->aboutToShow();
        look(*menu);
    }
}

} // namespace

void Tour::ForEachMenu(const LookAtMenu& look)
{
    QMenu bar;
    bar.addActions(m_window.menuBar()->actions());
    look(bar);
    LookInside(m_window, look);
    for (QMenu* menu : {ZoomMenu(Editor(), &m_window), IndentationMenu(Editor(), &m_window)}) {
        look(*menu);
        delete menu;
    }
    SendMessage(Frame().View()->GetSafeHwnd(), WM_CONTEXTMENU, 0, PointParam({20, 20}));
    auto* context = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(context);
    look(*context);
    LookInside(*context, look);
    delete context;
    Modal([this] { Trigger("preferences"); },
          [&look](QWidget& dialog) { LookInside(dialog, look); });
}

void Tour::Modal(const std::function<void()>& open, const LookAtWindow& look)
{
    bool isSeen = false;
    QTimer::singleShot(0, &m_window, [&look, &isSeen] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        QApplication::processEvents();
        look(*dialog);
        isSeen = true;
        dialog->close();
    });
    open();
    EXPECT_TRUE(isSeen);
}

void Tour::Preferences(const LookAtWindow& look)
{
    Modal([this] { Trigger("preferences"); },
          [&look](QWidget& dialog) {
              auto* tree = dialog.findChild<QTreeWidget*>();
              // The page of all languages, those of plain text, and those of one that has them all.
              QList<QTreeWidgetItem*> pages = {tree->topLevelItem(0)};
              for (const int language : {1, 2}) {
                  QTreeWidgetItem* item = tree->topLevelItem(language);
                  pages << item;
                  for (int page = 0; page < item->childCount(); ++page)
                      pages << item->child(page);
              }
              for (QTreeWidgetItem* page : pages) {
                  tree->setCurrentItem(page);
                  QApplication::processEvents();
                  look(dialog);
              }
          });
}

void Tour::OwnDialogs(const LookAtWindow& look)
{
    const auto show = [&look](QWidget&& dialog) {
        dialog.show();
        QApplication::processEvents();
        look(dialog);
    };
    show(OptionsDialog(&m_window));
    show(AutosaveDialog(&m_window, AutosaveSettings()));
    show(OpenAsDialog(&m_window, m_folder.path()));
    show(SaveAsDialog(&m_window, SaveTarget{PathOf(QStringLiteral("a.sql")), 6, false}));
    RecoverableCopy copy;
    copy.name = QStringLiteral("a.sql");
    show(RecoveryDialog(&m_window, {copy, copy}));
    show(SymbolPicker({}, &m_window));
    show(TemplateList({}, QString(), &m_window));
}

// Those that one answers.
void Tour::Questions(const LookAtWindow& look)
{
    DialogPrompts prompts;
    Modal([&] { prompts.BeforeLosing(&m_window, QStringLiteral("a.sql")); }, look);
    Modal(
        [&] {
            prompts.WhichToSave(&m_window, {QStringLiteral("-"), QStringLiteral("-")});
        },
        look);
    Modal([&] { prompts.BeforeQuestionMarks(&m_window, QStringLiteral("-")); }, look);
    Modal(
        [] {
            CInputBox box(QStringLiteral("-"), QString(), 0, QString(), nullptr);
            box.DoModal();
        },
        look);
    Modal([this] { Trigger("goToLine"); }, look);
    Modal([this] { Trigger("findInFiles"); }, look);
}

void Tour::ForEachWindow(const LookAtWindow& look)
{
    look(m_window);
    OwnDialogs(look);
    Questions(look);
    Preferences(look);
    for (const char* modeless : {"findDialog", "replaceDialog", "keys", "about", "commands"}) {
        const QWidgetList before = QApplication::topLevelWidgets();
        Trigger(modeless);
        int seen = 0;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (!window->isVisible() || window == &m_window || window->isHidden())
                continue;
            if (qobject_cast<QDialog*>(window)) {
                look(*window);
                window->close();
                ++seen;
            }
        }
        EXPECT_EQ(seen, 1) << modeless;
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
