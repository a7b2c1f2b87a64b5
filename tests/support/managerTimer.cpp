// SPDX-License-Identifier: MIT
#include "managerTimer.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

QTimer *managerTimer()
{
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        if (qstrcmp(widget->metaObject()->className(), "CKvStdsManagerImpl") == 0) {
            return widget->findChild<QTimer *>();
        }
    }
    return nullptr;
}

void letTick(int times)
{
    QTimer *timer = managerTimer();
    ASSERT_TRUE(timer && timer->isActive()) << "the timer does not run";
    QEventLoop loop;
    const auto connection = QObject::connect(timer, &QTimer::timeout, &loop, [&] {
        if (--times == 0) {
            loop.quit();
        }
    });
    loop.exec();
    QObject::disconnect(connection);
}
