// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CObject: the root of the classes that can be identified at run time, and never copied.
#pragma once

#include "common/Export.h"

class CObject;

/// One for each class, so that two of them are the same class exactly if they have one address.
struct CRuntimeClass
{
    const char* name;               ///< of the class, as it is written
    const CRuntimeClass* base;      ///< null for CObject
    CObject* (*create)() = nullptr; ///< null for a class that is not made by its name

    /// A new object, the caller's; null if the class cannot be made so.
    CObject* CreateObject() const { return create ? create() : nullptr; }
};

/// What can be asked for its class.
class ZN_API CObject
{
public:
    CObject() = default; ///< nothing is kept of it
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    /// Of the class that the object really has.
    virtual const CRuntimeClass* GetRuntimeClass() const { return GetThisClass(); }
    virtual ~CObject() = default; ///< an object of any class may be deleted as this one

    /// The record of this class.
    static const CRuntimeClass* GetThisClass()
    {
        static constexpr CRuntimeClass own = {"CObject", nullptr};
        return &own;
    }

    /// Whether the object is of this class or of one derived from it.
    bool IsKindOf(const CRuntimeClass* wanted) const
    {
        const CRuntimeClass* at = GetRuntimeClass();
        while (at && at != wanted)
            at = at->base;
        return at != nullptr;
    }
};
