// SPDX-License-Identifier: MIT
#pragma once

/// The argument that makes the program a worker; it is none of the user's.
constexpr char kWorkerArgument[] = "--worker";

/// Does the jobs that come on standard input until it ends, and writes their reports to standard
/// output.
/// @return the status to exit with.
int runWorkerProcess();
