// SPDX-License-Identifier: GPL-3.0-or-later
// The document map with a real mouse: shown by the menu, a click, a drag, the wheel.
#include "tests/host/WindowStory.h"

namespace {

class MapStory : public WindowStory
{
protected:
    static constexpr int kLines = 1000;
    static constexpr int kFromRight = 60; // a pixel of the map

    QByteArray FirstText() const override
    {
        QByteArray text;
        for (int line = 1; line <= kLines; ++line)
            text += "select " + QByteArray::number(line) + ";\n";
        return text;
    }

    // By its letters, as people do.
    void ShowMap()
    {
        Keys({"alt+v"});
        Keys({"d"});
        const QString size = XDoTool({"getwindowgeometry", "--shell", m_windowId});
        m_width = size.section(QStringLiteral("WIDTH="), 1).section('\n', 0, 0).toInt();
        ASSERT_GT(m_width, 500);
    }

    void MoveOverMap(int y)
    {
        XDoTool({"mousemove", "--window", m_windowId, QString::number(m_width - kFromRight),
                 QString::number(y)});
    }

    // The line in the middle of the window, where a typed letter comes to stand.
    int LineInTheMiddle()
    {
        Click(400, 400);
        Type(QStringLiteral("z"));
        Keys({"ctrl+s"});
        int line = -1;
        EXPECT_TRUE(Eventually([&] {
            const QList<QByteArray> lines = Read().split('\n');
            for (int at = 0; at < lines.size(); ++at) {
                if (lines[at].contains('z'))
                    line = at + 1;
            }
            return line > 0;
        }));
        Keys({"ctrl+z", "ctrl+s"});
        EXPECT_TRUE(Eventually([this] { return Read() == FirstText(); }));
        return line;
    }

    int m_width = 0;
};

} // namespace

TEST_F(MapStory, AClickGoesThereADragScrollsAndTheWheelScrollsTheText)
{
    ASSERT_NO_FATAL_FAILURE(ShowMap());
    MoveOverMap(500);
    XDoTool({"click", "1"});
    const int clicked = LineInTheMiddle();
    EXPECT_GT(clicked, 100);
    EXPECT_LT(clicked, 350);

    XDoTool({"click", "4"}); // over the text
    const int turned = LineInTheMiddle();
    MoveOverMap(500);
    XDoTool({"click", "4"});
    EXPECT_EQ(LineInTheMiddle() - turned, turned - clicked);

    MoveOverMap(500);
    XDoTool({"mousedown", "1"});
    MoveOverMap(560);
    MoveOverMap(2000);
    XDoTool({"mouseup", "1"});
    EXPECT_GT(LineInTheMiddle(), kLines - 40);
}
