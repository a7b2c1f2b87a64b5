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
    { kLayer, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Make Current"), Asks::Nothing, "SET" },
    { kLayer,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Colour…"),
      Asks::Color,
      "COLOR",
      nullptr,
      [](const Record &r) { return layer(r).color().colorNameForDisplay().toQString(); } },
    { kLayer, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Line Style…"), Asks::LineStyle, "LTYPE" },
    { kLayer, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Lineweight…"), Asks::LineWeight, "LWEIGHT" },
    { kLayer,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "On"),
      Asks::Flag,
      "ON",
      "OFF",
      [](const Record &r) { return flagText(!layerState(layer(r)).isOff); } },
    { kLayer,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Frozen"),
      Asks::Flag,
      "FREEZE",
      "THAW",
      [](const Record &r) { return flagText(layerState(layer(r)).isFrozen); } },
    { kLayer,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Locked"),
      Asks::Flag,
      "LOCK",
      "UNLOCK",
      [](const Record &r) { return flagText(layerState(layer(r)).isLocked); } },
    { kLayer,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Plotted"),
      Asks::Flag,
      "PLOT",
      "NOPLOT",
      [](const Record &r) { return flagText(layerState(layer(r)).isPlotted); } },

    { kLine, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Make Current"), Asks::Nothing, "SET" },
    { kLine,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Description…"),
      Asks::Text,
      "DESCRIPTION",
      nullptr,
      [](const Record &r) { return lineStyleDescription(lineStyle(r)); } },
    { kLine,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Pattern…"),
      Asks::Text,
      "PATTERN",
      nullptr,
      &dashesText },

    { kText, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Make Current"), Asks::Nothing, "SET" },
    { kText,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Font File…"),
      Asks::Text,
      "FONT",
      nullptr,
      [](const Record &r) { return textStyle(r).fileName().toQString(); } },
    { kText,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Big Font File…"),
      Asks::Text,
      "BIGFONT",
      nullptr,
      [](const Record &r) { return textStyle(r).bigFontFileName().toQString(); } },
    { kText,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Typeface…"),
      Asks::Text,
      "TYPEFACE",
      nullptr,
      &typefaceText },
    { kText,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Height…"),
      Asks::Text,
      "HEIGHT",
      nullptr,
      [](const Record &r) { return numberText(textStyle(r).textSize()); } },
    { kText,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Width Factor…"),
      Asks::Text,
      "WIDTH",
      nullptr,
      [](const Record &r) { return numberText(textStyle(r).xScale()); } },
    { kText,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Oblique Angle…"),
      Asks::Text,
      "OBLIQUE",
      nullptr,
      [](const Record &r) {
          return numberText(textStyle(r).obliquingAngle() / kRadiansPerDegree);
      } },
    { kText, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Bold"), Asks::Flag, "BOLD", nullptr, &boldText },
    { kText,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Italic"),
      Asks::Flag,
      "ITALIC",
      nullptr,
      &italicText },
    { kText,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Backwards"),
      Asks::Flag,
      "BACKWARDS",
      nullptr,
      [](const Record &r) { return flagText(textStyle(r).isBackwards()); } },
    { kText,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Upside Down"),
      Asks::Flag,
      "UPSIDEDOWN",
      nullptr,
      [](const Record &r) { return flagText(textStyle(r).isUpsideDown()); } },
    { kText,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Vertical"),
      Asks::Flag,
      "VERTICAL",
      nullptr,
      [](const Record &r) { return flagText(textStyle(r).isVertical()); } },
    { kText,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Annotative"),
      Asks::Flag,
      "ANNOTATIVE",
      nullptr,
      [](const Record &r) {
          return flagText(CKvObjectAnnotationContext::IsAnnotative(r.objectId(), nullptr));
      } },
    { kText,
      QT_TRANSLATE_NOOP("CKvRecordsPanel", "Match Orientation to Sheet"),
      Asks::Flag,
      "ORIENTATION",
      nullptr,
      &orientationText },

    { kDim, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Make Current"), Asks::Nothing, "SET" },
    { kDim, QT_TRANSLATE_NOOP("CKvRecordsPanel", "Setting…"), Asks::Setting, "VARIABLE" },
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
