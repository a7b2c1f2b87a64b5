// SPDX-License-Identifier: MIT
#include "dimSettings.h"

#include "CKvEditTest.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdResBuf.h"
#include "dimensionVariables.h"

namespace
{

class DimSettings : public CKvEditTest
{
protected:
    OdDbDimStyleTableRecordPtr style(const char *name = "OFFICE")
    {
        return record<OdDbDimStyleTableRecord>(CKvRecordKind::DimStyle, name);
    }
    void set(const char *setting, const char *answer, const char *name = "OFFICE")
    {
        enter(QStringLiteral("DIMSTYLE VARIABLE %1 %2 %3")
                  .arg(QLatin1String(name), QLatin1String(setting), text(answer)));
    }
    CKvDatabase &database() { return *m_desktop->activeDocument()->GetKvDatabase(); }
};

/// A value of each kind that is none of the defaults, and how it is shown.
struct CKvSample {
    const char *answer;
    const char *shown;
};

CKvSample sampleOf(const CKvDimensionVariable &variable)
{
    using Kind = CKvDimensionVariable::Kind;
    switch (variable.kind) {
    case Kind::Integer:
        return variable.defaultNumber == 1 ? CKvSample { "2", "2" } : CKvSample { "1", "1" };
    case Kind::Flag:
        return variable.defaultNumber == 1 ? CKvSample { "OFF", "false" }
                                           : CKvSample { "ON", "true" };
    case Kind::Real:
        return { "3.25", "3.25" };
    case Kind::Angle:
        return { "30", "0.5236" };
    case Kind::Text:
        return { "<> two words", "<> two words" };
    case Kind::Color:
        return { "green", "green" };
    case Kind::LineWeight:
        return { "0.5", "0.50 mm" };
    case Kind::Block:
        return { "DOT", "_DOT" };
    case Kind::TextStyle:
        return { "NOTES", "NOTES" };
    case Kind::LineStyle:
        return { "FENCE", "FENCE" };
    }
    return {};
}

} // namespace

TEST_F(DimSettings, EachOneIsSetAndShownAndTakenBack)
{
    int at = 0;
    for (const CKvDimSetting &setting : CKvDimSettings()) {
        SCOPED_TRACE(setting.name);
        const bool isVariable = at <= int(OdDbDimVariable::kDimaltmzs);
        const CKvSample sample = isVariable ? sampleOf(dimensionVariable(OdDbDimVariable(at)))
                                            : CKvSample { "ON", "true" };
        EXPECT_STREQ(setting.name,
                     isVariable ? dimensionVariable(OdDbDimVariable(at)).name : "ANNOTATIVE");
        const std::string before = setting.text(*style()).toQString().toStdString();
        EXPECT_NE(before, sample.shown);

        set(setting.name, sample.answer);

        EXPECT_EQ(setting.text(*style()).toQString().toStdString(), sample.shown);
        enter("UNDO");
        EXPECT_EQ(setting.text(*style()).toQString().toStdString(), before);
        ++at;
    }
    EXPECT_EQ(at, 79);
    EXPECT_EQ(saved(), m_before);
}

TEST_F(DimSettings, AreListedWithTheirValues)
{
    set("txt", "2.5");

    enter("DIMSTYLE LIST OFFICE");

    EXPECT_EQ(said().size(), 79);
    EXPECT_TRUE(said().contains(text("DIMTXT = 2.5")));
    EXPECT_TRUE(said().contains(text("DIMCLRD = ByBlock")));
    EXPECT_EQ(said().last(), text("ANNOTATIVE = false"));
}

TEST_F(DimSettings, APointStandsForNone)
{
    set("DIMBLK", "_DOT");
    set("DIMTXSTY", "NOTES");
    set("DIMPOST", "<> mm");
    set("DIMDSEP", ",");
    EXPECT_EQ(style()->dimdsep(), 44);

    set("DIMBLK", ".");
    set("DIMTXSTY", ".");
    set("DIMPOST", ".");
    set("DIMDSEP", "46");

    EXPECT_TRUE(style()->dimblk().isNull());
    EXPECT_TRUE(style()->dimtxsty().isNull());
    EXPECT_TRUE(style()->dimpost().isEmpty());
    EXPECT_EQ(style()->dimdsep(), 46);
}

TEST_F(DimSettings, AnEmptyAnswerLeavesTheValue)
{
    enter("DIMSTYLE VARIABLE OFFICE DIMTXT \"\"");

    EXPECT_FALSE(m_desktop->activeDocument()->isModified());
}

TEST_F(DimSettings, TheHeaderGoesWithTheCurrentStyleAlone)
{
    set("DIMTXT", "3.5");
    set("DIMSAH", "ON");
    EXPECT_DOUBLE_EQ(database().getDIMTXT(), 0.18);

    enter("DIMSTYLE SET OFFICE");
    EXPECT_EQ(database().getDIMSTYLE(), style()->objectId());
    EXPECT_DOUBLE_EQ(database().getDIMTXT(), 3.5);
    EXPECT_TRUE(database().getDIMSAH());
    set("DIMTXT", "5");
    set("DIMTXT", "7", "Standard");

    EXPECT_DOUBLE_EQ(database().getDIMTXT(), 5);
    enter("UNDO 5");
    EXPECT_EQ(saved(), m_before);
}
