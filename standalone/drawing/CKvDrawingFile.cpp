// SPDX-License-Identifier: MIT
#include "CKvDrawingFile.h"

#include "CKvDrawingLoader.h"
#include "CKvDrawingStore.h"
#include "CKvDrawingWriter.h"
#include "CKvDxfError.h"
#include "CKvFileReplacement.h"
#include "dwgConversion.h"
#include "gzip.h"

#include <QFileInfo>

#include <optional>
#include <utility>

namespace
{

OdDbDatabasePtr openImage(CKvFileImagePtr image)
{
    return OdDbDatabasePtr(new OdDbDatabase(CKvDrawingLoader(std::move(image)).load()),
                           kOdRxObjAttach);
}

/// @return false also when one of them is missing.
bool namesOneFile(const QString &a, const QString &b)
{
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath();
}

/// Where the new name or the old one says so by its end, that counts; otherwise a drawing stays
/// what it was.
bool isToBePacked(const CKvFileImage &image, const QString &path)
{
    const auto isCalledPacked = [](const QString &name) {
        return name.endsWith(QLatin1String(".gz"), Qt::CaseInsensitive);
    };
    return isCalledPacked(path) || (image.isPacked() && !isCalledPacked(image.path()));
}

} // namespace

OdDbDatabasePtr CKvDrawingFile::open(const QString &path, CKvFileImage::Holding holding)
{
    CKvFileImagePtr image = CKvFileImage::open(path, holding);
    if (isDwg(image->bytes())) {
        if (const std::optional<QByteArray> converted = convertedDwg(path)) {
            image = CKvFileImage::fromConverted(*converted, *image);
        }
    }
    return openImage(std::move(image));
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

void CKvDrawingFile::requireReplaceable(const OdDbDatabase &drawing, const QString &path)
{
    const CKvDrawingStore &store = drawing.store();
    if (!namesOneFile(path, store.image()->path())) {
        return;
    }
    if (store.image()->isConverted()) {
        throw CKvDxfError(
            path, 0, QStringLiteral("A DWG file can't be written. Save the drawing as DXF."));
    }
    if (store.ownFile && CKvFileIdentity::ofPath(path) != store.ownFile) {
        throw CKvDxfError(path,
                          0,
                          QStringLiteral("The file can't be written: it was changed by somebody "
                                         "else since it was read."));
    }
}

void CKvDrawingFile::save(const OdDbDatabase &drawing, const QString &path)
{
    requireReplaceable(drawing, path);
    CKvDrawingStore &store = drawing.store();
    const CKvDrawingWriter writer(store);
    CKvFileReplacement file(path);
    const auto write = [&](std::string_view piece) { file.write(piece); };
    if (!isToBePacked(*store.image(), path)) {
        writer.write(write);
    } else if (store.image()->isPacked() && !writer.isChanged()) {
        // Another packer would spell the same drawing in other bytes.
        file.write(store.image()->fileBytes());
    } else {
        CKvGzipPacker packer(write);
        writer.write([&](std::string_view piece) { packer.add(piece); });
        packer.finish();
    }
    file.commit();
    // Now also where the file was gone.
    if (namesOneFile(path, store.image()->path())) {
        store.ownFile = CKvFileIdentity::ofPath(path);
    }
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
