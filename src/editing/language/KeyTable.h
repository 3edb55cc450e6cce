// The key table of an editor that stands alone, and of a view around one.
#pragma once

#include "platform/windows/Accelerators.h"

HACCEL EditorKeyTable();
