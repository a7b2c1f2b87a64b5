// SPDX-License-Identifier: MIT
#include "CKvDrawingFile.h"
#include "OdDbSymbolTable.h"
#include "OdDbSymbolTableRecord.h"
#include "outcome.h"

#include <gtest/gtest.h>

#include <string>

// Faults that do no harm once, many times over: what takes time that grows with their square, or
// stack that grows with their number, does not come to an end here.

namespace
{

constexpr int kMany = 200000;

QByteArray section(const char *name, const QByteArray &content)
{
    return QByteArray("0\nSECTION\n2\n") + name + '\n' + content + "0\nENDSEC\n";
}

QByteArray header()
{
    return section("HEADER", "9\n$ACADVER\n1\nAC1015\n");
}

QByteArray layerTable()
{
    return "0\nTABLE\n2\nLAYER\n70\n1\n0\nLAYER\n5\n10\n2\nWALLS\n70\n0\n0\nENDTAB\n";
}

QByteArray drawing(const QByteArray &sections)
{
    return header() + section("TABLES", layerTable()) + sections + "0\nEOF\n";
}

// @return the outcome's kind; the warnings may be many and their number is nobody's concern.
std::string kindOf(const CKvOutcome &outcome)
{
    return !outcome.fault.isEmpty()  ? "FAULT: " + outcome.fault.toStdString()
        : outcome.isRefused()        ? "error"
        : outcome.warnings.isEmpty() ? "loads"
                                     : "loads with warnings";
}

} // namespace

TEST(LargeFault, ManySectionEndsThatEndNothing)
{
    const QByteArray bytes = drawing(QByteArray("0\nENDSEC\n").repeated(kMany));

    EXPECT_EQ(kindOf(outcomeOf(bytes)), "loads with warnings");
}

TEST(LargeFault, ManyEntitiesInNoBlock)
{
    const QByteArray bytes =
        drawing(section("BLOCKS", QByteArray("0\nLINE\n8\n0\n").repeated(kMany)));

    EXPECT_EQ(kindOf(outcomeOf(bytes)), "loads with warnings");
}

TEST(LargeFault, ManyTablesOfOneName)
{
    const QByteArray bytes =
        header() + section("TABLES", layerTable().repeated(kMany / 4)) + "0\nEOF\n";

    EXPECT_EQ(kindOf(outcomeOf(bytes)), "loads with warnings");
}

TEST(LargeFault, ATextThatNamesASectionAgainAndAgain)
{
    const QByteArray bytes =
        drawing(section("ENTITIES", "0\nTEXT\n1\n" + QByteArray("OBJECTS").repeated(kMany) + '\n'));

    EXPECT_EQ(kindOf(outcomeOf(bytes)), "loads");
}

TEST(LargeFault, ManyRecordsOfOneName)
{
    const QByteArray bytes = header()
        + section("TABLES",
                  "0\nTABLE\n2\nLAYER\n70\n1\n"
                      + QByteArray("0\nLAYER\n2\nWALLS\n70\n0\n").repeated(kMany / 4)
                      + "0\nENDTAB\n")
        + "0\nEOF\n";

    EXPECT_EQ(kindOf(outcomeAfterEditing(bytes)), "loads with warnings");
}

TEST(LargeFault, DictionariesOneWithinTheOtherAreErasedWithWhatTheyHangOn)
{
    QByteArray objects;
    for (int i = 0; i < kMany; ++i) {
        const QByteArray own = QByteArray::number(0x100 + i, 16);
        const QByteArray next = QByteArray::number(0x101 + i, 16);
        objects.append("0\nDICTIONARY\n5\n")
            .append(own)
            .append("\n3\nNEXT\n360\n")
            .append(next)
            .append('\n');
    }
    const QByteArray layer =
        "0\nLAYER\n5\n10\n102\n{ACAD_XDICTIONARY\n360\n100\n102\n}\n2\nWALLS\n";
    const QByteArray before =
        header() + section("TABLES", "0\nTABLE\n2\nLAYER\n70\n1\n" + layer + "0\nENDTAB\n");
    const OdDbDatabasePtr loaded =
        CKvDrawingFile::fromBytes(before + section("OBJECTS", objects) + "0\nEOF\n");
    const OdDbSymbolTablePtr layers(loaded->getLayerTableId().safeOpenObject());

    layers->getAt(OdString("WALLS"), OdDb::kForWrite)->erase();

    const QByteArray expected = header()
        + section("TABLES", "0\nTABLE\n2\nLAYER\n70\n0\n0\nENDTAB\n") + section("OBJECTS", "")
        + "0\nEOF\n";
    EXPECT_EQ(CKvDrawingFile::toBytes(*loaded).left(2000).toStdString(), expected.toStdString());
}
