// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The text of a settings file: sections in brackets, "name=value" below them. Lines that nobody
/// asks about stay as they are. Knows no file.
#pragma once

#include "common/Export.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// The text in memory.
class ZN_API SettingsText
{
public:
    explicit SettingsText(const QByteArray& bytes); ///< lines of it as they are
    QByteArray Bytes() const;                       ///< with what was set since

    /// Keys are segments with slashes between them: the first is the section, a single one stands
    /// in "General". Nothing for a list or a value of another kind than text.
    std::optional<QString> Value(const QString& key) const;
    /// At the end of its section, which is made if need be.
    void SetValue(const QString& key, const QString& value);
    bool RemoveValue(const QString& key);   ///< false if there was none
    bool RemoveGroup(const QString& group); ///< all values below it; false if there were none

private:
    struct Line
    {
        QByteArray text;
        QByteArray section;
        QByteArray name; // empty for what is no value
    };

    QList<Line> m_lines;
};
