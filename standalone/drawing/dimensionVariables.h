// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDimVariable.h"

#include <cstdint>
#include <string_view>

/// What is known of one setting of a dimension style: where it stands in a file, its default, what
/// the header takes.
struct CKvDimensionVariable {
    enum class Kind : std::uint8_t {
        Integer,
        Flag,
        Real,
        /// Degrees in the group of a style, radians everywhere else.
        Angle,
        Text,
        /// An index in groups; method and components in extended data.
        Color,
        LineWeight,
        Block,
        TextStyle,
        LineStyle,
    };
    /// Both ends belong to it.
    struct Range {
        double least;
        double most;
    };
    /// Where a style of an older drawing keeps a setting: data of an application, a key before the
    /// value. The key is the number in a 1070, or the name of the variable in a 1000 where the
    /// number is 0.
    struct Extended {
        std::string_view application;
        int number = 0;
        int code = 0;
    };

    /// "DIMADEC"; the header has it with a dollar sign.
    const char *name;
    OdDbDimVariable variable;
    Kind kind;
    /// In a style; 0 for a setting that no version has a group for.
    int group;
    /// First version (the number in $ACADVER) whose styles and header have the setting.
    int since;
    /// Of numbers; an angle's in degrees. Texts are empty by default, pointers null.
    double defaultNumber;
    Range range;
    Extended extended = {};

    bool isPointer() const { return kind >= Kind::Block; }
};

const CKvDimensionVariable &dimensionVariable(OdDbDimVariable variable);
