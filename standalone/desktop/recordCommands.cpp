// SPDX-License-Identifier: MIT
#include "CKvDesktop.h"
#include "CKvDrawingStore.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "CKvObjectAccess.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbTextStyleTableRecord.h"
#include "OdError.h"
#include "angles.h"
#include "colorFromText.h"
#include "desktopCommands.h"
#include "findSupportFile.h"
#include "objectTags.h"
#include "recordNames.h"
#include "recordTables.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace
{

constexpr int kFrozen = 1;

/// What a command can do, by the word that the user gives for it.
using Options = std::vector<std::pair<const char *, std::function<void(CKvDesktop &)>>>;

bool runOption(CKvDesktop &desktop, const QString &prompt, const Options &options)
{
    desktop.requireDocument();
    const QString word = desktop.commandLine().ask(prompt);
    for (const auto &[name, action] : options) {
        if (!word.isEmpty() && QLatin1String(name).startsWith(word, Qt::CaseInsensitive)) {
            action(desktop);
            return true;
        }
    }
    desktop.commandLine().print(CKvMainWindow::tr("\"%1\" is no option.").arg(word));
    return false;
}

QString namePrompt()
{
    return CKvMainWindow::tr("Name:");
}

double askNumber(CKvDesktop &desktop, const QString &prompt)
{
    const QString text = desktop.commandLine().ask(prompt);
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number)) {
        throw OdError(OdResult::kInvalidInput, "\"" + text.toStdString() + "\" is no number.");
    }
    return number;
}

template <class Record> void addRecord(CKvDesktop &desktop, CKvRecordKind kind)
{
    const CKvHostDocument &document = desktop.requireDocument();
    const OdSmartPtr<Record> record = Record::createObject();
    record->setName(OdString(desktop.commandLine().ask(namePrompt())));
    openTable(document, kind, OdDb::kForWrite)->add(record);
}

template <class Record> OdSmartPtr<Record> askToChange(CKvDesktop &desktop, CKvRecordKind kind)
{
    return OdSmartPtr<Record>(askRecord(desktop, kind, namePrompt(), OdDb::kForWrite));
}

std::function<void(CKvDesktop &)> deletes(CKvRecordKind kind)
{
    return [kind](CKvDesktop &desktop) {
        eraseRecord(askRecord(desktop, kind, namePrompt(), OdDb::kForRead));
    };
}

/// @param variable of the header, with the dollar sign. @param code its group.
std::function<void(CKvDesktop &)> makesCurrent(CKvRecordKind kind, const char *variable, int code)
{
    return [kind, variable, code](CKvDesktop &desktop) {
        const OdDbSymbolTableRecordPtr record =
            askRecord(desktop, kind, namePrompt(), OdDb::kForRead);
        const std::string name(encodedRecordName(*record->objectId().slot()));
        record->database()->store().header().set(variable, name, code);
    };
}

OdDbLayerTableRecordPtr askLayer(CKvDesktop &desktop)
{
    return askToChange<OdDbLayerTableRecord>(desktop, CKvRecordKind::Layer);
}

void switchLayer(CKvDesktop &desktop, bool isOn)
{
    // The sign of the colour is the switch.
    const OdDbLayerTableRecordPtr layer = askLayer(desktop);
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*layer);
    const std::optional<CKvTag> color = findTag(slot, 62);
    constexpr std::int64_t kMost = std::numeric_limits<int>::max();
    const int number =
        color ? int(std::abs(std::clamp<std::int64_t>(color->integer(), -kMost, kMost))) : 7;
    setTag(slot, 62, std::to_string(isOn ? number : -number), { 70, 2 });
}

void freezeLayer(CKvDesktop &desktop, bool isFrozen)
{
    const OdDbLayerTableRecordPtr layer = askLayer(desktop);
    if (isFrozen && layer->objectId() == layer->database()->getCLAYER()) {
        throw OdError(OdResult::kInvalidInput, "The current layer can't be frozen.");
    }
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*layer);
    const std::optional<CKvTag> flags = findTag(slot, 70);
    const auto number = flags ? flags->integer() : 0;
    setTag(slot, 70, std::to_string(isFrozen ? number | kFrozen : number & ~kFrozen), { 2 });
}

void colorLayer(CKvDesktop &desktop)
{
    const OdDbLayerTableRecordPtr layer = askLayer(desktop);
    layer->setColor(colorFromText(desktop.commandLine().ask(CKvMainWindow::tr("Colour:"))));
}

void styleLayer(CKvDesktop &desktop)
{
    const OdDbLayerTableRecordPtr layer = askLayer(desktop);
    layer->setLinetypeObjectId(
        askRecord(
            desktop, CKvRecordKind::LineStyle, CKvMainWindow::tr("Line style:"), OdDb::kForRead)
            ->objectId());
}

void weighLayer(CKvDesktop &desktop)
{
    const OdDbLayerTableRecordPtr layer = askLayer(desktop);
    const QString text = desktop.commandLine().ask(CKvMainWindow::tr("Lineweight in mm:"));
    bool isNumber = false;
    const double weight = text.toDouble(&isNumber);
    const bool isDefault = text.compare(QLatin1String("Default"), Qt::CaseInsensitive) == 0;
    if (!isDefault && (!isNumber || weight < 0 || weight > 2.11)) {
        throw OdError(OdResult::kInvalidInput, "A lineweight is Default, or 0 to 2.11 mm.");
    }
    layer->setLineWeight(isDefault ? OdDb::kLineWeightByDefault
                                   : OdDb::LineWeight(std::lround(weight * 100)));
}

bool layerCommand(CKvDesktop &desktop)
{
    return runOption(
        desktop,
        CKvMainWindow::tr("[New/Color/LType/LWeight/ON/OFF/Freeze/Thaw/Set/Delete]:"),
        { { "NEW",
            [](CKvDesktop &d) { addRecord<OdDbLayerTableRecord>(d, CKvRecordKind::Layer); } },
          { "COLOR", &colorLayer },
          { "LTYPE", &styleLayer },
          { "LWEIGHT", &weighLayer },
          { "ON", [](CKvDesktop &d) { switchLayer(d, true); } },
          { "OFF", [](CKvDesktop &d) { switchLayer(d, false); } },
          { "FREEZE", [](CKvDesktop &d) { freezeLayer(d, true); } },
          { "THAW", [](CKvDesktop &d) { freezeLayer(d, false); } },
          { "SET", makesCurrent(CKvRecordKind::Layer, "$CLAYER", 8) },
          { "DELETE", deletes(CKvRecordKind::Layer) } });
}

void loadLineStyle(CKvDesktop &desktop)
{
    CKvDatabase &database = *desktop.requireDocument().GetKvDatabase();
    const QString name = desktop.commandLine().ask(namePrompt());
    const QString file =
        database.getMEASUREMENT() != 0 ? QStringLiteral("mm.lin") : QStringLiteral("inch.lin");
    database.loadLineTypeFile(
        OdString(name),
        OdString(findSupportFile(file, &database, desktop.session().settings().supportPaths())));
}

bool lineStyleCommand(CKvDesktop &desktop)
{
    return runOption(desktop,
                     CKvMainWindow::tr("[Load/Set/Delete]:"),
                     { { "LOAD", &loadLineStyle },
                       { "SET", makesCurrent(CKvRecordKind::LineStyle, "$CELTYPE", 6) },
                       { "DELETE", deletes(CKvRecordKind::LineStyle) } });
}

/// Asks for a text style and lets action change it.
std::function<void(CKvDesktop &)>
changesStyle(std::function<void(CKvDesktop &, OdDbTextStyleTableRecord &)> action)
{
    return [action = std::move(action)](CKvDesktop &desktop) {
        const OdDbTextStyleTableRecordPtr style =
            askToChange<OdDbTextStyleTableRecord>(desktop, CKvRecordKind::TextStyle);
        action(desktop, *style);
    };
}

bool textStyleCommand(CKvDesktop &desktop)
{
    using Style = OdDbTextStyleTableRecord;
    return runOption(
        desktop,
        CKvMainWindow::tr("[New/Font/Height/Width/Oblique/Set/Delete]:"),
        { { "NEW", [](CKvDesktop &d) { addRecord<Style>(d, CKvRecordKind::TextStyle); } },
          { "FONT", changesStyle([](CKvDesktop &d, Style &style) {
                style.setFileName(OdString(d.commandLine().ask(CKvMainWindow::tr("Font file:"))));
            }) },
          { "HEIGHT", changesStyle([](CKvDesktop &d, Style &style) {
                style.setTextSize(askNumber(d, CKvMainWindow::tr("Height:")));
            }) },
          { "WIDTH", changesStyle([](CKvDesktop &d, Style &style) {
                style.setXScale(askNumber(d, CKvMainWindow::tr("Width factor:")));
            }) },
          { "OBLIQUE", changesStyle([](CKvDesktop &d, Style &style) {
                style.setObliquingAngle(askNumber(d, CKvMainWindow::tr("Angle in degrees:"))
                                        * kRadiansPerDegree);
            }) },
          { "SET", makesCurrent(CKvRecordKind::TextStyle, "$TEXTSTYLE", 7) },
          { "DELETE", deletes(CKvRecordKind::TextStyle) } });
}

struct DimSetting {
    const char *name;
    void (*set)(OdDbDimStyleTableRecord &, double);
};

// Those that are changed most; all of them can be changed by a repair.
constexpr DimSetting kDimSettings[] = {
    { "DIMSCALE", [](OdDbDimStyleTableRecord &style, double value) { style.setDimscale(value); } },
    { "DIMASZ", [](OdDbDimStyleTableRecord &style, double value) { style.setDimasz(value); } },
    { "DIMTXT", [](OdDbDimStyleTableRecord &style, double value) { style.setDimtxt(value); } },
    { "DIMEXO", [](OdDbDimStyleTableRecord &style, double value) { style.setDimexo(value); } },
    { "DIMEXE", [](OdDbDimStyleTableRecord &style, double value) { style.setDimexe(value); } },
    { "DIMGAP", [](OdDbDimStyleTableRecord &style, double value) { style.setDimgap(value); } },
    { "DIMTSZ", [](OdDbDimStyleTableRecord &style, double value) { style.setDimtsz(value); } },
    { "DIMLFAC", [](OdDbDimStyleTableRecord &style, double value) { style.setDimlfac(value); } },
    { "DIMDEC",
      [](OdDbDimStyleTableRecord &style, double value) {
          style.setDimdec(std::int16_t(std::lround(value)));
      } },
    { "DIMTAD",
      [](OdDbDimStyleTableRecord &style, double value) {
          style.setDimtad(std::int16_t(std::lround(value)));
      } },
};

void setDimSetting(CKvDesktop &desktop)
{
    const OdDbDimStyleTableRecordPtr style =
        askToChange<OdDbDimStyleTableRecord>(desktop, CKvRecordKind::DimStyle);
    const QString name = desktop.commandLine().ask(CKvMainWindow::tr("Setting:"));
    for (const DimSetting &setting : kDimSettings) {
        if (name.compare(QLatin1String(setting.name), Qt::CaseInsensitive) == 0) {
            setting.set(*style, askNumber(desktop, CKvMainWindow::tr("Value:")));
            return;
        }
    }
    throw OdError(OdResult::kInvalidInput,
                  "\"" + name.toStdString() + "\" is no setting that this command knows.");
}

bool dimStyleCommand(CKvDesktop &desktop)
{
    return runOption(
        desktop,
        CKvMainWindow::tr("[New/Variable/Set/Delete]:"),
        { { "NEW",
            [](CKvDesktop &d) { addRecord<OdDbDimStyleTableRecord>(d, CKvRecordKind::DimStyle); } },
          { "VARIABLE", &setDimSetting },
          { "SET", makesCurrent(CKvRecordKind::DimStyle, "$DIMSTYLE", 2) },
          { "DELETE", deletes(CKvRecordKind::DimStyle) } });
}

} // namespace

void addRecordCommands(CKvDesktop &desktop)
{
    desktop.addCommand("LAYER", &layerCommand);
    desktop.addCommand("LINETYPE", &lineStyleCommand);
    desktop.addCommand("STYLE", &textStyleCommand);
    desktop.addCommand("DIMSTYLE", &dimStyleCommand);
}
