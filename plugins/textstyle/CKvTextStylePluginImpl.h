// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsPluginFrame.h"

/// Checks text styles: font and font style, height, width, angle, direction, annotative scale.
class CKvTextStylePluginImpl : public CKvStdsPluginFrame
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

protected:
    CKvString objectType() const override;
    CKvString objectTypeLabel() const override;
    CKvString messageWord() const override;
    OdRxClass *recordClass() const override;
    OdDbObjectId tableId(const OdDbDatabase &drawing) const override;

    bool isCheckedInTable(const OdDbSymbolTableRecordPtr &record) const override;
    bool isCheckedWhenSelected(const OdDbSymbolTableRecordPtr &record) const override;
    bool isStandard(const OdDbSymbolTableRecordPtr &record) const override;
    bool isJudged(const OdDbSymbolTableRecordPtr &record) const override;

    std::unique_ptr<CKvStdsRecord>
    readRecord(const OdDbSymbolTableRecordPtr &record) const override;
    std::unique_ptr<CKvStdsRecord> readViolation(const CKvStdsErrorPtr &error) const override;

    bool agrees(const OdDbSymbolTableRecordPtr &object, const CKvStdsRecord &standard) override;

    CKvStdsPropertyList properties(const CKvStdsRecord &record) const override;

    bool isTiedToNamesakes(const CKvString &name) const override;
    bool isTwin(const CKvStdsRecord &violation, const CKvStdsRecord &standard) const override;
    QString twinKey(const CKvStdsRecord &record) const override;

    bool isPreviewRow(const CKvString &property,
                      const OdResBufPtr &current,
                      const OdResBufPtr &standard) const override;

    void repair(const CKvStdsErrorPtr &error, const CKvStdsFixPtr &fix) override;
};
