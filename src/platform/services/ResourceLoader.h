// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Texts of the user interface by number. The default reads a table; a host may bring its own.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QHash>
#include <QString>
#include <QStringList>

/// A table of texts. A host that brings its own sets it by zncoreeditor::SetResourceLoader.
class ZN_API IZNBaseResourceLoader
{
public:
    virtual ~IZNBaseResourceLoader(); ///< to be taken back by SetResourceLoader before

    /// The text with this number, empty if there is none.
    virtual QString LoadString(UINT id) const = 0;

    /// That text with its marks %1 to %9 replaced by the values; a mark without one stays. What a
    /// value holds is not looked at.
    QString FormatString(UINT id, const QStringList& values) const;
};

/// Texts from an XML file: `<strings><string id="28178">...</string></strings>`.
class ZN_API CZNBaseResourceLoader final : public IZNBaseResourceLoader
{
public:
    /// A file that is missing or broken gives the entries before the fault.
    explicit CZNBaseResourceLoader(const QString& path);

    QString LoadString(UINT id) const override { return m_strings.value(id); }

private:
    QHash<UINT, QString> m_strings;
};
