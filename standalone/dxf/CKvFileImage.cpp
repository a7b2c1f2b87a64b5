// SPDX-License-Identifier: MIT
#include "CKvFileImage.h"

#include "CKvDxfError.h"
#include "CKvImageRegistry.h"
#include "gzip.h"

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
    // A file counts as there also when its folder may not be searched.
    if (!file.isFile() && !CKvFileIdentity::ofPath(path)) {
        throw CKvDxfError(
            path, 0, QStringLiteral("The file can't be opened: %1.").arg(qt_error_string()));
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
    CKvImageRegistry &registry = CKvImageRegistry::ofThisProcess();
    if (const std::optional<CKvFileIdentity> identity = CKvFileIdentity::ofPath(path)) {
        if (CKvFileImagePtr known = registry.find(path, holding, *identity)) {
            return known;
        }
    }
    const std::shared_ptr<CKvFileImage> image(new CKvFileImage(path));
    image->read(holding);
    if (image->m_bytes.empty()) {
        throw CKvDxfError(path, 0, QStringLiteral("The file is empty."));
    }
    registry.enter(image);
    return image;
}

void CKvFileImage::read(Holding holding)
{
    m_file.setFileName(m_path);
    if (!m_file.open(QIODevice::ReadOnly)) {
        throw CKvDxfError(
            m_path, 0, QStringLiteral("The file can't be opened: %1.").arg(m_file.errorString()));
    }
    // Before the first byte: a change meanwhile shows as one behind it.
    m_identity = CKvFileIdentity::ofOpenFile(m_file.handle());
    const qint64 size = m_file.size();
    uchar *mapped = holding == Holding::Mapped && size > 0 ? m_file.map(0, size) : nullptr;
    m_bytes = { reinterpret_cast<const char *>(mapped), mapped ? std::size_t(size) : 0 };
    m_isMapped = mapped && !::isPacked(m_bytes);
    if (!m_isMapped) {
        // Also what some file systems give in place of a mapping.
        takeBytes(readWhole(m_file, m_path));
        if (mapped) {
            m_file.unmap(mapped);
        }
    }
    // A mapping outlives the closing; a check of many drawings would run out of open files.
    m_file.close();
}

void CKvFileImage::takeBytes(const QByteArray &bytes)
{
    m_copy = bytes;
    m_bytes = { m_copy.constData(), std::size_t(m_copy.size()) };
    m_isPacked = ::isPacked(m_bytes);
    if (m_isPacked) {
        m_packed = bytes;
        m_copy = unpacked(m_bytes, m_path);
        m_bytes = { m_copy.constData(), std::size_t(m_copy.size()) };
    }
}

CKvFileImagePtr CKvFileImage::fromBytes(const QByteArray &bytes, const QString &name)
{
    const std::shared_ptr<CKvFileImage> image(new CKvFileImage(name));
    image->takeBytes(bytes);
    return image;
}

CKvFileImagePtr CKvFileImage::fromConverted(const QByteArray &bytes, const CKvFileImage &original)
{
    const std::shared_ptr<CKvFileImage> image(new CKvFileImage(original.path()));
    image->m_isConverted = true;
    image->m_identity = original.identity();
    image->takeBytes(bytes);
    return image;
}

qint64 CKvFileImage::lineAt(std::size_t offset) const
{
    const std::string_view before = m_bytes.substr(0, std::min(offset, m_bytes.size()));
    return 1 + std::count(before.begin(), before.end(), '\n');
}
