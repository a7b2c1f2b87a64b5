// SPDX-License-Identifier: MIT
#include "CKvCommandLine.h"
#include "CKvDesktopTest.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "CKvTestApplication.h"
#include "OdError.h"

#include <QTimer>

TEST_F(CKvDesktopTest, WhatACommandThrowsReachesTheEventLoopAndUnsavedWorkSurvives)
{
    CKvHostDocument &document = open(write("a.dxf"));
    changeLayer("L0", 5);
    m_desktop->addCommand("BREAK", [](CKvDesktop &) -> bool { throw OdError_InvalidIndex(); });
    QTimer::singleShot(0, &window(), [this] { enter("BREAK"); });

    QCoreApplication::processEvents();

    EXPECT_EQ(CKvTestApplication::instance()->takeFailures(),
              std::vector<std::string> { "The index is outside the array." });
    EXPECT_TRUE(document.isModified());
    EXPECT_FALSE(m_desktop->commandLine().isRunning());
    enter("QSAVE");
    EXPECT_TRUE(contentOf(path("a.dxf")).contains("5"));
    EXPECT_FALSE(document.isModified());
}
