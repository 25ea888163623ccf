#include "model/RangeConstant.h"

#include "schema/Constants.h"

#include <string>

namespace Parameters::Internal {

std::string_view readRangeTypeId(const Ostra::Schema& schema, Ostra::JSONView typedValue) {
    const auto typeId = typedValue.member("typeid");
    if (!typeId) {
        schema.fail("Schema " + std::string(schema.typeId()) +
                    " must specify a typeid string attribute in its range constant typedValue.");
    }
    return Ostra::readTypeId(*typeId);
}

Ostra::JSONView readInlineValue(std::string_view typeId, Ostra::JSONView typedValue) {
    const auto value = typedValue.member("value");
    if (!value) {
        typedValue.fail("Inline value override is required when specifying range schema " + std::string(typeId) +
                        " in range constant typedValue.");
    }
    if (!value->isObject()) {
        typedValue.fail("Inline value override in range constant typedValue must be an object.");
    }
    return *value;
}

void refuseInlineValue(std::string_view typeId, Ostra::JSONView typedValue) {
    const auto value = typedValue.member("value");
    if (value && (!value->isObject() || value->size() != 0)) {
        typedValue.fail("Inline value override for range schema " + std::string(typeId) +
                        " in range constant typedValue, if present, must be an empty object.");
    }
}

} // namespace Parameters::Internal
