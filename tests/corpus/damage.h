// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <functional>

/// A tag of an ASCII drawing, its two lines as they stand in the file but for their line feeds.
struct CKvRawTag {
    QByteArray code;
    QByteArray value;

    bool is(const char *wantedCode, const char *wantedValue) const
    {
        return code.trimmed() == wantedCode && value.trimmed() == wantedValue;
    }
};

/// Takes a drawing apart at its line feeds, calls change for each tag in order and puts together
/// what change leaves in the list it is given: one tag, none or several.
QByteArray
withEachTag(const QByteArray &drawing,
            const std::function<void(const CKvRawTag &, std::vector<CKvRawTag> &)> &change);

/// The same drawing, spelled another way.
QByteArray withCarriageReturns(const QByteArray &drawing);
QByteArray withBlanksAroundEveryCode(const QByteArray &drawing);
QByteArray withBareCodes(const QByteArray &drawing);
QByteArray withCommentsBeforeEveryObject(const QByteArray &drawing);
QByteArray withLowerCaseHandles(const QByteArray &drawing);

/// The first bytes of a drawing.
/// @param part of 1000.
QByteArray truncated(const QByteArray &drawing, int part);
/// A line in the middle of it is missing, so that codes and values change places.
QByteArray withoutALine(const QByteArray &drawing, int part);
/// A group code reads "code".
QByteArray withTextForACode(const QByteArray &drawing, int part);
QByteArray withoutSectionEnds(const QByteArray &drawing);
QByteArray withoutTableEnds(const QByteArray &drawing);
/// Nor what stands behind it.
QByteArray withoutEofMark(const QByteArray &drawing);
/// Every table declares this many records.
QByteArray withTableCounts(const QByteArray &drawing, const QByteArray &count);
/// Every value behind the codes from first to last is this one.
QByteArray
withValues(const QByteArray &drawing, int firstCode, int lastCode, const QByteArray &value);
/// Every dictionary holds nothing but itself, and every object is its own owner and its own
/// extension dictionary.
QByteArray withObjectsThatHoldThemselves(const QByteArray &drawing);
/// Some bytes are others, by chance; the same for the same seed.
QByteArray withOtherBytes(const QByteArray &drawing, unsigned seed);
