// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxModule.h"
#include "moduleFileName.h"

#include <atomic>
#include <cstdint>
#include <utility>

/// Turns the class that does a module's work into the one object that the host holds. References
/// are counted but end nothing; deleteModule does.
/// @tparam Module what does the work, derived from OdRxModule. @tparam Interface as what it is
/// handed out.
template <class Module, class Interface> class OdRxWin32Module : public Module
{
public:
    /// The module object, made at the first call.
    /// @param handle set to null when the new object takes it over, otherwise left alone.
    /// @throws OdBadAllocation.
    static Interface *instance(OdRxModuleHandle &handle)
    {
        if (!s_instance) {
            s_instance = new OdRxWin32Module(handle);
            handle = nullptr;
        }
        return s_instance;
    }

    void addRef() override { ++m_references; }
    void release() override { --m_references; }
    OdRxModuleHandle sysModuleHandle() override { return m_handle; }
    void deleteModule() override { delete std::exchange(s_instance, nullptr); }
    OdString moduleName() const override { return moduleFileName(m_handle); }

private:
    explicit OdRxWin32Module(OdRxModuleHandle handle)
        : m_handle(handle)
    {
    }

    static inline OdRxWin32Module *s_instance = nullptr;

    std::atomic<std::int32_t> m_references { 0 };
    OdRxModuleHandle m_handle;
};
