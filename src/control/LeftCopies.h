// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// LeftCopies: the autosave copies that crashes have left, for a host that shows them itself
/// instead of the question that OpenFile asks for each.
#pragma once

#include "common/Export.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

class CopyClaim;

/// What is listed is claimed as long as this exists, so that no other process offers it meanwhile.
class ZN_API LeftCopies
{
public:
    /// One copy.
    struct Copy
    {
        QString path;     ///< of the copy itself
        QString document; ///< of the file it stands for; of a text without one, its untitled name
        /// Whether the file is the one that the text was read from, or saved to, before it was
        /// changed; nothing if the editor that wrote the copy did not note it.
        std::optional<bool> isOfThisFile;
        int codePage = 0; ///< of the copy and its file, if they are no Unicode; 0: the system's
    };

    /// The copies of one document, or all with an empty name. One that has the bytes of its file is
    /// taken away; one that a living editor owns is passed by.
    explicit LeftCopies(const QString& document = QString());
    LeftCopies(const LeftCopies&) = delete;
    LeftCopies& operator=(const LeftCopies&) = delete;
    ~LeftCopies(); ///< releases what is still claimed

    const std::vector<Copy>& All() const { return m_copies; } ///< the oldest first

    /// By the path of the copy. A release leaves it for whoever takes it next; RecoverCopy needs it
    /// released, also in this process.
    void Release(const QString& path);
    void Discard(const QString& path); ///< deletes the copy and its note

private:
    std::vector<Copy> m_copies;
    std::vector<std::unique_ptr<CopyClaim>> m_claims; // one for each copy; null once released
};
