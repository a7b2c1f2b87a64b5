// SPDX-License-Identifier: MIT
#include "CKvPictureBuilder.h"

#include "CKvDrawingStore.h"
#include "CKvEntityIndex.h"
#include "CKvEntitySource.h"
#include "entityShapes.h"
#include "objectTags.h"
#include "pictureRecords.h"

#include <QElapsedTimer>

#include <algorithm>

namespace
{

constexpr int kMissing = -1;
constexpr int kPending = -2;
constexpr int kEntitiesBetweenLooks = 64;
constexpr int kMostCopies = 1000;

/// The VERTEX entities that stand behind an entity.
std::vector<const CKvObjectSlot *> verticesBehind(const std::vector<CKvObjectSlot *> &entities,
                                                  std::size_t at)
{
    std::vector<const CKvObjectSlot *> vertices;
    for (std::size_t i = at + 1;
         i < entities.size() && entities[i]->role == CKvObjectSlot::Role::SubEntity;
         ++i) {
        const std::optional<CKvTag> type = findFirstTag(*entities[i], 0);
        if (type && type->word() == "VERTEX" && !entities[i]->isErased) {
            vertices.push_back(entities[i]);
        }
    }
    return vertices;
}

bool isNamed(std::string_view text, const char *name)
{
    return QString::fromLatin1(text.data(), int(text.size()))
               .compare(QLatin1String(name), Qt::CaseInsensitive)
        == 0;
}

bool isHiddenDefinition(const CKvEntityTags &tags, std::size_t block)
{
    constexpr int kConstant = 2;
    // Within a block a definition stands for the attribute that each insertion has of its own.
    return block != 0 && tags.find(0)->word() == "ATTDEF" && !tags.hasFlag(70, kConstant);
}

} // namespace

CKvPictureBuilder::CKvPictureBuilder(CKvDrawingStore &store)
    : m_store(store)
    , m_textStyles(store, m_picture)
    , m_blockSlots { nullptr }
{
}

void CKvPictureBuilder::begin()
{
    m_hasBegun = true;
    CKvEntityIndex &index = m_store.entities();
    const std::optional<CKvTag> scale = m_store.header().find("$LTSCALE");
    m_picture.lineStyleScale = scale && scale->real() > 0 ? scale->real() : 1;
    CKvObjectSlot *space = m_store.table(CKvTableKind::Block).find(QStringLiteral("*Model_Space"));
    if (space) {
        m_blockSlots.front() = space;
        m_blockIndex.emplace(space, 0);
        const std::vector<CKvObjectSlot *> &entities = index.contentsOf(*space).entities;
        m_walks.push_back({ 0, &entities, 0 });
        m_total = entities.size();
    }
}

double CKvPictureBuilder::progress() const
{
    return m_total == 0 ? (m_hasBegun ? 1 : 0) : double(m_done) / double(m_total);
}

bool CKvPictureBuilder::advance(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    if (!m_hasBegun) {
        begin();
    }
    while (!m_walks.empty()) {
        for (int i = 0; i < kEntitiesBetweenLooks && !m_walks.empty(); ++i) {
            stepOnce();
        }
        if (timer.elapsed() >= milliseconds) {
            break;
        }
    }
    return m_walks.empty();
}

void CKvPictureBuilder::stepOnce()
{
    // By number: a block that comes first lets the list grow.
    const std::size_t at = m_walks.size() - 1;
    if (m_walks[at].next >= m_walks[at].entities->size()) {
        // Model space is no block that could be inserted, though its name allows it.
        m_isBlockComplete[m_walks[at].block] = m_walks[at].block != 0;
        m_walks.pop_back();
        return;
    }
    if (addEntity(m_walks[at].block, *m_walks[at].entities, m_walks[at].next)) {
        ++m_walks[at].next;
        ++m_done;
    }
}

bool CKvPictureBuilder::addEntity(std::size_t block,
                                  const std::vector<CKvObjectSlot *> &entities,
                                  std::size_t at)
{
    const CKvObjectSlot &slot = *entities[at];
    if (slot.isErased || slot.role != CKvObjectSlot::Role::Entity) {
        return true;
    }
    const CKvEntityTags tags(slot);
    const CKvTag *type = tags.find(0);
    const CKvTag *invisible = tags.findCommon(60);
    if (!type || (invisible && invisible->integer() != 0) || isHiddenDefinition(tags, block)) {
        return true;
    }
    CKvShapeSink sink(m_picture, block);
    const CKvEntityReader read = entityReader(type->word());
    if (!read) {
        return addThroughBlock(tags, sink);
    }
    setCommon(tags, sink);
    const std::vector<const CKvObjectSlot *> vertices = type->word() == "POLYLINE"
        ? verticesBehind(entities, at)
        : std::vector<const CKvObjectSlot *>();
    read({ tags, vertices, m_textStyles, m_store }, sink);
    return true;
}

bool CKvPictureBuilder::addThroughBlock(const CKvEntityTags &tags, CKvShapeSink &sink)
{
    const std::string_view type = tags.find(0)->word();
    const CKvTag *name = tags.find(2);
    const bool isInsert = type == "INSERT";
    const bool isTable = type == "ACAD_TABLE";
    const bool isDimension =
        type == "DIMENSION" || type == "ARC_DIMENSION" || type == "LARGE_RADIAL_DIMENSION";
    if (!name || !(isInsert || isTable || isDimension)) {
        return true;
    }
    const int block = readyBlock(name->value);
    if (block == kPending) {
        return false;
    }
    if (block == kMissing) {
        return true;
    }
    setCommon(tags, sink);
    if (isInsert) {
        placeInsert(tags, std::size_t(block), sink);
        return true;
    }
    CKvInsertShape shape;
    shape.block = std::uint32_t(block);
    if (isTable) {
        shape.placement = QTransform::fromTranslate(tags.point(10).x(), tags.point(10).y());
    }
    sink.insert(shape);
    return true;
}

void CKvPictureBuilder::placeInsert(const CKvEntityTags &tags,
                                    std::size_t block,
                                    CKvShapeSink &sink)
{
    const QPointF place = tags.point(10);
    const CKvBlockContents &contents = m_store.entities().contentsOf(*m_blockSlots[block]);
    const QPointF base = contents.begin ? CKvEntityTags(*contents.begin).point(10) : QPointF();
    const QTransform turn = QTransform().rotate(tags.real(50));
    const QTransform plane = tags.plane();
    const QPointF origin = plane.map(QPointF());
    CKvInsertShape shape;
    shape.block = std::uint32_t(block);
    shape.placement = QTransform::fromTranslate(-base.x(), -base.y())
        * QTransform::fromScale(tags.real(41, 1), tags.real(42, 1)) * turn
        * QTransform::fromTranslate(place.x(), place.y()) * plane;
    shape.columns = std::clamp(tags.integer(70, 1), 1, kMostCopies);
    shape.rows = std::clamp(tags.integer(71, 1), 1, kMostCopies);
    shape.columnStep = plane.map(turn.map(QPointF(tags.real(44), 0))) - origin;
    shape.rowStep = plane.map(turn.map(QPointF(0, tags.real(45)))) - origin;
    sink.insert(shape);
}

int CKvPictureBuilder::readyBlock(std::string_view encodedName)
{
    CKvObjectSlot *slot = m_store.table(CKvTableKind::Block).findEncoded(encodedName);
    if (!slot) {
        return kMissing;
    }
    const auto [place, isNew] = m_blockIndex.emplace(slot, m_picture.blocks.size());
    if (!isNew) {
        // One that is being walked holds itself; it is drawn without that.
        return m_isBlockComplete[place->second] ? int(place->second) : kMissing;
    }
    m_picture.blocks.emplace_back();
    m_blockSlots.push_back(slot);
    const std::vector<CKvObjectSlot *> &entities = m_store.entities().contentsOf(*slot).entities;
    m_walks.push_back({ place->second, &entities, 0 });
    m_total += entities.size();
    return kPending;
}

void CKvPictureBuilder::setCommon(const CKvEntityTags &tags, CKvShapeSink &sink)
{
    const CKvTag *layer = tags.findCommon(8);
    const CKvTag *lineStyle = tags.findCommon(6);
    const CKvTag *lineWeight = tags.findCommon(370);
    const CKvTag *scale = tags.findCommon(48);
    CKvPictureStyle style;
    style.color = entityColor(tags);
    style.lineWeight = lineWeight ? int(lineWeight->integer(-1)) : -1;
    style.lineStyle = lineStyle ? lineStyleIndex(lineStyle->value) : int(CKvPictureStyle::kByLayer);
    style.lineStyleScale =
        scale && CKvEntityTags::real(*scale) > 0 ? CKvEntityTags::real(*scale) : 1;
    sink.setEntity(tags.slot(),
                   layerIndex(layer ? layer->value : std::string_view("0")),
                   m_picture.styleIndex(style));
}

std::uint32_t CKvPictureBuilder::layerIndex(std::string_view encodedName)
{
    const CKvObjectSlot &slot = m_store.table(CKvTableKind::Layer).findOrStandIn(encodedName);
    const auto [place, isNew] = m_layerIndex.emplace(&slot, std::uint32_t(m_layerSlots.size()));
    if (isNew) {
        m_layerSlots.push_back(&slot);
        m_picture.layers.push_back(readLayer(slot));
    }
    return place->second;
}

CKvPictureLayer CKvPictureBuilder::readLayer(const CKvObjectSlot &slot)
{
    CKvPictureLayer layer = layerRecord(slot);
    const std::optional<CKvTag> lineStyle = findTag(slot, 6);
    const int index = lineStyle ? lineStyleIndex(lineStyle->value) : 0;
    layer.lineStyle = std::max(index, 0);
    return layer;
}

int CKvPictureBuilder::lineStyleIndex(std::string_view encodedName)
{
    if (isNamed(encodedName, "ByLayer")) {
        return CKvPictureStyle::kByLayer;
    }
    if (isNamed(encodedName, "ByBlock")) {
        return CKvPictureStyle::kByBlock;
    }
    const CKvObjectSlot *slot = m_store.table(CKvTableKind::Linetype).findEncoded(encodedName);
    if (!slot) {
        return 0;
    }
    const auto [place, isNew] = m_lineStyleIndex.emplace(slot, int(m_picture.lineStyles.size()));
    if (isNew) {
        m_picture.lineStyles.push_back(lineStyleRecord(*slot));
    }
    return place->second;
}

bool CKvPictureBuilder::refreshEntity(CKvObjectSlot &entity)
{
    CKvObjectSlot *space = m_blockSlots.front();
    if (!space || entity.owner != space || entity.role != CKvObjectSlot::Role::Entity) {
        return false;
    }
    m_picture.removeEntity(entity);
    const std::vector<CKvObjectSlot *> &entities = m_store.entities().contentsOf(*space).entities;
    // From behind, where new ones are.
    const auto found = std::find(entities.rbegin(), entities.rend(), &entity);
    if (found == entities.rend()) {
        return entity.isErased;
    }
    const auto at = std::size_t(entities.rend() - found - 1);
    while (!addEntity(0, entities, at)) {
        while (!m_walks.empty()) {
            stepOnce();
        }
    }
    return true;
}

void CKvPictureBuilder::refreshLayers()
{
    for (std::size_t i = 0; i < m_layerSlots.size(); ++i) {
        m_picture.layers[i] = readLayer(*m_layerSlots[i]);
    }
}
