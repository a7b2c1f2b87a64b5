// SPDX-License-Identifier: MIT
#include "CKvDimStyleTest.h"
#include "dimStylePropertyLabel.h"

#include <QCoreApplication>
#include <QTranslator>

#include <optional>

namespace
{

/// Translates every text by putting its context in front of it.
class CKvContextTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context,
                      const char *sourceText,
                      const char *disambiguation,
                      int count) const override
    {
        EXPECT_EQ(disambiguation, nullptr);
        EXPECT_EQ(count, -1);
        return QStringLiteral("<%1>").arg(QLatin1String(context)) + QLatin1String(sourceText);
    }
};

class DimStyleTranslation : public CKvDimStyleTest
{
protected:
    void translate()
    {
        m_translator.emplace();
        QCoreApplication::installTranslator(&*m_translator);
    }
    void TearDown() override { m_translator.reset(); }

    int m_argumentCount = 1;
    char m_program[8] = "program";
    char *m_arguments[2] = { m_program, nullptr };
    QCoreApplication m_application { m_argumentCount, m_arguments };
    std::optional<CKvContextTranslator> m_translator;
};

} // namespace

TEST_F(DimStyleTranslation, MessagesAndTheirWordAreOfTheSharedContext)
{
    translate();

    EXPECT_EQ(m_plugin.nameMessage(),
              CKvString("<CKvStandardsPluginImpl><CKvStandardsPluginImpl>DimensionStyle name is "
                        "non-standard."));
    EXPECT_EQ(m_plugin.propertyMessage(),
              CKvString("<CKvStandardsPluginImpl><CKvStandardsPluginImpl>DimensionStyle "
                        "properties are non-standard."));
}

TEST_F(DimStyleTranslation, NameDescriptionAndLabelsAreOfThePluginsContext)
{
    translate();

    EXPECT_EQ(m_plugin.pluginName(), CKvString("<CKvDimStylePluginImpl>Dimension Styles"));
    EXPECT_EQ(m_plugin.description(),
              CKvString("<CKvDimStylePluginImpl>Verifies that names and properties of dimension "
                        "styles in a drawing match those in an associated standards file."));
    EXPECT_EQ(dimStylePropertyLabel(CKvString("DIMADEC")),
              CKvString("<CKvDimStylePluginImpl>Angle precision"));
    EXPECT_EQ(dimStylePropertyLabel(CKvString("DIMMZF")), CKvString());
}

TEST_F(DimStyleTranslation, TheKeysOfTheValuesAreNotTranslated)
{
    translate();
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);

    report();

    const CKvStdsErrorPtr error = violationOf("OFFICE").error;
    EXPECT_EQ(error->objectType(), CKvString("<CKvDimStylePluginImpl>DimensionStyle"));
    EXPECT_EQ(valueText(error->property(CKvString("DIMASZ"))), "2.5");
    EXPECT_EQ(preview("OFFICE", "OFFICE"), "<CKvDimStylePluginImpl>Arrow size: 2.5 -> 3.5\n");
}

TEST_F(DimStyleTranslation, ARepairWorksUnderATranslation)
{
    translate();
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);
    report();

    repair("OFFICE", "OFFICE");

    EXPECT_EQ(styleOf(m_database, "OFFICE")->dimasz(), 3.5);
    EXPECT_EQ(reportAgain(), "");
}
