// SPDX-License-Identifier: GPL-3.0-or-later
#include <ZNCoreEditor/ZNCoreEditorWidget.h>

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    ZNCoreEditorWidget editor;
    QObject::connect(&editor, &ZNCoreEditorWidget::modificationChanged, &editor,
                     &QWidget::setWindowModified);
    editor.openFile(QApplication::arguments().value(1));
    editor.resize(800, 600);
    editor.show();
    return QApplication::exec();
}
