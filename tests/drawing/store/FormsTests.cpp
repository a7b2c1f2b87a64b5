// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbIdMapping.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbSymbolTable.h"
#include "inBinary.h"

#include <gtest/gtest.h>

namespace
{

/// A line style that is cloned out of a drawing of one form into one of another.
class CloningBetweenForms : public testing::Test
{
protected:
    CloningBetweenForms()
    {
        m_standards.lineStyle("DASHED").dashes({ 1, -1 }).group(3, "@TEXT@");
        m_builder.withDefaults();
    }
    /// @return the drawing that has the clone, read again from what was saved.
    static OdDbDatabasePtr cloned(const QByteArray &from, const QByteArray &into)
    {
        const OdDbDatabasePtr source = CKvDrawingFile::fromBytes(from);
        const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(into);
        const OdDbSymbolTablePtr table(source->getLinetypeTableId().openObject());
        const OdDbIdMappingPtr mapping = OdDbIdMapping::createObject();
        mapping->setDestDb(drawing.get());
        OdDbObjectIdArray ids;
        ids.append(table->getAt(OdString("DASHED")));
        source->wblockCloneObjects(
            ids, drawing->getLinetypeTableId(), *mapping, OdDb::kReplaceDuplicates);
        return CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));
    }
    static int dashesOf(const OdDbDatabasePtr &drawing)
    {
        const OdDbSymbolTablePtr table(drawing->getLinetypeTableId().openObject());
        const OdDbLinetypeTableRecordPtr lineStyle(
            table->getAt(OdString("DASHED")).openObject(OdDb::kForRead));
        return lineStyle ? lineStyle->numDashes() : -1;
    }

    CKvDrawingBuilder m_standards;
    CKvDrawingBuilder m_builder;
};

} // namespace

TEST_F(CloningBetweenForms, ALineEndWithinABinaryTextEndsNoLine)
{
    const QByteArray from = inBinary(m_standards.toBytes()).replace("@TEXT@", "one\r\ntwo");

    const OdDbDatabasePtr drawing = cloned(from, m_builder.toBytes());

    EXPECT_EQ(dashesOf(drawing), 2);
    EXPECT_TRUE(CKvDrawingFile::toBytes(*drawing).contains("\none\\U+000D\\U+000Atwo\n"));
}

TEST_F(CloningBetweenForms, AZeroByteWithinALineEndsNoBinaryText)
{
    const QByteArray from = m_standards.toBytes().replace("@TEXT@", QByteArray("one\0two", 7));

    const OdDbDatabasePtr drawing = cloned(from, inBinary(m_builder.toBytes()));

    EXPECT_EQ(dashesOf(drawing), 2);
    EXPECT_TRUE(CKvDrawingFile::toBytes(*drawing).contains(QByteArray("one\\U+0000two\0", 14)));
}

TEST_F(CloningBetweenForms, AGroupCodeThatABinaryFileHasNoPlaceForIsLeftOut)
{
    // 65576 in two bytes is 40, a real number.
    const QByteArray from = m_standards.toBytes().replace("@TEXT@", "text\n65576\none\n-5\ntwo");

    for (const CKvTagForm form : { CKvTagForm::Binary, CKvTagForm::BinaryShortCodes }) {
        const OdDbDatabasePtr drawing = cloned(from, inBinary(m_builder.toBytes(), form));

        EXPECT_EQ(dashesOf(drawing), 2);
        EXPECT_FALSE(CKvDrawingFile::toBytes(*drawing).contains("one"));
        EXPECT_FALSE(CKvDrawingFile::toBytes(*drawing).contains("two"));
    }
    EXPECT_TRUE(CKvDrawingFile::toBytes(*cloned(from, m_builder.toBytes()))
                    .contains("\n65576\none\n -5\ntwo\n"));
}

TEST_F(CloningBetweenForms, BytesThatAreTooManyForABinaryGroupTakeSeveral)
{
    const QByteArray chunk = QByteArray("5A").repeated(300);
    const QByteArray from = m_standards.toBytes().replace("@TEXT@", "text\n310\n" + chunk);

    const OdDbDatabasePtr drawing = cloned(from, inBinary(m_builder.toBytes()));

    EXPECT_EQ(dashesOf(drawing), 2);
    EXPECT_TRUE(inLines(CKvDrawingFile::toBytes(*drawing))
                    .contains("\n310\n" + chunk.left(2 * 127) + "\n310\n" + chunk.left(2 * 127)
                              + "\n310\n" + chunk.left(2 * 46) + "\n"));
}
