// Whole files in one go, as the settings files are read and written.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Nothing for whatever is not a regular file or cannot be read.
std::optional<QByteArray> ReadWholeFile(const QString& name);

// Creates the file or replaces what stands in it. False if the bytes have not all reached it.
bool WriteWholeFile(const QString& name, const QByteArray& bytes);
