// SPDX-License-Identifier: GPL-3.0-or-later
// What a file has that the text which was read from it does not.
#pragma once

#include "platform/services/ResourceLoader.h"

#include <QString>

class CZNCoreEditorControlEx;

struct ReadLoss
{
    long long unread = 0;    // bytes that are no text in the encoding, and are shown as U+FFFD
    long line = 0;           // of the first U+FFFD, from 1
    QString encoding;        // its name
    bool isCutShort = false; // the text ends before the file does
    long long nul = -1;      // at this byte, because it is a NUL; -1: for another reason

    explicit operator bool() const { return unread > 0 || isCutShort; }
};

// What the editor has just read from the file.
ReadLoss LookForLoss(CZNCoreEditorControlEx& editor, const QString& path);

// What a person is told of it, and asked before the file is written over; name is the file's.
QString LossNotice(const ReadLoss& loss, const QString& name);
QString OverwriteQuestion(const ReadLoss& loss, const QString& name);

// While it exists, a load tells nobody that a file was cut short: its document does, which knows
// the file's name and waits until its tab is seen.
class QuietLoad final : public IZNBaseResourceLoader
{
public:
    QuietLoad();
    ~QuietLoad() override;
    QuietLoad(const QuietLoad&) = delete;
    QuietLoad& operator=(const QuietLoad&) = delete;

    QString LoadString(UINT id) const override;

private:
    const IZNBaseResourceLoader& m_before;
};
