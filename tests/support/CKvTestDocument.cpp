// SPDX-License-Identifier: MIT
#include "CKvTestDocument.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

CKvTestDocument::CKvTestDocument(const CKvDrawingBuilder &drawing)
{
    const QString path = m_folder.filePath(QStringLiteral("drawing.dxf"));
    drawing.saveTo(path);
    m_documents.open(path);
}

CKvTestDocument::CKvTestDocument(const QStringList &paths)
{
    for (const QString &path : paths) {
        EXPECT_TRUE(QFile::copy(path, m_folder.filePath(QFileInfo(path).fileName())));
    }
    m_documents.open(m_folder.filePath(QFileInfo(paths.first()).fileName()));
}
