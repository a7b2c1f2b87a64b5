// SPDX-License-Identifier: MIT
#include "inBinary.h"

#include "CKvTagReader.h"
#include "tagWriting.h"

#include <string>

namespace
{

constexpr std::string_view kMark("AutoCAD Binary DXF\r\n\x1a\0", 22);

QByteArray
rewritten(const QByteArray &bytes, std::size_t begin, CKvTagForm from, const CKvTagStyle &style)
{
    std::string result(style.form == CKvTagForm::Ascii ? std::string_view() : kMark);
    CKvTagReader reader({ bytes.constData(), std::size_t(bytes.size()) }, from, begin);
    while (reader.next()) {
        appendTagCopy(result, style, reader.tag());
    }
    return QByteArray::fromStdString(result);
}

} // namespace

QByteArray inBinary(const QByteArray &lines, CKvTagForm form)
{
    CKvTagStyle style;
    style.form = form;
    return rewritten(lines, 0, CKvTagForm::Ascii, style);
}

QByteArray inLines(const QByteArray &binary, CKvTagForm form)
{
    return rewritten(binary, kMark.size(), form, CKvTagStyle());
}
