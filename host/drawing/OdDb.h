// SPDX-License-Identifier: MIT
#pragma once

/// Plain values that the operations of the drawing library take.
namespace OdDb
{

/// How an object is opened. The numbers are part of the calls that pass them as such.
enum OpenMode { kForRead = 0, kForWrite = 1 };

/// Lineweight in hundredths of a millimetre, or one of the named values below (group 370). A
/// drawing can hold any number; the named and the 24 standard ones are those that users meet.
enum LineWeight : int {
    kLineWeightByDefault = -3,
    kLineWeightByBlock = -2,
    kLineWeightByLayer = -1
};

/// What cloning does with a record whose name the destination has.
enum DuplicateRecordCloning { kIgnoreDuplicates = 1, kReplaceDuplicates = 2 };

/// Kinds of rows of a table; the numbers can be added up.
enum RowType : unsigned { kTitleRow = 1, kHeaderRow = 2, kDataRow = 4, kAllRows = 7 };

} // namespace OdDb
