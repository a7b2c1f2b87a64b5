// SPDX-License-Identifier: MIT
#include "CKvDrawingLoader.h"

#include "CKvEntityIndex.h"
#include "CKvSectionReader.h"
#include "OdDbDictionary.h"
#include "drawingForm.h"
#include "objectTags.h"
#include "recordNames.h"

#include <algorithm>

namespace
{

/// "AC1015" is 1015; anything else but AC1 and three digits is older than R12; nothing at all is
/// R12.
int versionNumber(const std::optional<CKvTag> &variable)
{
    if (!variable) {
        return 1009;
    }
    const std::string_view word = variable->word();
    const bool isVersion = word.size() == 6 && word.substr(0, 3) == "AC1"
        && word.find_first_not_of("0123456789", 2) == std::string_view::npos;
    return isVersion ? std::stoi(std::string(word.substr(2))) : 1000;
}

/// ByLayer and ByBlock, model and paper space: many writers leave them out when they count.
bool isReservedRecord(CKvTableKind kind, const CKvObjectSlot &record)
{
    if (kind == CKvTableKind::Block) {
        return isSpaceName(recordName(record));
    }
    if (kind != CKvTableKind::Linetype) {
        return false;
    }
    const QString name = foldedName(recordName(record));
    return name == QLatin1String("bylayer") || name == QLatin1String("byblock");
}

} // namespace

CKvDrawingLoader::CKvDrawingLoader(CKvFileImagePtr image)
    : m_image(std::move(image))
{
}

std::unique_ptr<CKvDrawingStore> CKvDrawingLoader::load()
{
    const CKvFileForm form = recognisedForm(*m_image);
    CKvDrawingFormat format;
    format.style = form.style;
    format.version = versionNumber(std::nullopt);
    m_store = std::make_unique<CKvDrawingStore>(m_image, format);
    CKvSectionReader reader(
        m_image, form.style.form, form.begin, m_image->bytes().size(), &m_store->m_warnings);
    readSections(reader);
    return std::move(m_store);
}

void CKvDrawingLoader::readSections(CKvSectionReader &reader)
{
    bool hasSection = false;
    while (reader.nextSection()) {
        hasSection = true;
        const std::string_view name = reader.sectionName();
        if (name == "HEADER") {
            readHeader(reader);
        } else if (name == "TABLES") {
            readTables(reader);
        } else if (name == "OBJECTS") {
            readObjects(reader);
        } else if ((name == "BLOCKS" || name == "ENTITIES") && !m_store->m_entities) {
            if (postponeEntities(reader)) {
                CKvSectionReader rest(m_image,
                                      m_store->format().style.form,
                                      m_store->m_unreadEnd,
                                      m_image->bytes().size(),
                                      &m_store->m_warnings);
                readSections(rest);
                return;
            }
            m_store->m_entities = std::make_unique<CKvEntityIndex>(*m_store);
            m_store->m_entities->readSection(reader);
        } else if (m_store->m_entities) {
            m_store->m_entities->readSection(reader);
        }
    }
    m_store->m_endOfSections = reader.endOfSections();
    m_store->m_isLastSectionOpen = reader.isLastSectionOpen();
    if (!hasSection && reader.position() == m_image->bytes().size() && !reader.hasSeenEof()) {
        reader.fail(0, QStringLiteral("There is no section; this is not a drawing."));
    }
}

bool CKvDrawingLoader::postponeEntities(CKvSectionReader &reader)
{
    // What stands before the tables can't be postponed: its blocks are looked up in them.
    if (!m_hasSeenTables) {
        return false;
    }
    const std::size_t begin = reader.sectionBegin();
    const std::size_t objects =
        findSectionFromEnd(m_image->bytes(), m_store->format().style.form, "OBJECTS", begin);
    if (objects == std::string_view::npos) {
        return false;
    }
    m_store->m_unreadBegin = begin;
    m_store->m_unreadEnd = objects;
    return true;
}

void CKvDrawingLoader::readHeader(CKvSectionReader &reader)
{
    const std::size_t begin = reader.contentBegin();
    CKvObjectOutline outline;
    while (reader.nextObject(outline)) {
        reader.warn(outline.begin,
                    QStringLiteral("An object stands in the header; it is kept and not read."));
    }
    CKvObjectSlot &slot = *m_store->m_header;
    slot.begin = begin;
    slot.end = reader.contentEnd();
    const CKvHeaderVariables variables = m_store->header();
    const std::optional<CKvTag> version = variables.find("$ACADVER");
    const std::optional<CKvTag> codePage = variables.find("$DWGCODEPAGE");
    const std::optional<CKvTag> handling = variables.find("$HANDLING");
    m_store->m_format.version = versionNumber(version);
    m_store->m_hasHandles =
        m_store->m_format.hasDictionaries() || (handling && handling->integer() == 1);
    m_store->m_format.codec =
        CKvTextCodec::forDrawing(version ? version->word() : std::string_view(),
                                 codePage ? codePage->word() : std::string_view());
}

void CKvDrawingLoader::beginTable(CKvSectionReader &reader, const CKvObjectOutline &outline)
{
    const std::string_view bytes =
        m_image->bytes().substr(outline.begin, outline.end - outline.begin);
    const std::optional<CKvTag> name = findTag(bytes, m_store->format().style.form, 2);
    if (!name) {
        reader.fail(outline.begin, QStringLiteral("The name of the table is missing."));
    }
    m_table = nullptr;
    const auto found = std::find(kTableNames.begin(), kTableNames.end(), name->word());
    if (found == kTableNames.end()) {
        return;
    }
    m_table = &m_store->table(CKvTableKind(found - kTableNames.begin()));
    if (m_table->isInFile()) {
        reader.warn(outline.begin,
                    QStringLiteral("The table %1 stands here a second time.")
                        .arg(QString::fromLatin1(name->word().data(), int(name->word().size()))));
        return;
    }
    CKvObjectSlot &head = m_table->head();
    head.begin = outline.begin;
    head.end = outline.end;
    head.handle = outline.handle;
    m_store->registerHandle(head);
}

void CKvDrawingLoader::endTable(CKvSectionReader &reader, std::size_t offset)
{
    if (!m_table) {
        return;
    }
    m_table->setEndInFile(offset);
    const std::optional<CKvTag> count = findTag(m_table->head(), 70);
    const std::size_t records = m_records[std::size_t(m_table->kind())];
    const std::size_t reserved = m_reservedRecords[std::size_t(m_table->kind())];
    const std::size_t declared = count ? std::size_t(count->integer(-1)) : records;
    m_table->setUncountedRecords(std::nullopt, records);
    if (count && declared == records) {
        m_table->setUncountedRecords(0, records);
    } else if (count && declared + reserved == records) {
        m_table->setUncountedRecords(reserved, records);
    } else if (count) {
        const std::string_view name = kTableNames[std::size_t(m_table->kind())];
        reader.warn(m_table->head().begin,
                    QStringLiteral("The table %1 declares %2 records and has %3.")
                        .arg(QString::fromLatin1(name.data(), int(name.size())))
                        .arg(count->integer())
                        .arg(records));
    }
    m_table = nullptr;
}

void CKvDrawingLoader::readTables(CKvSectionReader &reader)
{
    m_hasSeenTables = true;
    CKvObjectOutline outline;
    while (reader.nextObject(outline)) {
        if (outline.type == "TABLE") {
            endTable(reader, outline.begin);
            beginTable(reader, outline);
        } else if (outline.type == "ENDTAB") {
            endTable(reader, outline.begin);
        } else if (m_table && outline.type == kTableNames[std::size_t(m_table->kind())]) {
            CKvObjectSlot &slot = m_store->makeSlot(CKvObjectSlot::Role::Record, outline.type);
            slot.begin = outline.begin;
            slot.end = outline.end;
            slot.handle = outline.handle;
            slot.owner = &m_table->head();
            m_store->registerHandle(slot);
            m_table->add(slot);
            ++m_records[std::size_t(m_table->kind())];
            m_reservedRecords[std::size_t(m_table->kind())] +=
                isReservedRecord(m_table->kind(), slot) ? 1 : 0;
        }
    }
    endTable(reader, reader.contentEnd());
    m_store->m_tablesEnd = reader.contentEnd();
}

void CKvDrawingLoader::readObjects(CKvSectionReader &reader)
{
    CKvObjectOutline outline;
    while (reader.nextObject(outline)) {
        CKvObjectSlot &slot = m_store->makeSlot(CKvObjectSlot::Role::Object, outline.type);
        slot.begin = outline.begin;
        slot.end = outline.end;
        slot.handle = outline.handle;
        m_store->addObject(slot);
    }
    const auto &objects = m_store->m_objects;
    const auto root = std::find_if(objects.begin(), objects.end(), [](const CKvObjectSlot *object) {
        return object->rxClass == OdDbDictionary::desc();
    });
    m_store->m_rootDictionary = root == objects.end() ? nullptr : *root;
    m_store->m_objectsEnd = reader.contentEnd();
}
