// SPDX-License-Identifier: MIT
#include "readLineTypeFile.h"

#include "CKvDxfError.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace
{

class LineTypeFile : public testing::Test
{
protected:
    CKvLineTypeDefinition read(const QByteArray &bytes, const char *name) const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        file.close();
        return readLineTypeFile(path(), QString::fromUtf8(name));
    }
    QString path() const { return m_folder.filePath(QStringLiteral("test.lin")); }

private:
    QTemporaryDir m_folder;
};

// @return lengths, each with what follows it, as one line.
std::string shown(const CKvLineTypeDefinition &definition)
{
    using Kind = CKvLineTypeDefinition::Element::Kind;
    std::ostringstream text;
    text << definition.name.toStdString() << '|' << definition.description.toStdString() << '|';
    for (const CKvLineTypeDefinition::Element &element : definition.elements) {
        text << ' ' << element.length;
        if (element.kind == Kind::Plain) {
            continue;
        }
        text << (element.kind == Kind::Text ? "(text " : "(shape ") << element.content.toStdString()
             << " of " << element.style.toStdString() << " scale " << element.scale
             << (element.isRotationAbsolute ? " absolute " : " relative ")
             << element.rotationDegrees << " at " << element.offsetX << ',' << element.offsetY
             << ')';
    }
    return text.str();
}

constexpr const char *kTwoStyles = ";; Two line styles\n"
                                   "*Dashed,Dashed -- -- --\n"
                                   "A,12.7,-6.35\n"
                                   "\n"
                                   "*DOT,Dots . . .\n"
                                   "A,0,-6.35\n";

struct FaultCase {
    const char *name;
    const char *bytes;
    qint64 line;
    const char *reason;
};

class FaultyDefinition : public LineTypeFile, public testing::WithParamInterface<FaultCase>
{
};

const FaultCase kFaultCases[] = {
    { "EndsWithTheFile", "*X,x\n", 1, "The line style X has no definition." },
    { "EndsWithTheNextStyle", ";;\n*X,x\n\n*Y,y\nA,1\n", 2, "The line style X has no definition." },
    { "BeginsWithAnotherLetter", "*X,x\nB,1,-1\n", 2, "A definition begins with \"A,\"." },
    { "BeginsWithoutALetter", "*X,x\n1,-1\n", 2, "A definition begins with \"A,\"." },
    { "HasNoLengths", "*X,x\nA\n", 2, "The definition has no lengths." },
    { "HasNoLengthsBehindTheComma", "*X,x\nA,\n", 2, "The definition has no lengths." },
    { "HasAWordForANumber", "*X,x\n;; odd\nA,1,two\n", 3, "\"two\" is no number." },
    { "HasAGapBetweenCommas", "*X,x\nA,1,,-1\n", 2, "\"\" is no number." },
    { "HasAnInfiniteLength", "*X,x\nA,inf,-1\n", 2, "\"inf\" is no number." },
    { "HasALengthThatIsNotANumber", "*X,x\nA,nan,-1\n", 2, "\"nan\" is no number." },
    { "HasALengthBeyondAllNumbers", "*X,x\nA,1e999,-1\n", 2, "\"1e999\" is no number." },
    { "HasANumberWithAWordBehind", "*X,x\nA,1mm,-1\n", 2, "\"1mm\" is no number." },
    { "BeginsWithAShape", "*X,x\nA,[S,f.shx],1\n", 2, "A text or shape needs a length before it." },
    { "HasTwoShapesInARow",
      "*X,x\nA,1,[S,f.shx],[S,f.shx]\n",
      2,
      "A text or shape needs a length before it." },
    { "HasABracketNotClosed", "*X,x\nA,1,[S,f.shx\n", 2, "A square bracket is not closed." },
    { "HasABracketNotOpened", "*X,x\nA,1,S]\n", 2, "A square bracket closes that was not opened." },
    { "HasABracketWithinABracket",
      "*X,x\nA,1,[S,[f.shx]]\n",
      2,
      "A square bracket opens within another one." },
    { "HasAQuotationMarkNotClosed",
      "*X,x\nA,1,[\"S,STANDARD],-1\n",
      2,
      "A quotation mark is not closed." },
    { "HasNoCommaBehindABracket",
      "*X,x\nA,1,[S,f.shx]-1\n",
      2,
      "A comma is missing behind \"[S,f.shx]\"." },
    { "HasATextWithoutAStyle",
      "*X,x\nA,1,[\"S\"]\n",
      2,
      "A text needs its characters and a text style." },
    { "HasATextOfNoCharacters",
      "*X,x\nA,1,[\"\",STANDARD]\n",
      2,
      "A text needs its characters and a text style." },
    { "HasTwoTextsInOne",
      "*X,x\nA,1,[\"a\" \"b\",STANDARD]\n",
      2,
      "A text needs its characters and a text style." },
    { "HasAShapeWithoutAFile", "*X,x\nA,1,[S]\n", 2, "A shape needs its name and a shape file." },
    { "HasNothingInItsBrackets", "*X,x\nA,1,[]\n", 2, "A shape needs its name and a shape file." },
    { "HasASettingWithoutAValue",
      "*X,x\nA,1,[S,f.shx,S]\n",
      2,
      "\"S\" is no setting of a text or shape." },
    { "HasASettingOfNoMeaning",
      "*X,x\nA,1,[S,f.shx,Q=1]\n",
      2,
      "\"Q=1\" is no setting of a text or shape." },
    { "HasASettingWithALongName",
      "*X,x\nA,1,[S,f.shx,SS=1]\n",
      2,
      "\"SS=1\" is no setting of a text or shape." },
    { "HasASettingWithAWord", "*X,x\nA,1,[S,f.shx,S=big]\n", 2, "\"big\" is no number." },
    { "HasARotationOfNoNumber", "*X,x\nA,1,[S,f.shx,R=d]\n", 2, "\"\" is no number." },
};

} // namespace

TEST_F(LineTypeFile, GivesTheStyleOfTheNameAsItIsSpelledThere)
{
    EXPECT_EQ(shown(read(kTwoStyles, "Dashed")), "Dashed|Dashed -- -- --| 12.7 -6.35");
    EXPECT_EQ(shown(read(kTwoStyles, "DASHED")), "Dashed|Dashed -- -- --| 12.7 -6.35");
    EXPECT_EQ(shown(read(kTwoStyles, "dot")), "DOT|Dots . . .| 0 -6.35");
}

TEST_F(LineTypeFile, TheFirstOfTwoStylesOfOneNameCounts)
{
    EXPECT_EQ(shown(read("*X,first\nA,1\n*x,second\nA,2\n", "x")), "X|first| 1");
}

TEST_F(LineTypeFile, CommentsAndBlankLinesMayStandAnywhere)
{
    const char *bytes = ";; *X,not this\n;;A,9\n\n*X,x\n;; A,8\n; A,7\n\nA,1,-2 ;; and so on\n";

    EXPECT_EQ(shown(read(bytes, "X")), "X|x| 1 -2");
}

TEST_F(LineTypeFile, LinesEndInAnyWayAndBlanksDoNoHarm)
{
    EXPECT_EQ(shown(read("  * X , x y \r\n a , 1 , -2 \r\n", "X")), "X|x y| 1 -2");
    EXPECT_EQ(shown(read("*X,x\nA,1,-2", "X")), "X|x| 1 -2");
}

TEST_F(LineTypeFile, ADescriptionMayBeMissingOrHoldCommas)
{
    EXPECT_EQ(shown(read("*X\nA,1\n", "X")), "X|| 1");
    EXPECT_EQ(shown(read("*X,a, b, c\nA,1\n", "X")), "X|a, b, c| 1");
}

TEST_F(LineTypeFile, NumbersAreSpelledInManyWays)
{
    EXPECT_EQ(shown(read("*X,x\nA,.5,-.25,+1,5.,1e-3,0\n", "X")), "X|x| 0.5 -0.25 1 5 0.001 0");
}

TEST_F(LineTypeFile, ACommaAtTheEndIsNoElement)
{
    EXPECT_EQ(shown(read("*X,x\nA,1,-2,\n", "X")), "X|x| 1 -2");
}

TEST_F(LineTypeFile, ATextStandsBehindALength)
{
    const char *bytes = "*GAS,Gas --GAS--\n"
                        "A,.5,-.2,[\"GAS\",STANDARD,S=.1,R=0.0,X=-0.1,Y=-.05],-.25\n";

    EXPECT_EQ(shown(read(bytes, "GAS")),
              "GAS|Gas --GAS--| 0.5 -0.2(text GAS of STANDARD scale 0.1 relative 0 at -0.1,-0.05)"
              " -0.25");
}

TEST_F(LineTypeFile, AShapeStandsBehindALength)
{
    const char *bytes = "*TRACK,Track\nA,.15,[TRACK1, ltypeshp.shx , s=.25, a=90 ],.15\n";

    EXPECT_EQ(shown(read(bytes, "TRACK")),
              "TRACK|Track| 0.15(shape TRACK1 of ltypeshp.shx scale 0.25 absolute 90 at 0,0) 0.15");
}

TEST_F(LineTypeFile, ATextMayHoldCommasBracketsAndSemicolons)
{
    const char *bytes = "*X,x\nA,1,[\"a,[b];; \",My Style],-1\n";

    EXPECT_EQ(shown(read(bytes, "X")),
              "X|x| 1(text a,[b];;  of My Style scale 1 relative 0 at 0,0) -1");
}

TEST_F(LineTypeFile, RotationsAreInDegreesUnlessALetterNamesAnotherUnit)
{
    const auto rotation = [this](const char *setting) {
        const QByteArray bytes = QByteArray("*X,x\nA,1,[\"a\",S,") + setting + "]\n";
        return read(bytes, "X").elements.at(0).rotationDegrees;
    };

    EXPECT_DOUBLE_EQ(rotation("R=45"), 45);
    EXPECT_DOUBLE_EQ(rotation("R=-45d"), -45);
    EXPECT_DOUBLE_EQ(rotation("A=100G"), 90);
    EXPECT_NEAR(rotation("R=3.14159265358979r"), 180, 1e-9);
    EXPECT_DOUBLE_EQ(rotation("U=30"), 30);
}

TEST_F(LineTypeFile, ReadsUtf8WithAndWithoutItsMarkAndWesternText)
{
    EXPECT_EQ(shown(read("*H\xc3\xb6he,x\nA,1\n", "h\xc3\x96HE")), "H\u00f6he|x| 1");
    EXPECT_EQ(shown(read("\xef\xbb\xbf*X,x\nA,1\n", "X")), "X|x| 1");
    EXPECT_EQ(shown(read("*H\xf6he,x\nA,1\n", "h\xc3\xb6he")), "H\u00f6he|x| 1");
    EXPECT_EQ(shown(read("*H\\U+00F6he,x\nA,1\n", "h\xc3\xb6he")), "H\u00f6he|x| 1");
}

TEST_F(LineTypeFile, AStyleThatTheFileLacksHasCode156)
{
    for (const char *name : { "NONE", "", "Dash", "Dashed,Dashed -- -- --" }) {
        try {
            read(kTwoStyles, name);
            FAIL() << "no exception for \"" << name << '"';
        } catch (const OdError &error) {
            EXPECT_EQ(error.code(), 156);
            EXPECT_EQ(error.what(), path().toStdString() + " has no line style " + name + ".");
        }
    }
}

TEST_F(LineTypeFile, AnUnnamedStyleIsNeverFound)
{
    try {
        read("*,x\nA,1\n", "");
        FAIL() << "no exception";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 156);
    }
}

TEST_F(LineTypeFile, AFileThatCannotBeOpenedHasCode156AndSaysWhy)
{
    try {
        readLineTypeFile(path(), QStringLiteral("DASHED"));
        FAIL() << "no exception";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 156);
        EXPECT_EQ(error.what(), path().toStdString() + ": There is no such file.");
    }
}

TEST_F(LineTypeFile, AFaultInAnotherStyleDoesNoHarm)
{
    const char *bytes = "*BAD,x\nA,[\n*WORSE\n*X,x\nA,1\n*LAST,x\nA,?\n";

    EXPECT_EQ(shown(read(bytes, "X")), "X|x| 1");
}

TEST_F(LineTypeFile, ItsNamesAreListedEachOnce)
{
    read(";; *OUT,of it\n*X,x\nA,1\n*BAD,x\nA,[\n*x,again\nA,2\n*,nameless\nA,3\n", "X");

    EXPECT_EQ(lineTypeNames(path()), QStringList({ QStringLiteral("X"), QStringLiteral("BAD") }));
}

TEST(LineTypePattern, IsReadWithItsAlignmentOrWithoutIt)
{
    for (const char *pattern : { "A,12.7,-6.35,0", " 12.7, -6.35,0" }) {
        CKvLineTypeDefinition definition;
        definition.elements = readLineTypePattern(QString::fromUtf8(pattern));

        EXPECT_EQ(shown(definition), "|| 12.7 -6.35 0") << pattern;
    }
}

TEST(LineTypePattern, ThatCannotBeReadSaysWhy)
{
    try {
        readLineTypePattern(QStringLiteral("1,dash"));
        FAIL() << "no exception";
    } catch (const CKvDxfError &error) {
        EXPECT_STREQ(error.what(), "\"dash\" is no number.");
    }
}

TEST_P(FaultyDefinition, IsAnErrorWithItsLineAndNotThatOfAMissingStyle)
{
    try {
        read(GetParam().bytes, "X");
        FAIL() << "no exception";
    } catch (const CKvDxfError &error) {
        EXPECT_EQ(error.file().toStdString(), path().toStdString());
        EXPECT_EQ(error.line(), GetParam().line);
        EXPECT_EQ(error.reason().toStdString(), GetParam().reason);
        EXPECT_NE(error.code(), 156);
    }
}

INSTANTIATE_TEST_SUITE_P(That,
                         FaultyDefinition,
                         testing::ValuesIn(kFaultCases),
                         [](const auto &row) { return std::string(row.param.name); });
