// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

/// While it lives, a test that the administrator runs has no more rights than anybody: to the
/// administrator every file and folder is open. Nothing when somebody else runs it.
class CKvOrdinaryUser
{
public:
    CKvOrdinaryUser()
        : m_isAdministrator(geteuid() == 0)
    {
        constexpr uid_t kNobody = 65534;
        EXPECT_TRUE(!m_isAdministrator || seteuid(kNobody) == 0);
    }
    ~CKvOrdinaryUser() { EXPECT_TRUE(!m_isAdministrator || seteuid(0) == 0); }
    CKvOrdinaryUser(const CKvOrdinaryUser &) = delete;
    CKvOrdinaryUser &operator=(const CKvOrdinaryUser &) = delete;

private:
    bool m_isAdministrator;
};
