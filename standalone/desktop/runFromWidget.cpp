// SPDX-License-Identifier: MIT
#include "runFromWidget.h"

#include <QCoreApplication>

#include <exception>

void runFromWidget(const std::function<void()> &action)
{
    try {
        action();
    } catch (...) {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [failure = std::current_exception()] { std::rethrow_exception(failure); },
            Qt::QueuedConnection);
    }
}
