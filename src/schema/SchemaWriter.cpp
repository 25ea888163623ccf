#include "schema/SchemaWriter.h"

#include <cmath>
#include <utility>

namespace Ostra {

SchemaWriter::SchemaWriter(std::string_view typeId, std::string_view base,
                           std::shared_ptr<const ExceptionFactory> factory)
    : typeId_(typeId), factory_(std::move(factory)), schema_(json_.object()), constants_(json_.array()),
      properties_(json_.array()) {
    schema_.add("typeid", json_.string(typeId));
    JSON inherits = json_.array();
    inherits.append(json_.string(base));
    schema_.add("inherits", std::move(inherits));
}

void SchemaWriter::constant(std::string_view id, JSON value) {
    constants_.append(definition(id, "value", std::move(value)));
}

void SchemaWriter::typedConstant(std::string_view id, JSON typedValue) {
    constants_.append(definition(id, "typedValue", std::move(typedValue)));
}

void SchemaWriter::property(std::string_view id, JSON value) {
    properties_.append(definition(id, "value", std::move(value)));
}

void SchemaWriter::typedProperty(std::string_view id, JSON typedValue) {
    properties_.append(definition(id, "typedValue", std::move(typedValue)));
}

JSON SchemaWriter::number(double value) const {
    if (!std::isfinite(value)) {
        factory_->raise("Schema " + std::string(typeId_) + " has a number that is not finite.");
    }
    return json_.number(value);
}

JSON SchemaWriter::typedValue(std::string_view typeId) const {
    JSON typedValue = json_.object();
    typedValue.add("typeid", json_.string(typeId));
    return typedValue;
}

JSON SchemaWriter::definition(std::string_view id, std::string_view member, JSON value) const {
    JSON definition = json_.object();
    definition.add("id", json_.string(id));
    definition.add(member, std::move(value));
    return definition;
}

JSON SchemaWriter::finish() && {
    if (constants_.view().size() != 0) {
        schema_.add("constants", std::move(constants_));
    }
    if (properties_.view().size() != 0) {
        schema_.add("properties", std::move(properties_));
    }
    return std::move(schema_);
}

} // namespace Ostra
