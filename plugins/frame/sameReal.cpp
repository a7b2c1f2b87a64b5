// SPDX-License-Identifier: MIT
#include "sameReal.h"

bool sameReal(double first, double second)
{
    constexpr double kTolerance = 1e-10;
    const double difference = first - second;
    const bool differs = difference > kTolerance || difference < -kTolerance;
    return !differs;
}
