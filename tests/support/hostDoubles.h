// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

class CKvDocument;

// Stand-ins for the parts of a host that have windows: what they would show is written down.

/// Makes ACTIVE_DOCUMENT give this document.
/// @param document not owned, may be null.
/// @return the one before.
CKvDocument *setActiveDocument(CKvDocument *document);

/// The help topics that were asked for since the last call, in order.
std::vector<int> takeHelpTopics();
