// SPDX-License-Identifier: GPL-3.0-or-later
// An undo that takes long: the host is told how far it has come, while nothing else happens.
#include "platform/services/LongWork.h"
#include "tests/engine/EngineFixture.h"

#include <QCoreApplication>
#include <QTimer>

#include <gtest/gtest.h>

#include <vector>

namespace msg = engine::message;

namespace {

class Host final : public ILongWork
{
public:
    Host() { SetLongWork(this); }
    ~Host() override { SetLongWork(nullptr); }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    bool GoesOn(HWND, const QString&, int) override
    {
        ADD_FAILURE() << "nothing can stop an undo";
        return true;
    }
    void Tells(HWND, const QString& what, int steps) override
    {
        told.push_back(steps);
        work = what;
    }
    void Ends() override { ++ends; }
    int Patience() const override { return patience; }

    int patience = 0; // milliseconds
    std::vector<int> told;
    QString work;
    int ends = 0;
};

class LongUndo : public testing::Test
{
protected:
    LongUndo()
    {
        engine.SetText(u"");
        engine.Send(msg::BeginUndoAction);
        for (int i = 0; i < kChanges; ++i)
            engine.Send(msg::InsertText, 0, u"ab"); // in front, so that none joins another
        engine.Send(msg::EndUndoAction);
    }

    static constexpr int kChanges = 2500;

    EngineUnderTest engine;
    Host host;
};

} // namespace

TEST_F(LongUndo, TellsHowManyChangesItHasTakenBack)
{
    engine.Send(msg::Undo);
    EXPECT_EQ(engine.Text(), u"");
    EXPECT_EQ(host.told, (std::vector<int>{1024, 2048}));
    EXPECT_EQ(host.work, QStringLiteral("Undoing"));
    EXPECT_EQ(host.ends, 1);
}

TEST_F(LongUndo, IsToldAnewAsARedo)
{
    engine.Send(msg::Undo);
    engine.Send(msg::Redo);
    EXPECT_EQ(engine.Send(msg::GetLength), 2 * kChanges);
    EXPECT_EQ(host.told, (std::vector<int>{1024, 2048, 1024, 2048}));
    EXPECT_EQ(host.work, QStringLiteral("Redoing"));
    EXPECT_EQ(host.ends, 2);
}

TEST_F(LongUndo, TellsNothingWithinTheHostsPatience)
{
    host.patience = 3'600'000;
    engine.Send(msg::Undo);
    EXPECT_TRUE(host.told.empty());
    EXPECT_EQ(host.ends, 0);
}

// A listener may ask for a further one, which does nothing in the midst of this.
TEST_F(LongUndo, GoesOnTellingBehindOneThatIsAskedForMeanwhile)
{
    engine.Parent().onNotify = [](Listener& listener, const SCNotification&) {
        listener.onNotify = nullptr;
        SendMessage(listener.editor, msg::Undo, 0, 0);
    };
    engine.Send(msg::Undo);
    EXPECT_EQ(engine.Parent().onNotify, nullptr);
    EXPECT_EQ(engine.Text(), u"");
    EXPECT_EQ(host.told, (std::vector<int>{1024, 2048}));
}
