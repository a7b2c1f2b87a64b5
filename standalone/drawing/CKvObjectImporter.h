// SPDX-License-Identifier: MIT
#pragma once

#include "CKvObjectSlot.h"
#include "CKvTableKind.h"
#include "OdDbObject.h"

#include <map>
#include <string>
#include <string_view>

class CKvDrawingStore;
class CKvTagReader;
class CKvObjectSlot;

/// What becomes of a source's extended data.
enum class CKvExtendedData { Taken, LeftOut };

/// Brings objects of other drawings, and new ones, into a drawing: tags are spelled in its form and
/// encoding, names and handles lead to its own objects, which come along where it lacks them.
class CKvObjectImporter
{
public:
    explicit CKvObjectImporter(CKvDrawingStore &destination)
        : m_destination(destination)
    {
    }

    /// Makes an open object part of the drawing; its old place, if any, counts as erased.
    /// @param owner table head, dictionary or other owner; null for none.
    /// @param handle 0 for the next free one.
    void
    adopt(OdDbObject &object, CKvObjectSlot::Role role, CKvObjectSlot *owner, std::uint64_t handle);
    /// Clones a table record under its own name, with what it names.
    CKvObjectSlot &cloneRecord(CKvObjectSlot &source, CKvTableKind kind);
    /// Gives a record of the drawing the tags of another drawing's; id, handle and owner stay.
    /// Extended data and extension dictionary stay where the flags say so.
    void replaceContent(CKvObjectSlot &target,
                        CKvObjectSlot &source,
                        bool keepExtendedData,
                        bool keepExtensionDictionary);
    /// The record of that name in the drawing, cloned from the source's drawing when it is missing.
    /// @return null when neither has it.
    CKvObjectSlot *findOrClone(CKvDrawingStore &source, CKvTableKind kind, const QString &name);
    /// Enters an application in the APPID table where it is missing: extended data may only name
    /// those that stand there.
    void requireApplication(const QString &name);

private:
    /// Type, handle, extension dictionary and owner.
    void appendHead(std::string &bytes,
                    std::string_view type,
                    std::uint64_t handle,
                    std::uint64_t owner,
                    std::string_view extensionGroup) const;
    /// The marks of a record's classes, where the drawing has such marks.
    void appendSubclasses(std::string &bytes, std::string_view type) const;
    std::string translated(const CKvObjectSlot &source,
                           std::uint64_t handle,
                           std::uint64_t owner,
                           std::string_view extensionGroup,
                           CKvExtendedData extendedData = CKvExtendedData::Taken);
    CKvObjectSlot *findCounterpart(const CKvObjectSlot &source, CKvTableKind kind);
    std::uint64_t ownerHandle(CKvObjectSlot *owner);
    std::uint64_t translatedHandle(CKvDrawingStore *source, std::uint64_t handle);
    std::string translatedText(const CKvObjectSlot &source, std::string_view value) const;
    void bringNames(const CKvObjectSlot &source);
    void cloneContents(CKvObjectSlot &sourceBlock, CKvObjectSlot &block);
    /// An entity of another drawing, ready to enter this one.
    struct Copy {
        CKvObjectSlot *source = nullptr;
        std::uint64_t handle = 0;
        std::string bytes;
    };
    Copy copyOf(CKvObjectSlot &source, std::uint64_t owner);
    CKvObjectSlot &enter(Copy &copy, CKvObjectSlot &block);
    QString freeAnonymousName(const QString &name) const;
    CKvObjectSlot &counterpartOrClone(CKvObjectSlot &source, CKvTableKind kind);
    void appendTranslated(std::string &bytes, const CKvObjectSlot &source, const CKvTag &tag);
    void skipNewerFlag(CKvTagReader &reader) const;
    bool isAllowed(int code) const;

    CKvDrawingStore &m_destination;
    std::map<const CKvObjectSlot *, CKvObjectSlot *> m_clones;
    /// Anonymous blocks by their folded name in the source.
    std::map<QString, QString> m_newBlockNames;
};
