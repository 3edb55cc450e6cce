// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The configuration as it was delivered, beside what the user made of it.
#pragma once

#include "common/Export.h"

class CConfigFile;

/// Read once in the process, from the file beside the library; it is not to be changed.
ZN_API CConfigFile& DeliveredConfig();
