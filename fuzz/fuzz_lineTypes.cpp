// SPDX-License-Identifier: MIT
#include "OdError.h"
#include "readLineTypeFile.h"

#include <QDir>
#include <QFile>

#include <cmath>
#include <cstdint>
#include <cstdlib>

#include <unistd.h>

namespace
{

/// In memory where the system has such a place.
QString scratchPath()
{
    const QString memory = QStringLiteral("/dev/shm");
    return QStringLiteral("%1/kv-fuzz-%2.lin")
        .arg(QDir(memory).exists() ? memory : QDir::tempPath())
        .arg(getpid());
}

QString firstName(const QByteArray &bytes)
{
    const int star = bytes.indexOf('*');
    const int end = bytes.indexOf(',', star);
    return star < 0 || end < 0 ? QStringLiteral("DASHED")
                               : QString::fromUtf8(bytes.mid(star + 1, end - star - 1));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QString s_path = scratchPath();
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    QFile file(s_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        std::abort();
    }
    file.close();
    try {
        const CKvLineTypeDefinition definition = readLineTypeFile(s_path, firstName(bytes));
        if (definition.elements.empty()) {
            std::abort();
        }
        for (const CKvLineTypeDefinition::Element &element : definition.elements) {
            if (!std::isfinite(element.length)) {
                std::abort();
            }
        }
    } catch (const OdError &) {
        // Refused with its reason.
    }
    QFile::remove(s_path);
    return 0;
}
