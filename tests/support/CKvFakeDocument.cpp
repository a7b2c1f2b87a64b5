// SPDX-License-Identifier: MIT
#include "CKvFakeDocument.h"

#include "CKvDrawingLoader.h"
#include "CKvFileImage.h"
#include "hostDoubles.h"

CKvFakeDocument::CKvFakeDocument(const CKvDrawingBuilder &drawing)
    : CKvFakeDocument(drawing.toBytes(), QStringLiteral("drawing.dxf"))
{
}

CKvFakeDocument::CKvFakeDocument(const QByteArray &bytes, const QString &path)
    : m_database(new CKvDatabase(CKvDrawingLoader(CKvFileImage::fromBytes(bytes, path)).load()),
                 kOdRxObjAttach)
    , m_before(setActiveDocument(this))
{
}

CKvFakeDocument::~CKvFakeDocument()
{
    setActiveDocument(m_before);
}
