// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/LeftCopies.h"

#include "control/AutosaveCopies.h"
#include "control/CopyClaim.h"
#include "control/FileAccess.h"
#include "platform/base/Units.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

LeftCopies::LeftCopies(const QString& document)
{
    autosave::RemoveUnwritten();
    const QString folder = autosave::BackupFolder(false);
    if (folder.isEmpty())
        return;
    QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden, QDir::NoSort);
    // Copies of one tick of the clock, which are written together, in the order of their documents.
    const auto age = [](const QFileInfo& file) {
        return std::pair(file.lastModified(), autosave::NoteOf(file.filePath()));
    };
    std::ranges::sort(files, {}, age);
    for (const QFileInfo& file : files) {
        const QString path = folder + file.fileName();
        const QString stands = autosave::NoteOf(path);
        auto claim = std::make_unique<CopyClaim>();
        if (stands.isEmpty() || (!document.isEmpty() && stands != document) || file.size() == 0 ||
            !claim->Take(path) || !QFile::exists(path))
            continue;
        const std::optional<autosave::Origin> origin = autosave::OriginOf(path);
        const auto isOfThisFile =
            origin ? std::optional(origin->stamp == StampOf(Units(stands))) : std::nullopt;
        m_copies.push_back({path, stands, isOfThisFile, origin ? origin->codePage : 0});
        m_claims.push_back(std::move(claim));
        if (HaveSameBytes(Units(path), Units(stands))) {
            Discard(path);
            m_copies.pop_back();
            m_claims.pop_back();
        }
    }
}

LeftCopies::~LeftCopies() = default;

void LeftCopies::Release(const QString& path)
{
    for (std::size_t i = 0; i < m_copies.size(); ++i) {
        if (m_copies[i].path == path)
            m_claims[i].reset();
    }
}

void LeftCopies::Discard(const QString& path)
{
    autosave::EmptyCopy(path);
    autosave::RemoveNote(path);
    autosave::RemoveOrigin(path);
    autosave::RemoveCopy(path);
    Release(path);
}
