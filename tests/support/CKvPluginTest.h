// SPDX-License-Identifier: MIT
#pragma once

#include "CKvContractClasses.h"
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "CKvFakeServices.h"
#include "auditText.h"
#include "drawingText.h"

#include <gtest/gtest.h>

/// A drawing, the standards file "/office.dxf", and the plug-in of a category.
template <class Plugin> class CKvPluginTest : public testing::Test
{
protected:
    CKvPluginTest() { Plugin::rxInit(); }
    ~CKvPluginTest() override { Plugin::rxUninit(); }

    /// Opens drawing and standards as told so far and audits.
    /// @return the whole report.
    std::string report(const QStringList &paths = { QStringLiteral("/office.dxf") })
    {
        m_services.setDrawing("/office.dxf", m_office);
        m_database = m_drawing.open();
        m_violations = audit(m_plugin, m_database, paths);
        m_services.forgetCalls();
        return violationsText(m_violations);
    }
    /// Audits the drawing as it is now, after repairs.
    std::string reportAgain()
    {
        m_violations = audit(m_plugin, m_database, { QStringLiteral("/office.dxf") });
        return violationsText(m_violations);
    }
    /// Audits objects of one table alone, as the drawing is now.
    std::string restricted(OdDbObjectId tableId, std::initializer_list<const char *> names)
    {
        OdDbObjectIdArray ids;
        for (const char *name : names) {
            ids.append(recordId(tableId, name));
        }
        return violationsText(audit(m_plugin, m_database, { QStringLiteral("/office.dxf") }, ids));
    }
    /// The violation of that object in the last report.
    CKvStdsViolation violationOf(const char *name) const
    {
        for (const CKvStdsViolation &violation : m_violations) {
            if (violation.error->objectName() == CKvString(QString::fromUtf8(name))) {
                return violation;
            }
        }
        ADD_FAILURE() << "no violation of " << name;
        return CKvStdsViolation();
    }
    /// The candidate of that name that a violation was offered.
    static CKvStdsFixPtr fixOf(const CKvStdsViolation &violation, const char *name)
    {
        for (const CKvStdsFixPtr &fix : violation.fixes) {
            if (fix->name() == CKvString(QString::fromUtf8(name))) {
                return fix;
            }
        }
        ADD_FAILURE() << "no candidate " << name;
        return CKvStdsFix::createObject();
    }
    std::string preview(const char *name, const char *fixName)
    {
        const CKvStdsViolation violation = violationOf(name);
        return previewText(m_plugin, violation.error, fixOf(violation, fixName));
    }
    /// Repairs the violation of the last report with the candidate of that name.
    void repair(const char *name, const char *fixName)
    {
        const CKvStdsViolation violation = violationOf(name);
        CKvString message("left over");
        m_plugin.applyFix(violation.error, fixOf(violation, fixName), message);
        EXPECT_EQ(message, CKvString());
    }
    /// Lines that a save would change: "- old" and "+ new", for files of the same number of lines.
    std::string changedLines() const
    {
        const QList<QByteArray> before = m_drawing.toBytes().split('\n');
        const QList<QByteArray> after = CKvDrawingFile::toBytes(*m_database).split('\n');
        if (before.size() != after.size()) {
            return "another number of lines\n";
        }
        std::string text;
        for (int i = 0; i < before.size(); ++i) {
            if (before.at(i) != after.at(i)) {
                text +=
                    "- " + before.at(i).toStdString() + "\n+ " + after.at(i).toStdString() + '\n';
            }
        }
        return text;
    }

    CKvContractClasses m_classes;
    CKvFakeServices m_services;
    CKvDrawingBuilder m_drawing;
    CKvDrawingBuilder m_office;
    OdDbDatabasePtr m_database;
    Plugin m_plugin;
    std::vector<CKvStdsViolation> m_violations;
};
