#pragma once

#include "schema/ExceptionFactory.h"
#include "schema/JSONWriter.h"

#include <string>
#include <string_view>

namespace Ostra {

/// Writes the JSON of one schema: "typeid", "inherits", and "constants" and "properties" where they have an element,
/// each in the order in which it is added. Constants come before properties.
///
/// What adds a definition returns the writer, which then takes the definition's value.
class SchemaWriter : private JSONWriter {
public:
    /// Faults of what is written are raised through the factory, which must live as long as the writer.
    SchemaWriter(std::string_view typeId, std::string_view base, const ExceptionFactory& factory);

    /// Adds the constant {"id": id, "value": ...}.
    SchemaWriter& constant(std::string_view id) { return define("constants", id, "value"); }
    /// Adds the constant {"id": id, "typedValue": ...}.
    SchemaWriter& typedConstant(std::string_view id) { return define("constants", id, "typedValue"); }
    /// Adds the property {"id": id, "value": ...}.
    SchemaWriter& property(std::string_view id) { return define("properties", id, "value"); }
    /// Adds the property {"id": id, "typedValue": ...}.
    SchemaWriter& typedProperty(std::string_view id) { return define("properties", id, "typedValue"); }

    using JSONWriter::beginArray;
    using JSONWriter::beginObject;
    using JSONWriter::boolean;
    using JSONWriter::endArray;
    using JSONWriter::endObject;
    using JSONWriter::integer;
    using JSONWriter::name;
    using JSONWriter::string;
    /// Fails when the number is not finite, since JSON has no word for it.
    void number(double value);
    /// Writes {"typeid": typeId}.
    void typedValue(std::string_view typeId);
    /// Writes {"typeid": typeId, so that more members can follow.
    void beginTypedValue(std::string_view typeId);

    /// Returns the text of the schema; nothing can be added afterwards.
    std::string finish() &&;

private:
    SchemaWriter& define(std::string_view table, std::string_view id, std::string_view member);
    void endTable();

    std::string_view typeId_;
    const ExceptionFactory& factory_;
    std::string_view table_; // that is being written, if any
};

} // namespace Ostra
