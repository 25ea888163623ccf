#pragma once

#include "schema/Hash.h"

#include <parameters/Identity.h>
#include <parameters/Views.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Parameters::Internal {

class Registry;

/// What names what, the other way round: for each typeid that objects of a registry name, these objects.
class Dependents {
public:
    explicit Dependents(const Registry& registry);

    /// Returns the objects that name this: kind by kind in the store order, by typeid within a kind.
    ArrayView<Identity> of(std::string_view typeId) const noexcept;

private:
    /// What names one typeid.
    struct Span {
        std::size_t begin = 0;
        std::size_t size = 0;
        std::size_t last = 0; // while it grows: the object that was the last to name it, counted from 1
    };

    // Units and built-in objects are named, too, and are in no directory: each typeid is copied.
    std::unordered_map<std::string, Span, Ostra::TextHash, std::equal_to<>> spans_;
    std::vector<Identity> objects_;
};

} // namespace Parameters::Internal
