// SPDX-License-Identifier: MIT
#include "CKvTextCodec.h"

#include "codePages.h"

#include <QTextCodec>

#include <algorithm>
#include <array>

namespace
{

// Longer than any text of a drawing; what a damaged file makes longer is cut before a QString
// would overflow.
constexpr std::size_t kLongestText = 0x10000000;
constexpr int kHexDigits = 4;
// Length of "\U+" and of "\M+n".
constexpr int kUnicodeMark = 3;
constexpr int kMultibyteMark = 4;
// The code pages that \M+1 to \M+5 stand for.
constexpr std::array<int, 5> kMultibytePages = { 932, 950, 949, 1361, 936 };

bool isAscii(QChar character)
{
    return character.unicode() < 0x80;
}

// @return the number that the digits from there give, -1 when they are not all digits.
int hexAt(const QString &text, int from)
{
    if (text.size() - from < kHexDigits) {
        return -1;
    }
    int number = 0;
    for (int i = from; i < from + kHexDigits; ++i) {
        const int unit = text.at(i).unicode();
        const int lower = unit | 0x20;
        if (unit >= '0' && unit <= '9') {
            number = number * 16 + unit - '0';
        } else if (lower >= 'a' && lower <= 'f') {
            number = number * 16 + lower - 'a' + 10;
        } else {
            return -1;
        }
    }
    return number;
}

bool isUnicodeEscape(const QString &text, int at)
{
    return text.midRef(at, kUnicodeMark) == QLatin1String("\\U+")
        && hexAt(text, at + kUnicodeMark) >= 0;
}

bool isMultibyteEscape(const QString &text, int at)
{
    if (text.midRef(at, kUnicodeMark) != QLatin1String("\\M+")
        || text.size() - at <= kUnicodeMark) {
        return false;
    }
    const int page = text.at(at + kUnicodeMark).unicode() - '0';
    return page >= 1 && page <= int(kMultibytePages.size())
        && hexAt(text, at + kMultibyteMark) >= 0;
}

// @return the character of the escape, or its own text when the code page has no such character.
QString multibyteCharacter(const QString &text, int at)
{
    QString escape = text.mid(at, kMultibyteMark + kHexDigits);
    const int page = escape.at(kUnicodeMark).unicode() - '1';
    const QTextCodec *codec = codecForCodePage(kMultibytePages[std::size_t(page)]);
    if (!codec) {
        return escape;
    }
    const int number = hexAt(escape, kMultibyteMark);
    std::string bytes;
    if (number > 0xff) {
        bytes += char(number >> 8);
    }
    bytes += char(number & 0xff);
    QString character = decodeWith(*codec, bytes);
    const bool isOne = character.size() == 1 && character.at(0) != QChar::ReplacementCharacter;
    return isOne ? character : escape;
}

QString withoutEscapes(const QString &text)
{
    int backslash = text.indexOf(QLatin1Char('\\'));
    if (backslash < 0) {
        return text;
    }
    QString result;
    result.reserve(text.size());
    int done = 0;
    while (backslash >= 0) {
        result.append(text.midRef(done, backslash - done));
        if (isUnicodeEscape(text, backslash)) {
            result += QChar(hexAt(text, backslash + kUnicodeMark));
            done = backslash + kUnicodeMark + kHexDigits;
        } else if (isMultibyteEscape(text, backslash)) {
            result += multibyteCharacter(text, backslash);
            done = backslash + kMultibyteMark + kHexDigits;
        } else {
            result += QLatin1Char('\\');
            done = backslash + 1;
        }
        backslash = text.indexOf(QLatin1Char('\\'), done);
    }
    result.append(text.midRef(done));
    return result;
}

QString decodeUtf8(std::string_view bytes)
{
    const QString text = QString::fromUtf8(bytes.data(), int(bytes.size()));
    // A mark of the byte order is taken away there, but within a drawing it is a character.
    const bool hadMark = bytes.substr(0, 3) == "\xef\xbb\xbf";
    return hadMark ? QChar(QChar::ByteOrderMark) + text : text;
}

// What would end the line, or the text of a binary file.
bool breaksTheFile(QChar character)
{
    const ushort unit = character.unicode();
    return unit == 0 || unit == '\n' || unit == '\r';
}

std::string escaped(const QString &character)
{
    std::string escapes;
    for (const QChar unit : character) {
        const QString digits = QString::number(unit.unicode(), 16).toUpper();
        escapes += "\\U+" + digits.rightJustified(kHexDigits, QLatin1Char('0')).toStdString();
    }
    return escapes;
}

// @return the bytes that decode to this very character, empty when there are none.
QByteArray bytesOf(const QTextCodec *codec, const QString &character)
{
    if (!codec) {
        const bool isWhole = character.size() == 2 || !character.at(0).isSurrogate();
        return isWhole ? character.toUtf8() : QByteArray();
    }
    const QByteArray bytes = codec->fromUnicode(character);
    // Pure ASCII is read without the codec, so an ASCII byte stands for nothing but itself. Pages
    // of old PCs exchange some control characters.
    const bool isAsciiByte = bytes.size() == 1 && uchar(bytes.at(0)) < 0x80;
    if (isAsciiByte && uchar(bytes.at(0)) != character.at(0).unicode()) {
        return {};
    }
    const std::string_view view(bytes.constData(), std::size_t(bytes.size()));
    return decodeWith(*codec, view) == character ? bytes : QByteArray();
}

// @return the character at this place, both its units when it has two.
QString characterAt(const QString &text, int at)
{
    const bool isPair =
        text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    return text.mid(at, isPair ? 2 : 1);
}

} // namespace

CKvTextCodec CKvTextCodec::forDrawing(std::string_view version, std::string_view codePage)
{
    constexpr std::string_view kFirstWithUtf8 = "AC1021";
    const bool isVersion = version.size() == kFirstWithUtf8.size() && version.substr(0, 3) == "AC1"
        && version.find_first_not_of("0123456789", 3) == std::string_view::npos;
    CKvTextCodec codec;
    if (!isVersion || version < kFirstWithUtf8) {
        codec.m_codec = codecForCodePageName(codePage);
    }
    return codec;
}

QString CKvTextCodec::decode(std::string_view bytes) const
{
    const std::string_view text = bytes.substr(0, kLongestText);
    bool hasHighBytes = false;
    bool hasBackslash = false;
    for (const char byte : text) {
        hasHighBytes = hasHighBytes || static_cast<unsigned char>(byte) >= 0x80;
        hasBackslash = hasBackslash || byte == '\\';
    }
    // Most names are plain; a codec would cost more than all the rest of reading them.
    QString decoded;
    if (!hasHighBytes) {
        decoded = QString::fromLatin1(text.data(), int(text.size()));
    } else if (m_codec) {
        decoded = decodeWith(*m_codec, text);
    } else {
        decoded = decodeUtf8(text);
    }
    // Behind the code page: the second byte of a Japanese or Chinese character may look like a
    // backslash.
    return hasHighBytes || hasBackslash ? withoutEscapes(decoded) : decoded;
}

// A text that holds the characters of an escape must not turn into what the escape stands for when
// it is read again. So its backslash is written as an escape of its own: "\U+00E4" as such becomes
// "\U+005CU+00E4". Reading goes over the text once and does not look at what an escape gave, so
// every text comes back as it was, halves of surrogate pairs included.
std::string CKvTextCodec::encode(const QString &text) const
{
    const bool isPlain = std::all_of(text.begin(), text.end(), [](QChar character) {
        return isAscii(character) && character != QLatin1Char('\\') && !breaksTheFile(character);
    });
    if (isPlain) {
        return text.toStdString();
    }
    std::string encoded;
    for (int i = 0; i < text.size();) {
        const QString character = characterAt(text, i);
        const QByteArray bytes = bytesOf(m_codec, character);
        const bool needsEscape = bytes.isEmpty() || breaksTheFile(character.at(0))
            || isUnicodeEscape(text, i) || isMultibyteEscape(text, i);
        if (needsEscape) {
            encoded += escaped(character);
        } else {
            encoded.append(bytes.constData(), std::size_t(bytes.size()));
        }
        i += character.size();
    }
    return encoded;
}
