// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/PathParts.h"

#include <algorithm>

namespace {

// In UTF-16 units, and one more for the terminator that each of them had room for.
constexpr qsizetype kFolderRoom = 260;
constexpr qsizetype kNameRoom = 256;

bool IsSeparator(QChar unit)
{
    return unit == u'/' || unit == u'\\';
}

qsizetype BehindUncDrive(const QString& path)
{
    constexpr int kSeparators = 4;
    int seen = 0;
    for (qsizetype at = 0; at < path.size(); ++at) {
        if (IsSeparator(path[at]) && ++seen == kSeparators)
            return at;
    }
    return path.size();
}

bool IsUnc(const QString& path)
{
    return path.size() > 2 && IsSeparator(path[0]) && path[1] == path[0] && path[2] != u'?';
}

} // namespace

CPathParts::CPathParts(const QString& path)
{
    qsizetype at = 0;
    if (IsUnc(path))
        at = BehindUncDrive(path);
    else if (path.size() > 1 && path[1] == u':')
        at = 2;
    const auto lastOf = [&](auto accept) {
        for (qsizetype i = path.size(); i > at; --i) {
            if (accept(path[i - 1]))
                return i - 1;
        }
        return qsizetype{-1};
    };
    const qsizetype slash = lastOf(IsSeparator);
    const qsizetype nameAt = std::max(at, slash + 1);
    const qsizetype dot = lastOf([](QChar unit) { return unit == u'.'; });
    const qsizetype extensionAt = dot >= nameAt ? dot : path.size();
    if (nameAt - at >= kFolderRoom || extensionAt - nameAt >= kNameRoom ||
        path.size() - extensionAt >= kNameRoom)
        return;
    drive = path.left(at);
    folder = path.mid(at, nameAt - at);
    name = path.mid(nameAt, extensionAt - nameAt);
    extension = path.mid(extensionAt);
}

void CPathParts::SetNameExt(const QString& path)
{
    const CPathParts other(path);
    name = other.name;
    extension = other.extension;
}

bool CPathParts::IsAbsolute(const QString& path)
{
    return (!path.isEmpty() && IsSeparator(path[0])) || (path.size() > 1 && path[1] == u':');
}
