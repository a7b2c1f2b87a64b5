// SPDX-License-Identifier: MIT
#include "CKvStdsPluginFrame.h"

bool CKvStdsPluginFrame::isJudged(const OdDbSymbolTableRecordPtr & /*record*/) const
{
    return true;
}

bool CKvStdsPluginFrame::isExemptName(const CKvString & /*name*/) const
{
    return false;
}

void CKvStdsPluginFrame::addIdentity(const CKvStdsFixPtr & /*fix*/,
                                     const CKvStdsRecord & /*record*/) const
{
}

void CKvStdsPluginFrame::beginScan(CKvStdsErrorPtr start)
{
    if (!start) {
        m_cursor = -1;
        nextError();
        return;
    }
    const OdDbObjectId wanted = start->objectId();
    const OdDbObjectIdArray &active = m_objects->active();
    m_cursor = 0;
    // Walks on behind the match; the violation found stays current and the next call ends the scan.
    while (m_cursor < int(active.size())) {
        const std::int32_t at = m_cursor;
        if (active.at(unsigned(at)) == wanted) {
            --m_cursor;
            nextError();
        }
        // Without records nextError leaves the cursor where it was put.
        m_cursor = std::max(m_cursor, at) + 1;
    }
}

void CKvStdsPluginFrame::nextError()
{
    m_currentError.release();
    const OdDbObjectIdArray &active = m_objects->active();
    const auto count = std::int32_t(active.size());
    if (count == 0 || m_records.isEmpty() || m_cursor >= count - 1) {
        return;
    }
    for (++m_cursor; m_cursor < count; ++m_cursor) {
        m_currentError = judge(active.at(unsigned(m_cursor)));
        if (m_currentError) {
            return;
        }
    }
}

bool CKvStdsPluginFrame::isDone() const
{
    return m_currentError.isNull();
}

CKvStdsErrorPtr CKvStdsPluginFrame::currentError() const
{
    return m_currentError;
}

CKvStdsErrorPtr CKvStdsPluginFrame::judge(OdDbObjectId id)
{
    const OdDbSymbolTableRecordPtr object = openRecord(id);
    if (!object || !isJudged(object)) {
        return CKvStdsErrorPtr();
    }
    const CKvString name(object->getName());
    const CKvStdsRecord *standard = m_index.firstOf(name);
    if (!standard && isExemptName(name)) {
        return CKvStdsErrorPtr();
    }
    if (!standard) {
        return makeViolation(nameMessage(), object);
    }
    if (agrees(object, *standard)) {
        return CKvStdsErrorPtr();
    }
    return makeViolation(propertyMessage(), object);
}

CKvStdsErrorPtr CKvStdsPluginFrame::makeViolation(const CKvString &message,
                                                  const OdDbSymbolTableRecordPtr &object)
{
    const std::unique_ptr<CKvStdsRecord> current = readRecord(object);
    CKvStdsErrorPtr error = CKvStdsError::createObject();
    error->setMessage(message);
    error->setObjectId(object->objectId());
    error->setObjectType(objectTypeLabel());
    error->setObjectName(current->name);
    error->setPlugin(CKvStdsPluginsPtr(this));
    addProperties(error, properties(*current));
    return error;
}

bool CKvStdsPluginFrame::isPreviewRow(const CKvString & /*property*/,
                                      const OdResBufPtr & /*current*/,
                                      const OdResBufPtr & /*standard*/) const
{
    return false;
}

void CKvStdsPluginFrame::propertyDifferences(CKvStdsErrorPtr error,
                                             CKvStdsFixPtr fix,
                                             std::vector<CKvString> &names,
                                             OdArray<OdResBufPtr> &objectValues,
                                             OdArray<OdResBufPtr> &fixValues,
                                             std::vector<CKvString> & /*units*/)
{
    if (!error) {
        return;
    }
    std::vector<CKvString> rowNames;
    OdArray<OdResBufPtr> rowCurrent;
    OdArray<OdResBufPtr> rowStandard;
    for (const auto &[name, current] : error->properties()) {
        m_currentProperty = name;
        const OdResBufPtr standard = fix ? fix->property(name) : OdResBufPtr();
        if (!current || !standard || !isPreviewRow(name, current, standard)) {
            continue;
        }
        rowNames.push_back(name);
        rowCurrent.append(current);
        rowStandard.append(standard);
    }
    names = std::move(rowNames);
    objectValues = rowCurrent;
    fixValues = rowStandard;
    countPreview();
}

void CKvStdsPluginFrame::applyFix(CKvStdsErrorPtr error, CKvStdsFixPtr fix, CKvString &message)
{
    message = CKvString();
    if (!error) {
        return;
    }
    if (!fix) {
        fix = recommendedFix(error);
    }
    // The drawing is gone after a clear.
    if (!fix || !m_drawing) {
        return;
    }
    repair(error, fix);
}
