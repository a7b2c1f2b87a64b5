// SPDX-License-Identifier: MIT
#pragma once

#include "CKvLayerPluginImpl.h"
#include "CKvPluginTest.h"

/// A drawing, the standards file "/office.dxf", and the layer plug-in.
class CKvLayerTest : public CKvPluginTest<CKvLayerPluginImpl>
{
protected:
    OdDbObjectId layerId(const char *name) const
    {
        return recordId(m_database->getLayerTableId(), name);
    }
    std::string layers() const { return layersText(*m_database); }
    std::string lineStyles() const { return namesText(m_database->getLinetypeTableId()); }
    std::string entityLayers() const { return entityLayersText(*m_database); }
    std::string currentLayer() const { return nameOf(m_database->getCLAYER()); }
};
