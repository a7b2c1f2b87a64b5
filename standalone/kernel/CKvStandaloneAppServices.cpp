// SPDX-License-Identifier: MIT
#include "CKvStandaloneAppServices.h"

#include "CKvDrawingFile.h"
#include "CKvDxfError.h"

#include <QFileInfo>

namespace
{

CKvStandaloneAppServices::ReadOutcome attempt(const QString &path, CKvFileImage::Holding holding)
{
    using Status = CKvStandaloneAppServices::ReadStatus;
    if (!QFileInfo::exists(path)) {
        return { Status::NotFound, QString(), OdDbDatabasePtr() };
    }
    // Callers expect null for a file that is no drawing; why goes into the outcome.
    try {
        return { Status::Read, QString(), CKvDrawingFile::open(path, holding) };
    } catch (const CKvDxfError &error) {
        return { Status::Failed, error.text(), OdDbDatabasePtr() };
    } catch (const OdError &error) {
        return { Status::Failed, QString::fromUtf8(error.what()), OdDbDatabasePtr() };
    }
}

} // namespace

CKvStandaloneAppServices::CKvStandaloneAppServices(CKvFileImage::Holding holding)
    : m_holding(holding)
{
}

OdDbDatabasePtr CKvStandaloneAppServices::readFile(const OdString &path,
                                                   bool /*allowCodePageConversion*/,
                                                   bool /*partialLoad*/,
                                                   int /*shareMode*/,
                                                   const OdString & /*password*/)
{
    // A drawing file has no password, is never locked, and is read in part by its nature.
    ReadOutcome &outcome = m_outcomes[path.toQString()];
    outcome = attempt(path.toQString(), m_holding);
    return outcome.database;
}

CKvStandaloneAppServices::ReadOutcome CKvStandaloneAppServices::outcome(const QString &path) const
{
    const auto found = m_outcomes.find(path);
    return found == m_outcomes.end() ? ReadOutcome() : found->second;
}
