// SPDX-License-Identifier: MIT
#include "CKvMainWindow.h"
#include "CKvObjectAnnotationContext.h"
#include "OdDbTextStyleTableRecord.h"
#include "OdError.h"
#include "angles.h"
#include "commandOptions.h"
#include "desktopCommands.h"
#include "valueFromText.h"

#include <limits>

namespace
{

using Style = OdDbTextStyleTableRecord;

constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kSmallest = std::numeric_limits<double>::min();
/// As far as letters can lean.
constexpr double kSteepest = 85;

std::function<void(CKvDesktop &)> changesStyle(const QString &prompt,
                                               std::function<void(Style &, const QString &)> change)
{
    return changes<Style>(CKvRecordKind::TextStyle, prompt, std::move(change));
}

std::function<void(CKvDesktop &)> switchesStyle(std::function<void(Style &, bool)> change)
{
    return changesStyle(CKvMainWindow::tr("[ON/OFF]:"),
                        [change = std::move(change)](Style &style, const QString &answer) {
                            change(style, flagFromText(answer));
                        });
}

/// The TrueType font of a style.
struct CKvTypeface {
    OdString name;
    bool isBold = false;
    bool isItalic = false;
    int charset = 0;
    int pitchAndFamily = 0;

    explicit CKvTypeface(const Style &style)
    {
        style.font(name, isBold, isItalic, charset, pitchAndFamily);
    }
    void writeTo(Style &style) const
    {
        style.setFont(name, isBold, isItalic, charset, pitchAndFamily);
    }
};

CKvTypeface requireTypeface(const Style &style)
{
    CKvTypeface typeface(style);
    if (typeface.name.isEmpty()) {
        throw OdError(OdResult::kInvalidInput,
                      "Only a style with a typeface can be bold or italic.");
    }
    return typeface;
}

void setTypeface(Style &style, const QString &name)
{
    CKvTypeface typeface(style);
    typeface.name = OdString(name == QLatin1String(".") ? QString() : name);
    typeface.writeTo(style);
}

void setBold(Style &style, bool isBold)
{
    CKvTypeface typeface = requireTypeface(style);
    typeface.isBold = isBold;
    typeface.writeTo(style);
}

void setItalic(Style &style, bool isItalic)
{
    CKvTypeface typeface = requireTypeface(style);
    typeface.isItalic = isItalic;
    typeface.writeTo(style);
}

/// "." for none, which an empty answer might be by mistake.
void setBigFont(Style &style, const QString &answer)
{
    style.setBigFontFileName(OdString(answer == QLatin1String(".") ? QString() : answer));
}

void setFont(Style &style, const QString &answer)
{
    if (answer.isEmpty()) {
        throw OdError(OdResult::kInvalidInput, "A style needs a font file.");
    }
    style.setFileName(OdString(answer));
}

void setAnnotative(Style &style, bool isAnnotative)
{
    bool matchesOrientation = false;
    CKvObjectAnnotationContext::IsAnnotative(style.objectId(), &matchesOrientation);
    CKvObjectAnnotationContext::SetAnnotative(
        style.objectId(), isAnnotative, isAnnotative && matchesOrientation);
}

void setOrientation(Style &style, bool matchesOrientation)
{
    if (!CKvObjectAnnotationContext::IsAnnotative(style.objectId(), nullptr)) {
        throw OdError(OdResult::kInvalidInput,
                      "Only the texts of an annotative style can be turned with the sheet.");
    }
    CKvObjectAnnotationContext::SetAnnotative(style.objectId(), true, matchesOrientation);
}

CKvCommandOptions options()
{
    return {
        { "NEW", adds<Style>(CKvRecordKind::TextStyle) },
        { "FONT", changesStyle(CKvMainWindow::tr("Font file:"), &setFont) },
        { "BIGFONT",
          changesStyle(CKvMainWindow::tr("Big font file, or . for none:"), &setBigFont) },
        { "TYPEFACE", changesStyle(CKvMainWindow::tr("Typeface, or . for none:"), &setTypeface) },
        { "HEIGHT",
          changesStyle(CKvMainWindow::tr("Height, or 0 for one of each text:"),
                       [](Style &style, const QString &answer) {
                           style.setTextSize(numberFromText(answer, 0, kLargest));
                       }) },
        { "WIDTH",
          changesStyle(CKvMainWindow::tr("Width factor:"),
                       [](Style &style, const QString &answer) {
                           style.setXScale(numberFromText(answer, kSmallest, kLargest));
                       }) },
        { "OBLIQUE",
          changesStyle(CKvMainWindow::tr("Angle in degrees:"),
                       [](Style &style, const QString &answer) {
                           style.setObliquingAngle(numberFromText(answer, -kSteepest, kSteepest)
                                                   * kRadiansPerDegree);
                       }) },
        { "BOLD", switchesStyle(&setBold) },
        { "ITALIC", switchesStyle(&setItalic) },
        { "BACKWARDS", switchesStyle([](Style &style, bool isOn) { style.setIsBackwards(isOn); }) },
        { "UPSIDEDOWN",
          switchesStyle([](Style &style, bool isOn) { style.setIsUpsideDown(isOn); }) },
        { "VERTICAL", switchesStyle([](Style &style, bool isOn) { style.setIsVertical(isOn); }) },
        { "ANNOTATIVE", switchesStyle(&setAnnotative) },
        { "ORIENTATION", switchesStyle(&setOrientation) },
        { "SET", makesCurrent(CKvRecordKind::TextStyle, "$TEXTSTYLE", 7) },
        { "DELETE", deletes(CKvRecordKind::TextStyle) },
    };
}

bool textStyleCommand(CKvDesktop &desktop)
{
    return runOption(
        desktop,
        CKvMainWindow::tr("[New/Font/Bigfont/Typeface/Height/Width/Oblique/BOld/Italic/BAckwards/"
                          "Upsidedown/Vertical/Annotative/ORientation/Set/Delete]:"),
        options());
}

} // namespace

void addTextStyleCommand(CKvDesktop &desktop)
{
    desktop.addCommand("STYLE", &textStyleCommand);
}
