// SPDX-License-Identifier: MIT
#include "CKvDrawingFile.h"

#include "CKvDrawingLoader.h"
#include "CKvDrawingStore.h"
#include "CKvDrawingWriter.h"
#include "CKvDxfError.h"

#include <QFileInfo>
#include <QSaveFile>

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
    for (const std::string_view piece : writer.pieces()) {
        bytes.append(piece.data(), int(piece.size()));
    }
    return bytes;
}

void CKvDrawingFile::save(const OdDbDatabase &drawing, const QString &path)
{
    const QFileInfo target(path);
    if (target.exists() && !target.isFile()) {
        throw CKvDxfError(
            path, 0, QStringLiteral("The file can't be written: it is a folder or a device."));
    }
    const CKvDrawingWriter writer(drawing.store());
    QSaveFile file(path);
    const auto refuse = [&] {
        throw CKvDxfError(
            path, 0, QStringLiteral("The file can't be written: %1").arg(file.errorString()));
    };
    if (!file.open(QIODevice::WriteOnly)) {
        refuse();
    }
    for (const std::string_view piece : writer.pieces()) {
        if (file.write(piece.data(), qint64(piece.size())) != qint64(piece.size())) {
            refuse();
        }
    }
    // Committing would lose a failure to write what is still in the buffer, and replace the file.
    if (!file.flush() || !file.commit()) {
        refuse();
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
