// SPDX-License-Identifier: MIT
#pragma once

#include "CKvFileImage.h"
#include "CKvTagReader.h"

#include <QStringList>

#include <optional>
#include <string_view>

/// Where an object stands in the file, and what a walk over many has to know of each.
struct CKvObjectOutline {
    /// From its group 0 to the next.
    std::size_t begin = 0;
    std::size_t end = 0;
    /// The word behind group 0.
    std::string_view type;
    /// Group 5, or 105; 0 when there is none or no hexadecimal one.
    std::uint64_t handle = 0;
    /// The first 330 outside of groups in braces.
    std::uint64_t owner = 0;
    /// Group 67 is not 0.
    bool isInPaperSpace = false;
    /// The last groups 8 and 6 before the second subclass mark.
    std::optional<std::string_view> layer;
    std::optional<std::string_view> lineStyle;
    /// There is a group of handles other than the own one and owners, or extended data.
    bool hasPointers = false;
};

/// Takes a file apart into sections and objects. What is tolerated is told as a warning, what is
/// not throws CKvDxfError with the line.
class CKvSectionReader
{
public:
    /// @param warnings receives "line N: reason"; must outlive the reader.
    CKvSectionReader(CKvFileImagePtr image,
                     CKvTagForm form,
                     std::size_t begin,
                     std::size_t end,
                     QStringList *warnings);

    /// Goes to the next section, past what is left of the one before.
    /// @return false at the end of the bytes or at the EOF mark.
    bool nextSection();
    /// The word behind SECTION.
    std::string_view sectionName() const { return m_sectionName; }
    /// Offset of the group 0 with which the section begins, and of the first tag behind its name.
    std::size_t sectionBegin() const { return m_sectionBegin; }
    std::size_t contentBegin() const { return m_contentBegin; }
    /// Offset of the group 0 that ended the section, once nextObject gave false.
    std::size_t contentEnd() const { return m_contentEnd; }

    /// Reads the next object of the section.
    /// @return false at its end.
    bool nextObject(CKvObjectOutline &outline);
    /// Ends the section where the reader stands; the bytes behind are read by somebody else.
    void leaveSection() { m_isInSection = false; }

    std::size_t position() const { return m_reader.position(); }
    /// Offset behind the bytes that are read.
    std::size_t end() const { return m_end; }
    bool hasSeenEof() const { return m_hasSeenEof; }
    /// The EOF mark, or the next section, stands where the section that was read last should end.
    bool isLastSectionOpen() const { return m_isLastSectionOpen; }
    /// Offset of the EOF mark, or of the end of the bytes where it is missing.
    std::size_t endOfSections() const { return m_endOfSections; }

    /// @throws CKvDxfError for the place.
    [[noreturn]] void fail(std::size_t offset, const QString &reason) const;
    void warn(std::size_t offset, const QString &reason) const;

private:
    /// Reads the next tag.
    /// @return false at the end of the bytes.
    /// @throws CKvDxfError at what is no tag.
    bool advance() { return m_reader.next() || endOfBytes(); }
    bool endOfBytes();
    bool skipToFirstObject();
    bool endSection(std::size_t offset);
    bool endSectionWithRange();
    void endAtEof();
    void endWithoutEof();

    CKvFileImagePtr m_image;
    CKvTagReader m_reader;
    std::size_t m_end;
    QStringList *m_warnings;
    std::string_view m_sectionName;
    std::size_t m_sectionBegin = 0;
    std::size_t m_contentBegin = 0;
    std::size_t m_contentEnd = 0;
    std::size_t m_endOfSections;
    /// m_reader.tag() is a group 0 that nobody has dealt with yet.
    bool m_hasPending = false;
    bool m_isInSection = false;
    bool m_isLastSectionOpen = false;
    bool m_hasSeenEof = false;
    bool m_isAtEnd = false;
};

/// Searches a section from the end of the bytes by its mark: the lines 0, SECTION, 2 and its name
/// can't stand anywhere else, since a value there would put text where a group code must be.
/// @return offset of its group 0, or npos.
std::size_t findSectionFromEnd(std::string_view bytes,
                               CKvTagForm form,
                               std::string_view name,
                               std::size_t from);
