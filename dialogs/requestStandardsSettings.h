// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// What the host's standards settings open on.
enum class StandardsSettingsPage : std::int16_t {
    Files = 1,
    Categories = 2,
    /// Asked from a running verification.
    RunningSession = 3
};

/// Opens the host's standards settings and returns when the user has closed them. Whether anything
/// was changed is not told.
void requestStandardsSettings(StandardsSettingsPage page);
