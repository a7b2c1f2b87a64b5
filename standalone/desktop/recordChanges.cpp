// SPDX-License-Identifier: MIT
#include "recordChanges.h"

#include "CKvObjectAnnotationContext.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbTextStyleTableRecord.h"
#include "angles.h"
#include "layerState.h"
#include "lineStyleDescription.h"

#include <QCoreApplication>

#include <iterator>

namespace
{

using Record = OdDbSymbolTableRecord;
using Asks = CKvRecordChange::Asks;

QString flagText(bool isSet)
{
    return isSet ? QStringLiteral("true") : QStringLiteral("false");
}

const OdDbLayerTableRecord &layer(const Record &record)
{
    return static_cast<const OdDbLayerTableRecord &>(record);
}

const OdDbTextStyleTableRecord &textStyle(const Record &record)
{
    return static_cast<const OdDbTextStyleTableRecord &>(record);
}

const OdDbLinetypeTableRecord &lineStyle(const Record &record)
{
    return static_cast<const OdDbLinetypeTableRecord &>(record);
}

QString numberText(double number)
{
    return QString::number(number, 'g', 12);
}

QString dashesText(const Record &record)
{
    QStringList dashes;
    for (int i = 0; i < lineStyle(record).numDashes(); ++i) {
        if (!lineStyle(record).shapeStyleAt(i).isNull()) {
            // Texts and shapes have no place in one line.
            return {};
        }
        dashes << numberText(lineStyle(record).dashLengthAt(i));
    }
    return dashes.join(QLatin1Char(','));
}

QString typefaceOf(const Record &record, bool &isBold, bool &isItalic)
{
    OdString typeface;
    int charset = 0;
    int pitchAndFamily = 0;
    textStyle(record).font(typeface, isBold, isItalic, charset, pitchAndFamily);
    return typeface.toQString();
}

QString typefaceText(const Record &record)
{
    bool isBold = false;
    bool isItalic = false;
    return typefaceOf(record, isBold, isItalic);
}

QString boldText(const Record &record)
{
    bool isBold = false;
    bool isItalic = false;
    typefaceOf(record, isBold, isItalic);
    return flagText(isBold);
}

QString italicText(const Record &record)
{
    bool isBold = false;
    bool isItalic = false;
    typefaceOf(record, isBold, isItalic);
    return flagText(isItalic);
}

QString orientationText(const Record &record)
{
    bool matches = false;
    CKvObjectAnnotationContext::IsAnnotative(record.objectId(), &matches);
    return flagText(matches);
}

constexpr auto kLayer = CKvRecordKind::Layer;
constexpr auto kLine = CKvRecordKind::LineStyle;
constexpr auto kText = CKvRecordKind::TextStyle;
constexpr auto kDim = CKvRecordKind::DimStyle;

constexpr CKvRecordChange kChanges[] = {
    { kLayer, Asks::Nothing, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Make Current"), "SET" },
    { kLayer,
      Asks::Color,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Colour…"),
      "COLOR",
      nullptr,
      [](const Record &r) { return layer(r).color().colorNameForDisplay().toQString(); } },
    { kLayer, Asks::LineStyle, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Line Style…"), "LTYPE" },
    { kLayer, Asks::LineWeight, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Lineweight…"), "LWEIGHT" },
    { kLayer,
      Asks::Flag,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "On"),
      "ON",
      "OFF",
      [](const Record &r) { return flagText(!layerState(layer(r)).isOff); } },
    { kLayer,
      Asks::Flag,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Frozen"),
      "FREEZE",
      "THAW",
      [](const Record &r) { return flagText(layerState(layer(r)).isFrozen); } },
    { kLayer,
      Asks::Flag,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Locked"),
      "LOCK",
      "UNLOCK",
      [](const Record &r) { return flagText(layerState(layer(r)).isLocked); } },
    { kLayer,
      Asks::Flag,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Plotted"),
      "PLOT",
      "NOPLOT",
      [](const Record &r) { return flagText(layerState(layer(r)).isPlotted); } },

    { kLine, Asks::Nothing, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Make Current"), "SET" },
    { kLine,
      Asks::Text,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Description…"),
      "DESCRIPTION",
      nullptr,
      [](const Record &r) { return lineStyleDescription(lineStyle(r)); } },
    { kLine,
      Asks::Text,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Pattern…"),
      "PATTERN",
      nullptr,
      &dashesText },

    { kText, Asks::Nothing, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Make Current"), "SET" },
    { kText,
      Asks::Text,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Font File…"),
      "FONT",
      nullptr,
      [](const Record &r) { return textStyle(r).fileName().toQString(); } },
    { kText,
      Asks::Text,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Big Font File…"),
      "BIGFONT",
      nullptr,
      [](const Record &r) { return textStyle(r).bigFontFileName().toQString(); } },
    { kText,
      Asks::Text,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Typeface…"),
      "TYPEFACE",
      nullptr,
      &typefaceText },
    { kText,
      Asks::Text,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Height…"),
      "HEIGHT",
      nullptr,
      [](const Record &r) { return numberText(textStyle(r).textSize()); } },
    { kText,
      Asks::Text,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Width Factor…"),
      "WIDTH",
      nullptr,
      [](const Record &r) { return numberText(textStyle(r).xScale()); } },
    { kText,
      Asks::Text,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Oblique Angle…"),
      "OBLIQUE",
      nullptr,
      [](const Record &r) {
          return numberText(textStyle(r).obliquingAngle() / kRadiansPerDegree);
      } },
    { kText, Asks::Flag, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Bold"), "BOLD", nullptr, &boldText },
    { kText,
      Asks::Flag,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Italic"),
      "ITALIC",
      nullptr,
      &italicText },
    { kText,
      Asks::Flag,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Backwards"),
      "BACKWARDS",
      nullptr,
      [](const Record &r) { return flagText(textStyle(r).isBackwards()); } },
    { kText,
      Asks::Flag,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Upside Down"),
      "UPSIDEDOWN",
      nullptr,
      [](const Record &r) { return flagText(textStyle(r).isUpsideDown()); } },
    { kText,
      Asks::Flag,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Vertical"),
      "VERTICAL",
      nullptr,
      [](const Record &r) { return flagText(textStyle(r).isVertical()); } },
    { kText,
      Asks::Flag,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Annotative"),
      "ANNOTATIVE",
      nullptr,
      [](const Record &r) {
          return flagText(CKvObjectAnnotationContext::IsAnnotative(r.objectId(), nullptr));
      } },
    { kText,
      Asks::Flag,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Match Orientation to Sheet"),
      "ORIENTATION",
      nullptr,
      &orientationText },

    { kDim, Asks::Nothing, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Make Current"), "SET" },
    { kDim, Asks::Setting, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Setting…"), "VARIABLE" },
};

} // namespace

const CKvRecordChange *begin(CKvRecordChanges)
{
    return std::begin(kChanges);
}

const CKvRecordChange *end(CKvRecordChanges)
{
    return std::end(kChanges);
}

bool isSet(const CKvRecordChange &flag, const OdDbSymbolTableRecord &record)
{
    return flag.present && flag.present(record) == flagText(true);
}
