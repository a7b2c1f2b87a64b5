// SPDX-License-Identifier: MIT
#pragma once

#include "CKvFileIdentity.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <memory>
#include <optional>
#include <string_view>

class CKvFileImage;
using CKvFileImagePtr = std::shared_ptr<const CKvFileImage>;

/// The bytes of a drawing as text or tags, never changed, shared by all that was read from it. What
/// is packed with gzip is unpacked; a DWG file can be converted.
class CKvFileImage
{
public:
    /// Mapped: the pages come as they are read, for a check. Copied: in memory, for a drawing that
    /// stays open while others may shorten or replace its file.
    enum class Holding { Mapped, Copied };

    /// Gives the image that this process has already, while the file is unchanged.
    /// @throws CKvDxfError when the file can't be opened, read or unpacked.
    static CKvFileImagePtr open(const QString &path, Holding holding);
    /// @throws CKvDxfError when the bytes are packed and can't be unpacked.
    static CKvFileImagePtr fromBytes(const QByteArray &bytes, const QString &name);
    /// What another program made of a file of another form.
    static CKvFileImagePtr fromConverted(const QByteArray &bytes, const CKvFileImage &original);

    ~CKvFileImage();
    CKvFileImage(const CKvFileImage &) = delete;
    CKvFileImage &operator=(const CKvFileImage &) = delete;

    std::string_view bytes() const { return m_bytes; }
    /// The bytes as they stand in the file: packed ones packed.
    std::string_view fileBytes() const
    {
        return m_isPacked ? std::string_view(m_packed.constData(), std::size_t(m_packed.size()))
                          : m_bytes;
    }
    bool isPacked() const { return m_isPacked; }
    bool isMapped() const { return m_isMapped; }
    /// The file at path() is of another form than the bytes.
    bool isConverted() const { return m_isConverted; }
    /// The file as it was when it was read; nothing for bytes from memory.
    const std::optional<CKvFileIdentity> &identity() const { return m_identity; }
    /// As it was given to open.
    const QString &path() const { return m_path; }
    /// Line, counted from 1, that holds the byte at this offset.
    qint64 lineAt(std::size_t offset) const;

private:
    explicit CKvFileImage(QString path);

    void takeBytes(const QByteArray &bytes);
    void read(Holding holding);

    QString m_path;
    std::optional<CKvFileIdentity> m_identity;
    bool m_isPacked = false;
    bool m_isMapped = false;
    bool m_isConverted = false;
    /// The file's own bytes where they are packed.
    QByteArray m_packed;
    QByteArray m_copy;
    QFile m_file;
    std::string_view m_bytes;
};
