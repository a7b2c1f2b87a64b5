// SPDX-License-Identifier: MIT
#include "CKvBenchRecords.h"

#include <QFile>

#include <string>
#include <utility>
#include <vector>

namespace
{

using CKvGroups = std::vector<std::pair<int, std::string>>;

void append(std::string &text, const CKvGroups &groups)
{
    for (const auto &[code, value] : groups) {
        text += std::to_string(code);
        text += '\n';
        text += value;
        text += '\n';
    }
}

/// A table of records that differ in their names only.
void appendTable(std::string &text,
                 const char *type,
                 const char *mark,
                 int count,
                 unsigned &handle,
                 const CKvGroups &values)
{
    append(text, { { 0, "TABLE" }, { 2, type }, { 70, std::to_string(count) } });
    const int handleCode = std::string(type) == "DIMSTYLE" ? 105 : 5;
    for (int i = 1; i <= count; ++i) {
        append(text,
               { { 0, type },
                 { handleCode, QByteArray::number(++handle, 16).toUpper().toStdString() },
                 { 330, "1" },
                 { 100, "AcDbSymbolTableRecord" },
                 { 100, mark },
                 { 2, "R-" + std::to_string(i) },
                 { 70, "0" } });
        append(text, values);
    }
    append(text, { { 0, "ENDTAB" } });
}

} // namespace

bool CKvBenchRecords::write(const QString &path) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    const std::string number = std::to_string(variant);
    unsigned handle = 0x10;
    std::string text;
    append(text,
           { { 0, "SECTION" },
             { 2, "HEADER" },
             { 9, "$ACADVER" },
             { 1, "AC1015" },
             { 9, "$HANDSEED" },
             { 5, "FFFFFFF" },
             { 0, "ENDSEC" },
             { 0, "SECTION" },
             { 2, "TABLES" } });
    appendTable(text,
                "LTYPE",
                "AcDbLinetypeTableRecord",
                count,
                handle,
                { { 3, "" },
                  { 72, "65" },
                  { 73, "2" },
                  { 40, number + ".5" },
                  { 49, number + ".0" },
                  { 74, "0" },
                  { 49, "-0.5" },
                  { 74, "0" } });
    appendTable(text,
                "LAYER",
                "AcDbLayerTableRecord",
                count,
                handle,
                { { 62, number }, { 6, "Continuous" } });
    appendTable(text,
                "STYLE",
                "AcDbTextStyleTableRecord",
                count,
                handle,
                { { 40, number + ".5" },
                  { 41, "1.0" },
                  { 50, "0.0" },
                  { 71, "0" },
                  { 42, "2.5" },
                  { 3, "arial.ttf" },
                  { 4, "" },
                  { 1001, "ACAD" },
                  { 1000, "Arial" },
                  { 1071, "34" } });
    appendTable(text,
                "DIMSTYLE",
                "AcDbDimStyleTableRecord",
                count,
                handle,
                { { 40, number + ".0" },
                  { 41, number + ".5" },
                  { 140, number + ".25" },
                  { 77, "1" },
                  { 271, number } });
    append(text,
           { { 0, "ENDSEC" }, { 0, "SECTION" }, { 2, "ENTITIES" }, { 0, "ENDSEC" }, { 0, "EOF" } });
    return file.write(text.data(), qint64(text.size())) == qint64(text.size()) && file.flush();
}
