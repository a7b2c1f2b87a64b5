// SPDX-License-Identifier: MIT
#include "CKvDocumentPicture.h"

#include "CKvDatabase.h"
#include "CKvDrawingStore.h"
#include "OdDbDictionary.h"
#include "OdDbEntity.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbXrecord.h"

#include <limits>

namespace
{

// Short enough that a key that is pressed meanwhile is felt to act at once.
constexpr int kSliceMs = 25;
// From so many on a new picture costs less than changes one by one.
constexpr std::size_t kMostChanges = 500;

} // namespace

/// Tells the picture what changes.
class CKvDocumentPicture::Watch : public OdStaticRxObject<CKvDatabaseReactor>
{
public:
    explicit Watch(CKvDocumentPicture &picture)
        : m_picture(picture)
    {
        m_picture.m_database.addReactor(this);
    }
    ~Watch() override { m_picture.m_database.removeReactor(this); }

    void objectAppended(const OdDbDatabase *, const OdDbObject *object) override
    {
        m_picture.noteChange(*object);
    }
    void objectUnAppended(const OdDbDatabase *, const OdDbObject *object) override
    {
        m_picture.noteChange(*object);
    }
    void objectReAppended(const OdDbDatabase *, const OdDbObject *object) override
    {
        m_picture.noteChange(*object);
    }
    void objectModified(const OdDbDatabase *, const OdDbObject *object) override
    {
        m_picture.noteChange(*object);
    }
    void objectErased(const OdDbDatabase *, const OdDbObject *object, bool) override
    {
        m_picture.noteChange(*object);
    }

private:
    CKvDocumentPicture &m_picture;
};

CKvDocumentPicture::CKvDocumentPicture(CKvDatabase &database)
    : m_database(database)
    , m_watch(std::make_unique<Watch>(*this))
{
    connect(&m_timer, &QTimer::timeout, this, &CKvDocumentPicture::work);
    rebuild();
}

CKvDocumentPicture::~CKvDocumentPicture() = default;

const CKvPicture *CKvDocumentPicture::picture() const
{
    return m_complete ? &m_complete->picture() : nullptr;
}

void CKvDocumentPicture::rebuild()
{
    m_building = std::make_unique<CKvPictureBuilder>(m_database.store());
    m_changedEntities.clear();
    m_haveLayersChanged = false;
    m_mustRebuild = false;
    m_timer.start(0);
}

void CKvDocumentPicture::cancel()
{
    m_building.reset();
    m_timer.stop();
}

void CKvDocumentPicture::work()
{
    if (m_mustRebuild) {
        rebuild();
    }
    if (!m_building) {
        m_timer.stop();
        applyChanges();
        return;
    }
    const bool isComplete = m_building->advance(kSliceMs);
    emit progressed(m_building->progress());
    if (isComplete) {
        m_complete = std::move(m_building);
        m_timer.stop();
        emit completed();
        emit changed();
    }
}

void CKvDocumentPicture::finish()
{
    while (m_timer.isActive()) {
        work();
    }
}

void CKvDocumentPicture::noteChange(const OdDbObject &object)
{
    if (object.isKindOf(OdDbXrecord::desc()) || object.isKindOf(OdDbDictionary::desc())) {
        return;
    }
    CKvObjectSlot *slot = object.objectId().slot();
    const bool isLayer =
        object.isKindOf(OdDbLayerTableRecord::desc()) || object.isKindOf(OdDbLayerTable::desc());
    if (m_building || (!isLayer && !object.isKindOf(OdDbEntity::desc())) || !slot
        || m_changedEntities.size() > kMostChanges) {
        m_mustRebuild = true;
    } else if (isLayer) {
        m_haveLayersChanged = true;
    } else if (m_changedEntities.empty() || m_changedEntities.back() != slot) {
        m_changedEntities.push_back(slot);
    }
    m_timer.start(0);
}

void CKvDocumentPicture::applyChanges()
{
    if (!m_complete) {
        return;
    }
    if (m_haveLayersChanged) {
        m_complete->refreshLayers();
        m_haveLayersChanged = false;
    }
    const std::vector<CKvObjectSlot *> entities = std::exchange(m_changedEntities, {});
    for (CKvObjectSlot *entity : entities) {
        if (!m_complete->refreshEntity(*entity)) {
            rebuild();
            return;
        }
    }
    emit changed();
}
