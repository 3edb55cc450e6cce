// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the workbench and of Qt, in the language of the library's texts.
#pragma once

// Once the application stands, and again whenever the library's language has changed. Qt's texts
// are those of its own packages; without them its dialogs stay English.
void InstallTranslations();
