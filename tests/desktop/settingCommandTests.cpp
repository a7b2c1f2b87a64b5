// SPDX-License-Identifier: MIT
#include "CKvDesktopTest.h"
#include "CKvHostDocument.h"
#include "OdError.h"

namespace
{

class SettingCommands : public CKvDesktopTest
{
protected:
    double scale()
    {
        return m_desktop->activeDocument()
            ->GetKvDatabase()
            ->getSysVar(OdString("LTSCALE"))
            ->getDouble();
    }
};

} // namespace

TEST_F(SettingCommands, AVariableOfTheDrawingIsSet)
{
    open(write("a.dxf"));
    EXPECT_DOUBLE_EQ(scale(), 1.5);

    enter("SETVAR ltscale 0.25");

    EXPECT_DOUBLE_EQ(scale(), 0.25);
    EXPECT_TRUE(m_desktop->activeDocument()->isModified());
}

TEST_F(SettingCommands, AnEmptyAnswerLeavesItAsItIs)
{
    open(write("a.dxf"));

    enter("SETVAR LTSCALE \"\"");

    EXPECT_DOUBLE_EQ(scale(), 1.5);
    EXPECT_FALSE(m_desktop->activeDocument()->isModified());
}

TEST_F(SettingCommands, AValueThatIsNoneIsRefused)
{
    open(write("a.dxf"));

    EXPECT_THROW(enter("SETVAR LTSCALE wide"), OdError_InvalidSysvarValue);
    enter("SETVAR NONSENSE 1");

    EXPECT_DOUBLE_EQ(scale(), 1.5);
    EXPECT_EQ(said(), list({ "There is no variable \"NONSENSE\"." }));
}

TEST_F(SettingCommands, TheHostsVariablesNeedNoDrawing)
{
    enter("SETVAR STANDARDSVIOLATION 0");

    EXPECT_EQ(session().settings().standardsViolation(), 0);
    EXPECT_THROW(enter("SETVAR STANDARDSVIOLATION 9"), OdError_InvalidSysvarValue);
    EXPECT_THROW(enter("SETVAR LTSCALE 2"), OdError);
}
