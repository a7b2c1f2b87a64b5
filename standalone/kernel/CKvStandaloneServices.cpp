// SPDX-License-Identifier: MIT
#include "CKvStandaloneServices.h"

#include "CKvExpressionParserData.h"
#include "OdDbDatabase.h"
#include "executableFolder.h"

#include <QDir>
#include <QFileInfo>

namespace
{

/// Where mm.lin and inch.lin are: beside the program, where it is installed, in the sources.
QStringList supportFolders()
{
    QStringList folders;
    const QString beside = executableFolder();
    if (!beside.isEmpty()) {
        folders << beside << beside + QLatin1String("/support")
                << beside + QLatin1String("/../share/kvstandards");
    }
    return folders << QStringLiteral(KV_SUPPORT_FOLDER);
}

/// Empty for a drawing that has no file.
QString folderOf(const OdDbDatabase &database)
{
    const QString file = database.getFilename().toQString();
    return file.isEmpty() ? QString() : QFileInfo(file).absolutePath();
}

/// Full path of the file in the first of the folders that has it; empty when none has.
QString searched(const QString &name, const QStringList &folders)
{
    for (const QString &folder : folders) {
        const QFileInfo file(QDir(folder), name);
        if (file.isFile()) {
            return QDir::cleanPath(file.absoluteFilePath());
        }
    }
    return {};
}

} // namespace

CKvStandaloneServices::CKvStandaloneServices(CKvFileImage::Holding holding)
    : m_appServices(holding)
    , m_before(GetKvSystemServices())
{
    SetKvSystemServices(this);
}

CKvStandaloneServices::~CKvStandaloneServices()
{
    SetKvSystemServices(m_before);
}

CKvString CKvStandaloneServices::findFile(const CKvString &name,
                                          int /*hint*/,
                                          OdDbDatabase *database,
                                          int /*flags*/)
{
    if (name.isEmpty()) {
        return CKvString();
    }
    QStringList folders;
    if (database && !folderOf(*database).isEmpty()) {
        folders << folderOf(*database);
    }
    folders << m_searchPaths;
    const QString found = searched(name.toQString(), folders);
    // Where the program stands is asked only when it matters: the support files come last.
    return CKvString(found.isEmpty() ? searched(name.toQString(), supportFolders()) : found);
}

OdResBufPtr CKvStandaloneServices::evaluateExpression(CKvExpressionParserData &data,
                                                      OdResBufPtr /*request*/)
{
    data.setFailure(CKvString("There is no command line."));
    return {};
}
