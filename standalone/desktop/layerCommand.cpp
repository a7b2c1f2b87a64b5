// SPDX-License-Identifier: MIT
#include "CKvDrawingFormat.h"
#include "CKvMainWindow.h"
#include "CKvObjectAccess.h"
#include "OdDbLayerTableRecord.h"
#include "OdError.h"
#include "colorFromText.h"
#include "commandOptions.h"
#include "desktopCommands.h"
#include "layerState.h"
#include "objectTags.h"
#include "valueFromText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

constexpr int kPlotVersion = 1015;

OdDbLayerTableRecordPtr askLayer(CKvDesktop &desktop)
{
    return OdDbLayerTableRecordPtr(
        askRecord(desktop, CKvRecordKind::Layer, namePrompt(), OdDb::kForWrite));
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

/// Sets or clears flags of group 70.
void flagLayer(OdDbLayerTableRecord &layer, int flag, bool isSet)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(layer);
    const std::optional<CKvTag> flags = findTag(slot, 70);
    const auto number = flags ? flags->integer() : 0;
    setTag(slot, 70, std::to_string(isSet ? number | flag : number & ~flag), { 2 });
}

void freezeLayer(CKvDesktop &desktop, bool isFrozen)
{
    const OdDbLayerTableRecordPtr layer = askLayer(desktop);
    if (isFrozen && layer->objectId() == layer->database()->getCLAYER()) {
        throw OdError(OdResult::kInvalidInput, "The current layer can't be frozen.");
    }
    flagLayer(*layer, CKvLayerState::kFrozenFlag, isFrozen);
}

void lockLayer(CKvDesktop &desktop, bool isLocked)
{
    flagLayer(*askLayer(desktop), CKvLayerState::kLockedFlag, isLocked);
}

void plotLayer(CKvDesktop &desktop, bool isPlotted)
{
    const OdDbLayerTableRecordPtr layer = askLayer(desktop);
    if (layer->objectId().slot()->format().version < kPlotVersion) {
        throw OdError(OdResult::kInvalidInput,
                      "Drawings before R2000 have no place for whether a layer is plotted.");
    }
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*layer);
    setTag(slot, 290, isPlotted ? "1" : "0", { 6, 420, 62 });
}

void styleLayer(CKvDesktop &desktop)
{
    const OdDbLayerTableRecordPtr layer(
        askRecord(desktop, CKvRecordKind::Layer, namePrompt(), OdDb::kForRead));
    const OdDbSymbolTableRecordPtr style = askRecord(
        desktop, CKvRecordKind::LineStyle, CKvMainWindow::tr("Line style:"), OdDb::kForRead);
    layer->upgradeOpen();
    layer->setLinetypeObjectId(style->objectId());
}

std::function<void(CKvDesktop &)> colorsLayer()
{
    return changes<OdDbLayerTableRecord>(CKvRecordKind::Layer,
                                         CKvMainWindow::tr("Colour:"),
                                         [](OdDbLayerTableRecord &layer, const QString &answer) {
                                             layer.setColor(colorFromText(answer));
                                         });
}

std::function<void(CKvDesktop &)> weighsLayer()
{
    return changes<OdDbLayerTableRecord>(
        CKvRecordKind::Layer,
        CKvMainWindow::tr("Lineweight in mm:"),
        [](OdDbLayerTableRecord &layer, const QString &answer) {
            const OdDb::LineWeight weight = lineWeightFromText(answer);
            if (weight == OdDb::kLineWeightByLayer || weight == OdDb::kLineWeightByBlock) {
                throw OdError(OdResult::kInvalidInput,
                              "A layer's lineweight is Default or a number of millimetres.");
            }
            layer.setLineWeight(weight);
            if (layer.lineWeight() != weight) {
                throw OdError(OdResult::kInvalidInput,
                              "Drawings before R2000 have no place for lineweights.");
            }
        });
}

bool layerCommand(CKvDesktop &desktop)
{
    return runOption(
        desktop,
        CKvMainWindow::tr("[New/Color/LType/LWeight/ON/OFF/Freeze/Thaw/LOck/Unlock/Plot/NOplot/Set/"
                          "Delete]:"),
        { { "NEW", adds<OdDbLayerTableRecord>(CKvRecordKind::Layer) },
          { "COLOR", colorsLayer() },
          { "LTYPE", &styleLayer },
          { "LWEIGHT", weighsLayer() },
          { "ON", [](CKvDesktop &d) { switchLayer(d, true); } },
          { "OFF", [](CKvDesktop &d) { switchLayer(d, false); } },
          { "FREEZE", [](CKvDesktop &d) { freezeLayer(d, true); } },
          { "THAW", [](CKvDesktop &d) { freezeLayer(d, false); } },
          { "LOCK", [](CKvDesktop &d) { lockLayer(d, true); } },
          { "UNLOCK", [](CKvDesktop &d) { lockLayer(d, false); } },
          { "PLOT", [](CKvDesktop &d) { plotLayer(d, true); } },
          { "NOPLOT", [](CKvDesktop &d) { plotLayer(d, false); } },
          { "SET", makesCurrent(CKvRecordKind::Layer, "$CLAYER", 8) },
          { "DELETE", deletes(CKvRecordKind::Layer) } });
}

} // namespace

void addLayerCommand(CKvDesktop &desktop)
{
    desktop.addCommand("LAYER", &layerCommand);
}
