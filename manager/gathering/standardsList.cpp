// SPDX-License-Identifier: MIT
#include "standardsList.h"

#include "OdDbDatabase.h"
#include "OdDbDictionary.h"
#include "OdDbXrecord.h"

namespace
{

constexpr char kListKey[] = "AcStStandard";
/// Group code of the path, the first value of an entry.
constexpr int kPathCode = 1;

OdDbDictionaryPtr openNamedObjects(const OdDbDatabase &database, OdDb::OpenMode mode)
{
    return OdDbDictionaryPtr(database.getNamedObjectsDictionaryId().openObject(mode));
}

/// Null when the drawing has none.
OdDbDictionaryPtr openList(const OdDbDatabase &database, OdDb::OpenMode mode)
{
    const OdDbDictionaryPtr namedObjects = openNamedObjects(database, OdDb::kForRead);
    return namedObjects ? OdDbDictionaryPtr(namedObjects->getAt(OdString(kListKey), mode))
                        : OdDbDictionaryPtr();
}

/// @return false for an entry whose first value is no path.
bool readPath(const OdDbXrecord &entry, CKvString &path)
{
    const OdResBufPtr first = entry.rbChain();
    if (!first || first->restype() != kPathCode) {
        return false;
    }
    path = CKvString(first->getString());
    return true;
}

/// A key that comes behind all others in the walk, which goes by code points: "10" would stand
/// between "1" and "2", so "90" follows "9".
OdString keyBehindAll(const OdDbDictionary &list)
{
    int count = 0;
    QString last;
    for (auto walk = list.newIterator(); !walk->done(); walk->next()) {
        last = walk->name().toQString();
        ++count;
    }
    const QString byCount = QString::number(count);
    if (count == 0 || byCount > last) {
        return OdString(byCount);
    }
    const QChar end = last.isEmpty() ? QChar() : last.back();
    if (end < QLatin1Char('0') || end > QLatin1Char('8')) {
        return OdString(last + QLatin1Char('0'));
    }
    last.back() = QChar(end.unicode() + 1);
    return OdString(last);
}

} // namespace

std::vector<CKvString> readStandardsList(const OdDbDatabase &database,
                                         ForeignListEntry foreignEntry)
{
    std::vector<CKvString> paths;
    const OdDbDictionaryPtr list = openList(database, OdDb::kForRead);
    if (!list) {
        return paths;
    }
    for (auto walk = list->newIterator(); !walk->done(); walk->next()) {
        const OdDbObjectPtr object = walk->getObject();
        const OdDbXrecordPtr entry = foreignEntry == ForeignListEntry::Throw
            ? OdDbXrecordPtr(object)
            : OdDbXrecord::cast(object.get());
        CKvString path;
        if (entry && readPath(*entry, path)) {
            paths.push_back(path);
        }
    }
    return paths;
}

void appendToStandardsList(OdDbDatabase &database, const CKvString &path)
{
    const OdDbDictionaryPtr namedObjects = openNamedObjects(database, OdDb::kForWrite);
    if (!namedObjects) {
        throw OdError(OdResult::kUnsupportedByVersion,
                      "A drawing of R12 or older has no place for a list of standards files. "
                      "Save it as R2000 or newer first.");
    }
    OdDbDictionaryPtr list = openList(database, OdDb::kForWrite);
    if (!list) {
        list = OdDbDictionary::createObject();
        namedObjects->setAt(OdString(kListKey), list);
    }
    const OdResBufPtr value = OdResBuf::newRb(kPathCode);
    value->setString(path.toOdString());
    const OdDbXrecordPtr entry = OdDbXrecord::createObject();
    entry->setFromRbChain(value.get());
    list->setAt(keyBehindAll(*list), entry);
}

int removeFromStandardsList(OdDbDatabase &database, const CKvString &path)
{
    const OdDbDictionaryPtr list = openList(database, OdDb::kForWrite);
    if (!list) {
        return 0;
    }
    // The keys first: the walk must not see the list change.
    std::vector<OdString> keys;
    for (auto walk = list->newIterator(); !walk->done(); walk->next()) {
        const OdDbXrecordPtr entry = OdDbXrecord::cast(walk->getObject().get());
        CKvString listed;
        if (entry && readPath(*entry, listed) && listed == path) {
            keys.push_back(walk->name());
        }
    }
    for (const OdString &key : keys) {
        list->remove(key);
    }
    return int(keys.size());
}
