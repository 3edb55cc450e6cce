// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/pictures/PreferencesPictures.h"

#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "prefs/controls/ColorButton.h"
#include "prefs/pages/EditorPrefsDialog.h"

#include <QApplication>
#include <QPixmap>

void PicturePreferences(const QDir& folder, const QString& name)
{
    CEditorPrefsDialog dialog(QStringLiteral("Editor and Language Preferences"),
                              *zncoreeditor::GetConfigFile(), *zncoreeditor::GetFileTypeManager());
    dialog.Create(nullptr);
    QWidget* window = dialog.GetSafeHwnd();
    window->show();
    constexpr int kFirstOfSql = 4; // Colors and Fonts, Text with two pages, then SQL with its own
    constexpr const char* kPages[] = {"editor", "code", "color", "font", "keywords"};
    const auto take = [&](const char* page) {
        QApplication::processEvents();
        window->grab().save(
            folder.filePath(name + QStringLiteral("-prefs-") + QLatin1String(page) + ".png"));
    };
    take("main");
    for (std::size_t i = 0; i < std::size(kPages); ++i) {
        dialog.ShowPage(kFirstOfSql + static_cast<int>(i));
        take(kPages[i]);
    }
    ZNCEColorPopup popup(0x0000FF, 0xC0C0C0, QStringLiteral("Default"),
                         QStringLiteral("More Colors..."), window);
    popup.show();
    popup.SetCurrentCell(25);
    QApplication::processEvents();
    popup.grab().save(folder.filePath(name + QStringLiteral("-prefs-palette.png")));
    dialog.DestroyWindow();
}
