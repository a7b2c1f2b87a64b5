// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxClass.h"

/// The constructor function of a run-time class.
template <class T> OdRxObjectPtr constructRx()
{
    return OdRxObjectPtr(new T, kOdRxObjAttach);
}

/// T::cast: the object as a T with a reference of its own, or null.
template <class T> OdSmartPtr<T> castRx(const OdRxObject *object)
{
    OdRxObject *found = object ? object->queryX(T::desc()) : nullptr;
    return OdSmartPtr<T>(static_cast<T *>(found), kOdRxObjAttach);
}
