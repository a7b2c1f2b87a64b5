// SPDX-License-Identifier: MIT
#include "unifiedDiff.h"

#include "lineDifference.h"

#include <algorithm>

namespace
{

constexpr std::size_t kContext = 3;
/// A null byte among the first so many bytes makes a file binary.
constexpr std::size_t kBinaryProbe = 8000;

bool isBinary(std::string_view bytes)
{
    return bytes.substr(0, kBinaryProbe).find('\0') != std::string_view::npos;
}

/// Names with blanks are ended by a tabulator, else they can't be told from what follows.
QByteArray headLine(const char *mark, const QString &name)
{
    return QByteArray(mark) + ' ' + name.toUtf8()
        + (name.contains(QLatin1Char(' ')) ? QByteArray("\t\n") : QByteArray("\n"));
}

/// "12,3": first line and number of lines; the line before where there is none, no number for one.
QByteArray range(std::size_t begin, std::size_t end)
{
    const std::size_t count = end - begin;
    const QByteArray first = QByteArray::number(qulonglong(count == 0 ? begin : begin + 1));
    return count == 1 ? first : first + ',' + QByteArray::number(qulonglong(count));
}

void appendLines(
    QByteArray &diff, char mark, const CKvLines &lines, std::size_t begin, std::size_t end)
{
    for (std::size_t i = begin; i < end; ++i) {
        const std::string_view line = lines[i];
        diff.append(mark);
        diff.append(line.data(), int(line.size()));
        if (line.back() != '\n') {
            diff.append("\n\\ No newline at end of file\n");
        }
    }
}

using EditIterator = std::vector<CKvLineEdit>::const_iterator;

/// The edits that share one piece of context.
EditIterator endOfHunk(EditIterator first, EditIterator last)
{
    EditIterator next = first + 1;
    while (next != last && next->oldBegin - (next - 1)->oldEnd <= 2 * kContext) {
        ++next;
    }
    return next;
}

void appendHunk(QByteArray &diff,
                const CKvLines &before,
                const CKvLines &after,
                EditIterator first,
                EditIterator last)
{
    const std::size_t lead = std::min(first->oldBegin, kContext);
    const std::size_t trail = std::min(before.size() - (last - 1)->oldEnd, kContext);
    diff += "@@ -" + range(first->oldBegin - lead, (last - 1)->oldEnd + trail) + " +"
        + range(first->newBegin - lead, (last - 1)->newEnd + trail) + " @@\n";
    std::size_t at = first->oldBegin - lead;
    for (EditIterator edit = first; edit != last; ++edit) {
        appendLines(diff, ' ', before, at, edit->oldBegin);
        appendLines(diff, '-', before, edit->oldBegin, edit->oldEnd);
        appendLines(diff, '+', after, edit->newBegin, edit->newEnd);
        at = edit->oldEnd;
    }
    appendLines(diff, ' ', before, at, at + trail);
}

} // namespace

QByteArray unifiedDiff(std::string_view before, std::string_view after, const QString &name)
{
    if (before == after) {
        return {};
    }
    if (isBinary(before) || isBinary(after)) {
        return "Binary file " + name.toUtf8() + " changes.\n";
    }
    const CKvLines oldLines(before);
    const CKvLines newLines(after);
    const std::vector<CKvLineEdit> edits = lineDifference(oldLines, newLines);
    QByteArray diff = headLine("---", name) + headLine("+++", name);
    for (EditIterator first = edits.begin(); first != edits.end();) {
        const EditIterator last = endOfHunk(first, edits.end());
        appendHunk(diff, oldLines, newLines, first, last);
        first = last;
    }
    return diff;
}
