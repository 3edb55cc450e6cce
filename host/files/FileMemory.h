// SPDX-License-Identifier: GPL-3.0-or-later
// What a person chose for a file, kept for the next time and for others in its folder: the last 200
// files. Knows nothing of what the choices mean.
#pragma once

#include <QString>
#include <QStringList>

#include <utility>

class FileMemory
{
public:
    explicit FileMemory(QString name) : m_name(std::move(name)) {} // among the settings

    QString Of(const QString& path) const;       // empty: nothing was chosen
    QString InFolder(const QString& path) const; // the last choice for a file beside it
    void Remember(const QString& path, const QString& choice) const;

private:
    QStringList Read() const;

    QString m_name;
};
