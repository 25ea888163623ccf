#include "model/RangeConstant.h"

#include "model/Messages.h"
#include "schema/Constants.h"

namespace Parameters::Internal {

std::string_view readRangeTypeId(const Ostra::Schema& schema, Ostra::JSONView typedValue) {
    const auto typeId = typedValue.member("typeid");
    if (!typeId) {
        return typedValue.failLacking({"typeid"}, messages("range-typeid-missing"), {schema.typeId()});
    }
    return Ostra::readTypeId(*typeId);
}

Ostra::MaybeView readInlineValue(std::string_view typeId, Ostra::JSONView typedValue) {
    const auto value = typedValue.member("value");
    if (!value) {
        return typedValue.failLacking({"value"}, messages("inline-range-missing"), {typeId}).none();
    }
    if (!value->isObject()) {
        return value->fail(messages("inline-range-object-expected")).none();
    }
    return value;
}

void refuseInlineValue(std::string_view typeId, Ostra::JSONView typedValue) {
    const auto value = typedValue.member("value");
    if (value && (!value->isObject() || value->size() != 0)) {
        value->report(messages("inline-range-misplaced"), {typeId});
    }
}

} // namespace Parameters::Internal
