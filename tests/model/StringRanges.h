#pragma once

#include <parameters/StringRange.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// What the tests of string ranges and of string parameters share.
namespace StringRanges {

using Parameters::StringRange;
using Strings = std::vector<std::string>;

inline constexpr const char* defaultBase = "norvex.range:range.string-1.0.0";
inline constexpr const char* setBase = "norvex.range:range.string.set.static-1.0.0";
inline constexpr const char* regexBase = "norvex.range:range.string.regex-1.0.0";

inline void expectSet(const StringRange& range, const std::string& typeId, const Strings& allowedValues) {
    EXPECT_EQ(range.getTypeId(), typeId);
    ASSERT_TRUE(range.getSetStringRangeComponent().has_value());
    EXPECT_EQ(range.getSetStringRangeComponent()->getAllowedValues(), allowedValues);
    EXPECT_FALSE(range.getRegexStringRangeComponent().has_value());
}

inline void expectRegex(const StringRange& range, const std::string& typeId, const std::string& regex) {
    EXPECT_EQ(range.getTypeId(), typeId);
    ASSERT_TRUE(range.getRegexStringRangeComponent().has_value());
    EXPECT_EQ(range.getRegexStringRangeComponent()->getRegex(), regex);
    EXPECT_FALSE(range.getSetStringRangeComponent().has_value());
}

inline void expectAnyText(const StringRange& range, const std::string& typeId) {
    EXPECT_EQ(range.getTypeId(), typeId);
    EXPECT_FALSE(range.getSetStringRangeComponent().has_value());
    EXPECT_FALSE(range.getRegexStringRangeComponent().has_value());
}

} // namespace StringRanges
