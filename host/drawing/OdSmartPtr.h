// SPDX-License-Identifier: MIT
#pragma once

#include "OdError.h"

#include <type_traits>
#include <utility>

/// Tells the compiler that a raw pointer already carries the reference that the smart pointer
/// takes.
enum class OdAttach { kAttach };
constexpr OdAttach kOdRxObjAttach = OdAttach::kAttach;

/// A counted pointer. Turned into one of a derived class by explicit construction, which throws
/// OdError_NotThatKindOfClass when the object is of another class (null stays null), or by
/// T::cast, which gives null.
template <class T> class OdSmartPtr
{
public:
    OdSmartPtr() = default;
    OdSmartPtr(std::nullptr_t) { }
    /// Takes a reference of its own.
    explicit OdSmartPtr(T *object)
        : m_object(object)
    {
        if (m_object) {
            m_object->addRef();
        }
    }
    /// Takes over the caller's reference.
    OdSmartPtr(T *object, OdAttach)
        : m_object(object)
    {
    }
    OdSmartPtr(const OdSmartPtr &other)
        : OdSmartPtr(other.m_object)
    {
    }
    OdSmartPtr(OdSmartPtr &&other) noexcept
        : m_object(other.detach())
    {
    }
    /// From a derived class.
    template <class U, std::enable_if_t<std::is_convertible_v<U *, T *>, int> = 0>
    OdSmartPtr(const OdSmartPtr<U> &other)
        : OdSmartPtr(static_cast<T *>(other.get()))
    {
    }
    /// From a base class, by the object's run-time class.
    template <class U, std::enable_if_t<!std::is_convertible_v<U *, T *>, int> = 0>
    explicit OdSmartPtr(const OdSmartPtr<U> &other)
        : m_object(castOrThrow(other.get()))
    {
    }
    ~OdSmartPtr() { release(); }

    OdSmartPtr &operator=(OdSmartPtr other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    T *get() const { return m_object; }
    T *operator->() const { return m_object; }
    T &operator*() const { return *m_object; }
    bool isNull() const { return m_object == nullptr; }
    explicit operator bool() const { return m_object != nullptr; }

    void release()
    {
        if (T *object = detach()) {
            object->release();
        }
    }
    /// Gives the reference to the caller.
    T *detach() { return std::exchange(m_object, nullptr); }

    friend bool operator==(const OdSmartPtr &a, const OdSmartPtr &b)
    {
        return a.m_object == b.m_object;
    }
    friend bool operator!=(const OdSmartPtr &a, const OdSmartPtr &b)
    {
        return a.m_object != b.m_object;
    }

private:
    template <class U> static T *castOrThrow(U *object)
    {
        if (!object) {
            return nullptr;
        }
        auto *found = object->queryX(T::desc());
        if (!found) {
            throw OdError_NotThatKindOfClass(object->isA()->nameUtf8(), T::desc()->nameUtf8());
        }
        return static_cast<T *>(found);
    }

    T *m_object = nullptr;
};
