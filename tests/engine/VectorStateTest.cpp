// SPDX-License-Identifier: GPL-3.0-or-later
// What a hash of Qt's leaves in the vector registers slows nothing down here.
#include "tests/UpperHalves.h"
#include "tests/engine/EngineFixture.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace {

class VectorRegisters : public upperhalves::VectorRegisters
{
protected:
    EngineUnderTest m_engine;
};

} // namespace

TEST_F(VectorRegisters, AreClearedByAMessage)
{
    upperhalves::Use();
    m_engine.Send(engine::message::GetLength);
    EXPECT_FALSE(upperhalves::AreInUse());
}

TEST_F(VectorRegisters, AreClearedByAnEventOfTheWindow)
{
    QEvent event(QEvent::User);
    auto* const window = static_cast<QObject*>(m_engine.Window());
    upperhalves::Use();
    QCoreApplication::sendEvent(window, &event);
    EXPECT_FALSE(upperhalves::AreInUse());
}
