// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>

/// A font that texts are drawn in, measured in units of its capital height.
class CKvTextFont
{
public:
    /// @param family empty, or one that the system lacks, gives a plain one without serifs.
    CKvTextFont(const QString &family, bool isBold, bool isItalic);

    const QFont &font() const { return m_font; }
    /// Pixels of the font's capital letters.
    double capHeight() const { return m_capHeight; }
    /// Width of a line of text in units of capital height.
    double widthOf(const QString &text) const;
    bool isSame(const CKvTextFont &other) const { return m_font == other.m_font; }

private:
    QFont m_font;
    QFontMetricsF m_metrics;
    double m_capHeight;
};
