#pragma once

#include "schema/JSONValue.h"
#include "schema/Message.h"

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace Ostra {

class Inspection;

/// Something wrong with a document, as one of its readers tells it.
struct Finding {
    const Message& message;
    std::initializer_list<std::string_view> inserted;
    const JSONValue& value;                               ///< What is wrong, or lacks something.
    std::initializer_list<std::string_view> lacking = {}; ///< Members or, in an array, definitions that it lacks.
    const JSONValue* other = nullptr;                     ///< What stands in its way.
    std::optional<std::size_t> offset = std::nullopt;     ///< Where the text is no JSON: it has no values then.
};

/// Hears of what is wrong with a document while it is read.
class FaultHandler {
public:
    FaultHandler(const FaultHandler&) = delete;
    FaultHandler& operator=(const FaultHandler&) = delete;
    virtual ~FaultHandler() = default;

    /// Throws an exception for an error, or returns, and the reader then goes on with an empty value.
    virtual void handle(const Finding& finding) = 0;

    /// Returns who reads along where faults are kept; null where the first one is thrown.
    Inspection* inspection() const noexcept { return inspection_; }

protected:
    explicit FaultHandler(Inspection* inspection = nullptr) : inspection_(inspection) {}

private:
    Inspection* inspection_;
};

/// What a reader returns after a fault, so that reading can go on where faults are kept: the empty value of its type.
struct Nothing {
    // NOLINTNEXTLINE(google-explicit-constructor): it stands for a value of any type
    template <class Value>
    operator Value() const {
        return Value();
    }
    /// For readers that return an optional value.
    std::nullopt_t none() const { return std::nullopt; }
};

} // namespace Ostra
