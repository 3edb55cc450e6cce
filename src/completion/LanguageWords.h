// SPDX-License-Identifier: GPL-3.0-or-later
// The words that a language has of its own, as its settings name them.
#pragma once

#include "completion/Proposals.h"

namespace completion {

struct LanguageWord
{
    QString text;
    ProposalKind kind = ProposalKind::Keyword;
};

} // namespace completion
