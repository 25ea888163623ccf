#include "model/ReferenceSpec.h"

#include "model/Category.h"
#include "model/Writing.h"
#include "schema/Constants.h"

#include <memory>
#include <utility>

namespace Parameters {

namespace BuiltIn = Ostra::BuiltIn;

namespace {

ReferenceSpec specOf(Internal::SpecCoreData core, std::optional<Category> category) {
    using Data = Internal::ReferenceSpecData;
    return Internal::Access::make<ReferenceSpec>(
        std::make_shared<const Data>(Data{std::move(core), std::move(category)}));
}

} // namespace

ReferenceSpec::ReferenceSpec(const SpecCore& core, const std::optional<Category>& category)
    : ReferenceSpec(specOf(Internal::Access::data(core), category)) {}

SpecCore ReferenceSpec::getCore() const { return Internal::specCoreOf(data_); }

std::optional<Category> ReferenceSpec::getCategory() const { return data_->category; }

PARAMETERS_COMPARE_BY_TYPEID(ReferenceSpec)

namespace Internal {

std::optional<SpecRecord> ReferenceSpecKind::read(const Ostra::Schema& schema) {
    if (!schema.inherits(BuiltIn::referenceSpec)) {
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    const auto [name, discipline] = SpecConstants::read(constants);
    const auto category = constants.optional<Ostra::TypedValue>("category", {});
    return Record{
        {schema.typeId(), name}, category.empty() ? Texts{discipline} : Texts{discipline, category}, std::nullopt};
}

SpecRecord ReferenceSpecKind::recordOf(const ReferenceSpec& spec) {
    const auto& [core, category] = Access::data(spec);
    const std::string_view discipline = typeIdOf(core.discipline);
    return {core.texts, category ? Texts{discipline, typeIdOf(*category)} : Texts{discipline}, core.discipline};
}

ReferenceSpec ReferenceSpecKind::build(const Record& record, const Finder& finder) {
    auto core = buildSpecCore(record, finder);
    std::optional<Category> category;
    if (record.references.size() > 1) {
        category = finder.require<CategoryKind>(record.references[1], record.typeId());
    }
    return specOf(std::move(core), std::move(category));
}

std::string ReferenceSpecKind::write(const ReferenceSpec& spec) {
    const auto& [core, category] = Access::data(spec);
    Ostra::SchemaWriter writer = schemaWriter(core.typeId(), BuiltIn::referenceSpec);
    writeSpecConstants(writer, core);
    if (category) {
        writer.typedConstant("category").typedValue(typeIdOf(*category));
    }
    return std::move(writer).finish();
}

ReferenceSpec ReferenceSpecKind::standIn(std::string_view typeId) {
    return specOf(commonSpecCore(typeId, builtIn.displayName()), std::nullopt);
}

ReferenceSpec ReferenceSpecKind::familyType(std::string_view typeId, const Category& category) {
    return specOf(commonSpecCore(typeId, BuiltIn::familyType.displayName()), category);
}

} // namespace Internal

} // namespace Parameters
