// The key table of an editor that stands alone.
#pragma once

#include "platform/Accelerators.h"

HACCEL EditorKeyTable();
