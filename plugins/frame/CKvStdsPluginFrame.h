// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsCandidateList.h"
#include "CKvStdsError.h"
#include "CKvStdsObjectList.h"
#include "CKvStdsPlugins.h"
#include "CKvStdsProperty.h"
#include "CKvStdsRecordIndex.h"
#include "CKvStdsViolationKind.h"
#include "OdDbSymbolTableRecord.h"
#include "OdStaticRxObject.h"

#include <QHash>

#include <map>
#include <memory>
#include <optional>

/// What all categories have in common: the walk over the drawing's objects and the standards files,
/// the two violations, the choice of candidates. A category derives from it and supplies facts: its
/// texts, which records take part, what a record holds, what is compared, what may be offered, and
/// the repair.
///
/// The choice of candidates is shared between violations wherever it is the same, so that an audit
/// stays linear although each violation may be offered every record.
class CKvStdsPluginFrame : public OdStaticRxObject<CKvStdsPlugins>
{
public:
    CKvStdsPluginFrame();
    ~CKvStdsPluginFrame() override;
    CKvStdsPluginFrame(const CKvStdsPluginFrame &) = delete;
    CKvStdsPluginFrame &operator=(const CKvStdsPluginFrame &) = delete;

    void setManager(CKvStdsManager *manager) override;
    void setObjectsToCheck(OdDbObjectIdArray ids, bool scanAll) override;
    void openStandards(OdDbDatabasePtr drawing,
                       CKvString drawingName,
                       std::vector<CKvString> standardsNames,
                       std::vector<CKvString> standardsPaths) override;
    std::vector<CKvString> objectFilter() override;
    CKvString authorName() const override;
    CKvString linkText() const override;
    CKvString versionText() const override;
    bool isEnabled() const override;
    void setEnabled(bool isEnabled) override;
    void beginScan(CKvStdsErrorPtr start) override;
    void nextError() override;
    bool isDone() const override;
    void clear() override;
    bool acceptValue(CKvString value) override;
    void applyFix(CKvStdsErrorPtr error, CKvStdsFixPtr fix, CKvString &message) override;
    void collectFixes(CKvStdsErrorPtr error,
                      OdArray<CKvStdsFixPtr> &fixes,
                      std::int32_t &recommended) override;
    CKvStdsErrorPtr currentError() const override;
    void propertyDifferences(CKvStdsErrorPtr error,
                             CKvStdsFixPtr fix,
                             std::vector<CKvString> &names,
                             OdArray<OdResBufPtr> &objectValues,
                             OdArray<OdResBufPtr> &fixValues,
                             std::vector<CKvString> &units) override;
    CKvStdsFixPtr recommendedFix(CKvStdsErrorPtr error) override;
    void releaseError(CKvStdsErrorPtr &error) override;

    /// The message alone tells the kind, so a violation of another language or plug-in has none.
    CKvStdsViolationKind violationKind(const CKvStdsErrorPtr &error) const;
    /// "%1 name is non-standard." and "%1 properties are non-standard." with the category's word.
    CKvString nameMessage() const;
    CKvString propertyMessage() const;
    /// The values of a record, as a violation of it would hold them.
    /// @param record of the category, open.
    CKvStdsPropertyList valuesOf(const OdDbSymbolTableRecordPtr &record) const;

protected:
    // Texts and identity.

    /// The name behind group 0, "LAYER".
    virtual CKvString objectType() const = 0;
    /// The kind of object as users read it, translated.
    virtual CKvString objectTypeLabel() const = 0;
    /// The word inside the two messages, translated.
    virtual CKvString messageWord() const = 0;
    /// The class of the category's records in a drawing.
    virtual OdRxClass *recordClass() const = 0;
    virtual OdDbObjectId tableId(const OdDbDatabase &drawing) const = 0;

    // Which records to check. The records are of recordClass, open for reading.

    /// True for a drawing's record that a run over the whole table visits.
    virtual bool isCheckedInTable(const OdDbSymbolTableRecordPtr &record) const = 0;
    /// True for a drawing's record that a run over given objects visits.
    virtual bool isCheckedWhenSelected(const OdDbSymbolTableRecordPtr &record) const = 0;
    /// True for a record of a standards file that counts as a standard.
    virtual bool isStandard(const OdDbSymbolTableRecordPtr &record) const = 0;
    /// False for a listed record that the scan passes over without looking at the standards; true
    /// unless a category says otherwise.
    virtual bool isJudged(const OdDbSymbolTableRecordPtr &record) const;
    /// True for a name that is no violation where the standards lack it; none unless a category
    /// says otherwise.
    virtual bool isExemptName(const CKvString &name) const;

    // Reading a record.

    /// Name and values of a record of the drawing or of a standards file.
    virtual std::unique_ptr<CKvStdsRecord>
    readRecord(const OdDbSymbolTableRecordPtr &record) const = 0;
    /// Name and values that a violation holds, as far as candidates are chosen by them.
    virtual std::unique_ptr<CKvStdsRecord> readViolation(const CKvStdsErrorPtr &error) const = 0;
    /// Sets what a fix holds beside names and file, before its properties come; nothing unless a
    /// category says otherwise. Not called for the fix that recommendedFix makes.
    virtual void addIdentity(const CKvStdsFixPtr &fix, const CKvStdsRecord &record) const;

    // Comparing.

    /// True when an object of the drawing agrees with the standard of its name.
    virtual bool agrees(const OdDbSymbolTableRecordPtr &object, const CKvStdsRecord &standard) = 0;

    // Filling properties.

    /// The values of a record, for a fix and a violation alike.
    virtual CKvStdsPropertyList properties(const CKvStdsRecord &record) const = 0;
    /// Those of the fix that recommendedFix makes; the same unless a category says otherwise.
    virtual CKvStdsPropertyList recommendedProperties(const CKvStdsRecord &record);

    // Choosing candidates. A name violation is offered every record of another name (with regard to
    // case), a property violation every record that is no twin of what the violation holds.

    /// False for a record that no violation of this kind is offered; true unless a category says
    /// otherwise.
    virtual bool isOffered(const CKvStdsRecord &standard, CKvStdsViolationKind kind);
    /// True for a name whose wrong properties can be repaired from a namesake only; none unless a
    /// category says otherwise.
    virtual bool isTiedToNamesakes(const CKvString &name) const;
    /// For a name that is tied: true when the record may be offered. Without regard to case unless
    /// a category is stricter.
    virtual bool isNamesake(const CKvString &tiedName, const CKvStdsRecord &standard) const;
    /// True for a record that is left out, having nothing to offer to the violation.
    virtual bool isTwin(const CKvStdsRecord &violation, const CKvStdsRecord &standard) const;
    /// Twins have the same key; the reverse need not hold. Null for a record without twins, which
    /// is what it is unless a category says otherwise.
    virtual QString twinKey(const CKvStdsRecord &record) const;
    /// Violations of one key have the same twins, and so can share their candidates. Null for a
    /// violation that shares with none, which is what it is unless a category says otherwise.
    virtual QString sharingKey(const CKvStdsRecord &violation) const;

    // Preview.

    /// True when two values of one property make a row. Neither buffer is null.
    virtual bool isPreviewRow(const CKvString &property,
                              const OdResBufPtr &current,
                              const OdResBufPtr &standard) const;
    /// For a category that gathers the rows itself: counts a finished preview.
    void countPreview() { ++m_previewCount; }

    // Repair.

    /// Changes the drawing, which is there.
    /// @param error, fix never null.
    virtual void repair(const CKvStdsErrorPtr &error, const CKvStdsFixPtr &fix) = 0;

    // State for the categories.

    /// The drawing under check; null outside a run.
    const OdDbDatabasePtr &drawing() const { return m_drawing; }
    const OdArray<CKvStdsRecord *> &records() const { return m_records; }
    /// The database of a standards file as openStandards opened it. Where there is none the file is
    /// read anew for the caller alone.
    /// @return null when the file can't be read.
    OdDbDatabasePtr standardsDatabase(const CKvString &path);
    /// An object of the category, open for reading; null when it does not open.
    /// @throws OdError_NotThatKindOfClass when it is of another class.
    OdDbSymbolTableRecordPtr openRecord(OdDbObjectId id) const;

private:
    void listObjects();
    void readStandardsFile(const CKvString &path);
    void addRecord(std::unique_ptr<CKvStdsRecord> record, const CKvString &path);
    static OdDbDatabasePtr readDatabase(const CKvString &path);
    void dropRecords();
    void forgetCandidates();

    CKvStdsErrorPtr judge(OdDbObjectId id);
    CKvStdsErrorPtr makeViolation(const CKvString &message, const OdDbSymbolTableRecordPtr &object);

    CKvStdsCandidateList candidatesFor(const CKvStdsErrorPtr &error, CKvStdsViolationKind kind);
    CKvStdsCandidateList candidatesForName(const CKvStdsRecord &violation);
    CKvStdsCandidateList candidatesForProperties(const CKvStdsRecord &violation);
    CKvStdsCandidateList tiedCandidates(const CKvStdsRecord &violation);
    const CKvStdsCandidateList &allOffered(CKvStdsViolationKind kind);
    static CKvStdsCandidateList withoutRecords(const CKvStdsCandidateList &list,
                                               const std::vector<CKvStdsRecord *> &leftOut);
    int candidateOfName(const CKvString &name) const;

    OdArray<CKvStdsRecord *> m_records;
    OdArray<CKvStdsRecord *> m_candidates;
    CKvStdsErrorPtr m_currentError;
    CKvStdsManager *m_manager = nullptr;
    std::vector<CKvString> m_typeNames;
    CKvString m_currentProperty;
    std::int32_t m_recommended = -1;
    std::int32_t m_cursor = -1;
    std::int32_t m_previewCount = 0;
    OdDbDatabasePtr m_drawing;
    OdArray<OdDbObjectId> m_spareArray;
    std::unique_ptr<CKvStdsObjectList> m_objects;
    bool m_enabled = true;
    std::map<CKvString, OdDbDatabasePtr> m_standardsDatabases;

    CKvStdsRecordIndex m_index;
    std::optional<CKvStdsCandidateList> m_offeredForName;
    std::optional<CKvStdsCandidateList> m_offeredForProperties;
    QHash<QString, CKvStdsCandidateList> m_sharedCandidates;
};
