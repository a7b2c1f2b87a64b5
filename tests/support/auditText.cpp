// SPDX-License-Identifier: MIT
#include "auditText.h"

namespace
{

std::string toStdString(const CKvString &text)
{
    return text.toQString().toStdString();
}

std::string toStdString(const OdString &text)
{
    return text.toQString().toStdString();
}

std::string fixText(const CKvStdsFixPtr &fix)
{
    return toStdString(fix->name()) + '@' + toStdString(fix->standardsFile());
}

} // namespace

std::vector<CKvStdsViolation> audit(CKvStdsPlugins &plugin,
                                    const OdDbDatabasePtr &drawing,
                                    const QStringList &standardsPaths,
                                    const OdDbObjectIdArray &ids)
{
    std::vector<CKvString> paths;
    for (const QString &path : standardsPaths) {
        paths.emplace_back(path);
    }
    plugin.clear();
    plugin.setObjectsToCheck(ids, /*scanAll*/ ids.isEmpty());
    plugin.openStandards(drawing, CKvString(drawing->getFilename()), paths, paths);
    std::vector<CKvStdsViolation> violations;
    for (plugin.beginScan(CKvStdsErrorPtr()); !plugin.isDone(); plugin.nextError()) {
        CKvStdsViolation violation;
        violation.error = plugin.currentError();
        violation.plugin = CKvStdsPluginsPtr(&plugin);
        plugin.collectFixes(violation.error, violation.fixes, violation.recommendedFix);
        violations.push_back(violation);
    }
    return violations;
}

std::string valueText(const OdResBufPtr &value)
{
    if (!value) {
        return "-";
    }
    switch (value->restype()) {
    case OdResBuf::kRtString:
        return toStdString(value->getString());
    case OdResBuf::kRtColor:
        return toStdString(value->getColor().colorNameForDisplay());
    case OdResBuf::kRtInt32:
        return std::to_string(value->getInt32());
    case OdResBuf::kRtInt16:
        return std::to_string(value->getInt16());
    case OdResBuf::kRtDouble:
        return QString::number(value->getDouble(), 'f', 4).toStdString();
    case OdResBuf::kDxfBool:
        return value->getBool() ? "1" : "0";
    default:
        return std::string();
    }
}

std::string propertiesText(const CKvStdsErrorPtr &error)
{
    std::string text;
    for (const auto &[name, value] : error->properties()) {
        text += (text.empty() ? "" : " ") + toStdString(name) + '=' + valueText(value);
    }
    return text;
}

std::string fixesText(const OdArray<CKvStdsFixPtr> &fixes)
{
    std::string text;
    for (const CKvStdsFixPtr &fix : fixes) {
        text += fixText(fix) + '\n';
    }
    return text;
}

std::string violationsText(const std::vector<CKvStdsViolation> &violations)
{
    std::string text;
    for (const CKvStdsViolation &violation : violations) {
        text += toStdString(violation.error->objectName()) + ": "
            + toStdString(violation.error->message());
        for (unsigned i = 0; i < violation.fixes.size(); ++i) {
            text += ' ' + fixText(violation.fixes.at(i))
                + (int(i) == violation.recommendedFix ? "*" : "");
        }
        text += '\n';
    }
    return text;
}

std::string
previewText(CKvStdsPlugins &plugin, const CKvStdsErrorPtr &error, const CKvStdsFixPtr &fix)
{
    std::vector<CKvString> names;
    OdArray<OdResBufPtr> current;
    OdArray<OdResBufPtr> standard;
    std::vector<CKvString> units;
    plugin.propertyDifferences(error, fix, names, current, standard, units);
    std::string text;
    for (unsigned i = 0; i < names.size(); ++i) {
        text += toStdString(names[i]) + ": " + valueText(current.at(i)) + " -> "
            + valueText(standard.at(i)) + '\n';
    }
    return text;
}

void PrintTo(const CKvString &text, std::ostream *out)
{
    *out << '"' << toStdString(text) << '"';
}
