// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

#include <exception>
#include <string>
#include <utility>

/// Result codes of the drawing library that callers tell apart. Others exist; they are told by
/// text.
enum class OdResult : int {
    kUnspecified = 1,
    kInvalidInput = 3,
    kOutOfMemory = 9,
    kInvalidIndex = 20,
    kNotThatKindOfClass = 21,
    kNotOpenForWrite = 22,
    kObjectWasErased = 23,
    kNullObjectId = 24,
    kInvalidSysvarValue = 25,
    kDuplicateName = 26,
    kUnreadableFile = 27,
    kUnsupportedByVersion = 28,
    kDefinitionUnreadable = 29,
    /// A line style file that can't be opened or has no style of the name asked for.
    kUndefinedLineType = 156,
    /// A run-time class that is asked for and not registered.
    kClassNotRegistered = 255,
    /// A run-time class that is registered a second time.
    kClassAlreadyRegistered = 313,
};

/// A failure of the drawing library: a code and a sentence for people. Base of the family.
class KV_HOST_API OdError : public std::exception
{
public:
    /// @param reason a finished sentence in UTF-8; empty gives one that names the code.
    explicit OdError(OdResult code, std::string reason = {})
        : m_code(code)
        , m_reason(reason.empty() ? "Drawing library error " + std::to_string(int(code)) + "."
                                  : std::move(reason))
    {
    }
    explicit OdError(int code)
        : OdError(OdResult(code))
    {
    }

    /// The code as the number that callers compare, 156 for instance.
    int code() const { return int(m_code); }
    /// The sentence, UTF-8.
    const char *what() const noexcept override { return m_reason.c_str(); }

private:
    OdResult m_code;
    std::string m_reason;
};

/// An index beyond the end of an array.
class KV_HOST_API OdError_InvalidIndex : public OdError
{
public:
    OdError_InvalidIndex()
        : OdError(OdResult::kInvalidIndex, "The index is outside the array.")
    {
    }
};

/// An object is not of the class that a cast asks for.
class KV_HOST_API OdError_NotThatKindOfClass : public OdError
{
public:
    explicit OdError_NotThatKindOfClass(const std::string &found, const std::string &wanted)
        : OdError(OdResult::kNotThatKindOfClass,
                  "An object of class " + found + " is no " + wanted + ".")
    {
    }
};

/// A header variable or setting refuses a value.
class KV_HOST_API OdError_InvalidSysvarValue : public OdError
{
public:
    explicit OdError_InvalidSysvarValue(const std::string &variable)
        : OdError(OdResult::kInvalidSysvarValue,
                  "The value is out of the range of " + variable + ".")
    {
    }
};

/// A setter on an object that is open for reading only.
class KV_HOST_API OdError_NotOpenForWrite : public OdError
{
public:
    OdError_NotOpenForWrite()
        : OdError(OdResult::kNotOpenForWrite, "The object is not open for writing.")
    {
    }
};
