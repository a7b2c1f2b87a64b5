// SPDX-License-Identifier: MIT
// kv_count_entities FILE reads a drawing with all its entities and prints their number.
#include "CKvDrawingFile.h"
#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbSymbolTableIterator.h"
#include "OdError.h"

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 2) {
        return 2;
    }
    try {
        const OdDbDatabasePtr drawing =
            CKvDrawingFile::open(QString::fromLocal8Bit(argv[1]), CKvFileImage::Holding::Mapped);
        const OdDbBlockTablePtr blocks(drawing->getBlockTableId().openObject());
        int count = 0;
        for (auto walk = blocks->newIterator(); !walk->done(); walk->step()) {
            const OdDbBlockTableRecordPtr block(walk->getRecord());
            for (auto entities = block->newIterator(); !entities->done(); entities->step()) {
                ++count;
            }
        }
        std::printf("%d\n", count);
    } catch (const OdError &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
