// SPDX-License-Identifier: MIT
#include "CKvTextFont.h"

namespace
{

// Large enough that rounding to pixels does not show in the widths.
constexpr int kPixelSize = 64;

QFont madeFont(const QString &family, bool isBold, bool isItalic)
{
    QFont font(family.isEmpty() ? QStringLiteral("sans-serif") : family);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(kPixelSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setBold(isBold);
    font.setItalic(isItalic);
    return font;
}

} // namespace

CKvTextFont::CKvTextFont(const QString &family, bool isBold, bool isItalic)
    : m_font(madeFont(family, isBold, isItalic))
    , m_metrics(m_font)
    , m_capHeight(m_metrics.capHeight() > 0 ? m_metrics.capHeight() : kPixelSize * 0.7)
{
}

double CKvTextFont::widthOf(const QString &text) const
{
    return m_metrics.horizontalAdvance(text) / m_capHeight;
}
