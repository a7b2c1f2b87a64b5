// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDevice>
#include <QSaveFile>
#include <QString>

#include <string_view>

/// Gives a file new content in one step. Until commit, and when anything fails, the old file stays
/// as it was.
///
///     CKvFileReplacement file(path);
///     file.write(bytes);
///     file.commit();
///
/// Each operation throws CKvDxfError with the system's reason when it can't be done.
class CKvFileReplacement
{
public:
    explicit CKvFileReplacement(const QString &path);
    CKvFileReplacement(const CKvFileReplacement &) = delete;
    CKvFileReplacement &operator=(const CKvFileReplacement &) = delete;

    /// Permissions of the new file. Left alone where the file system has none.
    void setPermissions(QFileDevice::Permissions permissions);
    void write(std::string_view bytes);
    void commit();

private:
    [[noreturn]] void refuse(const QString &reason) const;

    QString m_path;
    QSaveFile m_file;
};

/// Why writing to a file failed, without a full stop at its end.
/// @param systemError errno right after the failure, 0 when nothing set it.
QString writeFailureReason(const QFileDevice &file, int systemError);
