// SPDX-License-Identifier: GPL-3.0-or-later
// The environment of a program whose settings and data are a test's own.
#pragma once

#include <QProcessEnvironment>
#include <QString>

inline QProcessEnvironment OwnPlaces(const QString& folder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder + QStringLiteral("/config"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), folder + QStringLiteral("/data"));
    return environment;
}
