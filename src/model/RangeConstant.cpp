#include "model/RangeConstant.h"

#include "model/Messages.h"
#include "schema/Constants.h"

namespace Parameters::Internal {

std::string_view readRangeTypeId(const Ostra::Schema& schema, Ostra::JSONView typedValue) {
    const auto typeId = typedValue.member("typeid");
    if (!typeId) {
        schema.fail(messages("range-typeid-missing"), {schema.typeId()});
    }
    return Ostra::readTypeId(*typeId);
}

Ostra::JSONView readInlineValue(std::string_view typeId, Ostra::JSONView typedValue) {
    const auto value = typedValue.member("value");
    if (!value) {
        typedValue.fail(messages("inline-range-missing"), {typeId});
    }
    if (!value->isObject()) {
        typedValue.fail(messages("inline-range-object-expected"));
    }
    return *value;
}

void refuseInlineValue(std::string_view typeId, Ostra::JSONView typedValue) {
    const auto value = typedValue.member("value");
    if (value && (!value->isObject() || value->size() != 0)) {
        typedValue.fail(messages("inline-range-misplaced"), {typeId});
    }
}

} // namespace Parameters::Internal
