// SPDX-License-Identifier: MIT
#include "drawingForm.h"

#include "CKvDxfError.h"
#include "dwgConversion.h"

namespace
{

constexpr std::string_view kBinaryMark("AutoCAD Binary DXF\r\n\x1a\0", 22);
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool startsWith(std::string_view bytes, std::string_view start)
{
    return bytes.substr(0, start.size()) == start;
}

/// By its mark, or by the zeros that every other byte of plain letters is.
bool isUtf16(std::string_view bytes)
{
    if (startsWith(bytes, "\xFF\xFE") || startsWith(bytes, "\xFE\xFF")) {
        return true;
    }
    const auto isZero = [&](std::size_t at) { return at < bytes.size() && bytes[at] == '\0'; };
    return isZero(0) == isZero(2) && isZero(1) == isZero(3) && isZero(0) != isZero(1);
}

CKvFileForm asciiForm(std::string_view bytes, std::size_t begin)
{
    CKvFileForm form;
    form.begin = begin;
    const std::size_t lineEnd = bytes.find('\n', begin);
    if (lineEnd != std::string_view::npos && lineEnd > begin && bytes[lineEnd - 1] == '\r') {
        form.style.lineEnd = "\r\n";
    }
    // A comment, 999, fills its three columns and tells nothing; "  0" or "0" stands further on
    // then.
    std::size_t at = begin;
    while (startsWith(trimmed(bytes.substr(at, 5)), "999")) {
        for (int lines = 0; lines < 2 && at < bytes.size(); ++lines) {
            at = std::min(bytes.find('\n', at), bytes.size() - 1) + 1;
        }
        if (at >= bytes.size()) {
            break;
        }
    }
    form.style.isCodePadded = at < bytes.size() && bytes[at] == ' ';
    return form;
}

} // namespace

CKvFileForm recognisedForm(const CKvFileImage &image)
{
    const std::string_view bytes = image.bytes();
    const auto refuse = [&](const QString &reason) { throw CKvDxfError(image.path(), 0, reason); };
    if (trimmed(bytes).empty()) {
        refuse(QStringLiteral("The file is empty."));
    }
    if (isDwg(bytes)) {
        refuse(QStringLiteral("This is a DWG file. Save it as DXF and try again."));
    }
    if (isUtf16(bytes)) {
        refuse(QStringLiteral("The file is in UTF-16, which is no form of DXF."));
    }
    if (startsWith(bytes, kBinaryMark)) {
        CKvFileForm form;
        form.begin = kBinaryMark.size();
        // Codes of two bytes have a zero in the second one, or begin with the comment 999.
        const std::string_view code = bytes.substr(form.begin, 2);
        const bool isShort = code.size() == 2 && code[1] != '\0' && code != "\xE7\x03";
        form.style.form = isShort ? CKvTagForm::BinaryShortCodes : CKvTagForm::Binary;
        return form;
    }
    return asciiForm(bytes, startsWith(bytes, kByteOrderMark) ? kByteOrderMark.size() : 0);
}
