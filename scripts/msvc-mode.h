#pragma once

/// @file
/// Lets Clang in MSVC's mode read the standard library of MinGW-w64, for scripts/msvc-mode. That library takes GCC for
/// granted, so that is what is pretended while it is read here, once and for all. A standard header that a source
/// begins to use must be on this list.

#pragma push_macro("_MSC_VER")
#undef _MSC_VER
#define __GNUC__ 12
#define __GNUC_MINOR__ 2
#define __STRICT_ANSI__ 1
#define __GXX_RTTI 1
#define __GCC_ATOMIC_TEST_AND_SET_TRUEVAL 1
#define __GCC_ATOMIC_BOOL_LOCK_FREE 2
#define __GCC_ATOMIC_CHAR_LOCK_FREE 2
#define __GCC_ATOMIC_CHAR8_T_LOCK_FREE 2
#define __GCC_ATOMIC_CHAR16_T_LOCK_FREE 2
#define __GCC_ATOMIC_CHAR32_T_LOCK_FREE 2
#define __GCC_ATOMIC_WCHAR_T_LOCK_FREE 2
#define __GCC_ATOMIC_SHORT_LOCK_FREE 2
#define __GCC_ATOMIC_INT_LOCK_FREE 2
#define __GCC_ATOMIC_LONG_LOCK_FREE 2
#define __GCC_ATOMIC_LLONG_LOCK_FREE 2
#define __GCC_ATOMIC_POINTER_LOCK_FREE 2

#include <_mingw.h>
#define __MINGW_IMPORT extern

#include <algorithm>
#include <any>
#include <array>
#include <atomic>
#include <bit>
#include <cassert>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <climits>
#include <clocale>
#include <cmath>
#include <compare>
#include <concepts>
#include <condition_variable>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <cwchar>
#include <deque>
#include <exception>
#include <filesystem>
#include <forward_list>
#include <fstream>
#include <functional>
#include <future>
#include <initializer_list>
#include <iomanip>
#include <ios>
#include <iosfwd>
#include <iostream>
#include <istream>
#include <iterator>
#include <limits>
#include <locale>
#include <map>
#include <memory>
#include <memory_resource>
#include <mutex>
#include <new>
#include <numeric>
#include <optional>
#include <ostream>
#include <random>
#include <ranges>
#include <regex>
#include <set>
#include <span>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <tuple>
#include <type_traits>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <valarray>
#include <variant>
#include <vector>
#include <version>

#undef __GNUC__
#undef __GNUC_MINOR__
#undef __STRICT_ANSI__
#undef __GXX_RTTI
#undef _alloca
#pragma pop_macro("_MSC_VER")

#include <fmt/format.h>
#include <intrin.h>

#ifdef OSTRA_TOOL
#include <nlohmann/json.hpp>
#endif
#ifdef OSTRA_SYSTEM
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>
#endif

// What Clang knows in every mode, and Visual Studio does not. What was read above may use it.
#undef __SIZEOF_INT128__
#pragma GCC poison __attribute__ __asm__ __int128 __PRETTY_FUNCTION__ __typeof__
