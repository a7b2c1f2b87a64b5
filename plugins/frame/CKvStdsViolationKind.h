// SPDX-License-Identifier: MIT
#pragma once

/// What is wrong with an object. None stands for a message that this plug-in did not make.
enum class CKvStdsViolationKind { None, Name, Properties };
