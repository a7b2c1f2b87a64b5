// SPDX-License-Identifier: MIT
#include "CKvSectionReader.h"

#include "CKvDxfError.h"

#include <utility>

namespace
{

constexpr std::string_view kControlGroupEnd = "}";
constexpr int kMostWarnings = 100;

/// Notes what an outline tells, tag by tag.
class CKvOutlineScan
{
public:
    explicit CKvOutlineScan(CKvObjectOutline &outline)
        : m_outline(outline)
        // Of a dimension style group 5 is an arrow block.
        , m_handleCode(outline.type == "DIMSTYLE" ? 105 : 5)
    {
    }
    void note(const CKvTag &tag)
    {
        const int code = tag.code;
        // Most groups are coordinates and texts, and tell nothing here.
        const bool isPlain = (code > 8 && code < 67) || (code > 67 && code < 100);
        if (isPlain || m_isExtended) {
            return;
        }
        if (code >= 320) {
            m_isExtended = code == 1001;
            m_outline.hasPointers = m_outline.hasPointers || m_isExtended || isPointer(code);
        }
        if (code == 102) {
            m_isInBraces = tag.word() != kControlGroupEnd;
        } else if (code == 100) {
            m_subclasses += m_isInBraces ? 0 : 1;
        } else if (code == 67) {
            m_outline.isInPaperSpace = tag.integer() != 0;
        } else if (code == m_handleCode && !m_hasHandle && !m_isInBraces) {
            m_outline.handle = tag.handle();
            m_hasHandle = true;
        } else if (code == 330 && m_outline.owner == 0 && !m_isInBraces) {
            m_outline.owner = tag.handle();
        } else if (code == 8 && isCommon()) {
            m_outline.layer = tag.value;
        } else if (code == 6 && isCommon()) {
            m_outline.lineStyle = tag.value;
        } else if (code == 101) {
            m_isEmbedded = true;
        }
    }

private:
    static bool isPointer(int code)
    {
        return code < 330 || (code >= 340 && code < 370) || (code >= 390 && code < 400)
            || code == 480 || code == 481;
    }
    /// In the part that all entities have.
    bool isCommon() const { return m_subclasses < 2 && !m_isInBraces && !m_isEmbedded; }

    CKvObjectOutline &m_outline;
    int m_handleCode;
    int m_subclasses = 0;
    bool m_hasHandle = false;
    bool m_isEmbedded = false;
    bool m_isInBraces = false;
    bool m_isExtended = false;
};

/// True when the first line has more than the one carriage return before its line feed.
bool holdsCarriageReturn(std::string_view bytes)
{
    return trimmed(bytes.substr(0, bytes.find('\n'))).find('\r') != std::string_view::npos;
}

/// @return the line before offset as a view without blanks, and moves offset to its begin.
std::string_view lineBefore(std::string_view bytes, std::size_t &offset)
{
    if (offset == 0) {
        return {};
    }
    const std::size_t lineEnd = offset - 1;
    const std::size_t before =
        lineEnd == 0 ? std::string_view::npos : bytes.rfind('\n', lineEnd - 1);
    offset = before == std::string_view::npos ? 0 : before + 1;
    return trimmed(bytes.substr(offset, lineEnd - offset));
}

/// @param lineBegin receives where the line with the name begins.
std::size_t asciiSectionBegin(std::string_view bytes,
                              std::size_t nameAt,
                              std::size_t nameSize,
                              std::size_t &lineBegin)
{
    const std::size_t newline =
        nameAt == 0 ? std::string_view::npos : bytes.rfind('\n', nameAt - 1);
    if (newline == std::string_view::npos) {
        lineBegin = 0;
        return std::string_view::npos;
    }
    lineBegin = newline + 1;
    std::size_t offset = lineBegin;
    const std::size_t lineEnd = std::min(bytes.find('\n', nameAt), bytes.size());
    const std::string_view line = trimmed(bytes.substr(offset, lineEnd - offset));
    const bool isMark = line.size() == nameSize && lineBefore(bytes, offset) == "2"
        && lineBefore(bytes, offset) == "SECTION" && lineBefore(bytes, offset) == "0";
    return isMark ? offset : std::string_view::npos;
}

} // namespace

CKvSectionReader::CKvSectionReader(CKvFileImagePtr image,
                                   CKvTagForm form,
                                   std::size_t begin,
                                   std::size_t end,
                                   QStringList *warnings)
    : m_image(std::move(image))
    , m_reader(m_image->bytes().substr(0, end), form, begin)
    , m_end(end)
    , m_warnings(warnings)
    , m_endOfSections(end)
{
}

void CKvSectionReader::fail(std::size_t offset, const QString &reason) const
{
    if (m_reader.tag().form != CKvTagForm::Ascii) {
        throw CKvDxfError(
            m_image->path(), 0, QStringLiteral("byte %1: %2").arg(offset).arg(reason));
    }
    throw CKvDxfError(m_image->path(), m_image->lineAt(offset), reason);
}

void CKvSectionReader::warn(std::size_t offset, const QString &reason) const
{
    // Each warning looks for its line; a million of them are no use to anybody.
    if (m_warnings->size() >= kMostWarnings) {
        return;
    }
    if (m_warnings->size() == kMostWarnings - 1) {
        m_warnings->append(QStringLiteral("There are more warnings; they are left out."));
        return;
    }
    if (m_reader.tag().form != CKvTagForm::Ascii) {
        m_warnings->append(QStringLiteral("byte %1: %2").arg(offset).arg(reason));
    } else {
        m_warnings->append(QStringLiteral("line %1: %2").arg(m_image->lineAt(offset)).arg(reason));
    }
}

bool CKvSectionReader::endOfBytes()
{
    switch (m_reader.fault()) {
    case CKvTagReader::Fault::CodeIsNoNumber:
        fail(
            m_reader.position(),
            holdsCarriageReturn(m_image->bytes().substr(m_reader.position()))
                ? QStringLiteral("A carriage return stands here without a line feed, which ends no "
                                 "line of a drawing.")
                : QStringLiteral("A group code must stand here, a whole number."));
    case CKvTagReader::Fault::ValueMissing:
        fail(m_reader.position(),
             QStringLiteral("The file ends within a group: its value is missing."));
    case CKvTagReader::Fault::None:
        break;
    }
    m_isAtEnd = true;
    return false;
}

void CKvSectionReader::endAtEof()
{
    m_hasSeenEof = true;
    m_endOfSections = m_reader.tag().begin;
    m_isAtEnd = true;
    const std::size_t behind = m_reader.position();
    if (!trimmed(m_image->bytes().substr(behind, m_end - behind)).empty()) {
        warn(behind,
             QStringLiteral("There are bytes behind the EOF mark; they are kept and not read."));
    }
}

void CKvSectionReader::endWithoutEof()
{
    if (m_end == m_image->bytes().size()) {
        warn(m_end, QStringLiteral("The EOF mark is missing."));
    }
}

bool CKvSectionReader::nextSection()
{
    CKvObjectOutline rest;
    while (m_isInSection && nextObject(rest)) { }
    while (!m_isAtEnd) {
        if (!m_hasPending && !advance()) {
            endWithoutEof();
            return false;
        }
        m_hasPending = false;
        const CKvTag tag = m_reader.tag();
        if (tag.code != 0) {
            if (tag.code != 999) {
                warn(tag.begin,
                     QStringLiteral(
                         "A group stands outside of all sections; it is kept and not read."));
                while (advance() && m_reader.tag().code != 0) { }
                m_hasPending = !m_isAtEnd;
            }
            continue;
        }
        const std::string_view type = tag.word();
        if (type == "EOF") {
            endAtEof();
            return false;
        }
        if (type != "SECTION") {
            warn(tag.begin,
                 type == "ENDSEC"
                     ? QStringLiteral("A section ends that has not begun.")
                     : QStringLiteral(
                         "An object stands outside of all sections; it is kept and not read."));
            while (advance() && m_reader.tag().code != 0) { }
            m_hasPending = !m_isAtEnd;
            continue;
        }
        m_sectionBegin = tag.begin;
        if (!advance() || m_reader.tag().code != 2) {
            fail(tag.end, QStringLiteral("The name of the section is missing."));
        }
        m_sectionName = m_reader.tag().word();
        m_contentBegin = m_reader.position();
        m_isInSection = true;
        return true;
    }
    return false;
}

bool CKvSectionReader::skipToFirstObject()
{
    while (advance()) {
        if (m_reader.tag().code == 0) {
            m_hasPending = true;
            return true;
        }
    }
    return false;
}

bool CKvSectionReader::endSection(std::size_t offset)
{
    m_contentEnd = offset;
    m_isInSection = false;
    m_isLastSectionOpen = !m_reader.tag().isWord(0, "ENDSEC");
    if (m_isLastSectionOpen) {
        warn(offset, QStringLiteral("The section before is not closed."));
    }
    return false;
}

bool CKvSectionReader::endSectionWithRange()
{
    // Behind a range stands the next section; behind the file stands nothing.
    if (m_end == m_image->bytes().size()) {
        fail(m_end, QStringLiteral("The file ends within a section."));
    }
    return endSection(m_end);
}

bool CKvSectionReader::nextObject(CKvObjectOutline &outline)
{
    if (!m_hasPending && !skipToFirstObject()) {
        return endSectionWithRange();
    }
    const std::size_t begin = m_reader.tag().begin;
    const std::string_view type = m_reader.tag().word();
    if (type == "ENDSEC" || type == "SECTION" || type == "EOF") {
        m_hasPending = type != "ENDSEC";
        return endSection(begin);
    }
    outline = CKvObjectOutline();
    outline.begin = begin;
    outline.type = type;
    CKvOutlineScan scan(outline);
    while (advance()) {
        if (m_reader.tag().code == 0) {
            outline.end = m_reader.tag().begin;
            m_hasPending = true;
            return true;
        }
        scan.note(m_reader.tag());
    }
    if (m_end == m_image->bytes().size()) {
        fail(m_end, QStringLiteral("The file ends within a section."));
    }
    outline.end = m_end;
    m_hasPending = false;
    return true;
}

std::size_t
findSectionFromEnd(std::string_view bytes, CKvTagForm form, std::string_view name, std::size_t from)
{
    if (form != CKvTagForm::Ascii) {
        std::string mark;
        const std::string_view code = form == CKvTagForm::BinaryShortCodes
            ? std::string_view("\2", 1)
            : std::string_view("\2\0", 2);
        const std::string_view zero = form == CKvTagForm::BinaryShortCodes
            ? std::string_view("\0", 1)
            : std::string_view("\0\0", 2);
        mark.append(zero).append("SECTION").append(1, '\0').append(code).append(name).append(1,
                                                                                             '\0');
        const std::size_t found = bytes.rfind(mark);
        return found == std::string_view::npos || found < from ? std::string_view::npos : found;
    }
    std::size_t at = bytes.size();
    while (at > from) {
        at = bytes.rfind(name, at - 1);
        if (at == std::string_view::npos || at < from) {
            return std::string_view::npos;
        }
        std::size_t lineBegin = 0;
        const std::size_t begin = asciiSectionBegin(bytes, at, name.size(), lineBegin);
        if (begin != std::string_view::npos && begin >= from) {
            return begin;
        }
        // A line with anything else in it is no mark, however often it has the name.
        at = lineBegin;
    }
    return std::string_view::npos;
}
