// SPDX-License-Identifier: MIT
#include "CKvDrawingFile.h"
#include "CKvDxfError.h"
#include "corpusFiles.h"
#include "outcome.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <iomanip>
#include <iostream>
#include <string>

namespace
{

constexpr int kR2000 = 1015;

class Corpus : public testing::Test
{
protected:
    void SetUp() override
    {
        if (corpusFiles().empty()) {
            GTEST_SKIP() << missingCorpusFolders().toStdString();
        }
        if (!missingCorpusFolders().isEmpty()) {
            std::cout << missingCorpusFolders().toStdString() << '\n';
        }
    }
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void printRow(const CKvCorpusFile &file, const CKvOutcome &outcome)
{
    const std::string form = file.bytes.startsWith("AC10") ? "DWG"
        : !file.isAscii()                                  ? "binary"
        : file.version() > 0                               ? "AC" + std::to_string(file.version())
                                                           : "none";
    std::cout << std::left << std::setw(62) << file.name.toStdString() << std::setw(8) << form
              << std::right << std::setw(9) << file.bytes.size() << std::setw(6)
              << outcome.walk.records << std::setw(6) << outcome.walk.dictionaries << std::setw(6)
              << outcome.walk.xrecords << std::setw(8) << outcome.walk.entities << "  "
              << outcome.text().section(QLatin1Char('\n'), 0, 0).toStdString();
    if (outcome.warnings.size() > 1) {
        std::cout << " (" << outcome.warnings.size() << " warnings)";
    }
    std::cout << '\n';
}

} // namespace

TEST_F(Corpus, EveryDrawingIsSavedAsItWasOrRefusedWithAReason)
{
    std::cout << std::left << std::setw(62) << "drawing" << std::setw(8) << "version" << std::right
              << std::setw(9) << "bytes" << std::setw(6) << "rec" << std::setw(6) << "dict"
              << std::setw(6) << "xrec" << std::setw(8) << "ent"
              << "  outcome\n";
    for (const CKvCorpusFile &file : corpusFiles()) {
        const CKvOutcome outcome = outcomeOf(file.bytes);

        printRow(file, outcome);
        EXPECT_EQ(outcome.fault.toStdString(), "") << file.name.toStdString();
        EXPECT_EQ(outcome.walk.oddities.join(QLatin1Char('\n')).toStdString(), "")
            << file.name.toStdString();
        EXPECT_FALSE(file.version() >= kR2000 && outcome.isRefused())
            << file.name.toStdString() << ": " << outcome.text().toStdString();
        EXPECT_FALSE(outcome.isRefused() && file.isAscii() && outcome.line == 0)
            << file.name.toStdString() << " is refused without a line";
    }
}

TEST_F(Corpus, AMappedDrawingIsTheSameAsACopiedOneAndItsFileSavedAsItWas)
{
    const QTemporaryDir folder;
    const QString saved = folder.filePath(QStringLiteral("saved.dxf"));
    // Whether a DWG file can be read depends on the programs there.
    qputenv("PATH", QByteArray());
    for (const CKvCorpusFile &file : corpusFiles()) {
        const CKvOutcome fromMemory = outcomeOf(file.bytes);
        if (fromMemory.isRefused()) {
            EXPECT_EQ(fromMemory.isRefusedLate, false) << file.name.toStdString();
            EXPECT_THROW(CKvDrawingFile::open(file.path, CKvFileImage::Holding::Mapped),
                         CKvDxfError);
            continue;
        }

        const OdDbDatabasePtr mapped =
            CKvDrawingFile::open(file.path, CKvFileImage::Holding::Mapped);
        const CKvWalkResult walk = walkDrawing(*mapped);

        EXPECT_EQ(walk.records, fromMemory.walk.records) << file.name.toStdString();
        EXPECT_EQ(walk.dictionaries, fromMemory.walk.dictionaries) << file.name.toStdString();
        EXPECT_EQ(walk.xrecords, fromMemory.walk.xrecords) << file.name.toStdString();
        EXPECT_EQ(walk.entities, fromMemory.walk.entities) << file.name.toStdString();
        CKvDrawingFile::save(*mapped, saved);
        EXPECT_TRUE(contentOf(saved) == file.bytes) << file.name.toStdString();
        EXPECT_EQ(mapped->getFilename().toQString().toStdString(), file.path.toStdString());
    }
}

TEST_F(Corpus, AnEditedDrawingLoadsAgainWithoutNewComplaints)
{
    for (const CKvCorpusFile &file : corpusFiles()) {
        const CKvOutcome before = outcomeOf(file.bytes);

        const CKvOutcome after = outcomeAfterEditing(file.bytes);

        EXPECT_EQ(after.fault.toStdString(), "") << file.name.toStdString();
        EXPECT_EQ(after.error.toStdString(), before.error.toStdString()) << file.name.toStdString();
        EXPECT_LE(after.warnings.size(), before.warnings.size())
            << file.name.toStdString() << '\n'
            << after.warnings.join(QLatin1Char('\n')).toStdString();
        EXPECT_EQ(after.walk.entities, before.walk.entities) << file.name.toStdString();
    }
}
