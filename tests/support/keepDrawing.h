// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Writes a drawing that a test made to the folder that KV_TEST_KEEP names, as
/// SUITE.TEST-NUMBER.dxf; does nothing without the variable.
void keepDrawing(const QByteArray &bytes);
