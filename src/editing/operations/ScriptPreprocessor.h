// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What an editor asks of the pre-processor of scripts, which works on one editor at a time. The
/// room that has it sets it here.
#pragma once

#include "common/Export.h"

#include <QString>

class CZNCoreEditorControlEx;

/// The pre-processor, as an editor uses it.
class ZN_API IScriptPreprocessor
{
public:
    virtual ~IScriptPreprocessor(); ///< to be taken back by SetScriptPreprocessor before

    /// Folders for included files, separated by ";".
    virtual void SetSearchPath(const QString& path) = 0;
    /// Expands the script in place; it is the control's text.
    virtual void PreProcess(CZNCoreEditorControlEx* control, QString script) = 0;
    virtual bool GetDirectivesFound() const = 0; ///< by the last run on a script that was not empty

    /// What the script was before the last run.
    virtual void SaveOriginalScript(const QString& script) = 0;
    /// The script that was saved last, into the given text.
    virtual void GetOriginalScript(QString& script) = 0;
};

ZN_API IScriptPreprocessor* GetScriptPreprocessor();                  ///< null: there is none
ZN_API void SetScriptPreprocessor(IScriptPreprocessor* preprocessor); ///< stays the caller's
