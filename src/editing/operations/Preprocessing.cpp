// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: a script on its way to its consumer.
#include "editing/ZNCoreEditorControlEx.h"

#include "editing/operations/ScriptPreprocessor.h"
#include "platform/base/Units.h"

namespace {

IScriptPreprocessor* g_preprocessor = nullptr;

// A text may hold NULs, at the first of which SetText ends.
void SetWholeText(CZNCoreEditorControlEx& control, const QString& text)
{
    control.SetText(Units(text), 1);
    const qsizetype taken = text.indexOf(QChar(u'\0'));
    if (taken >= 0)
        control.AppendText(static_cast<int>(text.size() - taken), Units(text) + taken, 1);
}

} // namespace

IScriptPreprocessor::~IScriptPreprocessor() = default;

IScriptPreprocessor* GetScriptPreprocessor()
{
    return g_preprocessor;
}

void SetScriptPreprocessor(IScriptPreprocessor* preprocessor)
{
    g_preprocessor = preprocessor;
}

// The whole text, whatever is selected. It is given away for the run and read again behind it, so
// that a long script is not held twice.
void CZNCoreEditorControlEx::GetWindowTextW(QString& text)
{
    text = GetText();
    m_includeErrors.clear();
    IScriptPreprocessor* preprocessor = GetScriptPreprocessor();
    if (!preprocessor)
        return;
    preprocessor->SetSearchPath(m_datasourceSearchPath);
    preprocessor->PreProcess(this, std::move(text));
    if (!preprocessor->GetDirectivesFound())
        preprocessor->SaveOriginalScript(QString());
    text = GetText();
}

void CZNCoreEditorControlEx::SetOriginalScript()
{
    const bool modified = GetModified();
    QString script;
    if (IScriptPreprocessor* preprocessor = GetScriptPreprocessor())
        preprocessor->GetOriginalScript(script);
    if (!script.isEmpty())
        SetWholeText(*this, script);
    SetModified(modified);
}

bool CZNCoreEditorControlEx::GetIncludeOrDefineDirectivesFound() const
{
    const IScriptPreprocessor* preprocessor = GetScriptPreprocessor();
    return preprocessor && preprocessor->GetDirectivesFound();
}

void CZNCoreEditorControlEx::SetIncludeDirectiveErrorMessageAndLine(const QString& message,
                                                                    int line)
{
    m_includeErrors.emplace(line, message);
}
