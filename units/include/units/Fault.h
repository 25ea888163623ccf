#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Units {

/// Something wrong with the text of a unit schema, or something in it that is passed over.
struct Fault {
    /// A value in the text.
    struct Place {
        std::string pointer; ///< The JSON Pointer of the value (RFC 6901); "" is the whole text.
        std::size_t begin;   ///< The offset of the value's first byte.
        std::size_t end;     ///< The offset behind its last byte.
    };

    std::string_view code;      ///< The short name of the rule that is broken; it lasts as long as the library.
    bool isError;               ///< Whether it keeps the schema from being registered.
    std::string message;        ///< A sentence; that of an error is the message of the exception.
    std::string name;           ///< What the fault is about; empty where that has no name.
    std::string nearestName;    ///< A name near to that which is known or, for what is missing, is there.
    Place place;                ///< What is wrong.
    std::optional<Place> other; ///< What stands in its way, if anything does.
};

} // namespace Units
