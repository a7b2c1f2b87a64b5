// SPDX-License-Identifier: MIT
#include "isDrawing.h"

#include "CKvFileImage.h"
#include "OdError.h"
#include "drawingForm.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

namespace
{

bool isCalledLikeADrawing(const QString &path)
{
    static constexpr std::array<const char *, 3> kSuffixes = { "dxf", "dws", "dwg" };
    const QString suffix = QFileInfo(path).suffix().toLower();
    return std::any_of(kSuffixes.begin(), kSuffixes.end(), [&suffix](const char *known) {
        return suffix == QLatin1String(known);
    });
}

bool beginsLikeADrawing(const CKvFileImage &image)
{
    const CKvFileForm form = recognisedForm(image);
    if (form.style.form != CKvTagForm::Ascii) {
        return true;
    }
    const std::string_view bytes = image.bytes().substr(form.begin);
    const std::string_view firstLine = trimmed(bytes.substr(0, bytes.find('\n')));
    return firstLine == "0" || firstLine == "999";
}

} // namespace

bool isDrawing(const QString &path)
{
    if (!QFileInfo(path).isFile()) {
        return false;
    }
    // What can't be opened or is recognised as something else is no drawing.
    try {
        return isCalledLikeADrawing(path)
            || beginsLikeADrawing(*CKvFileImage::open(path, CKvFileImage::Holding::Mapped));
    } catch (const OdError &) {
        return false;
    }
}
