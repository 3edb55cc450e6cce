// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The numbers of the view's commands by name, for a host's menus, keys and WM_COMMAND. Those of
/// the framework are in platform/docview/CommandIds.h.
#pragma once

#include "platform/base/Types.h"

/// The commands of CZNCoreEditorView, each under the name of its handler.
namespace viewcommand {

// clang-format off
/// A number that the view answers; where several do, the first one.
enum Number : UINT
{
#define ZN_COMMAND(id, handler, action, update, rule) handler = id,
#define ZN_PLAIN(id, handler, action) handler = id,
#define ZN_RULE(id, update, rule)
#define ZN_OWN(id, handler, update) handler = id,
#define ZN_OWN_PLAIN(id, handler) handler = id,
#define ZN_OWN_RULED(id, handler, update, rule) handler = id,
#define ZN_AGAIN(id, handler)
#define ZN_INDICATOR(id, update)
#include "docview/ViewCommands.def"
};
// clang-format on

} // namespace viewcommand
