// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsPluginFrame.h"

/// A category for tests of the frame: layers that are compared by their colour index, where a
/// difference of 1 does not count.
///
/// - "EXEMPT" is no violation where the standards lack it; layers "UNJUDGED…" are passed over.
/// - Layers "PLOT…" take part in a restricted run only; standards "DRAFT…" don't count; records
///   "HOUSE…" are no candidates for name violations, "GRID…" none for property violations.
/// - "TIED" can be repaired from namesakes only.
/// - A record of the same name, in any case, and of a near colour is a twin.
class CKvColorPlugin : public CKvStdsPluginFrame
{
public:
    struct Record : CKvStdsRecord {
        int colorIndex = 0;
    };

    CKvString description() const override { return CKvString("Checks colours."); }
    CKvString pluginName() const override { return CKvString("Colours"); }
    CKvString pluginId() const override { return CKvString("COLOUR"); }
    CKvStdsFixPtr recommendedFix(CKvStdsErrorPtr error) override;

    using CKvStdsPluginFrame::drawing;
    using CKvStdsPluginFrame::records;
    using CKvStdsPluginFrame::standardsDatabase;

    /// How often recommendedFix was called.
    int recommendedCalls = 0;
    /// The repairs that were carried out, "WALLS -> DOORS".
    std::vector<std::string> repairs;

protected:
    CKvString objectType() const override { return CKvString("LAYER"); }
    CKvString objectTypeLabel() const override { return CKvString("A layer"); }
    CKvString messageWord() const override { return CKvString("Colour"); }
    OdRxClass *recordClass() const override;
    OdDbObjectId tableId(const OdDbDatabase &drawing) const override;

    bool isCheckedInTable(const OdDbSymbolTableRecordPtr &record) const override;
    bool isCheckedWhenSelected(const OdDbSymbolTableRecordPtr &record) const override;
    bool isStandard(const OdDbSymbolTableRecordPtr &record) const override;
    bool isJudged(const OdDbSymbolTableRecordPtr &record) const override;
    bool isExemptName(const CKvString &name) const override;

    std::unique_ptr<CKvStdsRecord>
    readRecord(const OdDbSymbolTableRecordPtr &record) const override;
    std::unique_ptr<CKvStdsRecord> readViolation(const CKvStdsErrorPtr &error) const override;
    void addIdentity(const CKvStdsFixPtr &fix, const CKvStdsRecord &record) const override;

    bool agrees(const OdDbSymbolTableRecordPtr &object, const CKvStdsRecord &standard) override;
    CKvStdsPropertyList properties(const CKvStdsRecord &record) const override;

    bool isOffered(const CKvStdsRecord &standard, CKvStdsViolationKind kind) override;
    bool isTiedToNamesakes(const CKvString &name) const override;
    bool isTwin(const CKvStdsRecord &violation, const CKvStdsRecord &standard) const override;
    QString twinKey(const CKvStdsRecord &record) const override;

    bool isPreviewRow(const CKvString &property,
                      const OdResBufPtr &current,
                      const OdResBufPtr &standard) const override;
    void repair(const CKvStdsErrorPtr &error, const CKvStdsFixPtr &fix) override;
};
