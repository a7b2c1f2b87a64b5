// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommandLog.h"
#include "CKvModalScript.h"
#include "CKvModuleTest.h"
#include "dialogClicks.h"
#include "managerTimer.h"

/// An edit that breaks a standard, in the host of the project with the module in it and the timer
/// running. The standard has WALLS in red; DOORS is not in it. RECOLOR makes WALLS yellow first.
class CKvInteractiveTest : public CKvModuleTest
{
protected:
    CKvInteractiveTest();
    ~CKvInteractiveTest() override;

    /// The command that changes WALLS.
    void recolor() { session->commandLine().run(QStringLiteral("RECOLOR")); }
    /// The same change without a command.
    void recolorBare();
    int colorOfWalls();

    /// The user keeps each object that is told.
    void keepObject();
    /// The user wants to verify each object that is told.
    void runVerification();
    /// The classes of the dialogs that came up.
    std::vector<std::string> shown() const;

    bool hasPosted() { return session->commandLine().hasPosted(); }
    /// Handles events until all that was posted has run.
    void runPosted();

    CKvCommandLog log;
    CKvModalScript user;

private:
    CKvRecolorCommand m_edit;
};
