// SPDX-License-Identifier: MIT
#include "CKvSectionReader.h"

#include "CKvDxfError.h"

#include <utility>

namespace
{

constexpr std::string_view kControlGroupEnd = "}";

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

std::size_t asciiSectionBegin(std::string_view bytes, std::size_t nameAt, std::size_t nameSize)
{
    const std::size_t newline = bytes.rfind('\n', nameAt);
    if (newline == std::string_view::npos) {
        return std::string_view::npos;
    }
    std::size_t offset = newline + 1;
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
    if (m_reader.tag().form != CKvTagForm::Ascii) {
        m_warnings->append(QStringLiteral("byte %1: %2").arg(offset).arg(reason));
    } else {
        m_warnings->append(QStringLiteral("line %1: %2").arg(m_image->lineAt(offset)).arg(reason));
    }
}

bool CKvSectionReader::advance()
{
    if (m_reader.next()) {
        return true;
    }
    switch (m_reader.fault()) {
    case CKvTagReader::Fault::CodeIsNoNumber:
        fail(m_reader.position(), QStringLiteral("A group code must stand here, a whole number."));
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

void CKvSectionReader::skipToFirstObject()
{
    while (advance()) {
        if (m_reader.tag().code == 0) {
            m_hasPending = true;
            return;
        }
    }
    fail(m_end, QStringLiteral("The file ends within a section."));
}

bool CKvSectionReader::nextObject(CKvObjectOutline &outline)
{
    if (!m_hasPending) {
        skipToFirstObject();
    }
    const CKvTag start = m_reader.tag();
    const std::string_view type = start.word();
    if (type == "ENDSEC" || type == "SECTION" || type == "EOF") {
        m_contentEnd = start.begin;
        m_isInSection = false;
        m_hasPending = type != "ENDSEC";
        if (type != "ENDSEC") {
            warn(start.begin, QStringLiteral("The section before is not closed."));
        }
        return false;
    }
    outline = CKvObjectOutline();
    outline.begin = start.begin;
    outline.type = type;
    int depth = 0;
    bool hasHandle = false;
    bool isExtended = false;
    while (advance()) {
        const CKvTag &tag = m_reader.tag();
        switch (tag.code) {
        case 0:
            outline.end = tag.begin;
            m_hasPending = true;
            return true;
        case 5:
            // Of a dimension style group 5 is an arrow block, its handle is 105.
            if (!hasHandle && !isExtended && depth == 0 && type != "DIMSTYLE") {
                outline.handle = tag.handle();
                hasHandle = true;
            }
            break;
        case 105:
            if (!hasHandle && !isExtended && type == "DIMSTYLE") {
                outline.handle = tag.handle();
                hasHandle = true;
            }
            break;
        case 67:
            outline.isInPaperSpace = !isExtended && tag.integer() != 0;
            break;
        case 102:
            depth = tag.word() == kControlGroupEnd ? 0 : 1;
            break;
        case 330:
            if (depth == 0 && outline.owner == 0 && !isExtended) {
                outline.owner = tag.handle();
            }
            break;
        case 1001:
            isExtended = true;
            break;
        default:
            break;
        }
    }
    fail(m_end, QStringLiteral("The file ends within a section."));
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
        const std::size_t begin = asciiSectionBegin(bytes, at, name.size());
        if (begin != std::string_view::npos && begin >= from) {
            return begin;
        }
    }
    return std::string_view::npos;
}
