// SPDX-License-Identifier: MIT
#include "CKvSessionDocument.h"

#include "CKvDrawingLoader.h"
#include "CKvFileImage.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "activeDocument.h"

class CKvSessionDocument::CKvContext : public OdStaticRxObject<CKvCommandContext>
{
public:
    explicit CKvContext(CKvSessionDocument &document)
        : m_document(document)
    {
    }
    CKvDocument *document() const override { return &m_document; }
    int activeCommandDepth() const override { return m_document.commandDepth; }
    bool isInputSuspended() const override { return m_document.isSuspended; }
    bool isScriptRunning() const override { return m_document.isScript; }

private:
    CKvSessionDocument &m_document;
};

class CKvSessionDocument::CKvSelection : public CKvSelectionSetImpl
{
public:
    explicit CKvSelection(CKvSessionDocument &document)
        : m_document(document)
    {
    }
    CKvSelectionSetImpl *ss_impl() override { return this; }
    OdDbObjectIdArray selectedObjectIds() const override { return m_document.selected; }
    void clearSelection() override
    {
        m_document.selected.clear();
        ++m_document.clearedSelections;
    }

private:
    CKvSessionDocument &m_document;
};

/// A drawing of a host that knows one variable of its own.
class CKvSessionDocument::CKvVariables : public CKvDatabase
{
public:
    CKvVariables(std::unique_ptr<CKvDrawingStore> store, const CKvSessionDocument &document)
        : CKvDatabase(std::move(store))
        , m_document(document)
    {
    }
    OdResBufPtr getSysVar(const OdString &name) const override
    {
        if (name != OdString("STANDARDSVIOLATION")) {
            return CKvDatabase::getSysVar(name);
        }
        OdResBufPtr value = OdResBuf::newRb(OdResBuf::kRtInt16);
        value->setInt16(std::int16_t(m_document.notification));
        return value;
    }

private:
    const CKvSessionDocument &m_document;
};

CKvSessionDocument::CKvSessionDocument(const CKvDrawingBuilder &drawing, const QString &name)
    : m_database(
        new CKvVariables(CKvDrawingLoader(CKvFileImage::fromBytes(drawing.toBytes(), name)).load(),
                         *this),
        kOdRxObjAttach)
    , m_context(new CKvContext(*this))
    , m_selection(new CKvSelection(*this))
    , m_before(setActiveDocument(this))
{
}

CKvSessionDocument::~CKvSessionDocument()
{
    setActiveDocument(m_before);
}

CKvSelectionSet *CKvSessionDocument::selectionSet() const
{
    return hasSelection ? m_selection.get() : nullptr;
}

OdDbObjectId CKvSessionDocument::layer(const char *name) const
{
    const OdDbLayerTablePtr layers(m_database->getLayerTableId().openObject());
    return layers->getAt(OdString(name));
}

void CKvSessionDocument::changeLayer(const char *name, int color) const
{
    const OdDbLayerTableRecordPtr record(layer(name).openObject(OdDb::kForWrite));
    record->setColor(OdCmColor::byIndex(color));
}
