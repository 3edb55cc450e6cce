// SPDX-License-Identifier: GPL-3.0-or-later
// A form with the editor in it, as Qt Designer writes it.
#include "editing/ZNCoreEditorWidget.h"

#include <QBuffer>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr char kForm[] = R"(<ui version="4.0">
 <class>Form</class>
 <widget class="QWidget" name="Form">
  <layout class="QVBoxLayout">
   <item>
    <widget class="ZNCoreEditorWidget" name="script">
     <property name="text"><string>select 1;</string></property>
     <property name="languageName"><string>Transact-SQL</string></property>
     <property name="lineWrapMode"><enum>ZNCoreEditorWidget::WidgetWidth</enum></property>
     <property name="lineEnd"><enum>ZNCoreEditorWidget::LineEnd::CrLf</enum></property>
     <property name="readOnly"><bool>true</bool></property>
    </widget>
   </item>
  </layout>
 </widget>
 <customwidgets><customwidget>
  <class>ZNCoreEditorWidget</class><extends>QWidget</extends>
  <header>ZNCoreEditor/ZNCoreEditorWidget.h</header>
 </customwidget></customwidgets>
</ui>)";

TEST(DesignerForm, MakesTheEditorWithItsProperties)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(ZN_PLUGINS));
    ASSERT_TRUE(loader.availableWidgets().contains(QStringLiteral("ZNCoreEditorWidget")));
    QByteArray form = kForm;
    QBuffer buffer(&form);
    const std::unique_ptr<QWidget> window(loader.load(&buffer));
    ASSERT_NE(window, nullptr) << loader.errorString().toStdString();
    const auto* script = window->findChild<ZNCoreEditorWidget*>(QStringLiteral("script"));
    ASSERT_NE(script, nullptr);
    EXPECT_EQ(script->text(), QStringLiteral("select 1;"));
    EXPECT_EQ(script->languageName(), QStringLiteral("Transact-SQL"));
    EXPECT_EQ(script->lineWrapMode(), ZNCoreEditorWidget::LineWrapMode::WidgetWidth);
    EXPECT_EQ(script->lineEnd(), ZNCoreEditorWidget::LineEnd::CrLf);
    EXPECT_TRUE(script->isReadOnly());
}

// What Designer puts down when the editor is dragged onto a form, and what it asks of its texts.
TEST(DesignerForm, MarksTextsThatAreNotForTranslators)
{
    QPluginLoader plugin(QStringLiteral(ZN_PLUGINS "/zncoreeditor_designer.so"));
    const auto* widget = qobject_cast<QDesignerCustomWidgetInterface*>(plugin.instance());
    ASSERT_NE(widget, nullptr) << plugin.errorString().toStdString();
    QByteArray form = widget->domXml().toUtf8();
    QBuffer buffer(&form);
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(ZN_PLUGINS));
    const std::unique_ptr<QWidget> made(loader.load(&buffer));
    ASSERT_NE(qobject_cast<ZNCoreEditorWidget*>(made.get()), nullptr);
    EXPECT_EQ(made->size(), QSize(400, 300));
    const QMetaObject& meta = ZNCoreEditorWidget::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        const QString row =
            QStringLiteral("<stringpropertyspecification name=\"%1\" notr=\"true\"");
        EXPECT_EQ(widget->domXml().contains(row.arg(QLatin1String(property.name()))),
                  property.metaType() == QMetaType::fromType<QString>())
            << property.name();
    }
}

} // namespace
