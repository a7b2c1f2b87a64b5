// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingJob.h"

#include <QByteArray>

// What passes between the program and its worker processes: one JSON text a line. First the
// settings go to the worker, then a job at a time; for each job a report comes back.

QByteArray settingsToLine(const CKvJobSettings &settings);
/// @throws nlohmann::json::exception for a line that is no such message; so do the others.
CKvJobSettings settingsFromLine(const QByteArray &line);
QByteArray jobToLine(const CKvDrawingJob &job);
CKvDrawingJob jobFromLine(const QByteArray &line);
QByteArray reportToLine(const CKvDrawingReport &report);
CKvDrawingReport reportFromLine(const QByteArray &line);
