// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CTextUtil: small functions over text, without any state. Views and dialogs hold one.
#pragma once

#include "common/Export.h"

#include <QString>
#include <QStringList>

/// Small functions over text, without any state.
class ZN_API CTextUtil
{
public:
    /// The number that the text begins with; 0 if there is none, the nearest int if it does not
    /// fit.
    int TextToInt(const QString& text) const;
    QString IntToText(int value) const; ///< in decimal

    /// The pieces between delimiters, of which each character is one. Empty pieces are left out.
    QStringList Split(const QString& text, const QString& delimiters) const;
};
