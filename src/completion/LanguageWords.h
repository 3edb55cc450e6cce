// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The words that a language has of its own, as its settings name them.
#pragma once

#include "completion/Proposals.h"

namespace completion {

/// A word of a language, and what it is.
struct LanguageWord
{
    QString text;                              ///< as it is put in
    ProposalKind kind = ProposalKind::Keyword; ///< what it is shown as
};

} // namespace completion
