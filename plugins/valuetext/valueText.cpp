// SPDX-License-Identifier: MIT
#include "valueText.h"

#include "OdDbDatabase.h"
#include "OdDbDictionary.h"
#include "OdDbMaterial.h"
#include "OdDbMlineStyle.h"
#include "OdDbPlaceHolder.h"
#include "OdDbSymbolTableRecord.h"

#include <QCoreApplication>

#include <cmath>

namespace
{

/// From here on reals are told with an exponent.
constexpr double kFirstExponentialReal = 1000000.0;

CKvString unknownText()
{
    return CKvString("???");
}

/// A word of the host's colour boxes, in its language.
QString colorWord(const char *word)
{
    return QCoreApplication::translate("CKvQtColorComboBoxBase", word);
}

CKvString plotStyleName(const OdDbObject &plotStyle)
{
    const OdDbDictionaryPtr names(
        plotStyle.database()->getPlotStyleNameDictionaryId().openObject(OdDb::kForRead));
    return names ? CKvString(names->nameAt(plotStyle.objectId())) : CKvString();
}

} // namespace

CKvString integerToText(std::int32_t value)
{
    CKvString text;
    text.formatA("%d", int(value));
    return text;
}

CKvString realToText(double value)
{
    CKvString text;
    // The test comes before the rounding, so 999999.99999 is told as 1000000.0; what is no number
    // fails it.
    if (!(kFirstExponentialReal > std::fabs(value))) {
        text.formatA("%.4E", value);
        return text;
    }
    text.formatA("%.4f", value);
    const QString &digits = text.toQString();
    int length = digits.length();
    while (digits.at(length - 1) == QLatin1Char('0') && digits.at(length - 2) != QLatin1Char('.')) {
        --length;
    }
    return text.left(length);
}

CKvString booleanToText(bool value)
{
    return CKvString(value ? "true" : "false");
}

CKvString stringToText(const OdString &value)
{
    return value.isEmpty() ? CKvString("\"\"") : CKvString(value);
}

CKvString stringToText(const char16_t *utf16)
{
    return stringToText(utf16 ? OdString(QString::fromUtf16(utf16)) : OdString());
}

CKvString colorToText(const OdCmColor &value)
{
    if (value.isByLayer()) {
        return CKvString("ByLayer");
    }
    if (value.isByBlock()) {
        return CKvString("ByBlock");
    }
    if (value.isForeground()) {
        return CKvString(colorWord("Foreground"));
    }
    if (value.isNone()) {
        return CKvString(colorWord("None"));
    }
    if (value.isByIndex()) {
        return CKvString(value.colorNameForDisplay());
    }
    if (!value.isByColor()) {
        return unknownText();
    }
    const CKvString components = rgbToText(value.red(), value.green(), value.blue());
    return CKvString(QString(colorWord("ByColor") + QLatin1Char(' ') + components.toQString()));
}

CKvString objectIdToText(OdDbObjectId value)
{
    if (value.isNull() || value.isErased()) {
        return CKvString("Null");
    }
    const OdDbObjectPtr object = value.safeOpenObject(OdDb::kForRead);
    if (const auto record = OdDbSymbolTableRecord::cast(object.get())) {
        return CKvString(record->getName());
    }
    if (const auto multilineStyle = OdDbMlineStyle::cast(object.get())) {
        return CKvString(multilineStyle->name());
    }
    if (object->isKindOf(OdDbPlaceHolder::desc())) {
        return plotStyleName(*object);
    }
    if (const auto material = OdDbMaterial::cast(object.get())) {
        return CKvString(material->name());
    }
    return CKvString(
        QString(QLatin1Char('<') + object->isA()->name().toQString() + QLatin1Char('>')));
}

CKvString annotationTypeToText(int code)
{
    switch (code) {
    case 0:
        return CKvString("kMText");
    case 1:
        return CKvString("kFcf");
    case 2:
        return CKvString("kBlockRef");
    case 3:
        return CKvString("kNoAnno");
    default:
        return unknownText();
    }
}

CKvString rgbToText(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return CKvString(QString(QLatin1Char('r') + integerToText(red).toQString() + QLatin1String(":g")
                             + integerToText(green).toQString() + QLatin1String(":b")
                             + integerToText(blue).toQString()));
}
