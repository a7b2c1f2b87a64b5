// SPDX-License-Identifier: MIT
#include "CKvDxfError.h"
#include "gzip.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace
{

QByteArray packed(const QByteArray &bytes, int pieceSize)
{
    QByteArray result;
    CKvGzipPacker packer(
        [&](std::string_view piece) { result.append(piece.data(), int(piece.size())); });
    for (int at = 0; at < bytes.size(); at += pieceSize) {
        const int size = std::min(pieceSize, bytes.size() - at);
        packer.add({ bytes.constData() + at, std::size_t(size) });
    }
    packer.finish();
    return result;
}

std::string_view viewOf(const QByteArray &bytes)
{
    return { bytes.constData(), std::size_t(bytes.size()) };
}

// @return why the bytes can't be unpacked, empty when they can.
std::string refusal(const QByteArray &bytes)
{
    try {
        unpacked(viewOf(bytes), QStringLiteral("a.dxf.gz"));
    } catch (const CKvDxfError &error) {
        EXPECT_EQ(error.file(), QStringLiteral("a.dxf.gz"));
        return error.reason().toStdString();
    }
    return {};
}

/// Bytes that hardly get smaller.
QByteArray noise(int size)
{
    std::mt19937 random(1);
    QByteArray bytes;
    for (int i = 0; i < size; ++i) {
        bytes.append(char(random() & 0xff));
    }
    return bytes;
}

} // namespace

TEST(Gzip, WhatIsPackedComesBackWhateverThePieces)
{
    const QByteArray text = QByteArray("  8\nWALLS\n").repeated(50000);

    for (const QByteArray &bytes : { QByteArray(), QByteArray("0\n"), text, noise(300000) }) {
        for (const int pieceSize : { 1000, 1 << 20 }) {
            const QByteArray small = packed(bytes, pieceSize);

            EXPECT_TRUE(isPacked(viewOf(small)));
            EXPECT_TRUE(unpacked(viewOf(small), QString()) == bytes) << bytes.size();
        }
    }
}

TEST(Gzip, TheSameBytesArePackedIntoTheSameOnes)
{
    const QByteArray bytes = QByteArray("  0\nLINE\n").repeated(1000);

    EXPECT_EQ(packed(bytes, 10), packed(bytes, 4000));
}

TEST(Gzip, JoinedFilesAreReadOneBehindTheOtherAndZerosBehindThemPassedOver)
{
    const QByteArray joined =
        packed("0\nSECTION\n", 100) + packed("0\nEOF\n", 100) + QByteArray(512, '\0');

    EXPECT_EQ(unpacked(viewOf(joined), QString()), "0\nSECTION\n0\nEOF\n");
}

TEST(Gzip, DamageIsRefusedWithItsKind)
{
    const QByteArray sound = packed(noise(2000), 100);
    QByteArray damaged = sound;
    damaged[1000] = char(~damaged[1000]);
    const std::string beginning = "The file is packed with gzip and can't be unpacked: ";

    EXPECT_EQ(refusal(sound), "");
    EXPECT_EQ(refusal(damaged), beginning + "it is damaged.");
    EXPECT_EQ(refusal(sound.left(sound.size() - 4)), beginning + "it ends too early.");
    EXPECT_EQ(refusal(sound.left(2)), beginning + "it ends too early.");
    EXPECT_EQ(refusal(sound + "more"), beginning + "other bytes stand behind its end.");
}

TEST(Gzip, PlainTextIsNotPacked)
{
    EXPECT_FALSE(isPacked("  0\nSECTION\n"));
    EXPECT_FALSE(isPacked("\x1f"));
    EXPECT_FALSE(isPacked({}));
}

TEST(Gzip, AFileThatGrowsBeyondAllMeasureIsRefused)
{
    const QByteArray small = packed(QByteArray(1000000, '0'), 1000000);
    ASSERT_LT(small.size(), 2000);

    EXPECT_EQ(unpacked(viewOf(small), QString(), 1000000).size(), 1000000);
    EXPECT_THROW(unpacked(viewOf(small), QString(), 999999), CKvDxfError);
}
