// SPDX-License-Identifier: MIT
#include "CKvCommandDrawingStandards.h"
#include "CKvCommandTest.h"
#include "CKvTranslationNotes.h"
#include "OdStaticRxObject.h"

using ::testing::ElementsAre;

namespace
{

struct DrawingStandards : CKvCommandTest {
    OdStaticRxObject<CKvCommandDrawingStandards> command;
};

} // namespace

TEST_F(DrawingStandards, TellsItsNamesFlagsAndHelpTopic)
{
    EXPECT_EQ(command.globalName(), OdString("_DRAWINGSTANDARDS"));
    EXPECT_EQ(command.localName(), OdString("DRAWINGSTANDARDS"));
    EXPECT_EQ(command.flags(), 0);
    EXPECT_EQ(command.helpContextId(), 3071);
}

TEST_F(DrawingStandards, ItsLocalNameIsTranslated)
{
    const CKvTranslationNotes translator;

    EXPECT_EQ(
        command.localName(),
        OdString("CKvCommandDrawingStandards|DRAWINGSTANDARDS|Command Name: Needs to be unique and "
                 "all uppercase."));
}

TEST_F(DrawingStandards, AsksTheHostForTheStandardsFiles)
{
    EXPECT_EQ(command.executeCommand(nullptr), 5100);

    EXPECT_THAT(host.calls(), ElementsAre("evaluate 5005=_DWGSTANDARDS 5003=1 5000"));
}
