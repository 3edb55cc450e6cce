// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of the framework's own commands and texts.
#pragma once

#include "platform/base/Types.h"

inline constexpr UINT ID_FILE_NEW = 57600;
inline constexpr UINT ID_FILE_OPEN = 57601;
inline constexpr UINT ID_FILE_CLOSE = 57602;
inline constexpr UINT ID_FILE_SAVE = 57603;
inline constexpr UINT ID_FILE_SAVE_AS = 57604;
inline constexpr UINT ID_FILE_PRINT = 57607;
inline constexpr UINT ID_FILE_PRINT_DIRECT = 57608;
inline constexpr UINT ID_FILE_PRINT_PREVIEW = 57609;
inline constexpr UINT ID_FILE_SEND_MAIL = 57612;
inline constexpr UINT ID_WINDOW_NEW = 57648;
inline constexpr UINT ID_WINDOW_SPLIT = 57653;
inline constexpr UINT ID_APP_EXIT = 57665;

// Said when a document fails, unless the cause is known.
inline constexpr UINT IDP_FAILED_TO_OPEN = 61697;
inline constexpr UINT IDP_FAILED_TO_SAVE = 61698;
inline constexpr UINT IDP_ASK_TO_SAVE = 61699;
