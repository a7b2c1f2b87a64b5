// SPDX-License-Identifier: MIT
#pragma once

#include "CKvColorPlugin.h"
#include "CKvContractClasses.h"
#include "CKvDrawingBuilder.h"
#include "CKvFakeServices.h"
#include "auditText.h"
#include "drawingText.h"

#include <gtest/gtest.h>

/// A drawing, the standards file "/office.dxf", and a plug-in that compares colours.
class CKvFrameTest : public testing::Test
{
protected:
    /// Opens the drawing as it was told so far.
    void openDrawing() { m_database = m_drawing.open(); }
    /// Opens drawing and standards and audits.
    /// @return the whole report.
    std::string report(const QStringList &paths = { QStringLiteral("/office.dxf") })
    {
        m_services.setDrawing("/office.dxf", m_office);
        openDrawing();
        m_violations = audit(m_plugin, m_database, paths);
        return violationsText(m_violations);
    }
    /// Lets the plug-in read the drawing and the standards, but not scan.
    void openStandards(const OdDbObjectIdArray &ids = {})
    {
        m_services.setDrawing("/office.dxf", m_office);
        openDrawing();
        m_plugin.clear();
        m_plugin.setObjectsToCheck(ids, /*scanAll*/ ids.isEmpty());
        m_plugin.openStandards(m_database, CKvString(), {}, { CKvString("/office.dxf") });
    }
    OdDbObjectId layerId(const char *name) const
    {
        return recordId(m_database->getLayerTableId(), name);
    }

    CKvContractClasses m_classes;
    CKvFakeServices m_services;
    CKvDrawingBuilder m_drawing;
    CKvDrawingBuilder m_office;
    OdDbDatabasePtr m_database;
    CKvColorPlugin m_plugin;
    std::vector<CKvStdsViolation> m_violations;
};
