#include "model/ReferenceSpec.h"

#include "model/Category.h"
#include "model/MakeRef.h"
#include "model/Writing.h"
#include "schema/Constants.h"

#include <memory>
#include <utility>

namespace Parameters {

namespace {

ReferenceSpec specOf(Internal::SpecCoreData core, std::optional<Category> category) {
    using Data = Internal::ReferenceSpecData;
    return Internal::Access::make<ReferenceSpec>(Internal::makeRef<Data>(Data{std::move(core), std::move(category)}));
}

} // namespace

ReferenceSpec::ReferenceSpec(const SpecCore& core, const std::optional<Category>& category)
    : ReferenceSpec(specOf(Internal::Access::data(core), category)) {}

SpecCore ReferenceSpec::getCore() const noexcept { return core_; }

std::optional<Category> ReferenceSpec::getCategory() const noexcept { return Internal::copyOf(category()); }

const Category* ReferenceSpec::category() const noexcept {
    const auto& category = Internal::Access::data(*this).category;
    return category ? &*category : nullptr;
}

PARAMETERS_COMPARE_BY_TYPEID(ReferenceSpec)

namespace Internal {

std::optional<ReferenceSpecKind::Record> ReferenceSpecKind::read(const Ostra::Schema& schema) {
    if (!schema.inherits(base)) {
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    const auto common = SpecConstants::read(constants);
    const auto category = constants.optional<Ostra::TypedValue>("category", {});
    return Record(schema.typeId(), common, category.empty() ? std::nullopt : std::optional(category));
}

ReferenceSpecKind::Record ReferenceSpecKind::recordOf(const ReferenceSpec& spec) {
    const auto& data = Access::data(spec);
    const auto& category = data.category;
    return Record(data, category ? std::optional(typeIdOf(*category)) : std::nullopt);
}

ReferenceSpec ReferenceSpecKind::build(const Record& record, const Finder& finder, const ReferenceSpec* given) {
    auto core = buildSpecCore(record, finder, given != nullptr ? &Access::data(*given) : nullptr);
    std::optional<Category> category;
    if (const auto named = record.category()) {
        category = finder.require<CategoryKind>(*named, record.typeId());
    }
    return specOf(std::move(core), std::move(category));
}

std::string ReferenceSpecKind::write(const ReferenceSpec& spec) {
    const auto& data = Access::data(spec);
    Ostra::SchemaWriter writer = schemaWriter(data.typeId(), base);
    writeSpecConstants(writer, data);
    if (data.category) {
        writer.typedConstant("category").typedValue(typeIdOf(*data.category));
    }
    return std::move(writer).finish();
}

ReferenceSpec ReferenceSpecKind::standIn(std::string_view typeId) {
    return specOf(commonSpecCore(typeId, Public::info.builtInName()), std::nullopt);
}

ReferenceSpec ReferenceSpecKind::familyType(std::string_view typeId, const Category& category) {
    return specOf(commonSpecCore(typeId, "Family Type"), category);
}

} // namespace Internal

} // namespace Parameters
