// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/Encodings.h"

#include "control/ZNCoreEditorControl.h"
#include "host/files/FileMemory.h"
#include "platform/services/OptionsServer.h"
#include "platform/text/SystemCodePage.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Encodings)
};

const FileMemory kChosen(QStringLiteral("ChosenCodePages"));

constexpr int kFirstCodePage = 100; // the numbers of Unicode are smaller

bool IsCodePage(int encoding)
{
    return encoding >= kFirstCodePage;
}

bool IsKnownCodePage(int number)
{
    return IsCodePage(number) && IsEncoding(number);
}

int Known(const QString& remembered)
{
    const int number = remembered.toInt();
    return IsKnownCodePage(number) ? number : 0;
}

const EncodingChoice* FindChoice(int encoding, bool mark)
{
    const int number = encoding == FileEncodeConverter::encANSI ? DefaultCodePage() : encoding;
    // A code page has no mark, whatever the flag of the file says.
    const bool wanted = mark && !IsCodePage(number);
    const auto choices = EncodingChoices();
    const auto found = std::ranges::find_if(choices, [=](const EncodingChoice& choice) {
        return choice.encoding == number && choice.mark == wanted;
    });
    return found == choices.end() ? nullptr : &*found;
}

} // namespace

QString EncodingName(int encoding, bool mark)
{
    const EncodingChoice* choice = FindChoice(encoding, mark);
    if (!choice)
        return Texts::tr("Unknown encoding");
    return choice->mark ? Texts::tr(choice->name) : QLatin1String(choice->name);
}

QString EncodingTitle(const EncodingChoice& choice)
{
    const QString name = EncodingName(choice.encoding, choice.mark);
    return choice.script ? QStringLiteral("%1 (%2)").arg(name, Texts::tr(choice.script)) : name;
}

int IndexOfEncoding(int encoding, bool mark)
{
    const EncodingChoice* choice = FindChoice(encoding, mark);
    return choice ? int(choice - EncodingChoices().data()) : 0;
}

int FormOf(int encoding)
{
    return IsCodePage(encoding) ? int{FileEncodeConverter::encANSI} : encoding;
}

int CodePageOf(int encoding)
{
    return IsCodePage(encoding) ? encoding : DefaultCodePage();
}

int EncodingOf(const CZNCoreEditorControl& editor)
{
    const int form = editor.GetEncoding();
    if (form != FileEncodeConverter::encANSI)
        return form;
    return editor.GetFileCodePage() != 0 ? editor.GetFileCodePage() : platform::GetSystemCodePage();
}

void SetEncodingOf(CZNCoreEditorControl& editor, int encoding)
{
    editor.SetEncoding(FormOf(encoding));
    editor.SetFileCodePage(CodePageOf(encoding));
}

// What no longer is one, or never was, is passed by.
int DefaultCodePage()
{
    const int chosen = CZNOptionsServer::GetObjectW()->GetInt(kCodePageOption);
    return IsKnownCodePage(chosen) ? chosen : platform::GetSystemCodePage();
}

void RememberCodePage(const QString& path, int encoding)
{
    if (IsCodePage(encoding))
        kChosen.Remember(path, QString::number(encoding));
}

int ChosenCodePage(const QString& path)
{
    return Known(kChosen.Of(path));
}

int ChosenCodePageInFolder(const QString& path)
{
    return Known(kChosen.InFolder(path));
}

QString LineEndName(int mode)
{
    switch (mode) {
    case 1:
        return QStringLiteral("CR LF");
    case 2:
        return QStringLiteral("CR");
    case 3:
        return QStringLiteral("LF");
    default:
        return {};
    }
}
