// SPDX-License-Identifier: GPL-3.0-or-later
#include "Plugin.h"

#include <ZNCoreEditor/ZNCoreEditorWidget.h>

#include <QIcon>
#include <QPainter>
#include <QPixmap>

QString ZNCoreEditorPlugin::name() const
{
    return QStringLiteral("ZNCoreEditorWidget");
}

QString ZNCoreEditorPlugin::group() const
{
    return QStringLiteral("Input Widgets");
}

QString ZNCoreEditorPlugin::toolTip() const
{
    return tr("Source Text Editor");
}

QString ZNCoreEditorPlugin::whatsThis() const
{
    return tr("An editor for SQL scripts and other source texts.");
}

QString ZNCoreEditorPlugin::includeFile() const
{
    return QStringLiteral("ZNCoreEditor/ZNCoreEditorWidget.h");
}

// A sheet with a margin and three lines of text, one of them underlined.
QIcon ZNCoreEditorPlugin::icon() const
{
    constexpr int kSize = 22;
    QPixmap picture(kSize, kSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(QColor(0x50, 0x50, 0x50));
    painter.setBrush(Qt::white);
    painter.drawRect(2, 1, 17, 19);
    painter.fillRect(3, 2, 4, 18, QColor(0xd8, 0xdc, 0xe4));
    painter.fillRect(9, 5, 5, 2, QColor(0x1f, 0x4e, 0xa8));
    painter.fillRect(9, 10, 8, 2, QColor(0x50, 0x50, 0x50));
    painter.fillRect(9, 15, 6, 2, QColor(0x2e, 0x7d, 0x32));
    painter.fillRect(9, 13, 8, 1, QColor(0xd3, 0x2f, 0x2f));
    return QIcon(picture);
}

// Texts and names that a form has are not for translators: each change of the program's language
// would put them back.
QString ZNCoreEditorPlugin::domXml() const
{
    return QStringLiteral(
        "<ui language=\"c++\"><widget class=\"ZNCoreEditorWidget\" name=\"editor\">"
        "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>400</width>"
        "<height>300</height></rect></property></widget>"
        "<customwidgets><customwidget><class>ZNCoreEditorWidget</class>"
        "<extends>QWidget</extends><header>ZNCoreEditor/ZNCoreEditorWidget.h</header>"
        "<propertyspecifications>"
        "<stringpropertyspecification name=\"text\" notr=\"true\" type=\"multiline\"/>"
        "<stringpropertyspecification name=\"languageName\" notr=\"true\" type=\"singleline\"/>"
        "<stringpropertyspecification name=\"scheme\" notr=\"true\" type=\"singleline\"/>"
        "</propertyspecifications></customwidget></customwidgets></ui>");
}

QWidget* ZNCoreEditorPlugin::createWidget(QWidget* parent)
{
    return new ZNCoreEditorWidget(parent);
}
