// SPDX-License-Identifier: GPL-3.0-or-later
// znpictures FOLDER NAME LIGHT|DARK: pictures of the workbench with a script in it, for somebody to
// look at: the window, folds, problems, changed lines, the find bar, the preferences.
// tools/pictures makes all of them, at three scales.
//
// znpictures SHEET FILE PICTURE...: the pictures, made small, side by side in a file.
// znpictures FEW FILE PICTURE: the picture in the colours that it has most of.
// znpictures LANGUAGES FILE: the sample of each language in each scheme, in a file.
#include "editing/ZNCoreEditorControlEx.h"
#include "host/finding/FindBar.h"
#include "host/icons/Style.h"
#include "host/pictures/LanguagesPicture.h"
#include "host/pictures/PreferencesPictures.h"
#include "host/pictures/PrintPictures.h"
#include "host/recovery/RecoveryDialog.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <algorithm>
#include <functional>

namespace {

// As desktops paint themselves that are dark.
QPalette DarkPalette()
{
    QPalette palette(QColor(0x2B, 0x2F, 0x36));
    palette.setColor(QPalette::Base, QColor(0x1E, 0x22, 0x27));
    palette.setColor(QPalette::AlternateBase, QColor(0x25, 0x29, 0x2F));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x5C, 0x99));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x7A, 0x80, 0x88));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x7A, 0x80, 0x88));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x7A, 0x80, 0x88));
    return palette;
}

void Rest(int milliseconds)
{
    QElapsedTimer time;
    for (time.start(); time.elapsed() < milliseconds;)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

// Something to see of each kind.
void Furnish(CZNCoreEditorControlEx& editor)
{
    editor.ToggleBookmark(3);
    editor.MarkerAdd(5, 2, 1);
    editor.MarkerAdd(8, 9, 1);
    editor.GotoPos(editor.GetLineEndPosition(11, 1), 1);
    editor.ReplaceSel(u" -- changed", 1);
    editor.Colorize(0, -1, 1);
    editor.ToggleFold(16, 1);
    editor.GotoPos(editor.PositionFromLine(13, 1) + 24, 1);
}

void Put(const QString& path, const QByteArray& text)
{
    QFile file(path);
    if (file.open(QFile::WriteOnly))
        file.write(text);
}

// A script that was changed, one whose file is gone and one that never had a name.
QPixmap Recovery()
{
    const QTemporaryDir folder;
    QByteArray text;
    for (int i = 1; i < 30; ++i)
        text += "select " + QByteArray::number(i) + " from orders where id = 7;\n";
    QList<RecoverableCopy> copies;
    for (const char* name : {"customers.sql", "release-4.2.sql", "Script 3"}) {
        RecoverableCopy copy;
        copy.name = QLatin1String(name);
        copy.document = QStringLiteral("/home/anna/projects/shop/releases/") + copy.name;
        copy.path = folder.filePath(copy.name + QStringLiteral(".copy"));
        copy.copyTime = QDateTime::currentDateTime().addSecs(-240 * (copies.size() + 1));
        copies << copy;
        Put(copy.path, QByteArray(text).replace("select 5 ", "select 55 ").replace("= 9", "= 10"));
    }
    copies[0].document = folder.filePath(copies[0].name);
    Put(copies[0].document, text);
    copies[0].fileTime = copies[0].copyTime.addSecs(-86400);
    copies[1].state = RecoverableCopy::State::Deleted;
    copies[2].state = RecoverableCopy::State::NeverNamed;
    copies[2].document.clear();
    RecoveryDialog dialog(nullptr, copies);
    dialog.show();
    Rest(500);
    return dialog.grab();
}

QList<QRgb> MostFrequent(const QHash<QRgb, int>& counts, qsizetype most)
{
    QList<QRgb> colours = counts.keys();
    std::ranges::sort(colours, std::greater(), [&](QRgb colour) { return counts[colour]; });
    colours.resize(std::min(colours.size(), most));
    return colours;
}

// In the colours that it has most of, and in coarse ones so that none of the others goes far. No
// dots for those between: a quarter of the file's size.
QImage InFewColours(const QImage& picture)
{
    constexpr qsizetype kHalf = 128;
    constexpr QRgb kCoarse = 0xFFE0E0E0;
    constexpr QRgb kMiddle = 0x00101010;
    QHash<QRgb, int> counts;
    QHash<QRgb, int> coarse;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb colour = picture.pixel(x, y);
            ++counts[colour];
            ++coarse[(colour & kCoarse) | kMiddle];
        }
    }
    const QList<QRgb> colours = MostFrequent(counts, kHalf) + MostFrequent(coarse, kHalf);
    return picture.convertToFormat(QImage::Format_Indexed8, colours, Qt::AvoidDither);
}

// Two in each row, under their names.
bool MakeSheet(const QString& file, const QStringList& pictures)
{
    constexpr int kColumns = 2;
    constexpr int kWidth = 640; // pixels of each
    constexpr int kHeight = 400;
    constexpr int kGap = 16;
    constexpr int kCaption = 22;
    const auto rows = (static_cast<int>(pictures.size()) + kColumns - 1) / kColumns;
    QImage sheet(kColumns * (kWidth + kGap) + kGap, rows * (kHeight + kCaption + kGap) + kGap,
                 QImage::Format_RGB32);
    sheet.fill(QColor(0x80, 0x80, 0x80));
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    for (int i = 0; i < static_cast<int>(pictures.size()); ++i) {
        const QImage picture(pictures[i]);
        if (picture.isNull())
            return false;
        const QPoint corner(kGap + i % kColumns * (kWidth + kGap),
                            kGap + i / kColumns * (kHeight + kCaption + kGap));
        painter.drawText(QRect(corner, QSize(kWidth, kCaption)), Qt::AlignLeft | Qt::AlignVCenter,
                         QFileInfo(pictures[i]).completeBaseName());
        painter.drawImage(
            corner + QPoint(0, kCaption),
            picture.scaled(kWidth, kHeight, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }
    painter.end();
    constexpr int kSmallest = 0; // of the file, at the cost of time
    return InFewColours(sheet).save(file, nullptr, kSmallest);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Style::Install();
    const QStringList words = QApplication::arguments();
    constexpr int kWords = 4;
    if (words.size() == kWords - 1 && words[1] == QLatin1String("LANGUAGES"))
        return PictureLanguages().save(words[2]) ? 0 : 1;
    if (words.size() < kWords)
        return 2;
    if (words[1] == QLatin1String("SHEET"))
        return MakeSheet(words[2], words.mid(kWords - 1)) ? 0 : 1;
    if (words[1] == QLatin1String("FEW"))
        return InFewColours(QImage(words[3])).save(words[2], nullptr, 0) ? 0 : 1;
    const QDir folder(words[1]);
    if (words[3] == QLatin1String("DARK"))
        QApplication::setPalette(DarkPalette());
    Workbench app(Workbench::Keeps::Nothing);
    auto* window = new MainWindow(app);
    window->resize(1100, 680);
    window->OpenPlaces(words.mid(kWords));
    window->show();
    Rest(300);
    window->ShowTab(0);
    if (CZNCoreEditorControlEx* editor = window->CurrentEditor())
        Furnish(*editor);
    Rest(1500);
    window->grab().save(folder.filePath(words[2] + QStringLiteral("-window.png")));
    window->Find().Open();
    if (auto* sought = window->Find().findChild<QComboBox*>(QStringLiteral("findText")))
        sought->setEditText(QStringLiteral("stock"));
    Rest(1000);
    window->grab().save(folder.filePath(words[2] + QStringLiteral("-find.png")));
    PicturePreferences(folder, words[2]);
    Recovery().save(folder.filePath(words[2] + QStringLiteral("-recovery.png")));
    window->Find().Close();
    PicturePrinting(*window, folder, words[2]);
    for (const char* pane : {"outline", "expand"}) {
        if (auto* action = window->findChild<QAction*>(QLatin1String(pane)))
            action->trigger();
    }
    Rest(1000);
    window->grab().save(folder.filePath(words[2] + QStringLiteral("-panes.png")));
    return 0;
}
