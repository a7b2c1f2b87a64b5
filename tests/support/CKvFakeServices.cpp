// SPDX-License-Identifier: MIT
#include "CKvFakeServices.h"

#include "CKvDrawingFile.h"
#include "keepDrawing.h"

CKvFakeServices::CKvFakeServices()
    : m_before(GetKvSystemServices())
{
    SetKvSystemServices(this);
}

CKvFakeServices::~CKvFakeServices()
{
    SetKvSystemServices(m_before);
}

void CKvFakeServices::setDrawing(const CKvDxfValue &path, const CKvDrawingBuilder &drawing)
{
    m_drawings[path.text] = drawing.toBytes();
    keepDrawing(m_drawings[path.text]);
}

void CKvFakeServices::removeDrawing(const CKvDxfValue &path)
{
    m_drawings.erase(path.text);
}

void CKvFakeServices::setFailure(const CKvDxfValue &path, int code)
{
    m_failures[path.text] = code;
}

void CKvFakeServices::setSupportFile(const CKvDxfValue &name, const CKvDxfValue &path)
{
    m_supportFiles[name.text] = path.text;
}

OdDbDatabasePtr CKvFakeServices::lastRead(const CKvDxfValue &path) const
{
    const auto found = m_lastRead.find(path.text);
    return found == m_lastRead.end() ? OdDbDatabasePtr() : found->second;
}

CKvString
CKvFakeServices::findFile(const CKvString &name, int hint, OdDbDatabase *database, int flags)
{
    m_calls.push_back("findFile " + name.toQString().toStdString() + ' ' + std::to_string(hint)
                      + (database ? " database " : " null ") + std::to_string(flags));
    const auto found = m_supportFiles.find(name.toQString());
    return found == m_supportFiles.end() ? CKvString() : CKvString(found->second);
}

OdDbDatabasePtr CKvFakeServices::readFile(const OdString &path,
                                          bool allowCodePageConversion,
                                          bool partialLoad,
                                          int shareMode,
                                          const OdString &password)
{
    const QString &name = path.toQString();
    m_calls.push_back("readFile " + name.toStdString()
                      + (allowCodePageConversion ? " true" : " false")
                      + (partialLoad ? " true " : " false ") + std::to_string(shareMode) + " '"
                      + password.toQString().toStdString() + '\'');
    const auto failure = m_failures.find(name);
    if (failure != m_failures.end()) {
        throw OdError(failure->second);
    }
    const auto found = m_drawings.find(name);
    if (found == m_drawings.end()) {
        return OdDbDatabasePtr();
    }
    OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(found->second, name);
    m_lastRead[name] = drawing;
    return drawing;
}
