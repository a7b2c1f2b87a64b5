// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingReport.h"
#include "CKvRunSummary.h"

#include <nlohmann/json.hpp>

// The words and keys of the machine-readable reports. They never change with language or version.

const char *statusWord(CKvDrawingStatus status);
const char *statusWord(CKvStandardsFileStatus status);
const char *kindWord(CKvViolationReportKind kind);
/// "layers.properties"
QString ruleOf(const CKvViolationReport &violation);

/// One element of the list of drawings.
nlohmann::ordered_json toJson(const CKvDrawingReport &report);
/// @param json as toJson makes it.
/// @throws nlohmann::json::exception for anything else.
CKvDrawingReport drawingReportFromJson(const nlohmann::ordered_json &json);
nlohmann::ordered_json toJson(const CKvRunSummary &summary);
/// Name and version of the program.
nlohmann::ordered_json toolJson();
/// As text in UTF-8, without a line end behind it.
/// @param indent blanks a level, -1 for a single line.
QByteArray jsonText(const nlohmann::ordered_json &json, int indent);
