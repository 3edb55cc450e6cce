// SPDX-License-Identifier: GPL-3.0-or-later
// The options of the workbench: those of the library's file, with defaults of its own for what
// helps people who type.
#pragma once

#include "platform/services/OptionsServer.h"

// In force as long as it lives.
class WorkbenchOptions final : public CZNOptionsServer
{
public:
    WorkbenchOptions();
    ~WorkbenchOptions() override;

    int GetInt(int key) override;
    bool GetBool(int key) override;
};
