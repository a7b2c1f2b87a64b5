// SPDX-License-Identifier: MIT
#include "CKvDwgProgram.h"

#include <QFile>

#include <gtest/gtest.h>

namespace
{

constexpr const char *kDwg = "AC1032 and what only other programs can read";

} // namespace

CKvDwgProgram::CKvDwgProgram(const QString &made)
    : m_pathBefore(qgetenv("PATH"))
{
    QFile program(m_folder.filePath(QStringLiteral("dwg2dxf")));
    EXPECT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\ncp '" + QFile::encodeName(made) + "' \"$3\"\n");
    program.close();
    program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    qputenv("PATH", QFile::encodeName(m_folder.path()) + ":/usr/bin:/bin");
}

CKvDwgProgram::~CKvDwgProgram()
{
    qputenv("PATH", m_pathBefore);
}

void CKvDwgProgram::writeDwg(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(kDwg);
}

bool CKvDwgProgram::isAsWritten(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll() == kDwg;
}
