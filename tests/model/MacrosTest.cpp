#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <iterator>
#include <limits>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#endif

// What headers of window systems do to those that are included behind them.
// NOLINTBEGIN(cppcoreguidelines-macro-usage, readability-identifier-naming)
#define None 0L
#define Bool int
#define Int int
#define String char*
#define Status int
#define Success 0
#define Always 2
#define Unsorted 0
#define True 1
#define False 0
#ifndef _WIN32
#define min(a, b) (((a) < (b)) ? (a) : (b))
#define max(a, b) (((a) > (b)) ? (a) : (b))
#define near
#define far
#define small char
#define interface struct
#define IN
#define OUT
#define ERROR 0
#define DELETE 0x00010000L
#define CONST const
#define GetObject GetObjectW
#define GetMessage GetMessageW
#define Yield()
#endif
// NOLINTEND(cppcoreguidelines-macro-usage, readability-identifier-naming)

#include "EveryPublicHeader.h"

namespace {

static_assert(std::is_same_v<decltype(None), long>, "The macro is there again.");
static_assert(std::is_same_v<Bool, int>, "The macro is there again.");
static_assert(std::is_same_v<String, char*>, "The macro is there again.");

TEST(PublicHeaders, CompileBehindTheMacrosOfWindowSystems) {
    EXPECT_EQ(static_cast<int>(Parameters::Kinds::Group::valueType), 0);
    EXPECT_EQ(static_cast<int>(Parameters::Kinds::BoolParameter::valueType), 1);
    EXPECT_EQ(static_cast<int>(Parameters::Kinds::StringParameter::valueType), 5);
}

} // namespace
