// SPDX-License-Identifier: MIT
#include "CKvJohabCodec.h"

#include <QString>

#include <algorithm>
#include <array>

namespace
{

// The letters of the script as characters of their own, in the order of the syllables' numbers.
constexpr std::array<ushort, 19> kInitials = { 0x3131, 0x3132, 0x3134, 0x3137, 0x3138,
                                               0x3139, 0x3141, 0x3142, 0x3143, 0x3145,
                                               0x3146, 0x3147, 0x3148, 0x3149, 0x314a,
                                               0x314b, 0x314c, 0x314d, 0x314e };
constexpr std::array<ushort, 27> kFinals = { 0x3131, 0x3132, 0x3133, 0x3134, 0x3135, 0x3136, 0x3137,
                                             0x3139, 0x313a, 0x313b, 0x313c, 0x313d, 0x313e, 0x313f,
                                             0x3140, 0x3141, 0x3142, 0x3144, 0x3145, 0x3146, 0x3147,
                                             0x3148, 0x314a, 0x314b, 0x314c, 0x314d, 0x314e };
constexpr ushort kFirstVowel = 0x314f;
constexpr int kVowelCount = 21;
constexpr ushort kFirstSyllable = 0xac00;
constexpr ushort kLastSyllable = 0xd7a3;

// Five bits name a letter; some patterns are left out.
constexpr int kNoInitial = 1;
constexpr int kNoVowel = 2;
constexpr int kNoFinal = 1;
constexpr std::array<int, kVowelCount> kVowelBits = { 3,  4,  5,  6,  7,  10, 11, 12, 13, 14, 15,
                                                      18, 19, 20, 21, 22, 23, 26, 27, 28, 29 };
// The final letter 17 (0x3142) would be 18, which the code skips.
constexpr int kSkippedFinal = 18;

constexpr int initialBits(int index)
{
    return index + 2;
}
constexpr int finalBits(int index)
{
    return index + 2 < kSkippedFinal ? index + 2 : index + 3;
}

// @return the index of the letter that the bits name, or -1.
int vowelAt(int bits)
{
    const auto *found = std::find(kVowelBits.begin(), kVowelBits.end(), bits);
    return found == kVowelBits.end() ? -1 : int(found - kVowelBits.begin());
}

int finalAt(int bits)
{
    if (bits < 2 || bits == kSkippedFinal) {
        return -1;
    }
    const int index = bits < kSkippedFinal ? bits - 2 : bits - 3;
    return index < int(kFinals.size()) ? index : -1;
}

// @return the syllable or letter of a pair, 0 for none.
ushort hangulFromPair(uint pair)
{
    const int initial = int(pair >> 10 & 31) - 2;
    const bool hasInitial = initial >= 0 && initial < int(kInitials.size());
    const bool isBare = int(pair >> 10 & 31) == kNoInitial;
    const int vowel = vowelAt(int(pair >> 5 & 31));
    const bool lacksVowel = int(pair >> 5 & 31) == kNoVowel;
    const int final = finalAt(int(pair & 31));
    const bool lacksFinal = int(pair & 31) == kNoFinal;
    if (hasInitial && vowel >= 0 && (final >= 0 || lacksFinal)) {
        return ushort(kFirstSyllable + (initial * kVowelCount + vowel) * 28 + final + 1);
    }
    if (hasInitial && lacksVowel && lacksFinal) {
        return kInitials[std::size_t(initial)];
    }
    if (isBare && vowel >= 0 && lacksFinal) {
        return ushort(kFirstVowel + vowel);
    }
    if (isBare && lacksVowel && final >= 0) {
        return kFinals[std::size_t(final)];
    }
    return 0;
}

uint pairFromBits(int initial, int vowel, int final)
{
    return 0x8000U | uint(initial) << 10 | uint(vowel) << 5 | uint(final);
}

// @return the pair of a syllable or letter, 0 for any other character.
uint pairFromHangul(ushort character)
{
    if (character >= kFirstSyllable && character <= kLastSyllable) {
        const int number = character - kFirstSyllable;
        const int final = number % 28;
        return pairFromBits(initialBits(number / 28 / kVowelCount),
                            kVowelBits[std::size_t(number / 28 % kVowelCount)],
                            final == 0 ? kNoFinal : finalBits(final - 1));
    }
    const auto *initial = std::find(kInitials.begin(), kInitials.end(), character);
    if (initial != kInitials.end()) {
        return pairFromBits(initialBits(int(initial - kInitials.begin())), kNoVowel, kNoFinal);
    }
    const auto *final = std::find(kFinals.begin(), kFinals.end(), character);
    if (final != kFinals.end()) {
        return pairFromBits(kNoInitial, kNoVowel, finalBits(int(final - kFinals.begin())));
    }
    if (character >= kFirstVowel && character < kFirstVowel + kVowelCount) {
        return pairFromBits(kNoInitial, kVowelBits[std::size_t(character - kFirstVowel)], kNoFinal);
    }
    return 0;
}

// Symbols and Chinese characters stand in the order of code page 949, two of its rows of 94 to a
// first byte; the second byte leaves out what would look like an ASCII digit or a control
// character.
struct RowRange {
    uint firstLead;
    uint lastLead;
    uint firstRow;
};
constexpr RowRange kSymbols = { 0xd9, 0xde, 0xa1 };
constexpr RowRange kChinese = { 0xe0, 0xf9, 0xca };
constexpr uint kCellsInRow = 94;

// @return the pair in code page 949, 0 for none.
uint wansungFromPair(uint pair)
{
    const uint lead = pair >> 8;
    const uint trail = pair & 0xff;
    const RowRange &range = lead >= kChinese.firstLead ? kChinese : kSymbols;
    const bool isTrail = (trail >= 0x31 && trail <= 0x7e) || (trail >= 0x91 && trail <= 0xfe);
    if (lead < range.firstLead || lead > range.lastLead || !isTrail) {
        return 0;
    }
    const uint cell = trail < 0x91 ? trail - 0x31 : trail - 0x43;
    const uint row = range.firstRow + 2 * (lead - range.firstLead) + cell / kCellsInRow;
    return row << 8 | (0xa1 + cell % kCellsInRow);
}

uint pairFromWansung(uint wansung)
{
    const uint row = wansung >> 8;
    const uint trail = wansung & 0xff;
    const RowRange &range = row >= kChinese.firstRow ? kChinese : kSymbols;
    const uint lead = range.firstLead + (row - range.firstRow) / 2;
    if (row < range.firstRow || lead > range.lastLead || trail < 0xa1 || trail > 0xfe) {
        return 0;
    }
    const uint cell = (row - range.firstRow) % 2 * kCellsInRow + trail - 0xa1;
    return lead << 8 | (cell + (cell < 0x7f - 0x31 ? 0x31 : 0x43));
}

QTextCodec *wansungCodec()
{
    return QTextCodec::codecForName("windows-949");
}

ushort characterFromPair(uint pair)
{
    if (pair >= 0x8441 && pair <= 0xd3bd) {
        return hangulFromPair(pair);
    }
    const uint wansung = wansungFromPair(pair);
    QTextCodec *codec = wansungCodec();
    if (wansung == 0 || !codec) {
        return 0;
    }
    const std::array<char, 2> bytes = { char(wansung >> 8), char(wansung & 0xff) };
    const QString text = codec->toUnicode(bytes.data(), int(bytes.size()));
    const ushort character = text.size() == 1 ? text.at(0).unicode() : ushort(0);
    return character == QChar::ReplacementCharacter ? ushort(0) : character;
}

uint pairFromCharacter(QChar character)
{
    if (const uint pair = pairFromHangul(character.unicode())) {
        return pair;
    }
    QTextCodec *codec = wansungCodec();
    if (!codec) {
        return 0;
    }
    const QByteArray bytes = codec->fromUnicode(QString(character));
    if (bytes.size() != 2) {
        return 0;
    }
    return pairFromWansung(uint(uchar(bytes[0])) << 8 | uchar(bytes[1]));
}

} // namespace

QTextCodec *CKvJohabCodec::instance()
{
    static QTextCodec *const s_codec = new CKvJohabCodec;
    return s_codec;
}

QByteArray CKvJohabCodec::name() const
{
    return QByteArrayLiteral("johab");
}

int CKvJohabCodec::mibEnum() const
{
    // The registry of character sets has no number for it; this one is of Qt's private range.
    return -1361;
}

QString CKvJohabCodec::convertToUnicode(const char *bytes, int length, ConverterState *) const
{
    QString text;
    text.reserve(length);
    for (int i = 0; i < length; ++i) {
        const uint lead = uchar(bytes[i]);
        if (lead < 0x80) {
            text += QChar(lead);
            continue;
        }
        const uint trail = i + 1 < length ? uchar(bytes[i + 1]) : 0;
        const ushort character = characterFromPair(lead << 8 | trail);
        if (character == 0) {
            text += QChar(QChar::ReplacementCharacter);
            continue;
        }
        text += QChar(character);
        ++i;
    }
    return text;
}

QByteArray
CKvJohabCodec::convertFromUnicode(const QChar *text, int length, ConverterState *state) const
{
    const bool isZeroAsked = state && (state->flags & ConvertInvalidToNull);
    QByteArray bytes;
    for (int i = 0; i < length; ++i) {
        if (text[i].unicode() < 0x80) {
            bytes += char(text[i].unicode());
        } else if (const uint pair = pairFromCharacter(text[i])) {
            bytes += char(pair >> 8);
            bytes += char(pair & 0xff);
        } else {
            bytes += isZeroAsked ? '\0' : '?';
            if (state) {
                ++state->invalidChars;
            }
        }
    }
    return bytes;
}
