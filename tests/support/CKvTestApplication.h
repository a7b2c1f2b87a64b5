// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

#include <string>
#include <vector>

/// The application around tests of windows. Like a host it goes on after what a slot throws, and
/// keeps the reason for the test.
class CKvTestApplication : public QApplication
{
public:
    CKvTestApplication(int &argumentCount, char **arguments);

    /// Null when the tests run without windows.
    static CKvTestApplication *instance();

    bool notify(QObject *receiver, QEvent *event) override;

    /// What was thrown since the last call, in order.
    std::vector<std::string> takeFailures();

private:
    std::vector<std::string> m_failures;
};
