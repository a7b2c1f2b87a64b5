// SPDX-License-Identifier: MIT
#include "CKvContractClasses.h"
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "CKvFakeServices.h"
#include "CKvLayerPluginImpl.h"
#include "CKvTextCodec.h"
#include "auditText.h"
#include "drawingText.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

struct CodePageCase {
    const char *codePage;
    /// A name that the page has, and another one, in UTF-8.
    const char *name;
    const char *other;
};

const CodePageCase kCodePages[] = {
    { "ANSI_874", "กำแพง", "ประตู" },
    { "ANSI_932", "壁", "ソース表" },
    { "ANSI_936", "墙体", "门窗" },
    { "ANSI_949", "벽", "문" },
    { "ANSI_950", "牆", "功能" },
    { "ANSI_1250", "Ściany", "Dveře" },
    { "ANSI_1251", "Стены", "Двери" },
    { "ANSI_1252", "Wände", "Türen" },
    { "ANSI_1253", "Τοίχοι", "Πόρτες" },
    { "ANSI_1254", "Duvarlar-ğ", "Kapılar" },
    { "ANSI_1255", "קירות", "דלתות" },
    { "ANSI_1256", "جدران", "أبواب" },
    { "ANSI_1257", "Sienos-ž", "Durys-ė" },
    { "ANSI_1258", "Nhà", "Cưa" },
    { "ANSI_1361", "벽", "문" },
    { "DOS437", "Wände", "Türen" },
    { "DOS850", "Wände", "Türen" },
    { "DOS852", "Ściany", "Dveře" },
    { "DOS866", "Стены", "Двери" },
    { "DOS932", "壁", "ソース表" },
    { "GB2312", "墙体", "门窗" },
    { "BIG5", "牆", "功能" },
};

class CodePage : public testing::TestWithParam<CodePageCase>
{
protected:
    CodePage()
        : m_codec(CKvTextCodec::forDrawing("AC1015", GetParam().codePage))
    {
    }
    QByteArray encoded(const char *utf8) const
    {
        return QByteArray::fromStdString(m_codec.encode(QString::fromUtf8(utf8)));
    }
    /// An R2000 drawing with a line on the one layer.
    QByteArray drawing() const
    {
        CKvDrawingBuilder builder("AC1015");
        builder.withDefaults().header("DWGCODEPAGE", 3, GetParam().codePage);
        builder.layer("@NAME@").color(2);
        builder.modelSpace().line("@NAME@");
        return builder.toBytes().replace("@NAME@", encoded(GetParam().name));
    }
    /// Repairs the drawing's one violation with the candidate of that name.
    QByteArray
    repaired(const CKvDrawingBuilder &standards, const char *candidate, std::string &violations)
    {
        CKvFakeServices services;
        services.setDrawing("/office.dxf", standards);
        CKvLayerPluginImpl plugin;
        const OdDbDatabasePtr loaded = CKvDrawingFile::fromBytes(drawing());
        const auto found = audit(plugin, loaded, { QStringLiteral("/office.dxf") });
        violations = violationsText(found);
        CKvString message;
        for (const CKvStdsFixPtr &fix : found.at(0).fixes) {
            if (fix->name().toQString() == QString::fromUtf8(candidate)) {
                plugin.applyFix(found.front().error, fix, message);
            }
        }
        return CKvDrawingFile::toBytes(*loaded);
    }

    CKvContractClasses m_classes;
    CKvTextCodec m_codec;
};

} // namespace

TEST_P(CodePage, ANameIsTheSameAsInUtf8AndKeepsItsBytesWhenTheLayerIsRepaired)
{
    const std::string name = GetParam().name;
    CKvDrawingBuilder standards("AC1032");
    standards.withDefaults().layer(GetParam().name).color(1);
    std::string violations;

    const QByteArray saved = repaired(standards, GetParam().name, violations);

    EXPECT_EQ(violations,
              name + ": Layer properties are non-standard. 0@/office.dxf " + name
                  + "@/office.dxf*\n");
    EXPECT_EQ(saved.toHex().toStdString(),
              drawing().replace(" 62\n2\n", " 62\n1\n").toHex().toStdString());
}

TEST_P(CodePage, ARepairWritesANewNameInThePageOfTheFile)
{
    CKvDrawingBuilder standards("AC1032");
    standards.withDefaults().layer(GetParam().other).color(2);
    std::string violations;
    ASSERT_FALSE(encoded(GetParam().other).contains("\\U+")) << "not a name of this page";

    const QByteArray saved = repaired(standards, GetParam().other, violations);

    EXPECT_EQ(saved.toHex().toStdString(),
              drawing()
                  .replace(encoded(GetParam().name), encoded(GetParam().other))
                  .toHex()
                  .toStdString());
    EXPECT_EQ(entityLayersText(*CKvDrawingFile::fromBytes(saved)),
              std::string("*Model_Space LINE ") + GetParam().other + '\n');
}

INSTANTIATE_TEST_SUITE_P(In, CodePage, testing::ValuesIn(kCodePages), [](const auto &row) {
    return std::string(row.param.codePage);
});
