// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/SpecialFolders.h"

#include <QString>

// Everything below one folder, for a program called "bench".
class FoldersIn : public ISpecialFolders
{
public:
    explicit FoldersIn(QString folder) : m_folder(std::move(folder)) { SetSpecialFolders(this); }
    ~FoldersIn() override { SetSpecialFolders(nullptr); }

    QString LocalAppData() const override { return hasData ? m_folder + "/data" : QString(); }
    QString Config() const override { return m_folder + "/config"; }
    QString Temp() const override { return m_folder; }
    QString AppName() const override { return QStringLiteral("bench"); }

    bool hasData = true;

private:
    QString m_folder;
};
