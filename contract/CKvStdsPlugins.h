// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"
#include "OdArray.h"
#include "OdDbDatabase.h"
#include "OdDbObjectId.h"
#include "OdResBuf.h"
#include "OdRxClass.h"

#include <cstdint>
#include <vector>

class CKvStdsError;
class CKvStdsFix;
class CKvStdsManager;
class CKvStdsPlugins;
using CKvStdsErrorPtr = OdSmartPtr<CKvStdsError>;
using CKvStdsFixPtr = OdSmartPtr<CKvStdsFix>;
using CKvStdsPluginsPtr = OdSmartPtr<CKvStdsPlugins>;

/// Checks one category of table records against standards drawings. A run goes: clear,
/// setObjectsToCheck, openStandards, beginScan, then currentError, collectFixes, nextError until
/// isDone. Afterwards, until the next clear, propertyDifferences and applyFix work on what was
/// found.
class CKvStdsPlugins : public OdRxObject
{
public:
    static OdRxClass *desc();
    /// @throws OdError 313 when registered already.
    static void rxInit();
    /// @throws OdError 255 when not registered.
    static void rxUninit();
    OdRxObject *queryX(const OdRxClass *wanted) const override;
    OdRxClass *isA() const override;

    /// @param manager not owned, may be null.
    virtual void setManager(CKvStdsManager *manager) = 0;
    /// Chooses what the scan visits: the objects of this category among the ids, or the whole table
    /// when scanAll is set or none of the ids is left.
    virtual void setObjectsToCheck(OdDbObjectIdArray ids, bool scanAll) = 0;
    /// Lists the drawing's objects and reads the standards files, in the order of the paths. A file
    /// that can't be read is passed over. Does nothing without a drawing.
    virtual void openStandards(OdDbDatabasePtr drawing,
                               CKvString drawingName,
                               std::vector<CKvString> standardsNames,
                               std::vector<CKvString> standardsPaths) = 0;
    /// The names behind group 0 of the objects that the category checks.
    virtual std::vector<CKvString> objectFilter() = 0;
    virtual CKvString authorName() const = 0;
    virtual CKvString description() const = 0;
    virtual CKvString linkText() const = 0;
    virtual CKvString pluginName() const = 0;
    virtual CKvString versionText() const = 0;
    /// A GUID as text, never translated.
    virtual CKvString pluginId() const = 0;
    virtual bool isEnabled() const = 0;
    virtual void setEnabled(bool isEnabled) = 0;
    /// @param start null to begin at the first object.
    virtual void beginScan(CKvStdsErrorPtr start) = 0;
    virtual void nextError() = 0;
    /// True when there is no current violation.
    virtual bool isDone() const = 0;
    /// Drops the state of the run. Standards drawings stay open until the next openStandards.
    virtual void clear() = 0;
    virtual bool acceptValue(CKvString value) = 0;
    /// Repairs the drawing.
    /// @param message emptied, and left so.
    /// @throws OdError of the drawing library.
    virtual void applyFix(CKvStdsErrorPtr error, CKvStdsFixPtr fix, CKvString &message) = 0;
    /// Appends the candidates.
    /// @param recommended index of the recommended one in what was appended to an empty array, or
    /// -1.
    virtual void collectFixes(CKvStdsErrorPtr error,
                              OdArray<CKvStdsFixPtr> &fixes,
                              std::int32_t &recommended) = 0;
    /// Null when the scan is done.
    virtual CKvStdsErrorPtr currentError() const = 0;
    /// The rows of the preview: names, values of the object, values of the repair.
    /// @param units passed empty, left alone.
    virtual void propertyDifferences(CKvStdsErrorPtr error,
                                     CKvStdsFixPtr fix,
                                     std::vector<CKvString> &names,
                                     OdArray<OdResBufPtr> &objectValues,
                                     OdArray<OdResBufPtr> &fixValues,
                                     std::vector<CKvString> &units) = 0;
    /// @return a new fix like the recommended candidate; an empty one when there is none.
    virtual CKvStdsFixPtr recommendedFix(CKvStdsErrorPtr error) = 0;
    virtual void releaseError(CKvStdsErrorPtr &error) = 0;
};
