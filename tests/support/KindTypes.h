#pragma once

#include "support/Samples.h"

#include <gtest/gtest.h>

#include <string>

namespace Support {

template <class List>
struct TestedTypes;
template <class... Ks>
struct TestedTypes<Kinds::List<Ks...>> {
    using Types = testing::Types<Ks...>;
};

/// The kinds of a list as the types of a typed suite, whose tests are named after them by NameOfKind.
template <class List>
using TestedKinds = typename TestedTypes<List>::Types;

struct NameOfKind {
    template <class Kind>
    static std::string GetName(int) { // NOLINT(readability-identifier-naming): GoogleTest calls it
        return nameOf(Kind::info);
    }
};

} // namespace Support
