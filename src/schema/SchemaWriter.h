#pragma once

#include "schema/ExceptionFactory.h"
#include "schema/JSON.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Ostra {

/// Puts the JSON of one schema together: "typeid", "inherits", and "constants" and "properties" where they have an
/// element, each in the order in which it was added.
class SchemaWriter {
public:
    /// Faults of what is written are raised through the factory.
    SchemaWriter(std::string_view typeId, std::string_view base, std::shared_ptr<const ExceptionFactory> factory);

    /// Adds the constant {"id": id, "value": value}.
    void constant(std::string_view id, JSON value);
    /// Adds the constant {"id": id, "typedValue": typedValue}.
    void typedConstant(std::string_view id, JSON typedValue);
    /// Adds the property {"id": id, "value": value}.
    void property(std::string_view id, JSON value);
    /// Adds the property {"id": id, "typedValue": typedValue}.
    void typedProperty(std::string_view id, JSON typedValue);

    JSON boolean(bool value) const { return json_.boolean(value); }
    JSON integer(std::int64_t value) const { return json_.integer(value); }
    JSON string(std::string_view value) const { return json_.string(value); }
    JSON object() const { return json_.object(); }
    JSON array() const { return json_.array(); }
    /// Fails when the number is not finite, since JSON has no word for it.
    JSON number(double value) const;
    /// Returns {"typeid": typeId}.
    JSON typedValue(std::string_view typeId) const;

    /// Returns the schema; nothing can be added afterwards.
    JSON finish() &&;

private:
    JSON definition(std::string_view id, std::string_view member, JSON value) const;

    std::string_view typeId_;
    std::shared_ptr<const ExceptionFactory> factory_;
    JSONBuilder json_;
    JSON schema_;
    JSON constants_;
    JSON properties_;
};

} // namespace Ostra
