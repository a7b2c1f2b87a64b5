// SPDX-License-Identifier: MIT
#include "CKvTextStyleTest.h"
#include "textStyleRecords.h"

namespace
{

/// The values of a style, as fix, violation and record.
class TextStyleRecords : public CKvTextStyleTest
{
protected:
    static CKvStdsTextStyleRecord sample()
    {
        CKvStdsTextStyleRecord record;
        record.name = CKvString("NOTES");
        record.fontFile = CKvString("arial.ttf");
        record.bigFontFile = CKvString("big.shx");
        record.textSize = 2.5;
        record.isUpsideDown = true;
        record.isVertical = true;
        record.isBackwards = true;
        record.xScale = 0.8;
        record.obliquingAngle = 0.25;
        record.fontStyle = CKvString("Bold");
        record.annotative = true;
        record.matchOrientation = true;
        return record;
    }
};

} // namespace

TEST_F(TextStyleRecords, TheTwelvePropertiesComeInTheirOrder)
{
    std::string names;
    for (const CKvStdsProperty &property : textStyleProperties(sample())) {
        names += property.name.toQString().toStdString() + '=' + valueText(property.value) + '\n';
    }

    EXPECT_EQ(names,
              "Name=NOTES\nFont=arial.ttf\nBigFont=big.shx\nText Height=2.5000\nUpside Down=1\n"
              "Vertical=1\nBackwards=1\nWidth=0.8000\nOblique Angle=0.2500\nFont Style=Bold\n"
              "Annotative=1\nMatch orientation to sheet=1\n");
}

TEST_F(TextStyleRecords, AFixAndAViolationAreReadBack)
{
    const CKvStdsFixPtr fix = CKvStdsFix::createObject();
    const CKvStdsErrorPtr error = CKvStdsError::createObject();

    writeTextStyleProperties(true, fix, CKvStdsErrorPtr(), sample());
    writeTextStyleProperties(false, CKvStdsFixPtr(), error, sample());

    EXPECT_EQ(fix->propertyCount(), 12);
    EXPECT_EQ(error->propertyCount(), 12);
    EXPECT_TRUE(sameTextStyleRecord(*readTextStyleRecord(true, fix, CKvStdsErrorPtr()), sample()));
    EXPECT_TRUE(sameTextStyleRecord(*readTextStyleRecord(false, CKvStdsFixPtr(), error), sample()));
}

TEST_F(TextStyleRecords, WhatHoldsValuesKeepsThem)
{
    const CKvStdsFixPtr fix = CKvStdsFix::createObject();
    writeTextStyleProperties(true, fix, CKvStdsErrorPtr(), sample());
    CKvStdsTextStyleRecord other = sample();
    other.textSize = 5;

    writeTextStyleProperties(true, fix, CKvStdsErrorPtr(), other);

    EXPECT_TRUE(sameTextStyleRecord(*readTextStyleRecord(true, fix, CKvStdsErrorPtr()), sample()));
}

TEST_F(TextStyleRecords, AStyleOfADrawingMatchesTheRecordOfItsValues)
{
    m_drawing.textStyle("NOTES").height(2.5);
    m_database = m_drawing.open();
    const OdDbTextStyleTableRecordPtr style(styleId("NOTES").openObject(OdDb::kForRead));
    const std::unique_ptr<CKvStdsTextStyleRecord> record = readTextStyle(style);

    EXPECT_TRUE(matchesTextStyleRecord(style, *record));
    record->textSize = 3;
    EXPECT_FALSE(matchesTextStyleRecord(style, *record));
}

TEST_F(TextStyleRecords, EachValueCounts)
{
    void (*const kChanges[])(CKvStdsTextStyleRecord &) = {
        [](CKvStdsTextStyleRecord &record) { record.name = CKvString("TITLES"); },
        [](CKvStdsTextStyleRecord &record) { record.fontFile = CKvString("txt"); },
        [](CKvStdsTextStyleRecord &record) { record.bigFontFile = CKvString(); },
        [](CKvStdsTextStyleRecord &record) { record.textSize += 2e-10; },
        [](CKvStdsTextStyleRecord &record) { record.textSize -= 2e-10; },
        [](CKvStdsTextStyleRecord &record) { record.isUpsideDown = false; },
        [](CKvStdsTextStyleRecord &record) { record.isVertical = false; },
        [](CKvStdsTextStyleRecord &record) { record.isBackwards = false; },
        [](CKvStdsTextStyleRecord &record) { record.xScale += 2e-10; },
        [](CKvStdsTextStyleRecord &record) { record.obliquingAngle += 2e-10; },
        [](CKvStdsTextStyleRecord &record) { record.fontStyle = CKvString("Italic"); },
        [](CKvStdsTextStyleRecord &record) { record.annotative = false; },
        [](CKvStdsTextStyleRecord &record) { record.matchOrientation = false; },
    };
    for (const auto change : kChanges) {
        CKvStdsTextStyleRecord other = sample();
        change(other);

        EXPECT_FALSE(sameTextStyleRecord(sample(), other));
        EXPECT_FALSE(sameTextStyleRecord(other, sample()));
    }
}

TEST_F(TextStyleRecords, LetterCaseAndTinyDifferencesDontCount)
{
    CKvStdsTextStyleRecord other = sample();
    other.name = CKvString("notes");
    other.fontFile = CKvString("ARIAL.TTF");
    other.bigFontFile = CKvString("Big.shx");
    other.fontStyle = CKvString("BOLD");
    other.textSize += 1e-11;
    other.xScale -= 1e-11;
    other.obliquingAngle += 1e-11;
    other.standardsFile = CKvString("/office.dxf");

    EXPECT_TRUE(sameTextStyleRecord(sample(), other));
}

TEST_F(TextStyleRecords, ValuesAgreeByTheirType)
{
    const CKvString name;
    const auto text = [&](const char *value) {
        return CKvStdsProperty::text(name, CKvString(value)).value;
    };
    const auto real = [&](double value) { return CKvStdsProperty::real(name, value).value; };
    const auto flag = [&](bool value) { return CKvStdsProperty::flag(name, value).value; };
    const auto integer = [&](int value) { return CKvStdsProperty::integer(name, value).value; };

    EXPECT_TRUE(sameResBuf(text("Arial"), text("ARIAL")));
    EXPECT_FALSE(sameResBuf(text("Arial"), text("Ariel")));
    EXPECT_TRUE(sameResBuf(real(2.5), real(2.50000000001)));
    EXPECT_FALSE(sameResBuf(real(2.5), real(2.500001)));
    EXPECT_TRUE(sameResBuf(flag(true), flag(true)));
    EXPECT_FALSE(sameResBuf(flag(true), flag(false)));
    EXPECT_FALSE(sameResBuf(flag(true), text("1")));
    // A type that text styles don't have is never the same.
    EXPECT_FALSE(sameResBuf(integer(1), integer(1)));
}
