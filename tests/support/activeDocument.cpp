// SPDX-License-Identifier: MIT
#include "activeDocument.h"

#include "CKvDatabase.h"
#include "CKvDocument.h"
#include "CKvDrawingStore.h"
#include "OdRxClass.h"

#include <utility>

namespace
{

CKvDocument *s_activeDocument = nullptr;

} // namespace

CKvDocument *setActiveDocument(CKvDocument *document)
{
    return std::exchange(s_activeDocument, document);
}

CKvDocument *ACTIVE_DOCUMENT()
{
    return s_activeDocument;
}

CKvDatabase::CKvDatabase(std::unique_ptr<CKvDrawingStore> store)
    : OdDbDatabase(std::move(store))
{
}

CKvDatabase::~CKvDatabase() = default;

OdRxClass *CKvDatabase::desc()
{
    static OdRxClass s_class(
        OdString("CKvDatabase"), OdDbDatabase::desc(), nullptr, OdString::kEmpty);
    return &s_class;
}

OdRxClass *CKvDatabase::isA() const
{
    return desc();
}

OdResBufPtr CKvDatabase::getSysVar(const OdString &name) const
{
    return OdDbDatabase::getSysVar(name);
}

CKvString CKvDatabase::drawingFileName() const
{
    return CKvString(getFilename());
}
