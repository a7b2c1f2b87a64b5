// SPDX-License-Identifier: MIT
#include "lineweightNames.h"

#include <QCoreApplication>

namespace
{

struct CKvLineweightName {
    int hundredthsOfMillimetre;
    const char *name;
};

constexpr CKvLineweightName kMillimetreNames[] = {
    { 0, "0.00 mm" },   { 5, "0.05 mm" },   { 9, "0.09 mm" },   { 13, "0.13 mm" },
    { 15, "0.15 mm" },  { 18, "0.18 mm" },  { 20, "0.20 mm" },  { 25, "0.25 mm" },
    { 30, "0.30 mm" },  { 35, "0.35 mm" },  { 40, "0.40 mm" },  { 50, "0.50 mm" },
    { 53, "0.53 mm" },  { 60, "0.60 mm" },  { 70, "0.70 mm" },  { 80, "0.80 mm" },
    { 90, "0.90 mm" },  { 100, "1.00 mm" }, { 106, "1.06 mm" }, { 120, "1.20 mm" },
    { 140, "1.40 mm" }, { 158, "1.58 mm" }, { 200, "2.00 mm" }, { 211, "2.11 mm" },
};

struct CKvLineweightWord {
    OdDb::LineWeight lineWeight;
    const char *word;
};

constexpr CKvLineweightWord kWords[] = {
    { OdDb::kLineWeightByBlock, "ByBlock" },
    { OdDb::kLineWeightByLayer, "ByLayer" },
    { OdDb::kLineWeightByDefault, "ByDefault" },
};

} // namespace

CKvString ConvertLineweightToName(OdDb::LineWeight lineWeight)
{
    switch (lineWeight) {
    case OdDb::kLineWeightByDefault:
        return CKvString(QCoreApplication::translate("CKvCommand", "Default"));
    case OdDb::kLineWeightByBlock:
        return CKvString("ByBlock");
    case OdDb::kLineWeightByLayer:
        return CKvString("ByLayer");
    }
    for (const CKvLineweightName &entry : kMillimetreNames) {
        if (entry.hundredthsOfMillimetre == lineWeight) {
            return CKvString(entry.name);
        }
    }
    return CKvString();
}

bool ConvertNameToLineweight(CKvString name, OdDb::LineWeight &lineWeight)
{
    const QString &text = name.toQString();
    const CKvLineweightWord *meant = nullptr;
    for (const CKvLineweightWord &entry : kWords) {
        if (!QString(QLatin1String(entry.word)).contains(text, Qt::CaseInsensitive)) {
            continue;
        }
        if (meant) {
            return false;
        }
        meant = &entry;
    }
    if (meant) {
        lineWeight = meant->lineWeight;
        return true;
    }
    for (const CKvLineweightName &entry : kMillimetreNames) {
        if (text.compare(QLatin1String(entry.name), Qt::CaseInsensitive) == 0) {
            lineWeight = OdDb::LineWeight(entry.hundredthsOfMillimetre);
            break;
        }
    }
    return true;
}
