// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTag.h"

#include <string>
#include <string_view>

/// How new tags of a drawing are spelled, so that they look like its other ones.
struct CKvTagStyle {
    CKvTagForm form = CKvTagForm::Ascii;
    std::string_view lineEnd = "\n";
    /// Codes stand right-aligned in three columns.
    bool isCodePadded = true;
};

/// Appends a tag.
/// @param value as an ASCII file has it: encoded text, decimal number, hexadecimal handle.
void appendTag(std::string &bytes, const CKvTagStyle &style, int code, std::string_view value);
/// Puts a tag before the byte at an offset.
void insertTag(
    std::string &bytes, std::size_t at, const CKvTagStyle &style, int code, std::string_view value);
/// Replaces the value of a tag that was read from these bytes. Code and line end keep their
/// spelling; a number that stood right-aligned stays so. A value that is the same already is left
/// alone.
void replaceTagValue(std::string &bytes, const CKvTag &tag, std::string_view value);
void removeTag(std::string &bytes, const CKvTag &tag);
/// The value of a tag as an ASCII file has it, whatever the form.
std::string asciiValue(const CKvTag &tag);
/// Appends a tag of other bytes, spelled anew.
void appendTagCopy(std::string &bytes, const CKvTagStyle &style, const CKvTag &tag);

/// @return the shortest text that reads back as the same number, with a point in it.
std::string spelledReal(double number);
/// @return upper-case hexadecimal, "0" for 0.
std::string handleToText(std::uint64_t handle);
