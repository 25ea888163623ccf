#include "UnitSchema.h"

#include "Messages.h"
#include "schema/Constants.h"
#include "schema/Identifier.h"
#include "schema/Schema.h"

#include <utility>

namespace Units::Internal {

namespace {

constexpr Ostra::Identifier unitBase("norvex.unit:unit-1.0.0");

} // namespace

std::optional<Unit> readUnit(const Ostra::Schema& schema) {
    if (!schema.inherits(unitBase)) {
        if (const auto inherits = schema.view().member("inherits")) { // as has whatever is a schema
            inherits->forEachElement([](Ostra::JSONView base) { base.report(messages("base-unrecognized")); });
        }
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    std::string name(constants.required<Ostra::NonEmptyString>("name"));
    std::string symbol(constants.optional<Ostra::String>("symbol", ""));
    schema.tellUnread();
    return Unit(std::string(schema.typeId()), std::move(name), std::move(symbol));
}

} // namespace Units::Internal
