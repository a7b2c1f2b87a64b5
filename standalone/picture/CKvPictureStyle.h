// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>
#include <QString>

#include <cstdint>
#include <tuple>
#include <vector>

/// The colour of something drawn, before it is known on which layer and in which insertion it is.
struct CKvPictureColor {
    enum class Kind : std::uint8_t { ByLayer, ByBlock, Index, Rgb };
    Kind kind = Kind::ByLayer;
    /// Colour index, or 0x00RRGGBB.
    std::uint32_t value = 0;

    friend bool operator==(const CKvPictureColor &a, const CKvPictureColor &b)
    {
        return a.kind == b.kind && a.value == b.value;
    }
};

/// How lines are drawn: what many entities share.
struct CKvPictureStyle {
    /// In place of an index into the line styles.
    static constexpr int kByLayer = -1;
    static constexpr int kByBlock = -2;

    CKvPictureColor color;
    /// Hundredths of a millimetre, or -1 by layer, -2 by block, -3 default.
    int lineWeight = -1;
    /// Index into the picture's line styles, kByLayer or kByBlock.
    int lineStyle = kByLayer;
    /// Of the entity; the drawing's own scale comes on top.
    double lineStyleScale = 1;

    friend bool operator<(const CKvPictureStyle &a, const CKvPictureStyle &b)
    {
        return a.key() < b.key();
    }

private:
    std::tuple<CKvPictureColor::Kind, std::uint32_t, int, int, double> key() const
    {
        return { color.kind, color.value, lineWeight, lineStyle, lineStyleScale };
    }
};

/// A layer as far as it shows.
struct CKvPictureLayer {
    QString name;
    CKvPictureColor color;
    int lineWeight = -3;
    /// Index into the picture's line styles.
    int lineStyle = 0;
    bool isOff = false;
    bool isFrozen = false;
    /// Layer 0: what is on it within a block takes the layer of the insertion.
    bool isZero = false;

    bool isVisible() const { return !isOff && !isFrozen; }
};

/// Dashes above 0, gaps below, dots 0; none for a continuous line. In drawing units.
struct CKvPictureLineStyle {
    QString name;
    std::vector<double> dashes;
};
