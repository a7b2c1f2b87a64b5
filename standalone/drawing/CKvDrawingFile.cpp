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

OdDbDatabasePtr databaseOf(std::unique_ptr<CKvDrawingStore> store)
{
    return OdDbDatabasePtr(new OdDbDatabase(std::move(store)), kOdRxObjAttach);
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
    return databaseOf(load(path, holding));
}

std::unique_ptr<CKvDrawingStore> CKvDrawingFile::load(const QString &path,
                                                      CKvFileImage::Holding holding)
{
    CKvFileImagePtr image = CKvFileImage::open(path, holding);
    if (isDwg(image->bytes())) {
        if (const std::optional<QByteArray> converted = convertedDwg(path)) {
            image = CKvFileImage::fromConverted(*converted, *image);
        }
    }
    return CKvDrawingLoader(std::move(image)).load();
}

OdDbDatabasePtr CKvDrawingFile::fromBytes(const QByteArray &bytes, const QString &name)
{
    return databaseOf(CKvDrawingLoader(CKvFileImage::fromBytes(bytes, name)).load());
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
    const bool isOwn = namesOneFile(path, store.image()->path());
    // Somebody may have given a DXF file that name, and may have it back.
    const bool isMisnamedDxf = isOwn && !store.image()->isConverted();
    const bool isCalledDwg = path.endsWith(QLatin1String(".dwg"), Qt::CaseInsensitive);
    if (isDwgFile(path) || (isCalledDwg && !isMisnamedDxf)) {
        throw CKvDxfError(
            path, 0, QStringLiteral("A DWG file can't be written. Save the drawing as DXF."));
    }
    // Of a file that can't be looked at, writing tells why.
    const std::optional<CKvFileIdentity> now = CKvFileIdentity::ofPath(path);
    if (isOwn && store.ownFile && now && now != store.ownFile) {
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
