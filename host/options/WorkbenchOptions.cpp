// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/options/WorkbenchOptions.h"

#include "host/printing/HeadAndFoot.h"

#include <algorithm>
#include <array>

namespace {

// Off in the library, where no host has asked for them.
constexpr std::array<int, 3> kOn = {option::SurroundSelection, option::ClosePairs,
                                    headandfoot::kOption};

} // namespace

WorkbenchOptions::WorkbenchOptions()
{
    SetOptionsServer(this);
}

WorkbenchOptions::~WorkbenchOptions()
{
    if (GetObjectW() == this)
        SetOptionsServer(nullptr);
}

int WorkbenchOptions::GetInt(int key)
{
    const bool isOn = std::find(kOn.begin(), kOn.end(), key) != kOn.end();
    return isOn && GetString(key).isEmpty() ? 1 : CZNOptionsServer::GetInt(key);
}

bool WorkbenchOptions::GetBool(int key)
{
    return WorkbenchOptions::GetInt(key) != 0;
}
