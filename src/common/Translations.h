// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The language in which the library speaks to people. Texts with a number come from the resource
/// loader, all others by QCoreApplication::translate; both follow it.
#pragma once

#include "common/Export.h"

#include <QString>
#include <QStringList>

namespace zncoreeditor {

/// The languages that there are texts in, by the names that QLocale gives them: "en", "de",
/// "zh_CN".
ZN_API QStringList GetUiLanguages();

/// One of them: that of the environment (LANGUAGE, LC_ALL, LC_MESSAGES, LANG) until a host sets
/// one. English where there are no texts in what the environment asks for.
ZN_API QString GetUiLanguage();

/// What windows show that are made from here on; those that stand keep their texts. An empty name
/// goes back to the environment's, one without texts means English.
ZN_API void SetUiLanguage(const QString& name);

/// The words of a label or of a menu's entry, without the letter that Alt chooses it by: "Save",
/// and nothing of " (&S)", which stands behind words that have no such letter.
ZN_API QString WithoutMnemonic(QString text);

} // namespace zncoreeditor
