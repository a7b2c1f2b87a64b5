// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDimensionSettings.h"
#include "OdDbHandle.h"
#include "OdDbObjectId.h"
#include "OdResBuf.h"
#include "OdRxObject.h"
#include "OdString.h"

#include <memory>

class CKvDrawingStore;
class OdDbDatabase;
class OdDbDatabaseReactor;
class OdDbIdMapping;
using OdDbDatabasePtr = OdSmartPtr<OdDbDatabase>;

/// An open drawing.
class KV_HOST_API OdDbDatabase : public OdDbDimensionSettings
{
public:
    explicit OdDbDatabase(std::unique_ptr<CKvDrawingStore> store);
    ~OdDbDatabase() override;

    static OdRxClass *desc();
    OdRxClass *isA() const override;

    /// The file that the drawing was read from; empty for a new one.
    OdString getFilename() const;

    /// Tables that the file lacks have an id all the same; their records come with the first add.
    OdDbObjectId getLayerTableId() const;
    OdDbObjectId getLinetypeTableId() const;
    OdDbObjectId getTextStyleTableId() const;
    OdDbObjectId getDimStyleTableId() const;
    OdDbObjectId getBlockTableId() const;
    /// Null in a drawing that has no dictionaries (R12 and older).
    OdDbObjectId getNamedObjectsDictionaryId() const;
    /// The names of the plot styles, made when the drawing has none. Null in a drawing that has no
    /// dictionaries.
    OdDbObjectId getPlotStyleNameDictionaryId() const;

    /// The reserved line styles, by their names. A drawing that lacks one gives the id of a
    /// stand-in.
    OdDbObjectId getLinetypeByLayerId() const;
    OdDbObjectId getLinetypeByBlockId() const;
    OdDbObjectId getLinetypeContinuousId() const;

    /// The object of that handle, null when there is none.
    OdDbObjectId getOdDbObjectId(OdDbHandle handle) const;
    /// Makes a new object, or one of another drawing, part of this one. The object keeps its
    /// values; what it names in the other drawing (the text styles of a line style) is translated.
    /// @param handle null for the next free one.
    OdDbObjectId
    addOdDbObject(const OdDbObjectPtr &object, OdDbObjectId ownerId, OdDbHandle handle = {});

    /// The current layer, header variable CLAYER.
    OdDbObjectId getCLAYER() const;
    void setCLAYER(OdDbObjectId layerId);
    /// The current line style, header variable CELTYPE; ByLayer when the file has none.
    OdDbObjectId getCELTYPE() const;
    /// @throws OdError_InvalidSysvarValue when the line style is not one of this drawing.
    void setCELTYPE(OdDbObjectId linetypeId);
    /// The current text style, header variable TEXTSTYLE; Standard when the file has none.
    OdDbObjectId getTEXTSTYLE() const;
    /// @throws OdError_InvalidSysvarValue when the text style is not one of this drawing.
    void setTEXTSTYLE(OdDbObjectId styleId);
    /// Header variable MEASUREMENT; 0 (inches) when the file has none, otherwise metric.
    int getMEASUREMENT() const;
    /// A system variable by its name, letter case aside: a header variable of the drawing,
    /// "LTSCALE" for instance. Whole numbers of 16 bits have the type 5003, others 5010, reals
    /// 5001, texts 5005.
    /// @throws OdError kInvalidInput when there is no such variable.
    virtual OdResBufPtr getSysVar(const OdString &name) const;

    /// Loads a line style from a .lin file.
    /// @throws OdError 156 when the file can't be opened or has no style of that name, OdError of
    /// another code when the definition can't be read or the drawing has a style of that name.
    void loadLineTypeFile(const OdString &name,
                          const OdString &path,
                          int duplicateHandling = 0,
                          int flags = 0);

    /// Clones objects of this drawing into another, with what they name and the other one lacks.
    /// @param ownerId the table of the destination that takes them.
    /// @param mapping its destDb is the destination; receives a pair for each clone.
    void wblockCloneObjects(const OdDbObjectIdArray &ids,
                            OdDbObjectId ownerId,
                            OdDbIdMapping &mapping,
                            OdDb::DuplicateRecordCloning duplicates,
                            bool deferTranslation = false);

    /// Leaves in the array the ids of the objects that nothing outside the array refers to, so that
    /// they can be erased. Null ids and what can never be erased leave the array too.
    void purgeIds(OdDbObjectIdArray &ids) const;

    /// The entities of all blocks that may name a record: all that do, and perhaps some that did
    /// once. In the order in which the walks over all blocks meet them, but without that walk.
    /// @return empty when the id is that of no layer, line style, text style or dimension style of
    /// this drawing.
    OdDbObjectIdArray entitiesNaming(OdDbObjectId recordId) const;

    /// @param reactor not owned; added once however often it is given.
    void addReactor(OdDbDatabaseReactor *reactor);
    void removeReactor(OdDbDatabaseReactor *reactor);

    /// The host's own record of the drawing.
    CKvDrawingStore &store() const { return *m_store; }

private:
    std::unique_ptr<CKvDrawingStore> m_store;
};
