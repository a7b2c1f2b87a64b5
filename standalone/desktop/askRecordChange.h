// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>

class CKvHostDocument;
class QWidget;
struct CKvRecordChange;
struct CKvRecordRow;

/// Asks in a small dialog what a record is to become, when there is something to ask.
/// @return the words behind the command that changes such records, ready for the command line; none
/// when the user breaks off or leaves it as it is.
std::optional<QStringList> askRecordChange(QWidget *parent,
                                           const CKvHostDocument &document,
                                           const CKvRecordChange &change,
                                           const CKvRecordRow &row);
/// Asks for a new line style: one of the support file, or another name and a pattern.
std::optional<QStringList> askNewLineStyle(QWidget *parent, const CKvHostDocument &document);
