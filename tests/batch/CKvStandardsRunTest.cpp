// SPDX-License-Identifier: MIT
#include "CKvStandardsRunTest.h"

CKvBatchRun CKvStandardsRunTest::check(const QStringList &arguments) const
{
    return run(QStringList { QStringLiteral("check"),
                             QStringLiteral("-f"),
                             QStringLiteral("json"),
                             QStringLiteral("plans/a.dxf") }
               + arguments);
}

void CKvStandardsRunTest::saveDrawing(const QStringList &standards) const
{
    CKvDrawingBuilder drawing = redWalls();
    drawing.standardsFiles(standards);
    save(QStringLiteral("plans/a.dxf"), drawing);
}

void CKvStandardsRunTest::saveStandards(const QString &name, int color) const
{
    CKvDrawingBuilder standards;
    standards.layer("WALLS").color(color).lineWeight(50);
    standards.layer("DOORS").color(3);
    standards.layer("0");
    save(name, standards);
}

std::string CKvStandardsRunTest::standards(const CKvBatchRun &run) const
{
    std::string lines;
    const auto drawing = firstDrawing(run);
    for (const auto &file : drawing.at("standards")) {
        std::string filePath = file.at("path").get<std::string>();
        const std::string folder = fullPath(QString()) + "/";
        if (filePath.compare(0, folder.size(), folder) == 0) {
            filePath = "/" + filePath.substr(folder.size());
        }
        lines += file.at("status").get<std::string>() + " " + filePath + "\n";
    }
    return lines;
}

std::string CKvStandardsRunTest::standardColor(const CKvBatchRun &run)
{
    const auto fix = firstDrawing(run).at("violations").at(0).at("fixes").at(0);
    return fix.at("differences").at(0).at("standard").get<std::string>();
}
