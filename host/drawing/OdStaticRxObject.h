// SPDX-License-Identifier: MIT
#pragma once

/// An object that its owner holds by value or by bare pointer: counting references does nothing.
template <class T> class OdStaticRxObject : public T
{
public:
    using T::T;
    void addRef() override { }
    void release() override { }
};
