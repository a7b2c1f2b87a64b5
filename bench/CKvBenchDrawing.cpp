// SPDX-License-Identifier: MIT
#include "CKvBenchDrawing.h"

#include <QFile>

#include <string>

namespace
{

void tag(std::string &text, int code, const std::string &value)
{
    text += std::to_string(code);
    text += '\n';
    text += value;
    text += '\n';
}

std::string hex(unsigned number)
{
    return QByteArray::number(number, 16).toUpper().toStdString();
}

std::string layerName(int number)
{
    return "LAYER-" + std::to_string(number);
}

void record(
    std::string &text, const char *type, const char *mark, unsigned handle, const std::string &name)
{
    tag(text, 0, type);
    tag(text, 5, hex(handle));
    tag(text, 330, "1");
    tag(text, 100, "AcDbSymbolTableRecord");
    tag(text, 100, mark);
    tag(text, 2, name);
}

void beginTable(std::string &text, const char *name, int records)
{
    tag(text, 0, "TABLE");
    tag(text, 2, name);
    tag(text, 70, std::to_string(records));
}

std::string head(const CKvBenchDrawing &drawing, unsigned &handle)
{
    std::string text;
    tag(text, 0, "SECTION");
    tag(text, 2, "HEADER");
    tag(text, 9, "$ACADVER");
    tag(text, 1, "AC1015");
    tag(text, 9, "$HANDSEED");
    tag(text, 5, "FFFFFFF");
    tag(text, 9, "$CLAYER");
    tag(text, 8, "0");
    tag(text, 0, "ENDSEC");
    tag(text, 0, "SECTION");
    tag(text, 2, "TABLES");
    beginTable(text, "LTYPE", 1);
    record(text, "LTYPE", "AcDbLinetypeTableRecord", ++handle, "Continuous");
    tag(text, 70, "0");
    tag(text, 0, "ENDTAB");
    beginTable(text, "LAYER", drawing.layers + 1);
    for (int i = 0; i <= drawing.layers; ++i) {
        record(text, "LAYER", "AcDbLayerTableRecord", ++handle, i == 0 ? "0" : layerName(i));
        tag(text, 70, "0");
        tag(text, 62, std::to_string(drawing.color));
        tag(text, 6, "Continuous");
    }
    tag(text, 0, "ENDTAB");
    beginTable(text, "BLOCK_RECORD", 1);
    record(text, "BLOCK_RECORD", "AcDbBlockTableRecord", 0xF, "*Model_Space");
    tag(text, 0, "ENDTAB");
    tag(text, 0, "ENDSEC");
    tag(text, 0, "SECTION");
    tag(text, 2, "ENTITIES");
    return text;
}

} // namespace

bool CKvBenchDrawing::write(const QString &path) const
{
    constexpr std::size_t kBlock = 1 << 20;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    unsigned handle = 0x10;
    std::string text = head(*this, handle);
    for (int i = 0; i < entities; ++i) {
        tag(text, 0, "LINE");
        tag(text, 5, hex(++handle));
        tag(text, 330, "F");
        tag(text, 100, "AcDbEntity");
        tag(text, 8, layerName(isOnOneLayer ? 1 : 1 + i % layers));
        tag(text, 100, "AcDbLine");
        tag(text, 10, std::to_string(i % 1000) + ".25");
        tag(text, 20, std::to_string(i / 1000) + ".5");
        tag(text, 11, std::to_string(i % 977) + ".75");
        tag(text, 21, std::to_string(i / 977) + ".125");
        if (text.size() > kBlock) {
            file.write(text.data(), qint64(text.size()));
            text.clear();
        }
    }
    tag(text, 0, "ENDSEC");
    tag(text, 0, "SECTION");
    tag(text, 2, "OBJECTS");
    tag(text, 0, "DICTIONARY");
    tag(text, 5, "C");
    tag(text, 330, "0");
    tag(text, 100, "AcDbDictionary");
    tag(text, 0, "ENDSEC");
    tag(text, 0, "EOF");
    return file.write(text.data(), qint64(text.size())) == qint64(text.size()) && file.flush();
}
