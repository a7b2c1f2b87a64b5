// SPDX-License-Identifier: MIT
#include "lineStyleFiles.h"

#include "CKvHostDocument.h"
#include "CKvSession.h"
#include "findSupportFile.h"

#include <QDir>

QString findLineStyleFile(const CKvHostDocument &document, const QString &name)
{
    const QString path = QDir::fromNativeSeparators(name);
    CKvSession *session = CKvSession::current();
    const QString found =
        findSupportFile(path,
                        document.GetKvDatabase(),
                        session ? session->settings().supportPaths() : QStringList());
    return found.isEmpty() ? path : found;
}

QString usualLineStyleFile(const CKvHostDocument &document)
{
    const bool isMetric = document.GetKvDatabase()->getMEASUREMENT() != 0;
    return findLineStyleFile(document,
                             isMetric ? QStringLiteral("mm.lin") : QStringLiteral("inch.lin"));
}
