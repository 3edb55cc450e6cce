// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of the controls in the dialogs for finding, and what these dialogs share.
#pragma once

#include "platform/base/Types.h"

#include <QString>

class CMyComboBox;
class QCheckBox;
class QWidget;

namespace findcontrol {

inline constexpr UINT FindBox = 28139;
inline constexpr UINT FindMenu = 28153;
inline constexpr UINT WholeWord = 28140;
inline constexpr UINT MatchCase = 28142;
inline constexpr UINT RegExp = 28144;
inline constexpr UINT Wrap = 28176;
inline constexpr UINT Up = 28146;
inline constexpr UINT Down = 28147;
inline constexpr UINT Find = 53894;
inline constexpr UINT BookmarkAll = 28121;
inline constexpr UINT ReplaceBox = 28148;
inline constexpr UINT ReplaceMenu = 28154;
inline constexpr UINT Replace = 28138;
inline constexpr UINT ReplaceAll = 28130;
inline constexpr UINT InSelection = 28119;

inline constexpr UINT InFiles = 28157;
inline constexpr UINT InOpenFiles = 28158;
inline constexpr UINT TypeBox = 28127;
inline constexpr UINT FolderBox = 28128;
inline constexpr UINT FolderPicker = 28156;
inline constexpr UINT SubFolders = 28150;
inline constexpr UINT OutputPane2 = 28145;
inline constexpr UINT CountOnly = 28151;
inline constexpr UINT Advanced = 28120;
inline constexpr UINT FoldersLabel = 28129;
inline constexpr UINT Folders = 28155;
inline constexpr UINT AddFolder = 28152;

} // namespace findcontrol

// Puts the caret into the box, with its text selected, as a box does that is reached by Tab.
void FocusBox(CMyComboBox& box);
