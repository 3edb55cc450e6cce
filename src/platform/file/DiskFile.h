// SPDX-License-Identifier: GPL-3.0-or-later
// Whole files in one go, as the settings files are read and written.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Nothing for whatever is not a regular file or cannot be read.
std::optional<QByteArray> ReadWholeFile(const QString& name);

// Creates the file or replaces what stands in it. False if the bytes have not all reached it; then
// the file is as it was, however full the disk is. Links and permissions stay.
bool WriteWholeFile(const QString& name, const QByteArray& bytes);
