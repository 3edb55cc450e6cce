// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/Proposals.h"

#include "completion/Matching.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <utility>

namespace completion {
namespace {

constexpr std::array<const char*, 15> kKindNames = {
    "column",   "variable", "parameter", "alias",  "query",  "table",    "view", "procedure",
    "function", "type",     "keyword",   "system", "object", "template", "word"};

struct Fitting
{
    int match;
    Proposal* proposal;
};

bool ComesFirst(const Fitting& one, const Fitting& other)
{
    if (one.match != other.match)
        return one.match < other.match;
    if (one.proposal->rank != other.proposal->rank)
        return one.proposal->rank < other.proposal->rank;
    const int order =
        one.proposal->Compared().compare(other.proposal->Compared(), Qt::CaseInsensitive);
    return order != 0 ? order < 0 : one.proposal->text < other.proposal->text;
}

} // namespace

ProposalSource::~ProposalSource() = default;

bool ProposalSource::Chosen(const Proposal& /*proposal*/, long /*start*/)
{
    return false;
}

QString KindName(ProposalKind kind)
{
    return QLatin1String(kKindNames[static_cast<std::size_t>(kind)]);
}

std::vector<Proposal> BestOf(std::vector<Proposal> proposals, const QString& typed,
                             std::size_t most)
{
    const QByteArray bytes = typed.toUtf8();
    const Typed wanted(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
    std::vector<Fitting> fitting;
    for (Proposal& proposal : proposals) {
        const QByteArray name = proposal.Compared().toUtf8();
        const Match match =
            wanted.Of(std::string_view(name.data(), static_cast<std::size_t>(name.size())));
        if (match != Match::None)
            fitting.push_back({Weight(match), &proposal});
    }
    // No more are put into order than are shown: a heap has the best one in front.
    const auto isWorse = [](const Fitting& one, const Fitting& other) {
        return ComesFirst(other, one);
    };
    std::make_heap(fitting.begin(), fitting.end(), isWorse);
    // A word that is known as something else is that.
    QSet<QString> known;
    std::vector<Proposal> best;
    while (!fitting.empty() && best.size() < most) {
        std::pop_heap(fitting.begin(), fitting.end(), isWorse);
        Proposal* each = fitting.back().proposal;
        fitting.pop_back();
        const QString key = each->text.toCaseFolded();
        const auto isSame = [&](const Proposal& other) {
            return other.kind == each->kind && other.text == each->text;
        };
        if (known.contains(key) &&
            (each->kind == ProposalKind::Word || std::any_of(best.begin(), best.end(), isSame)))
            continue;
        known.insert(key);
        best.push_back(std::move(*each));
    }
    return best;
}

} // namespace completion
