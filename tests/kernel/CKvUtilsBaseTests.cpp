// SPDX-License-Identifier: MIT
#include "CKvUtilsBase.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <pwd.h>
#include <unistd.h>
#endif

namespace
{

/// Sets a variable of the environment for a while.
class CKvEnvironmentValue
{
public:
    CKvEnvironmentValue(const char *name, const QByteArray &value)
        : m_name(name)
        , m_before(qgetenv(name))
        , m_wasSet(qEnvironmentVariableIsSet(name))
    {
        qputenv(name, value);
    }
    ~CKvEnvironmentValue()
    {
        if (m_wasSet) {
            qputenv(m_name, m_before);
        } else {
            qunsetenv(m_name);
        }
    }
    CKvEnvironmentValue(const CKvEnvironmentValue &) = delete;
    CKvEnvironmentValue &operator=(const CKvEnvironmentValue &) = delete;

private:
    const char *m_name;
    QByteArray m_before;
    bool m_wasSet;
};

} // namespace

#ifndef _WIN32
TEST(UserName, IsTheLoginNameAndNotWhatTheEnvironmentSays)
{
    const passwd *account = getpwuid(getuid());
    if (!account) {
        GTEST_SKIP() << "The user of this process has no account.";
    }
    const CKvEnvironmentValue user("USER", "somebody-else");
    const CKvEnvironmentValue logName("LOGNAME", "somebody-else");

    const CKvString name = CKvUtilsBase::getUserName();

    EXPECT_EQ(name.toQString().toStdString(), account->pw_name);
}
#endif
