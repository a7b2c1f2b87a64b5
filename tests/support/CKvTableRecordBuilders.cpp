// SPDX-License-Identifier: MIT
#include "CKvTableRecordBuilders.h"

#include <cmath>

namespace
{

std::vector<std::pair<int, CKvDxfValue>> annotationData(int flag)
{
    return {
        { 1000, "AnnotativeData" }, { 1002, "{" }, { 1070, 1 }, { 1070, flag }, { 1002, "}" }
    };
}

} // namespace

CKvTableRecordBuilder::CKvTableRecordBuilder(const QString &table, const QString &name)
    : CKvObjectBuilder(table, name)
{
    flags(0);
}

CKvLayerBuilder::CKvLayerBuilder(const QString &name)
    : CKvObjectBuilder(QStringLiteral("LAYER"), name)
{
    flags(0).color(7).lineStyle("Continuous");
}

CKvLayerBuilder &CKvLayerBuilder::trueColor(int red, int green, int blue, int index)
{
    set(62, index);
    return set(420, (red << 16) | (green << 8) | blue);
}

CKvLineStyleBuilder::CKvLineStyleBuilder(const QString &name)
    : CKvObjectBuilder(QStringLiteral("LTYPE"), name)
{
    flags(0).description("").group(72, 65).group(73, 0).patternLength(0.0);
}

CKvLineStyleBuilder &CKvLineStyleBuilder::dashes(const std::vector<double> &lengths)
{
    double total = 0;
    for (const double length : lengths) {
        total += std::abs(length);
    }
    set(73, int(lengths.size()));
    patternLength(total);
    for (const double length : lengths) {
        group(49, length).group(74, 0);
    }
    return *this;
}

CKvTextStyleBuilder::CKvTextStyleBuilder(const QString &name)
    : CKvObjectBuilder(QStringLiteral("STYLE"), name)
{
    flags(0).height(0.0).width(1.0).obliqueDegrees(0.0).generation(0);
    group(42, 2.5).font("txt").bigFont("");
}

CKvTextStyleBuilder &CKvTextStyleBuilder::typeface(const CKvDxfValue &name, int fontFlags)
{
    return extendedData("ACAD", { { 1000, name }, { 1071, fontFlags } });
}

CKvTextStyleBuilder &CKvTextStyleBuilder::annotative(int flag)
{
    return extendedData("AcadAnnotative", annotationData(flag));
}

CKvTextStyleBuilder &CKvTextStyleBuilder::matchOrientation(int flag)
{
    return extendedData("AcadAnnoPO", { { 1070, flag } });
}

CKvDimStyleBuilder::CKvDimStyleBuilder(const QString &name)
    : CKvObjectBuilder(QStringLiteral("DIMSTYLE"), name)
{
    flags(0);
}

CKvDimStyleBuilder &CKvDimStyleBuilder::annotative(int flag)
{
    return extendedData("AcadAnnotative", annotationData(flag));
}
