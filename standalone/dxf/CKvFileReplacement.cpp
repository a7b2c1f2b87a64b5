// SPDX-License-Identifier: MIT
#include "CKvFileReplacement.h"

#include "CKvDxfError.h"
#include "CKvFileIdentity.h"

#include <QFileInfo>

#include <cerrno>

CKvFileReplacement::CKvFileReplacement(const QString &path)
    : m_path(path)
    , m_file(path)
{
    // A file counts as there also when its folder may not be searched; opening it tells why.
    const bool isThere = CKvFileIdentity::ofPath(path).has_value();
    if (isThere && !QFileInfo(path).isFile()) {
        refuse(QStringLiteral("it is a folder or a device"));
    }
    if (!m_file.open(QIODevice::WriteOnly)) {
        refuse(m_file.errorString());
    }
}

void CKvFileReplacement::setPermissions(QFileDevice::Permissions permissions)
{
    m_file.setPermissions(permissions);
}

void CKvFileReplacement::write(std::string_view bytes)
{
    errno = 0;
    if (m_file.write(bytes.data(), qint64(bytes.size())) != qint64(bytes.size())) {
        refuse(writeFailureReason(m_file, errno));
    }
}

void CKvFileReplacement::commit()
{
    // Committing would lose a failure to write what is still in the buffer, and replace the file.
    errno = 0;
    if (!m_file.flush()) {
        refuse(writeFailureReason(m_file, errno));
    }
    if (!m_file.commit()) {
        refuse(m_file.errorString());
    }
}

void CKvFileReplacement::refuse(const QString &reason) const
{
    throw CKvDxfError(m_path, 0, QStringLiteral("The file can't be written: %1.").arg(reason));
}

QString writeFailureReason(const QFileDevice &file, int systemError)
{
    // Of a disk that fills up amid a piece the file itself only says "Unknown error".
    return systemError != 0 ? qt_error_string(systemError) : file.errorString();
}
