// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The registry of the user's settings: values of three kinds by key and name. A key is a path of
/// names with '\' between them, below the place where every product keeps its own; the first two
/// are company and product. By default each product has a file of the user's.
#pragma once

#include "common/Export.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <variant>

/// A number, a text, or bytes.
using RegistryValue = std::variant<std::uint32_t, QString, QByteArray>;

/// Where the registry is kept.
class ZN_API IRegistry
{
public:
    virtual ~IRegistry(); ///< to be taken back by SetRegistry before

    /// Makes the key if it is missing; false if that cannot be.
    virtual bool OpenKey(const QString& key) = 0;

    /// Nothing if there is no such value.
    virtual std::optional<RegistryValue> Read(const QString& key, const QString& name) = 0;
    /// Makes the key if it is missing; false if it could not be written.
    virtual bool Write(const QString& key, const QString& name, const RegistryValue& value) = 0;
    /// The key with all below it. These two are false also if there was nothing to delete.
    virtual bool DeleteKey(const QString& key) = 0;
    virtual bool DeleteValue(const QString& key, const QString& name) = 0; ///< one value of the key
};

/// The registry takes effect at once and stays the caller's; null brings back the default.
ZN_API void SetRegistry(IRegistry* registry);
ZN_API IRegistry& Registry(); ///< the one in force
