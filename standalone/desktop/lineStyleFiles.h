// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class CKvHostDocument;

/// A file that stands beside the drawing or in a support folder; the name itself, as a path, when
/// none does.
QString findLineStyleFile(const CKvHostDocument &document, const QString &name);
/// mm.lin for a metric drawing, otherwise inch.lin.
QString usualLineStyleFile(const CKvHostDocument &document);
