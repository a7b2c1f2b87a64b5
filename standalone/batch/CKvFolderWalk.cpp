// SPDX-License-Identifier: MIT
#include "CKvFolderWalk.h"

#include <QFile>
#include <QFileInfo>

namespace
{

namespace fs = std::filesystem;

fs::path toPath(const QString &path)
{
#ifdef _WIN32
    return path.toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

/// @param isReadable receives false for bytes that are no text; what is returned is for showing.
QString nameOf(const fs::path &path, bool &isReadable)
{
#ifdef _WIN32
    isReadable = true;
    return QString::fromStdWString(path.filename().wstring());
#else
    const QByteArray bytes = QByteArray::fromStdString(path.filename().string());
    QString name = QFile::decodeName(bytes);
    isReadable = QFile::encodeName(name) == bytes;
    return name;
#endif
}

bool isCalledLikeADrawing(const QString &name)
{
    const bool isPacked = name.endsWith(QLatin1String(".gz"), Qt::CaseInsensitive);
    const QString unpacked = isPacked ? name.chopped(3) : name;
    return unpacked.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive)
        || unpacked.endsWith(QLatin1String(".dws"), Qt::CaseInsensitive);
}

} // namespace

CKvFolderWalk::CKvFolderWalk(const QString &folder, const QString &outputFolder)
    : m_folder(folder)
    , m_prefix(folder.endsWith(QLatin1Char('/')) ? folder : QString(folder + QLatin1Char('/')))
    , m_outputFolder(outputFolder.isEmpty() ? QString()
                                            : QFileInfo(outputFolder).canonicalFilePath())
{
}

void CKvFolderWalk::addTo(CKvDrawingList &list)
{
    walk(toPath(m_folder), QString());
    m_found.sort();
    for (const QString &relativePath : m_found) {
        list.drawings.push_back({ shown(relativePath), relativePath });
    }
    if (m_found.isEmpty() && m_errors.isEmpty()) {
        m_errors << QStringLiteral("There is no drawing in the folder %1.").arg(m_folder);
    }
    list.errors << m_errors;
    list.notes << m_notes;
}

void CKvFolderWalk::walk(const fs::path &folder, const QString &relativeFolder)
{
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    while (!error && entry != fs::directory_iterator()) {
        meet(*entry, relativeFolder);
        entry.increment(error);
    }
    if (error) {
        const QString name = relativeFolder.isEmpty() ? m_folder : shown(relativeFolder);
        m_errors << QStringLiteral("The folder %1 can't be read: %2.")
                        .arg(name, QString::fromLocal8Bit(error.message().c_str()));
    }
}

void CKvFolderWalk::meet(const fs::directory_entry &entry, const QString &relativeFolder)
{
    bool isReadable = false;
    const QString name = nameOf(entry.path(), isReadable);
    if (name.startsWith(QLatin1Char('.'))) {
        return;
    }
    const QString relativePath =
        relativeFolder.isEmpty() ? name : QString(relativeFolder + QLatin1Char('/') + name);
    std::error_code ignored;
    const bool isFolder = entry.is_directory(ignored);
    if (!isReadable && (isFolder || isCalledLikeADrawing(name))) {
        m_errors << QStringLiteral("%1 can't be opened: its name is not in UTF-8.")
                        .arg(shown(relativePath));
    } else if (isFolder) {
        meetFolder(entry, relativePath);
    } else if (isCalledLikeADrawing(name)) {
        // Whatever it is: a pipe or a link that leads nowhere fails when it is opened.
        m_found << relativePath;
    }
}

void CKvFolderWalk::meetFolder(const fs::directory_entry &entry, const QString &relativePath)
{
    std::error_code ignored;
    if (entry.is_symlink(ignored)) {
        // It may lead back to where it stands.
        m_notes << QStringLiteral("%1 is a link to a folder and was not followed.")
                       .arg(shown(relativePath));
    } else if (!m_outputFolder.isEmpty()
               && QFileInfo(shown(relativePath)).canonicalFilePath() == m_outputFolder) {
        m_notes << QStringLiteral("%1 was passed over: the repaired drawings go there.")
                       .arg(shown(relativePath));
    } else {
        walk(entry.path(), relativePath);
    }
}
