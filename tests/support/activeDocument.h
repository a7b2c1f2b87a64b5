// SPDX-License-Identifier: MIT
#pragma once

class CKvDocument;

// A host that has no documents but those of the test. It takes the place of the project's own, so a
// program has either this or CKvHostDocumentManager.

/// Makes ACTIVE_DOCUMENT give this document.
/// @param document not owned, may be null.
/// @return the one before.
CKvDocument *setActiveDocument(CKvDocument *document);
