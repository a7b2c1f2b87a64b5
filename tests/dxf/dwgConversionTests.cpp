// SPDX-License-Identifier: MIT
#include "CKvDxfError.h"
#include "dwgConversion.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

namespace
{

/// A program dwg2dxf of our own, alone on the path but for the shell's programs.
class DwgConversion : public testing::Test
{
protected:
    DwgConversion()
        : m_path(qgetenv("PATH"))
    {
    }
    ~DwgConversion() override { qputenv("PATH", m_path); }

    void usePath(const QByteArray &script)
    {
        QFile program(m_folder.filePath(QStringLiteral("dwg2dxf")));
        EXPECT_TRUE(program.open(QIODevice::WriteOnly));
        program.write("#!/bin/sh\n" + script);
        program.close();
        EXPECT_TRUE(program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        qputenv("PATH", QFile::encodeName(m_folder.path()) + ":/usr/bin:/bin");
    }
    QString drawing() const
    {
        QFile file(m_folder.filePath(QStringLiteral("plan with blanks.dwg")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("AC1032 and so on\n");
        return file.fileName();
    }
    std::string refusal() const
    {
        try {
            convertedDwg(drawing());
        } catch (const CKvDxfError &error) {
            EXPECT_EQ(error.file(), drawing());
            return error.reason().toStdString();
        }
        return {};
    }

    QTemporaryDir m_folder;

private:
    QByteArray m_path;
};

} // namespace

TEST_F(DwgConversion, GivesWhatTheProgramWrites)
{
    usePath("while [ $# -gt 1 ]; do [ \"$1\" = -o ] && out=$2; shift; done\n"
            "{ echo 999; cat \"$1\"; } >\"$out\"\n");

    const std::optional<QByteArray> converted = convertedDwg(drawing());

    ASSERT_TRUE(converted.has_value());
    EXPECT_EQ(*converted, "999\nAC1032 and so on\n");
}

TEST_F(DwgConversion, WithoutTheProgramThereIsNone)
{
    qputenv("PATH", QFile::encodeName(m_folder.path()));

    EXPECT_FALSE(convertedDwg(drawing()).has_value());
}

TEST_F(DwgConversion, AProgramThatFailsTellsWhy)
{
    const std::string beginning = "This is a DWG file that dwg2dxf can't read: ";
    const std::string end = ". Save it as DXF and try again.";

    usePath("echo reading >&2; echo 'no such version' >&2; exit 1\n");
    EXPECT_EQ(refusal(), beginning + "no such version" + end);
    usePath("exit 0\n");
    EXPECT_EQ(refusal(), beginning + "it gives no reason" + end);
    usePath("kill -9 $$\n");
    EXPECT_EQ(refusal(), beginning + "it gives no reason" + end);
}

TEST(Dwg, IsKnownByItsFirstBytes)
{
    EXPECT_TRUE(isDwg("AC1032\0"));
    EXPECT_TRUE(isDwg("AC1.40"));
    EXPECT_TRUE(isDwg("AC2.10"));
    EXPECT_FALSE(isDwg("AC"));
    EXPECT_FALSE(isDwg("  0\nSECTION"));
}
