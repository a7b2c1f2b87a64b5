// SPDX-License-Identifier: MIT
#include "groupValueType.h"

namespace
{

struct CKvGroupRange {
    int first;
    int last;
    CKvGroupValueType type;
};

constexpr CKvGroupRange kRanges[] = {
    { 5, 5, CKvGroupValueType::Handle },      { 10, 59, CKvGroupValueType::Real },
    { 60, 79, CKvGroupValueType::Int16 },     { 90, 99, CKvGroupValueType::Int32 },
    { 105, 105, CKvGroupValueType::Handle },  { 110, 149, CKvGroupValueType::Real },
    { 160, 169, CKvGroupValueType::Int64 },   { 170, 179, CKvGroupValueType::Int16 },
    { 210, 239, CKvGroupValueType::Real },    { 270, 289, CKvGroupValueType::Int16 },
    { 290, 299, CKvGroupValueType::Bool },    { 310, 319, CKvGroupValueType::Bytes },
    { 320, 369, CKvGroupValueType::Handle },  { 370, 389, CKvGroupValueType::Int16 },
    { 390, 399, CKvGroupValueType::Handle },  { 400, 409, CKvGroupValueType::Int16 },
    { 420, 429, CKvGroupValueType::Int32 },   { 440, 459, CKvGroupValueType::Int32 },
    { 460, 469, CKvGroupValueType::Real },    { 480, 481, CKvGroupValueType::Handle },
    { 1004, 1004, CKvGroupValueType::Bytes }, { 1005, 1005, CKvGroupValueType::Handle },
    { 1010, 1059, CKvGroupValueType::Real },  { 1060, 1070, CKvGroupValueType::Int16 },
    { 1071, 1071, CKvGroupValueType::Int32 },
};

} // namespace

CKvGroupValueType groupValueType(int code)
{
    for (const CKvGroupRange &range : kRanges) {
        if (code >= range.first && code <= range.last) {
            return range.type;
        }
    }
    return CKvGroupValueType::Text;
}
