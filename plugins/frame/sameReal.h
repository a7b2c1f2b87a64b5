// SPDX-License-Identifier: MIT
#pragma once

/// True when two lengths, factors or angles differ by no more than 1e-10 in either direction,
/// however large they are. What is no number differs from nothing.
bool sameReal(double first, double second);
