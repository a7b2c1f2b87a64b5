// SPDX-License-Identifier: MIT
#include "CKvTestApplication.h"

#include <utility>

CKvTestApplication::CKvTestApplication(int &argumentCount, char **arguments)
    : QApplication(argumentCount, arguments)
{
}

CKvTestApplication *CKvTestApplication::instance()
{
    return dynamic_cast<CKvTestApplication *>(QCoreApplication::instance());
}

bool CKvTestApplication::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &failure) {
        m_failures.emplace_back(failure.what());
        return true;
    }
}

std::vector<std::string> CKvTestApplication::takeFailures()
{
    return std::exchange(m_failures, {});
}
