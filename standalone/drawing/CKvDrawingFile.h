// SPDX-License-Identifier: MIT
#pragma once

#include "CKvFileImage.h"
#include "OdDbDatabase.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

class CKvDrawingStore;

/// Opens and saves drawings.
class CKvDrawingFile
{
public:
    /// A packed drawing (gzip) is unpacked; a DWG file is read when there is a program dwg2dxf.
    /// @throws CKvDxfError with file, line and reason: no such file, no permission, not a drawing,
    /// damaged.
    static OdDbDatabasePtr open(const QString &path,
                                CKvFileImage::Holding holding = CKvFileImage::Holding::Copied);
    /// As open, for who makes a database of its own class.
    static std::unique_ptr<CKvDrawingStore> load(const QString &path,
                                                 CKvFileImage::Holding holding);
    /// A drawing from memory.
    /// @param name stands for the file in errors; it is the drawing's getFilename.
    /// @throws CKvDxfError as open.
    static OdDbDatabasePtr fromBytes(const QByteArray &bytes, const QString &name = QString());

    /// The drawing as a file that is not packed: what was not changed is as it was, byte for byte.
    static QByteArray toBytes(const OdDbDatabase &drawing);
    /// Replaces the file atomically or not at all. A name that ends in .gz is packed, and so is a
    /// drawing that was packed under a name that doesn't.
    /// @throws CKvDxfError, also when the path is that of the drawing's own file and somebody has
    /// changed it since, or when a DWG file is there; the old file is then as it was.
    static void save(const OdDbDatabase &drawing, const QString &path);
    /// For what must be known before anything else is written.
    /// @throws CKvDxfError when save would refuse to replace what is there.
    static void requireReplaceable(const OdDbDatabase &drawing, const QString &path);

    /// True when saving would write other bytes than were read.
    static bool isChanged(const OdDbDatabase &drawing);
    /// What was tolerated when the file was read, as "line N: reason".
    static QStringList warnings(const OdDbDatabase &drawing);
    /// Value of $ACADVER, "AC1009" when the file has none.
    static QString version(const OdDbDatabase &drawing);
};
