// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>
#include <string_view>

class QTextCodec;

/// Turns the text values of one drawing into QString and back. Before R2007 (AC1021) the bytes are
/// in the code page of $DWGCODEPAGE, from then on in UTF-8; \U+XXXX and \M+nXXXX are decoded in
/// both.
class CKvTextCodec
{
public:
    /// UTF-8.
    CKvTextCodec() = default;
    /// @param version value of $ACADVER, empty when missing (then R12).
    /// @param codePage value of $DWGCODEPAGE, in any case; an unknown one is 1252.
    static CKvTextCodec forDrawing(std::string_view version, std::string_view codePage);

    /// Bytes that the encoding does not know become U+FFFD.
    QString decode(std::string_view bytes) const;
    /// What the encoding does not have becomes \U+XXXX (UTF-16 units).
    std::string encode(const QString &text) const;

    friend bool operator==(const CKvTextCodec &a, const CKvTextCodec &b)
    {
        return a.m_codec == b.m_codec;
    }

private:
    /// Null for UTF-8. Not owned: Qt keeps its codecs.
    QTextCodec *m_codec = nullptr;
};
