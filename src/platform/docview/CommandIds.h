// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The numbers of the framework's own commands and texts.
#pragma once

#include "platform/base/Types.h"

inline constexpr UINT ID_FILE_NEW = 57600;           ///< an empty document of the first template
inline constexpr UINT ID_FILE_OPEN = 57601;          ///< asks for a file
inline constexpr UINT ID_FILE_CLOSE = 57602;         ///< the active document
inline constexpr UINT ID_FILE_SAVE = 57603;          ///< the active document
inline constexpr UINT ID_FILE_SAVE_AS = 57604;       ///< under a name that is asked for
inline constexpr UINT ID_FILE_PRINT = 57607;         ///< asks for a printer
inline constexpr UINT ID_FILE_PRINT_DIRECT = 57608;  ///< on the printer that is used unasked
inline constexpr UINT ID_FILE_PRINT_PREVIEW = 57609; ///< shows the pages
inline constexpr UINT ID_FILE_SEND_MAIL = 57612;     ///< opens the mail program
inline constexpr UINT ID_WINDOW_NEW = 57648;         ///< a further frame on the document
inline constexpr UINT ID_WINDOW_SPLIT = 57653;       ///< divides a view; the host's to do
inline constexpr UINT ID_APP_EXIT = 57665;           ///< closes the main window

/// Said when a document fails, unless the cause is known.
inline constexpr UINT IDP_FAILED_TO_OPEN = 61697;
inline constexpr UINT IDP_FAILED_TO_SAVE = 61698; ///< the same at a save
inline constexpr UINT IDP_ASK_TO_SAVE = 61699;    ///< the question before a document goes
