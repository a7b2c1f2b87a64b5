// SPDX-License-Identifier: MIT
// kv_bench_drawing MEGABYTES FILE writes one of the drawings that are measured.
#include "CKvBenchDrawing.h"

#include <cstdlib>

int main(int argc, char **argv)
{
    if (argc != 3) {
        return 2;
    }
    CKvBenchDrawing drawing;
    drawing.entities = CKvBenchDrawing::entitiesForMegabytes(std::atoi(argv[1]));
    return drawing.write(QString::fromLocal8Bit(argv[2])) ? 0 : 1;
}
