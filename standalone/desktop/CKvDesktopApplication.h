// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

#include <functional>

/// The event loop of the desktop: what a slot throws is shown, and the work goes on.
class CKvDesktopApplication : public QApplication
{
    Q_OBJECT

public:
    CKvDesktopApplication(int &argc, char **argv);

    bool notify(QObject *receiver, QEvent *event) override;

    /// @param handler gets the sentence in place of the message box.
    void setFailureHandler(std::function<void(const QString &)> handler);

    /// Attributes that must be set before there is an application.
    static void prepare();

private:
    void showFailure(const QString &sentence);

    std::function<void(const QString &)> m_handler;
};
