// SPDX-License-Identifier: GPL-3.0-or-later
// CallTip: what a function takes, beside the caret, with the argument at hand in bold.
#pragma once

#include "completion/Signatures.h"

#include <QLabel>

class ColourScheme;

namespace completion {

class CallTip final : public QLabel
{
    Q_OBJECT

public:
    explicit CallTip(QWidget* editor);

    // Above the line if there is room, since a list of proposals stands below. An argument behind
    // the last one leaves all plain.
    void ShowCall(const Signature& signature, int argument, const QRect& line,
                  const ColourScheme* scheme);
};

} // namespace completion
