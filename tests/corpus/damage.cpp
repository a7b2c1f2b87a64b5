// SPDX-License-Identifier: MIT
#include "damage.h"

#include <algorithm>
#include <random>

namespace
{

using Tags = std::vector<CKvRawTag>;

bool isHandleCode(const QByteArray &code)
{
    const int number = code.trimmed().toInt();
    return number == 5 || number == 105 || (number >= 320 && number <= 369);
}

int lineCount(const QByteArray &drawing)
{
    return drawing.count('\n');
}

} // namespace

QByteArray withEachTag(const QByteArray &drawing,
                       const std::function<void(const CKvRawTag &, Tags &)> &change)
{
    QByteArray changed;
    changed.reserve(drawing.size());
    Tags written;
    int at = 0;
    while (at < drawing.size()) {
        const int codeEnd = drawing.indexOf('\n', at);
        const int valueEnd = codeEnd < 0 ? -1 : drawing.indexOf('\n', codeEnd + 1);
        if (valueEnd < 0) {
            break;
        }
        written.clear();
        change({ drawing.mid(at, codeEnd - at), drawing.mid(codeEnd + 1, valueEnd - codeEnd - 1) },
               written);
        for (const CKvRawTag &tag : written) {
            // One after the other: a sum would be appended into memory of just its size.
            changed += tag.code;
            changed += '\n';
            changed += tag.value;
            changed += '\n';
        }
        at = valueEnd + 1;
    }
    // A last line without an end is no whole tag; change decides about whole ones only.
    return changed + drawing.mid(at);
}

QByteArray withCarriageReturns(const QByteArray &drawing)
{
    return QByteArray(drawing).replace("\r\n", "\n").replace("\n", "\r\n");
}

QByteArray withBlanksAroundEveryCode(const QByteArray &drawing)
{
    return withEachTag(drawing, [](const CKvRawTag &tag, Tags &written) {
        written.push_back({ " \t " + tag.code.trimmed() + " \t", tag.value });
    });
}

QByteArray withBareCodes(const QByteArray &drawing)
{
    return withEachTag(drawing, [](const CKvRawTag &tag, Tags &written) {
        written.push_back({ tag.code.trimmed(), tag.value });
    });
}

QByteArray withCommentsBeforeEveryObject(const QByteArray &drawing)
{
    return withEachTag(drawing, [](const CKvRawTag &tag, Tags &written) {
        if (tag.code.trimmed() == "0") {
            written.push_back({ "999", "a comment" });
        }
        written.push_back(tag);
    });
}

QByteArray withLowerCaseHandles(const QByteArray &drawing)
{
    return withEachTag(drawing, [](const CKvRawTag &tag, Tags &written) {
        const QByteArray value = isHandleCode(tag.code) ? tag.value.toLower() : tag.value;
        written.push_back({ tag.code, value });
    });
}

QByteArray truncated(const QByteArray &drawing, int part)
{
    return drawing.left(int(qint64(drawing.size()) * part / 1000));
}

QByteArray withoutALine(const QByteArray &drawing, int part)
{
    int at = 0;
    for (int line = lineCount(drawing) * part / 1000; line > 0; --line) {
        at = drawing.indexOf('\n', at) + 1;
    }
    return QByteArray(drawing).remove(at, drawing.indexOf('\n', at) + 1 - at);
}

QByteArray withTextForACode(const QByteArray &drawing, int part)
{
    int left = lineCount(drawing) / 2 * part / 1000;
    return withEachTag(drawing, [&left](const CKvRawTag &tag, Tags &written) {
        written.push_back({ left-- == 0 ? QByteArray("code") : tag.code, tag.value });
    });
}

QByteArray withoutSectionEnds(const QByteArray &drawing)
{
    return withEachTag(drawing, [](const CKvRawTag &tag, Tags &written) {
        if (!tag.is("0", "ENDSEC")) {
            written.push_back(tag);
        }
    });
}

QByteArray withoutTableEnds(const QByteArray &drawing)
{
    return withEachTag(drawing, [](const CKvRawTag &tag, Tags &written) {
        if (!tag.is("0", "ENDTAB")) {
            written.push_back(tag);
        }
    });
}

QByteArray withoutEofMark(const QByteArray &drawing)
{
    int kept = 0;
    bool isBehind = false;
    withEachTag(drawing, [&](const CKvRawTag &tag, Tags &) {
        isBehind = isBehind || tag.is("0", "EOF");
        kept += isBehind ? 0 : tag.code.size() + tag.value.size() + 2;
    });
    return drawing.left(kept);
}

QByteArray withTableCounts(const QByteArray &drawing, const QByteArray &count)
{
    bool isTable = false;
    return withEachTag(drawing, [&](const CKvRawTag &tag, Tags &written) {
        if (tag.code.trimmed() == "0") {
            isTable = tag.value.trimmed() == "TABLE";
        }
        const bool isCount = isTable && tag.code.trimmed() == "70";
        written.push_back({ tag.code, isCount ? count : tag.value });
    });
}

QByteArray
withValues(const QByteArray &drawing, int firstCode, int lastCode, const QByteArray &value)
{
    return withEachTag(drawing, [&](const CKvRawTag &tag, Tags &written) {
        const int code = tag.code.trimmed().toInt();
        const bool isMeant = code >= firstCode && code <= lastCode;
        written.push_back({ tag.code, isMeant ? value : tag.value });
    });
}

QByteArray withObjectsThatHoldThemselves(const QByteArray &drawing)
{
    QByteArray own = "0";
    return withEachTag(drawing, [&](const CKvRawTag &tag, Tags &written) {
        const QByteArray code = tag.code.trimmed();
        if (code == "5" || code == "105") {
            own = tag.value;
            written.push_back(tag);
            written.push_back({ "102", "{ACAD_XDICTIONARY" });
            written.push_back({ "360", own });
            written.push_back({ "102", "}" });
            return;
        }
        const bool isPointer = code == "330" || code == "350" || code == "360";
        written.push_back({ tag.code, isPointer ? own : tag.value });
    });
}

QByteArray withOtherBytes(const QByteArray &drawing, unsigned seed)
{
    // What breaks readers more often than bytes by mere chance.
    static const QByteArray s_odd("\n\r\0 09-.{}\\\xff\x1a", 14);
    std::mt19937 random(seed);
    QByteArray changed = drawing;
    for (unsigned i = 0; i < 1 + seed % 8 && !changed.isEmpty(); ++i) {
        const int at = int(random() % unsigned(changed.size()));
        const char byte = random() % 2 == 0 ? s_odd.at(int(random() % unsigned(s_odd.size())))
                                            : char(random() & 0xff);
        switch (random() % 3) {
        case 0:
            changed[at] = byte;
            break;
        case 1:
            changed.insert(at, byte);
            break;
        default:
            changed.remove(at, int(random() % 40));
        }
    }
    return changed;
}
