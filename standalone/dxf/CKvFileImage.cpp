// SPDX-License-Identifier: MIT
#include "CKvFileImage.h"

#include "CKvDxfError.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace
{

// A QByteArray counts its bytes in an int and needs some of them for itself.
constexpr qint64 kMostBytesInMemory = 0x7fffffff - 64;

void requireOrdinaryFile(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        throw CKvDxfError(path, 0, QStringLiteral("There is no such file."));
    }
    if (file.isDir()) {
        throw CKvDxfError(path, 0, QStringLiteral("This is a folder, not a file."));
    }
    // Opening a pipe would wait for somebody to write into it, and a device may never end.
    if (!file.isFile()) {
        throw CKvDxfError(
            path, 0, QStringLiteral("This is a device or a pipe, not an ordinary file."));
    }
}

QByteArray readWhole(QFile &file, const QString &path)
{
    if (file.size() > kMostBytesInMemory) {
        throw CKvDxfError(
            path, 0, QStringLiteral("The file is too large to be kept in memory (over 2 GB)."));
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        throw CKvDxfError(
            path, 0, QStringLiteral("The file can't be read: %1.").arg(file.errorString()));
    }
    return bytes;
}

} // namespace

CKvFileImage::CKvFileImage(QString path)
    : m_path(std::move(path))
{
}

CKvFileImage::~CKvFileImage() = default;

CKvFileImagePtr CKvFileImage::open(const QString &path, Holding holding)
{
    requireOrdinaryFile(path);
    const std::shared_ptr<CKvFileImage> image(new CKvFileImage(path));
    QFile &file = image->m_file;
    file.setFileName(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw CKvDxfError(
            path, 0, QStringLiteral("The file can't be opened: %1.").arg(file.errorString()));
    }
    const qint64 size = file.size();
    const uchar *mapped = holding == Holding::Mapped && size > 0 ? file.map(0, size) : nullptr;
    if (mapped) {
        image->m_bytes = { reinterpret_cast<const char *>(mapped), std::size_t(size) };
    } else {
        // Also what some file systems give in place of a mapping.
        image->m_copy = readWhole(file, path);
        image->m_bytes = { image->m_copy.constData(), std::size_t(image->m_copy.size()) };
    }
    // A mapping outlives the closing; a check of many drawings would run out of open files.
    file.close();
    if (image->m_bytes.empty()) {
        throw CKvDxfError(path, 0, QStringLiteral("The file is empty."));
    }
    return image;
}

CKvFileImagePtr CKvFileImage::fromBytes(const QByteArray &bytes, const QString &name)
{
    const std::shared_ptr<CKvFileImage> image(new CKvFileImage(name));
    image->m_copy = bytes;
    image->m_bytes = { image->m_copy.constData(), std::size_t(image->m_copy.size()) };
    return image;
}

qint64 CKvFileImage::lineAt(std::size_t offset) const
{
    const std::string_view before = m_bytes.substr(0, std::min(offset, m_bytes.size()));
    return 1 + std::count(before.begin(), before.end(), '\n');
}
