// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsPluginFrame.h"
#include "OdDbDimStyleTableRecord.h"

/// Checks dimension styles, by the texts of their properties. Records hold no values, so the
/// standards files stay open for as long as the plug-in works with them.
class CKvDimStylePluginImpl : public CKvStdsPluginFrame
{
public:
    static OdRxClass *desc();
    /// @throws OdError 313 when registered already.
    static void rxInit();
    /// @throws OdError 255 when not registered.
    static void rxUninit();
    OdRxObject *queryX(const OdRxClass *wanted) const override;
    OdRxClass *isA() const override;

    CKvString description() const override;
    CKvString pluginName() const override;
    CKvString pluginId() const override;

    /// Which rows there are is decided by the two styles as they are now; the values are those that
    /// the violation and the fix hold.
    void propertyDifferences(CKvStdsErrorPtr error,
                             CKvStdsFixPtr fix,
                             std::vector<CKvString> &names,
                             OdArray<OdResBufPtr> &objectValues,
                             OdArray<OdResBufPtr> &fixValues,
                             std::vector<CKvString> &units) override;

protected:
    CKvString objectType() const override;
    CKvString objectTypeLabel() const override;
    CKvString messageWord() const override;
    OdRxClass *recordClass() const override;
    OdDbObjectId tableId(const OdDbDatabase &drawing) const override;

    bool isCheckedInTable(const OdDbSymbolTableRecordPtr &record) const override;
    bool isCheckedWhenSelected(const OdDbSymbolTableRecordPtr &record) const override;
    bool isStandard(const OdDbSymbolTableRecordPtr &record) const override;

    std::unique_ptr<CKvStdsRecord>
    readRecord(const OdDbSymbolTableRecordPtr &record) const override;
    std::unique_ptr<CKvStdsRecord> readViolation(const CKvStdsErrorPtr &error) const override;
    void addIdentity(const CKvStdsFixPtr &fix, const CKvStdsRecord &record) const override;

    bool agrees(const OdDbSymbolTableRecordPtr &object, const CKvStdsRecord &standard) override;

    CKvStdsPropertyList properties(const CKvStdsRecord &record) const override;
    CKvStdsPropertyList recommendedProperties(const CKvStdsRecord &record) override;

    bool isOffered(const CKvStdsRecord &standard, CKvStdsViolationKind kind) override;
    bool isTiedToNamesakes(const CKvString &name) const override;

    void repair(const CKvStdsErrorPtr &error, const CKvStdsFixPtr &fix) override;

private:
    /// A style of a standards file, open for reading, with the database that it lives in. Both are
    /// null when the file can't be read; the style alone when the file has none of that name.
    struct CKvStandardStyle {
        OdDbDatabasePtr database;
        OdDbDimStyleTableRecordPtr style;
    };
    CKvStandardStyle standardStyle(const CKvString &path, const CKvString &name);
};
