// SPDX-License-Identifier: MIT
#include "CKvDatabase.h"

#include "CKvDrawingStore.h"
#include "CKvHostDocument.h"
#include "CKvHostDocumentManager.h"
#include "OdRxClass.h"
#include "hostVariables.h"

#include <QFileInfo>

CKvDatabase::CKvDatabase(std::unique_ptr<CKvDrawingStore> store)
    : OdDbDatabase(std::move(store))
{
}

CKvDatabase::~CKvDatabase() = default;

OdRxClass *CKvDatabase::desc()
{
    static OdRxClass s_class(OdString("CKvDatabase"), OdDbDatabase::desc(), nullptr, OdString());
    return &s_class;
}

OdRxClass *CKvDatabase::isA() const
{
    return desc();
}

OdResBufPtr CKvDatabase::getSysVar(const OdString &name) const
{
    const OdResBufPtr own = hostVariable(name.toQString());
    return own ? own : OdDbDatabase::getSysVar(name);
}

CKvString CKvDatabase::drawingFileName() const
{
    // The document knows under which name it was saved last.
    const CKvHostDocumentManager *manager = CKvHostDocumentManager::current();
    const CKvHostDocument *document = manager ? manager->find(this) : nullptr;
    if (document) {
        return CKvString(document->path());
    }
    const QString file = getFilename().toQString();
    return CKvString(file.isEmpty() ? QString() : QFileInfo(file).absoluteFilePath());
}
