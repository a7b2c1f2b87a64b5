// SPDX-License-Identifier: MIT
#include "CKvDrawingFile.h"

#include "CKvDrawingLoader.h"
#include "CKvDrawingStore.h"
#include "CKvDrawingWriter.h"
#include "CKvFileReplacement.h"

namespace
{

OdDbDatabasePtr openImage(CKvFileImagePtr image)
{
    return OdDbDatabasePtr(new OdDbDatabase(CKvDrawingLoader(std::move(image)).load()),
                           kOdRxObjAttach);
}

} // namespace

OdDbDatabasePtr CKvDrawingFile::open(const QString &path, CKvFileImage::Holding holding)
{
    return openImage(CKvFileImage::open(path, holding));
}

OdDbDatabasePtr CKvDrawingFile::fromBytes(const QByteArray &bytes, const QString &name)
{
    return openImage(CKvFileImage::fromBytes(bytes, name));
}

QByteArray CKvDrawingFile::toBytes(const OdDbDatabase &drawing)
{
    const CKvDrawingWriter writer(drawing.store());
    QByteArray bytes;
    bytes.reserve(int(writer.size()));
    writer.write([&](std::string_view piece) { bytes.append(piece.data(), int(piece.size())); });
    return bytes;
}

void CKvDrawingFile::save(const OdDbDatabase &drawing, const QString &path)
{
    const CKvDrawingWriter writer(drawing.store());
    CKvFileReplacement file(path);
    writer.write([&](std::string_view piece) { file.write(piece); });
    file.commit();
}

bool CKvDrawingFile::isChanged(const OdDbDatabase &drawing)
{
    return CKvDrawingWriter(drawing.store()).isChanged();
}

QStringList CKvDrawingFile::warnings(const OdDbDatabase &drawing)
{
    return drawing.store().warnings();
}

QString CKvDrawingFile::version(const OdDbDatabase &drawing)
{
    const std::optional<CKvTag> version = drawing.store().header().find("$ACADVER");
    return version ? drawing.store().format().codec.decode(version->word())
                   : QStringLiteral("AC1009");
}
