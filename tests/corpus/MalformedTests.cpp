// SPDX-License-Identifier: MIT
#include "CKvDrawingFile.h"
#include "CKvDxfError.h"
#include "outcome.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace
{

struct MalformedCase {
    /// File in tests/malformed, named after its fault.
    const char *name;
    /// As CKvOutcome::text.
    const char *outcome;
};

const MalformedCase kCases[] = {
    { "binary-begins-with-a-comment", "loads" },
    { "binary-chunk-longer-than-the-file",
      "error: byte 51: The file ends within a group: its value is missing." },
    { "binary-cut-in-a-code",
      "error: byte 50: The file ends within a group: its value is missing." },
    { "binary-cut-in-a-number",
      "error: byte 64: The file ends within a group: its value is missing." },
    { "binary-cut-in-a-text",
      "error: byte 32: The file ends within a group: its value is missing." },
    { "binary-mark-only", "error: byte 0: There is no section; this is not a drawing." },
    { "binary-without-eof", "byte 83: The EOF mark is missing." },
    { "blank-lines-only", "error: The file is empty." },
    { "block-not-closed", "loads" },
    { "block-within-itself", "loads" },
    { "bytes-behind-eof",
      "line 87: There are bytes behind the EOF mark; they are kept and not read." },
    { "carriage-returns-only",
      "error: line 1: A carriage return stands here without a line feed, which ends no line of a "
      "drawing." },
    { "comments-only", "error: line 1: There is no section; this is not a drawing." },
    { "dictionaries-hold-each-other", "loads" },
    { "dictionary-holds-itself", "loads" },
    { "dictionary-key-without-an-object", "loads" },
    { "dwg-under-another-name", "error: This is a DWG file. Save it as DXF and try again." },
    { "empty", "error: The file is empty." },
    { "endsec-too-many", "line 11: A section ends that has not begun." },
    { "entities-not-closed", "line 63: The section before is not closed." },
    { "entity-in-no-block", "line 49: An entity stands in no block; it is kept." },
    { "eof-missing-and-section-not-closed", "error: line 63: The file ends within a section." },
    { "eof-missing", "line 85: The EOF mark is missing." },
    { "eof-only", "loads" },
    { "eof-within-a-table", "line 39: The section before is not closed." },
    { "extension-dictionary-is-the-layer-itself", "loads" },
    { "extension-group-not-closed", "loads" },
    { "group-code-beyond-all-numbers",
      "error: line 61: A group code must stand here, a whole number." },
    { "group-code-has-a-fraction",
      "error: line 61: A group code must stand here, a whole number." },
    { "group-code-is-a-word", "error: line 61: A group code must stand here, a whole number." },
    { "group-code-is-negative", "loads" },
    { "group-code-line-is-blank-with-carriage-returns",
      "error: line 61: A group code must stand here, a whole number." },
    { "group-code-line-is-blank", "error: line 61: A group code must stand here, a whole number." },
    { "group-outside-of-sections",
      "line 11: A group stands outside of all sections; it is kept and not read." },
    { "handle-of-no-digits", "loads" },
    { "handle-too-long", "loads" },
    { "handle-twice", "loads" },
    { "last-section-not-closed", "line 63: The section before is not closed." },
    { "layer-name-twice", "loads" },
    { "layer-without-a-name", "loads" },
    { "letter-to-somebody", "error: line 1: A group code must stand here, a whole number." },
    { "line-missing", "error: line 61: A group code must stand here, a whole number." },
    { "object-in-the-header", "line 9: An object stands in the header; it is kept and not read." },
    { "object-outside-of-sections",
      "line 11: An object stands outside of all sections; it is kept and not read." },
    { "packed-and-cut",
      "error: The file is packed with gzip and can't be unpacked: it ends too early." },
    { "packed-and-damaged",
      "error: The file is packed with gzip and can't be unpacked: it is damaged." },
    { "packed-letter", "error: line 1: A group code must stand here, a whole number." },
    { "packed-with-bytes-behind",
      "error: The file is packed with gzip and can't be unpacked: other bytes stand behind its "
      "end." },
    { "page-of-the-web", "error: line 1: A group code must stand here, a whole number." },
    { "record-in-a-table-of-another-kind",
      "line 15: The table STYLE declares 1 records and has 0." },
    { "record-outside-of-tables", "loads" },
    { "section-name-empty", "loads" },
    { "section-not-closed", "line 43: The section before is not closed." },
    { "section-of-no-known-name", "loads" },
    { "section-twice", "loads" },
    { "section-without-a-name", "error: line 13: The name of the section is missing." },
    { "table-count-beyond-all-numbers",
      "line 15: The table LAYER declares 9000000000000000000 records and has 1." },
    { "table-count-empty", "line 15: The table LAYER declares 0 records and has 1." },
    { "table-count-missing", "loads" },
    { "table-count-negative", "line 15: The table LAYER declares -1 records and has 1." },
    { "table-count-too-large", "line 15: The table LAYER declares 500 records and has 1." },
    { "table-not-closed", "loads" },
    { "table-twice",
      "line 43: The table LAYER stands here a second time.\nline 15: The table LAYER declares 1 "
      "records and has 2." },
    { "table-without-a-name", "error: line 15: The name of the table is missing." },
    { "utf-16-without-a-mark", "error: The file is in UTF-16, which is no form of DXF." },
    { "utf-16", "error: The file is in UTF-16, which is no form of DXF." },
    { "value-missing-at-the-end",
      "error: line 67: The file ends within a group: its value is missing." },
    { "zero-bytes-for-line-feeds", "error: line 1: A group code must stand here, a whole number." },
    { "zero-bytes-in-a-name", "loads" },
};

class Malformed : public testing::TestWithParam<MalformedCase>
{
protected:
    static QString path()
    {
        return QStringLiteral(KV_MALFORMED_FOLDER "/%1.dxf").arg(QLatin1String(GetParam().name));
    }
    static QByteArray bytes()
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
};

// "eof-missing" is EofMissing.
std::string testName(const testing::TestParamInfo<MalformedCase> &row)
{
    std::string name;
    bool isAtWordBegin = true;
    for (const char letter : std::string(row.param.name)) {
        if (letter != '-') {
            name += isAtWordBegin ? char(std::toupper(letter)) : letter;
        }
        isAtWordBegin = letter == '-';
    }
    return name;
}

} // namespace

TEST_P(Malformed, IsRefusedOrToleratedForTheReasonThatItsNameTells)
{
    const CKvOutcome outcome = outcomeOf(bytes());

    EXPECT_EQ(outcome.text().toStdString(), GetParam().outcome);
}

TEST_P(Malformed, IsTheSameWhenItIsMapped)
{
    const CKvOutcome outcome = outcomeOf(bytes());
    std::string error;

    try {
        walkDrawing(*CKvDrawingFile::open(path(), CKvFileImage::Holding::Mapped));
    } catch (const CKvDxfError &refusal) {
        error = refusal.reason().toStdString();
        EXPECT_EQ(refusal.file().toStdString(), path().toStdString());
        EXPECT_EQ(refusal.line(), outcome.line);
    }

    EXPECT_EQ(error, outcome.error.toStdString());
}

TEST_P(Malformed, LoadsAgainAfterAnEditWhenItLoadsAtAll)
{
    const CKvOutcome before = outcomeOf(bytes());

    const CKvOutcome after = outcomeAfterEditing(bytes());

    EXPECT_EQ(after.fault.toStdString(), "");
    EXPECT_EQ(after.error.toStdString(), before.error.toStdString());
    EXPECT_EQ(after.walk.entities, before.walk.entities);
}

INSTANTIATE_TEST_SUITE_P(Drawing, Malformed, testing::ValuesIn(kCases), testName);

TEST(MalformedDrawings, AreAllKnownToTheTests)
{
    QStringList expected;
    for (const MalformedCase &known : kCases) {
        expected.append(QLatin1String(known.name) + QStringLiteral(".dxf"));
    }
    expected.sort();

    const QStringList found =
        QDir(QStringLiteral(KV_MALFORMED_FOLDER)).entryList(QDir::Files, QDir::Name);

    EXPECT_EQ(found.join(QLatin1Char(' ')).toStdString(),
              expected.join(QLatin1Char(' ')).toStdString());
}
