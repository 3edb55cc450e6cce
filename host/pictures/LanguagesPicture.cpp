// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/pictures/LanguagesPicture.h"

#include "editing/ZNCoreEditorWidget.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "looks/Schemes.h"
#include "prefs/pages/SampleTexts.h"
#include "settings/SyntaxFile.h"

#include <QApplication>
#include <QPainter>

QImage PictureLanguages()
{
    constexpr int kWidth = 430; // pixels of each
    constexpr int kHeight = 170;
    constexpr int kGap = 6;
    constexpr int kCaption = 18;
    CFileTypeManager& registry = *zncoreeditor::GetFileTypeManager();
    const QStringList schemes = zncoreeditor::SchemeNames();
    const int columns = static_cast<int>(schemes.size());
    QImage sheet(columns * (kWidth + kGap) + kGap,
                 registry.GetLanguageCount() * (kHeight + kCaption + kGap) + kGap,
                 QImage::Format_RGB32);
    sheet.fill(QColor(0x80, 0x80, 0x80));
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    for (int language = 0; language < registry.GetLanguageCount(); ++language) {
        CSyntaxFile* syntax = registry.GetSyntaxFile(language);
        if (!syntax || !syntax->Parse())
            continue;
        ZNCoreEditorWidget editor;
        editor.resize(kWidth, kHeight);
        editor.setLanguage(language);
        editor.setText(SampleTextOf(syntax->GetFilename().section(u'/', -1)));
        editor.show();
        for (int i = 0; i < columns; ++i) {
            const QPoint corner(kGap + i * (kWidth + kGap),
                                kGap + language * (kHeight + kCaption + kGap));
            painter.drawText(QRect(corner, QSize(kWidth, kCaption)),
                             registry.GetLanguageName(language) + QStringLiteral(", ") +
                                 schemes[i]);
            editor.setScheme(schemes[i]);
            QApplication::processEvents();
            painter.drawPixmap(corner + QPoint(0, kCaption), editor.grab());
        }
    }
    return sheet;
}
