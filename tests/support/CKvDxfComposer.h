// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingBuilder.h"

#include <map>
#include <set>
#include <vector>

/// Writes the drawing that a CKvDrawingBuilder describes.
class CKvDxfComposer
{
public:
    explicit CKvDxfComposer(const CKvDrawingBuilder &drawing);

    QByteArray compose();

private:
    struct PendingObject {
        const CKvDictionaryBuilder *object;
        QString handle;
        QString owner;
    };
    using RecordName = std::pair<QString, QString>;

    bool hasOwners() const { return m_drawing.m_version > QLatin1String("AC1009"); }
    void collectHandle(const QString &handle);
    void collectHandles(const CKvObjectContent &content);
    void collectHandles(const CKvDictionaryBuilder &object);
    QString takeHandle(const QString &wanted);

    void composeTables();
    template <class Records> void composeTable(const QString &type, const Records &records);
    void composeTable(const QString &type, const std::vector<const CKvObjectContent *> &records);
    void composeRecord(const CKvObjectContent &record, const QString &tableHandle);
    std::vector<const CKvObjectContent *> otherRecords(const QString &type) const;
    void composeApplications();
    void composeBlocks();
    void composeBlock(const CKvBlockBuilder &block, bool withEntities);
    void
    composeBlockMark(const CKvBlockBuilder &block, const QString &type, const QString &subclass);
    void composeEntities();
    void composeEntity(const CKvEntityBuilder &entity, const QString &owner, bool isInPaperSpace);
    void composeObjects();
    void composeObject(const PendingObject &pending);
    QByteArray composeHeader() const;

    void section(const QString &name);
    void endSection() { put(0, "ENDSEC"); }
    /// Group 0, handle, extension dictionary and owner.
    void putHead(const CKvObjectContent &content, const QString &handle, const QString &owner);
    void putSubclass(const QString &name);
    void put(int code, const CKvDxfValue &value) { m_tags.push_back({ code, value.text, {} }); }
    void put(const CKvDxfTags &tags);

    QByteArray encoded(const std::vector<CKvDxfTag> &tags) const;
    QByteArray encoded(const QString &text) const;

    const CKvDrawingBuilder &m_drawing;
    std::set<QString> m_chosenHandles;
    quint64 m_nextHandle = 0x10;
    std::vector<CKvDxfTag> m_tags;
    std::map<RecordName, QString> m_recordHandles;
    std::vector<PendingObject> m_pending;
};
