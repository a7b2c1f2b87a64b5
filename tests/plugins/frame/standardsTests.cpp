// SPDX-License-Identifier: MIT
#include "CKvFrameTest.h"

namespace
{

class FrameStandards : public CKvFrameTest
{
protected:
    void read(const std::vector<CKvString> &paths)
    {
        m_plugin.openStandards(m_database, CKvString(), {}, paths);
    }
    /// Name, file and position of every record.
    std::string recordsText() const
    {
        std::string text;
        for (const CKvStdsRecord *record : m_plugin.records()) {
            text += std::to_string(record->position) + ' ' + record->name.toQString().toStdString()
                + '@' + record->standardsFile.toQString().toStdString() + '\n';
        }
        return text;
    }
    void SetUp() override
    {
        m_drawing.layer("WALLS");
        openDrawing();
        m_plugin.clear();
    }
};

} // namespace

TEST_F(FrameStandards, FilesAreReadOneAfterTheOtherAndRecordsInTheOrderOfTheTable)
{
    CKvDrawingBuilder firm;
    firm.layer("WALLS");
    m_office.layer("WALLS");
    m_office.layer("DOORS");
    m_services.setDrawing("/office.dxf", m_office);
    m_services.setDrawing("/firm.dxf", firm);

    read({ CKvString("/office.dxf"), CKvString("/firm.dxf") });

    EXPECT_EQ(recordsText(), "0 WALLS@/office.dxf\n1 DOORS@/office.dxf\n2 WALLS@/firm.dxf\n");
}

TEST_F(FrameStandards, AFileIsReadPartiallyAndSharedWithoutConversionAndPassword)
{
    read({ CKvString("/office.dxf") });

    EXPECT_EQ(m_services.calls(),
              std::vector<std::string>({ "readFile /office.dxf false true 64 ''" }));
}

TEST_F(FrameStandards, AFileThatCannotBeReadIsPassedOver)
{
    m_office.layer("WALLS");
    m_services.setDrawing("/office.dxf", m_office);

    read({ CKvString("/missing.dxf"), CKvString("/office.dxf") });

    EXPECT_EQ(recordsText(), "0 WALLS@/office.dxf\n");
}

TEST_F(FrameStandards, AFailureOfTheReaderGoesToTheCaller)
{
    m_services.setFailure("/office.dxf", 42);

    try {
        read({ CKvString("/office.dxf") });
        FAIL() << "the failure was swallowed";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 42);
    }
}

TEST_F(FrameStandards, OnePathGivenTwiceGivesItsRecordsTwice)
{
    m_office.layer("WALLS");
    m_services.setDrawing("/office.dxf", m_office);

    read({ CKvString("/office.dxf"), CKvString("/office.dxf") });

    EXPECT_EQ(recordsText(), "0 WALLS@/office.dxf\n1 WALLS@/office.dxf\n");
    EXPECT_EQ(m_plugin.standardsDatabase(CKvString("/office.dxf")),
              m_services.lastRead("/office.dxf"));
}

TEST_F(FrameStandards, RecordsThatAreNoStandardsAreLeftOut)
{
    m_office.layer("DRAFT");
    m_office.layer("WALLS");
    m_services.setDrawing("/office.dxf", m_office);

    read({ CKvString("/office.dxf") });

    EXPECT_EQ(recordsText(), "0 WALLS@/office.dxf\n");
}

TEST_F(FrameStandards, TheFixOfARecordIsMadeOnceWithNamesFileIdentityAndProperties)
{
    m_office.layer("DOORS").color(5);
    m_services.setDrawing("/office.dxf", m_office);

    read({ CKvString("/office.dxf") });
    const CKvStdsFixPtr fix = m_plugin.records().first()->fix;

    EXPECT_EQ(fix->name(), CKvString("DOORS"));
    EXPECT_EQ(fix->standardsFile(), CKvString("/office.dxf"));
    EXPECT_EQ(fix->objectName(), CKvString("identity of DOORS"));
    EXPECT_EQ(fix->propertyCount(), 2);
    EXPECT_EQ(valueText(fix->property(CKvString("Name"))), "DOORS");
    EXPECT_EQ(valueText(fix->property(CKvString("Colour"))), "5");
}

TEST_F(FrameStandards, WithoutADrawingNothingIsRead)
{
    m_plugin.openStandards(OdDbDatabasePtr(), CKvString(), {}, { CKvString("/office.dxf") });

    EXPECT_TRUE(m_services.calls().empty());
    EXPECT_TRUE(m_plugin.drawing().isNull());
}

TEST_F(FrameStandards, WithoutServicesNothingIsRead)
{
    SetKvSystemServices(nullptr);

    read({ CKvString("/office.dxf") });
    SetKvSystemServices(&m_services);

    EXPECT_EQ(recordsText(), "");
    EXPECT_EQ(m_plugin.drawing(), m_database);
}

TEST_F(FrameStandards, RecordsAddUpUntilTheyAreCleared)
{
    m_office.layer("WALLS");
    m_services.setDrawing("/office.dxf", m_office);

    read({ CKvString("/office.dxf") });
    read({ CKvString("/office.dxf") });
    EXPECT_EQ(recordsText(), "0 WALLS@/office.dxf\n1 WALLS@/office.dxf\n");
    m_plugin.clear();

    EXPECT_EQ(recordsText(), "");
}

TEST_F(FrameStandards, ADatabaseOutlivesAClearAndGoesWithTheNextReading)
{
    m_services.setDrawing("/office.dxf", m_office);
    read({ CKvString("/office.dxf") });
    const OdDbDatabasePtr opened = m_services.lastRead("/office.dxf");
    m_services.forgetCalls();

    m_plugin.clear();
    EXPECT_EQ(m_plugin.standardsDatabase(CKvString("/office.dxf")), opened);
    EXPECT_TRUE(m_services.calls().empty());
    read({});
    m_plugin.standardsDatabase(CKvString("/office.dxf"));

    EXPECT_EQ(m_services.calls(),
              std::vector<std::string>({ "readFile /office.dxf false true 64 ''" }));
}

TEST_F(FrameStandards, ADatabaseThatIsNotOpenIsReadForEachCallerAnew)
{
    m_services.setDrawing("/office.dxf", m_office);
    read({});

    const OdDbDatabasePtr first = m_plugin.standardsDatabase(CKvString("/office.dxf"));
    const OdDbDatabasePtr second = m_plugin.standardsDatabase(CKvString("/office.dxf"));

    EXPECT_FALSE(first.isNull());
    EXPECT_NE(first, second);
    EXPECT_TRUE(m_plugin.standardsDatabase(CKvString("/missing.dxf")).isNull());
}

TEST_F(FrameStandards, DatabasesAreToldApartByTheLetterCaseOfTheirPaths)
{
    m_services.setDrawing("/office.dxf", m_office);
    m_services.setDrawing("/OFFICE.dxf", m_office);

    read({ CKvString("/office.dxf"), CKvString("/OFFICE.dxf") });

    EXPECT_NE(m_plugin.standardsDatabase(CKvString("/office.dxf")),
              m_plugin.standardsDatabase(CKvString("/OFFICE.dxf")));
}
