// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <memory>
#include <string_view>

class CKvFileImage;
using CKvFileImagePtr = std::shared_ptr<const CKvFileImage>;

/// The bytes of a file, never changed, shared by all that was read from it.
class CKvFileImage
{
public:
    /// Mapped: the pages come as they are read, for a check. Copied: in memory, for a drawing that
    /// stays open while others may shorten or replace its file.
    enum class Holding { Mapped, Copied };

    /// @throws CKvDxfError when the file can't be opened or read.
    static CKvFileImagePtr open(const QString &path, Holding holding);
    static CKvFileImagePtr fromBytes(const QByteArray &bytes, const QString &name);

    ~CKvFileImage();
    CKvFileImage(const CKvFileImage &) = delete;
    CKvFileImage &operator=(const CKvFileImage &) = delete;

    std::string_view bytes() const { return m_bytes; }
    /// As it was given to open.
    const QString &path() const { return m_path; }
    /// Line, counted from 1, that holds the byte at this offset.
    qint64 lineAt(std::size_t offset) const;

private:
    explicit CKvFileImage(QString path);

    QString m_path;
    QByteArray m_copy;
    QFile m_file;
    std::string_view m_bytes;
};
