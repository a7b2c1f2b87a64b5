// SPDX-License-Identifier: MIT
#include "violationStamp.h"

#include "CKvContractClasses.h"
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "CKvStdsError.h"
#include "CKvUtilsBase.h"
#include "OdDbDictionary.h"
#include "OdDbLayerTable.h"
#include "OdDbXrecord.h"
#include "drawingText.h"

#include <gtest/gtest.h>

namespace
{

class ViolationStamp : public ::testing::Test
{
protected:
    /// A layer that the case stamps.
    CKvLayerBuilder &walls() { return drawing.layer("WALLS"); }
    static OdDbObjectId wallsId(const OdDbDatabase &database)
    {
        return recordId(database.getLayerTableId(), "WALLS");
    }
    /// "ignored by anna", "not ignored by ": what the stamp gives to a violation that says
    /// otherwise before.
    static std::string stampOf(OdDbObjectId id)
    {
        const CKvStdsErrorPtr error = CKvStdsError::createObject();
        error->setObjectId(id);
        error->setIgnoreState(true, CKvString("nobody asked"));
        readViolationStamp(*error);
        bool isIgnored = false;
        CKvString user;
        error->ignoreState(isIgnored, user);
        return (isIgnored ? "ignored by " : "not ignored by ") + user.toQString().toStdString();
    }
    std::string stampOfWalls() const
    {
        const OdDbDatabasePtr database = drawing.open();
        return stampOf(wallsId(*database));
    }
    static std::string userName() { return CKvUtilsBase::getUserName().toQString().toStdString(); }

    CKvContractClasses classes;
    CKvDrawingBuilder drawing;
};

/// "300=anna 90=1 ", the values of the stamp record.
std::string stampRecord(OdDbObjectId id)
{
    const OdDbDictionaryPtr extension(id.openObject()->extensionDictionary().openObject());
    const OdDbDictionaryPtr stamp(extension->getAt(OdString("AcStStandard"), OdDb::kForRead));
    const OdDbXrecordPtr record(stamp->getAt(OdString("AcStFlags"), OdDb::kForRead));
    std::string text;
    for (OdResBufPtr value = record->rbChain(); value; value = value->next()) {
        text += std::to_string(value->restype()) + "="
            + (value->restype() == 300 ? value->getString().toQString().toStdString()
                                       : std::to_string(value->getInt32()))
            + " ";
    }
    return text;
}

} // namespace

TEST_F(ViolationStamp, AnObjectWithoutAnExtensionDictionaryIsNotIgnored)
{
    walls();

    EXPECT_EQ(stampOfWalls(), "not ignored by ");
}

TEST_F(ViolationStamp, AnExtensionDictionaryWithoutAStampIsNotIgnored)
{
    walls().extensionDictionary().xrecord("SOMETHING").group(90, 1);

    EXPECT_EQ(stampOfWalls(), "not ignored by ");
}

TEST_F(ViolationStamp, AStampGivesItsFlagAndItsUser)
{
    walls().stamped(1, "anna");

    EXPECT_EQ(stampOfWalls(), "ignored by anna");
}

TEST_F(ViolationStamp, AStampWithFlag0IsNotIgnored)
{
    walls().stamped(0, "");

    EXPECT_EQ(stampOfWalls(), "not ignored by ");
}

TEST_F(ViolationStamp, AnyFlagBut0Ignores)
{
    walls().stamped(-7, "anna");

    EXPECT_EQ(stampOfWalls(), "ignored by anna");
}

TEST_F(ViolationStamp, TheKeyOfTheRecordDoesNotMatter)
{
    walls()
        .extensionDictionary()
        .dictionary("AcStStandard")
        .xrecord("X")
        .group(300, "anna")
        .group(90, 1);

    EXPECT_EQ(stampOfWalls(), "ignored by anna");
}

TEST_F(ViolationStamp, TheLastValueIsNeverReadAsText)
{
    walls()
        .extensionDictionary()
        .dictionary("AcStStandard")
        .xrecord("AcStFlags")
        .group(90, 1)
        .group(300, "anna");

    EXPECT_EQ(stampOfWalls(), "ignored by ");
}

TEST_F(ViolationStamp, TheLastOfSeveralValuesCountsAndOthersArePassedOver)
{
    walls()
        .extensionDictionary()
        .dictionary("AcStStandard")
        .xrecord("AcStFlags")
        .group(300, "anna")
        .group(90, 1)
        .group(1, "other")
        .group(300, "berta")
        .group(90, 0)
        .group(70, 5);

    EXPECT_EQ(stampOfWalls(), "not ignored by berta");
}

TEST_F(ViolationStamp, ARecordWithoutAFlagCountsAsIgnored)
{
    walls()
        .extensionDictionary()
        .dictionary("AcStStandard")
        .xrecord("AcStFlags")
        .group(300, "anna")
        .group(70, 0);

    EXPECT_EQ(stampOfWalls(), "ignored by anna");
}

TEST_F(ViolationStamp, AnEmptyRecordCountsAsIgnored)
{
    walls().extensionDictionary().dictionary("AcStStandard").xrecord("AcStFlags");

    EXPECT_EQ(stampOfWalls(), "ignored by ");
}

TEST_F(ViolationStamp, AnEmptyStampLeavesTheViolationAsItIs)
{
    walls().extensionDictionary().dictionary("AcStStandard");

    EXPECT_EQ(stampOfWalls(), "ignored by nobody asked");
}

TEST_F(ViolationStamp, TheLastOfTwoRecordsStands)
{
    auto &stamp = walls().extensionDictionary().dictionary("AcStStandard");
    stamp.xrecord("A").group(300, "anna").group(90, 1);
    stamp.xrecord("B").group(300, "berta").group(90, 0);

    EXPECT_EQ(stampOfWalls(), "not ignored by berta");
}

TEST_F(ViolationStamp, FlagAndUserCarryOverFromRecordToRecord)
{
    auto &stamp = walls().extensionDictionary().dictionary("AcStStandard");
    stamp.xrecord("A").group(300, "anna").group(90, 0);
    stamp.xrecord("B").group(70, 1);

    EXPECT_EQ(stampOfWalls(), "not ignored by anna");
}

TEST_F(ViolationStamp, AStampThatIsNoDictionaryThrows)
{
    walls().extensionDictionary().xrecord("AcStStandard").group(90, 1);
    const OdDbDatabasePtr database = drawing.open();

    EXPECT_THROW(stampOf(wallsId(*database)), OdError_NotThatKindOfClass);
}

TEST_F(ViolationStamp, AStampWithAnEntryThatIsNoXrecordThrows)
{
    walls().extensionDictionary().dictionary("AcStStandard").dictionary("AcStFlags");
    const OdDbDatabasePtr database = drawing.open();

    EXPECT_THROW(stampOf(wallsId(*database)), OdError_NotThatKindOfClass);
}

TEST_F(ViolationStamp, ReadingChangesNothing)
{
    walls().stamped(1, "anna");
    const OdDbDatabasePtr database = drawing.open();

    stampOf(wallsId(*database));

    EXPECT_FALSE(CKvDrawingFile::isChanged(*database));
}

TEST_F(ViolationStamp, WrittenAsIgnoredItComesBackWithTheUserAlsoFromTheFile)
{
    walls();
    const OdDbDatabasePtr database = drawing.open();

    writeViolationStamp(wallsId(*database), true);

    EXPECT_EQ(stampOf(wallsId(*database)), "ignored by " + userName());
    const OdDbDatabasePtr reopened = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*database));
    EXPECT_EQ(stampOf(wallsId(*reopened)), "ignored by " + userName());
}

TEST_F(ViolationStamp, WrittenAsNotIgnoredItHasNoUser)
{
    walls().stamped(1, "anna");
    const OdDbDatabasePtr database = drawing.open();

    writeViolationStamp(wallsId(*database), false);

    EXPECT_EQ(stampOf(wallsId(*database)), "not ignored by ");
}

TEST_F(ViolationStamp, TheNameStandsBeforeTheFlag)
{
    walls();
    const OdDbDatabasePtr database = drawing.open();

    writeViolationStamp(wallsId(*database), true);

    EXPECT_EQ(stampRecord(wallsId(*database)), "300=" + userName() + " 90=1 ");
}

TEST_F(ViolationStamp, TickingAndUntickingLeavesAStampWithFlag0)
{
    walls();
    const OdDbDatabasePtr database = drawing.open();

    writeViolationStamp(wallsId(*database), true);
    writeViolationStamp(wallsId(*database), false);

    EXPECT_EQ(stampRecord(wallsId(*database)), "300= 90=0 ");
}

TEST_F(ViolationStamp, ReplacesAnOldStampWithAllItHeldAndNothingElse)
{
    auto &extension = walls().extensionDictionary();
    extension.xrecord("SOMETHING").group(1, "mine");
    auto &stamp = extension.dictionary("AcStStandard");
    stamp.xrecord("Z").group(300, "anna").group(90, 0);
    const OdDbDatabasePtr database = drawing.open();

    writeViolationStamp(wallsId(*database), true);

    EXPECT_EQ(stampOf(wallsId(*database)), "ignored by " + userName());
    const OdDbDictionaryPtr kept(
        wallsId(*database).openObject()->extensionDictionary().openObject());
    EXPECT_TRUE(kept->has(OdString("SOMETHING")));
}

TEST_F(ViolationStamp, ADrawingOfR12RefusesIt)
{
    drawing = CKvDrawingBuilder("AC1009");
    walls();
    const OdDbDatabasePtr database = drawing.open();

    try {
        writeViolationStamp(wallsId(*database), true);
        FAIL() << "The stamp was written.";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), int(OdResult::kUnsupportedByVersion));
    }
    EXPECT_FALSE(CKvDrawingFile::isChanged(*database));
}

TEST_F(ViolationStamp, AStampOfR12ReadsAsNotIgnored)
{
    drawing = CKvDrawingBuilder("AC1009");
    walls();

    EXPECT_EQ(stampOfWalls(), "not ignored by ");
}
