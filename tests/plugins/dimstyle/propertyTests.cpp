// SPDX-License-Identifier: MIT
#include "CKvDimStyleTest.h"
#include "CKvDrawingFile.h"
#include "dimStylePropertyLabel.h"

namespace
{

/// No table: the value stands in the file as it is.
constexpr const char *kPlain = "";

/// One property of a dimension style, told independently of the sources.
struct CKvPropertyCase {
    const char *key;
    /// 0 for a property without a group, which is kept in extended data.
    int group;
    /// Where the group holds the handle of a record: its table.
    const char *table;
    const char *value;
    const char *text;
    const char *defaultText;
    /// Empty for a property that the header does not have.
    const char *headerValue;
    const char *label;
};

constexpr CKvPropertyCase kCases[] = {
    { "DIMADEC", 179, kPlain, "3", "3", "0", "3", "Angle precision" },
    { "DIMALT", 170, kPlain, "1", "true", "false", "1", "Alternate UnitSystem" },
    { "DIMALTD", 171, kPlain, "3", "3", "2", "3", "Alt precision" },
    { "DIMALTF", 143, kPlain, "2.5", "2.5", "25.4", "2.5", "Alt scale" },
    { "DIMALTRND", 148, kPlain, "2.5", "2.5", "0.0", "2.5", "Alt roundoff" },
    { "DIMALTTD", 274, kPlain, "4", "4", "2", "4", "Alt tol precision" },
    { "DIMALTTZ", 286, kPlain, "5", "5", "0", "5", "Alt tol zeroes" },
    { "DIMALTU", 273, kPlain, "4", "4", "2", "4", "Alt UnitSystem" },
    { "DIMALTZ", 285, kPlain, "7", "7", "0", "7", "Alt zeroes" },
    { "DIMAPOST", 4, kPlain, "[<>]", "[<>]", "\"\"", "[<>]", "Alt prefix and suffix" },
    { "DIMASZ", 41, kPlain, "2.5", "2.5", "0.18", "2.5", "Arrow size" },
    { "DIMATFIT", 289, kPlain, "1", "1", "3", "1", "Fit arrow and text" },
    { "DIMAUNIT", 275, kPlain, "2", "2", "0", "2", "Angle format" },
    { "DIMAZIN", 79, kPlain, "2", "2", "0", "2", "Angle zero suppression" },
    { "DIMBLK", 342, "BLOCK_RECORD", "_Dot", "_Dot", "Null", "_Dot", "Arrow" },
    { "DIMBLK1", 343, "BLOCK_RECORD", "_Dot", "_Dot", "Null", "_Dot", "Arrow 1" },
    { "DIMBLK2", 344, "BLOCK_RECORD", "_Dot", "_Dot", "Null", "_Dot", "Arrow 2" },
    { "DIMCEN", 141, kPlain, "2.5", "2.5", "0.09", "2.5", "Center mark size" },
    { "DIMCLRD", 176, kPlain, "1", "red", "ByBlock", "1", "Dim line color" },
    { "DIMCLRE", 177, kPlain, "1", "red", "ByBlock", "1", "Ext line color" },
    { "DIMCLRT", 178, kPlain, "1", "red", "ByBlock", "1", "Text color" },
    { "DIMDEC", 271, kPlain, "2", "2", "4", "2", "Precision" },
    { "DIMDLE", 46, kPlain, "2.5", "2.5", "0.0", "2.5", "Dim line ext" },
    { "DIMDLI", 43, kPlain, "2.5", "2.5", "0.38", "2.5", "Dim line spacing" },
    { "DIMDSEP", 278, kPlain, "44", "44", "46", "44", "Decimal separator" },
    { "DIMEXE", 44, kPlain, "2.5", "2.5", "0.18", "2.5", "Ext line extension" },
    { "DIMEXO", 42, kPlain, "2.5", "2.5", "0.0625", "2.5", "Ext line offset" },
    { "DIMFRAC", 276, kPlain, "1", "1", "0", "1", "Fraction format" },
    { "DIMGAP", 147, kPlain, "2.5", "2.5", "0.09", "2.5", "Text offset" },
    { "DIMJUST", 280, kPlain, "2", "2", "0", "2", "Text pos hor" },
    { "DIMLDRBLK", 341, "BLOCK_RECORD", "_Dot", "_Dot", "Null", "_Dot", "Leader arrow" },
    { "DIMLFAC", 144, kPlain, "2.5", "2.5", "1.0", "2.5", "Length scale" },
    { "DIMLIM", 72, kPlain, "1", "true", "false", "1", "Tol limits" },
    { "DIMLUNIT", 277, kPlain, "4", "4", "2", "4", "Length UnitSystem" },
    { "DIMLWD", 371, kPlain, "50", "0.50 mm", "ByBlock", "50", "Dim line lineweight" },
    { "DIMLWE", 372, kPlain, "50", "0.50 mm", "ByBlock", "50", "Ext line lineweight" },
    { "DIMPOST", 3, kPlain, "<> mm", "<> mm", "\"\"", "<> mm", "Text prefix and suffix" },
    { "DIMRND", 45, kPlain, "2.5", "2.5", "0.0", "2.5", "Roundoff" },
    { "DIMSAH", 173, kPlain, "1", "true", "false", "1", "Separate arrows" },
    { "DIMSCALE", 40, kPlain, "2.5", "2.5", "1.0", "2.5", "Overall scale" },
    { "DIMSD1", 281, kPlain, "1", "true", "false", "1", "No dim line 1" },
    { "DIMSD2", 282, kPlain, "1", "true", "false", "1", "No dim line 2" },
    { "DIMSE1", 75, kPlain, "1", "true", "false", "1", "No ext line 1" },
    { "DIMSE2", 76, kPlain, "1", "true", "false", "1", "No ext line 2" },
    { "DIMSOXD", 175, kPlain, "1", "true", "false", "1", "No dim lines outside" },
    { "DIMTAD", 77, kPlain, "1", "1", "0", "1", "Text pos vert" },
    { "DIMTDEC", 272, kPlain, "3", "3", "4", "3", "Tol precision" },
    { "DIMTFAC", 146, kPlain, "2.5", "2.5", "1.0", "2.5", "Tol text scale" },
    { "DIMTIH", 73, kPlain, "0", "false", "true", "0", "Text inside align" },
    { "DIMTIX", 174, kPlain, "1", "true", "false", "1", "Text inside" },
    { "DIMTM", 48, kPlain, "2.5", "2.5", "0.0", "2.5", "Tol dev lower" },
    { "DIMTMOVE", 279, kPlain, "2", "2", "0", "2", "Fit text movement" },
    { "DIMTOFL", 172, kPlain, "1", "true", "false", "1", "Dim line forced" },
    { "DIMTOH", 74, kPlain, "0", "false", "true", "0", "Text outside align" },
    { "DIMTOL", 71, kPlain, "1", "true", "false", "1", "Tol deviation" },
    { "DIMTOLJ", 283, kPlain, "2", "2", "1", "2", "Tol pos vert" },
    { "DIMTP", 47, kPlain, "2.5", "2.5", "0.0", "2.5", "Tol dev upper" },
    { "DIMTSZ", 142, kPlain, "2.5", "2.5", "0.0", "2.5", "Stroke size" },
    { "DIMTVP", 145, kPlain, "2.5", "2.5", "0.0", "2.5", "Text pos vert" },
    { "DIMTXSTY", 340, "STYLE", "Notes", "Notes", "Null", "Notes", "TextStyle" },
    { "DIMTXT", 140, kPlain, "2.5", "2.5", "0.18", "2.5", "Text height" },
    { "DIMTZIN", 284, kPlain, "8", "8", "0", "8", "Tol zero suppression" },
    { "DIMUPT", 288, kPlain, "1", "true", "false", "1", "User-positioned text" },
    { "DIMZIN", 78, kPlain, "8", "8", "0", "8", "Zero suppression" },
    { "DIMFXL", 49, kPlain, "2.5", "2.5", "1.0", "2.5", "Fixed ext line length" },
    { "DIMFXLON", 290, kPlain, "1", "true", "false", "1", "Fixed ext line enabled" },
    { "DIMJOGANG",
      50,
      kPlain,
      "60",
      "1.0472",
      "0.7854",
      "1.0471975511965976",
      "Large rad dim jog angle" },
    { "DIMTFILL", 69, kPlain, "2", "2", "0", "2", "Text background enabled" },
    { "DIMTFILLCLR", 70, kPlain, "1", "red", "ByBlock", "1", "Text background color" },
    { "DIMARCSYM", 90, kPlain, "1", "1", "0", "1", "Arc len symbol" },
    { "DIMLTYPE", 345, "LTYPE", "Dashed", "Dashed", "Null", "Dashed", "Dim line linetype" },
    { "DIMLTEX1", 346, "LTYPE", "Dashed", "Dashed", "Null", "Dashed", "Ext line 1 linetype" },
    { "DIMLTEX2", 347, "LTYPE", "Dashed", "Dashed", "Null", "Dashed", "Ext line 2 linetype" },
    { "DIMTXTDIRECTION", 294, kPlain, "1", "true", "false", "1", "" },
    { "DIMMZF", 0, kPlain, "50.5", "50.5", "100.0", "", "" },
    { "DIMMZS", 0, kPlain, "cm", "cm", "\"\"", "", "" },
    { "DIMALTMZF", 0, kPlain, "50.5", "50.5", "100.0", "", "" },
    { "DIMALTMZS", 0, kPlain, "cm", "cm", "\"\"", "", "" },
};

void PrintTo(const CKvPropertyCase &row, std::ostream *out)
{
    *out << row.key;
}

bool isReal(const CKvPropertyCase &row)
{
    return row.text[0] >= '0' && row.text[0] <= '9';
}

void give(CKvDimStyleBuilder &style, const CKvPropertyCase &row)
{
    if (row.group == 0) {
        style.extendedData("KVSTANDARDS",
                           { { 1000, row.key }, { isReal(row) ? 1040 : 1000, row.value } });
    } else if (*row.table) {
        style.handleOf(row.group, row.table, row.value);
    } else {
        style.group(row.group, row.value);
    }
}

void addPointed(CKvDrawingBuilder &drawing)
{
    drawing.withReservedLineStyles();
    drawing.textStyle("Notes");
    drawing.lineStyle("Dashed").dashes({ 1.0, -1.0 });
    drawing.block("_Dot").line();
}

/// The value of a header variable; "-" for one that the header does not have.
std::string headerValue(const OdDbDatabasePtr &drawing, const char *key)
{
    const QList<QByteArray> lines = CKvDrawingFile::toBytes(*drawing).split('\n');
    const int at = lines.indexOf(QByteArray("$") + key);
    return at < 0 ? "-" : lines.at(at + 2).trimmed().toStdString();
}

class DimStyleProperty : public CKvDimStyleTest, public testing::WithParamInterface<CKvPropertyCase>
{
protected:
    DimStyleProperty()
        : m_row(GetParam())
    {
        m_drawing = CKvDrawingBuilder("AC1032");
        m_office = CKvDrawingBuilder("AC1032");
        addPointed(m_office);
    }

    const CKvPropertyCase &m_row;
};

} // namespace

TEST_P(DimStyleProperty, IsReadFromItsPlaceInTheFile)
{
    give(m_office.dimStyle("S"), m_row);
    m_database = m_office.open();

    std::string found;
    for (const DimStylePropertyRow &row :
         compareDimStyles(styleOf(m_database, "S"), styleOf(m_database, "S"), true)) {
        if (row.key == QLatin1String(m_row.key)) {
            found = row.firstValue.toStdString();
        }
    }

    EXPECT_EQ(found, m_row.text);
}

TEST_P(DimStyleProperty, HasItsDefaultWhereTheDrawingLeavesItOutAndAloneDiffersFromIt)
{
    give(m_office.dimStyle("S"), m_row);
    m_office.dimStyle("EMPTY");
    m_database = m_office.open();

    EXPECT_EQ(
        rowsText(compareDimStyles(styleOf(m_database, "EMPTY"), styleOf(m_database, "S"), false)),
        std::string(m_row.key) + ": " + m_row.defaultText + " -> " + m_row.text + '\n');
}

TEST_P(DimStyleProperty, IsWrittenByARepairAndReadsBack)
{
    give(m_office.dimStyle("S"), m_row);
    m_drawing.withReservedLineStyles();
    m_drawing.dimStyle("S");
    report();

    repair("S", "S");

    EXPECT_EQ(differences("S", "S"), "");
    m_database = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*m_database));
    EXPECT_EQ(differences("S", "S"), "");
}

TEST_P(DimStyleProperty, IsChangedWhereItStands)
{
    m_office.dimStyle("S");
    addPointed(m_drawing);
    give(m_drawing.dimStyle("S"), m_row);
    report();

    repair("S", "S");

    EXPECT_EQ(differences("S", "S"), "");
    m_database = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*m_database));
    EXPECT_EQ(differences("S", "S"), "");
}

TEST_P(DimStyleProperty, BecomesTheSettingOfTheHeader)
{
    give(m_office.dimStyle("S"), m_row);
    m_drawing.withReservedLineStyles();
    m_drawing.dimStyle("S");
    report();

    repair("S", "S");

    const std::string found = headerValue(m_database, m_row.key);
    EXPECT_EQ(found, *m_row.headerValue ? m_row.headerValue : "-");
}

TEST_P(DimStyleProperty, HasItsLabel)
{
    EXPECT_EQ(dimStylePropertyLabel(CKvString(m_row.key)), CKvString(m_row.label));
}

INSTANTIATE_TEST_SUITE_P(All,
                         DimStyleProperty,
                         testing::ValuesIn(kCases),
                         [](const testing::TestParamInfo<CKvPropertyCase> &row) {
                             return std::string(row.param.key);
                         });

TEST(DimStylePropertyCases, AreAllPropertiesButTheAnnotativeOne)
{
    EXPECT_EQ(std::size(kCases), 78U);
}
