// SPDX-License-Identifier: GPL-3.0-or-later
// A key that a person gives to a command, with real keys.
#include "tests/host/WindowStory.h"

#include <QMap>
#include <QRect>

namespace {

class KeysStory : public WindowStory
{};

// On a screen of few pixels of its own scale.
class LargeScaleStory : public WindowStory
{
protected:
    static constexpr const char* kScale = "QT_SCALE_FACTOR";

    void SetUp() override
    {
        qputenv(kScale, "2.25");
        WindowStory::SetUp();
    }
    void TearDown() override
    {
        WindowStory::TearDown();
        qunsetenv(kScale);
    }

    static QRect PlaceOf(const QString& window) // pixels of the display
    {
        QMap<QString, int> values;
        for (const QString& line : XDoTool({"getwindowgeometry", "--shell", window}).split(u'\n'))
            values[line.section(u'=', 0, 0)] = line.section(u'=', 1).toInt();
        return {values["X"], values["Y"], values["WIDTH"], values["HEIGHT"]};
    }

    static QSize Display()
    {
        const QStringList words = XDoTool({"getdisplaygeometry"}).split(u' ');
        return {words.value(0).toInt(), words.value(1).toInt()};
    }

    // By its key, and further ones in the dialog.
    void FitsOpenedBy(const QString& key, const QString& title, const QStringList& then = {})
    {
        SCOPED_TRACE(title.toStdString());
        Keys({key});
        QString dialog;
        ASSERT_TRUE(Eventually([&] {
            dialog = Visible(title);
            return !dialog.isEmpty();
        }));
        XDoTool({"windowfocus", "--sync", dialog});
        for (const QString& further : then) {
            const QRect before = PlaceOf(dialog);
            Keys({further});
            EXPECT_TRUE(Eventually([&] { return PlaceOf(dialog) != before; }));
        }
        const QRect place = PlaceOf(dialog);
        EXPECT_TRUE(QRect({}, Display()).contains(place))
            << place.x() << " " << place.y() << " " << place.width() << " " << place.height();
        Keys({"Escape"});
        ASSERT_TRUE(Eventually([&] { return Visible(title).isEmpty(); }));
        XDoTool({"windowfocus", "--sync", m_windowId});
    }
};

} // namespace

TEST_F(LargeScaleStory, DialogsAreOnTheScreen)
{
    FitsOpenedBy("ctrl+o", "^Open$");
    FitsOpenedBy("ctrl+shift+s", "^Save As$");
    FitsOpenedBy("F1", "^Keys$");
    FitsOpenedBy("ctrl+shift+f", "^Find In Files$", {"alt+v"});
}

// The engine deletes the caret's line on this key where nobody above it takes the key.
TEST_F(KeysStory, AKeyThatAPersonGivesIsTheCommandsAndNoLineGoes)
{
    Keys({"F1"});
    ASSERT_TRUE(Eventually([] { return !Visible("^Keys$").isEmpty(); }));
    XDoTool({"windowfocus", "--sync", Visible("^Keys$")});
    Type("all occurrences");
    Keys({"Return", "Return", "ctrl+shift+l"});
    ASSERT_NO_FATAL_FAILURE(Answer("alt+m")); // the text gives it up
    XDoTool({"windowfocus", "--sync", Visible("^Keys$")});
    Keys({"Escape"});
    ASSERT_TRUE(Eventually([] { return Visible("^Keys$").isEmpty(); }));
    Focus();
    Keys({"ctrl+Home", "ctrl+shift+l"});
    Type("x");
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([&] { return Read() == "x 1;\nx 2;\n"; })) << Read().toStdString();
}
