// SPDX-License-Identifier: MIT
#include "codePages.h"

#include "CKvJohabCodec.h"

#include <QTextCodec>

#include <array>

namespace
{

constexpr int kWestern = 1252;
constexpr int kUtf8 = 65001;

struct NamedPage {
    const char *name;
    int number;
};

// Names without their separators. 1200 is UTF-16, which no file of bytes is written in.
constexpr std::array<NamedPage, 12> kNamedPages = { {
    { "ascii", kWestern },
    { "undefined", kWestern },
    { "macroman", 10000 },
    { "macintosh", 10000 },
    { "gb2312", 936 },
    { "gbk", 936 },
    { "big5", 950 },
    { "johab", 1361 },
    { "ksc5601", 949 },
    { "utf8", kUtf8 },
    { "ansi1200", kUtf8 },
    { "latin1", 28591 },
} };

// Numbers behind these words are those of a code page.
constexpr std::array<const char *, 5> kPageWords = { "ansi", "dos", "cp", "windows", "ibm" };

// The names of a page's codec, the best one first; Qt has other ones where it is built without ICU.
struct CodecName {
    int number;
    const char *name;
};
constexpr std::array<CodecName, 9> kCodecNames = { {
    { 874, "windows-874" },
    { 874, "TIS-620" },
    { 932, "Shift_JIS" },
    { 936, "GBK" },
    { 949, "windows-949" },
    { 949, "cp949" },
    { 950, "Big5" },
    { 10000, "macintosh" },
    { 10000, "Apple Roman" },
} };

QString withoutSeparators(std::string_view name)
{
    QString kept;
    for (const char byte : name) {
        const bool isSeparator = byte == '_' || byte == '-' || byte == ' ' || byte == '\t';
        if (!isSeparator) {
            kept += QChar(QLatin1Char(byte)).toLower();
        }
    }
    return kept;
}

// @return the number of the page, 0 for none that is known.
int numberOfName(const QString &name)
{
    for (const NamedPage &page : kNamedPages) {
        if (name == QLatin1String(page.name)) {
            return page.number;
        }
    }
    const QLatin1String iso("iso8859");
    if (name.startsWith(iso)) {
        const int number = name.midRef(iso.size()).toInt();
        return number >= 1 && number <= 16 ? 28590 + number : 0;
    }
    for (const char *word : kPageWords) {
        const QLatin1String prefix(word);
        if (name.startsWith(prefix)) {
            return name.midRef(prefix.size()).toInt();
        }
    }
    return 0;
}

// A reader that takes bytes below 128 for ASCII must be right about what names are made of.
bool keepsAsciiInPlace(const QTextCodec &codec)
{
    constexpr std::string_view kSigns = "\\+-_ $0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                        "abcdefghijklmnopqrstuvwxyz";
    return decodeWith(codec, kSigns) == QLatin1String(kSigns.data(), int(kSigns.size()));
}

} // namespace

QTextCodec *codecForCodePage(int number)
{
    if (number == 1361) {
        return CKvJohabCodec::instance();
    }
    for (const CodecName &codecName : kCodecNames) {
        if (codecName.number == number) {
            if (QTextCodec *codec = QTextCodec::codecForName(codecName.name)) {
                return codec;
            }
        }
    }
    if (number >= 28591 && number <= 28606) {
        return QTextCodec::codecForName("ISO-8859-" + QByteArray::number(number - 28590));
    }
    if (number >= 1250 && number <= 1258) {
        return QTextCodec::codecForName("windows-" + QByteArray::number(number));
    }
    return QTextCodec::codecForName("IBM" + QByteArray::number(number));
}

QTextCodec *codecForCodePageName(std::string_view name)
{
    const int number = numberOfName(withoutSeparators(name));
    if (number == kUtf8) {
        return nullptr;
    }
    QTextCodec *codec = number > 0 ? codecForCodePage(number) : nullptr;
    return codec && keepsAsciiInPlace(*codec) ? codec : codecForCodePage(kWestern);
}

QString decodeWith(const QTextCodec &codec, std::string_view bytes)
{
    // A codec may keep half a character for later when nothing follows; a line end completes it.
    QByteArray closed(bytes.data(), int(bytes.size()));
    closed += '\n';
    QString text = codec.toUnicode(closed);
    text.chop(1);
    return text;
}
