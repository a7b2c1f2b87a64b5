// SPDX-License-Identifier: MIT
#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    // Fonts need an application, but no screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
