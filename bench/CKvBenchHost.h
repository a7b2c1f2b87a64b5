// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStandaloneServices.h"
#include "CKvStdsError.h"
#include "CKvStdsFix.h"
#include "OdDbDatabase.h"

/// A plug-in with what it needs around it.
template <class Plugin> struct CKvBenchHost {
    CKvBenchHost()
    {
        CKvStdsError::rxInit();
        CKvStdsFix::rxInit();
    }
    ~CKvBenchHost()
    {
        CKvStdsError::rxUninit();
        CKvStdsFix::rxUninit();
    }
    CKvBenchHost(const CKvBenchHost &) = delete;
    CKvBenchHost &operator=(const CKvBenchHost &) = delete;

    /// @param ids empty for the whole table.
    /// @return the number of violations.
    int audit(const OdDbDatabasePtr &drawing,
              const QString &standards,
              const OdDbObjectIdArray &ids = {})
    {
        int found = 0;
        plugin.clear();
        plugin.setObjectsToCheck(ids, /*scanAll*/ ids.isEmpty());
        plugin.openStandards(drawing, CKvString(), {}, { CKvString(standards) });
        for (plugin.beginScan(nullptr); !plugin.isDone(); plugin.nextError()) {
            OdArray<CKvStdsFixPtr> fixes;
            std::int32_t recommended = -1;
            plugin.collectFixes(plugin.currentError(), fixes, recommended);
            errors.append(plugin.currentError());
            ++found;
        }
        return found;
    }
    /// Repairs what the audit found, each with its first candidate.
    void repairAll()
    {
        CKvString message;
        for (const CKvStdsErrorPtr &error : errors) {
            OdArray<CKvStdsFixPtr> fixes;
            std::int32_t recommended = -1;
            plugin.collectFixes(error, fixes, recommended);
            plugin.applyFix(error, fixes.first(), message);
        }
    }

    CKvStandaloneServices services;
    Plugin plugin;
    OdArray<CKvStdsErrorPtr> errors;
};
