#include "model/ReferenceParameter.h"

#include "model/Category.h"
#include "model/Writing.h"
#include "schema/Constants.h"

#include <parameters/ValidationException.h>

#include <string>
#include <utility>

namespace Parameters {

ReferenceParameter::ReferenceParameter(const ParameterCore& core, const Category& category, bool ranged)
    : ReferenceParameter(
          core, Internal::ReferenceSpecKind::familyType(Internal::ReferenceSpecKind::familyTypeBase.full(), category),
          ranged) {}

ReferenceParameter::ReferenceParameter(const ParameterCore& core, const ReferenceSpec& spec, bool ranged)
    : ReferenceParameter(Internal::ReferenceParameterKind::make(core, ranged, spec)) {}

ReferenceParameter::ReferenceParameter(const ParameterCore& core, bool ranged)
    : ReferenceParameter(core, Internal::standInOf<Internal::ReferenceSpecKind>(), ranged) {}

ParameterCore ReferenceParameter::getCore() const noexcept { return core_; }

ReferenceSpec ReferenceParameter::getSpec() const noexcept { return spec(); }

const ReferenceSpec& ReferenceParameter::spec() const noexcept { return Internal::Access::data(*this).spec; }

bool ReferenceParameter::isRanged() const noexcept { return Internal::Access::data(*this).ranged; }

PARAMETERS_COMPARE_BY_TYPEID(ReferenceParameter)

namespace Internal {

namespace {

bool isFamilyType(std::string_view spec) { return ReferenceSpecKind::familyTypeBase.isIn(spec); }

/// Returns the typeid of the category that stands beside the typeid of the family type base.
std::string_view readCategory(std::string_view spec, Ostra::JSONView typedValue) {
    const auto inlined = typedValue.member("typedValue");
    if (!inlined) {
        return typedValue.failLacking({"typedValue"}, ReferenceParameterKind::messages("family-type-inline-missing"),
                                      {spec});
    }
    if (!inlined->isObject()) {
        return inlined->fail(ReferenceParameterKind::messages("family-type-object-expected"));
    }
    const auto& missing = ReferenceParameterKind::messages("family-type-category-missing");
    const auto category = inlined->member("category");
    if (!category) {
        return inlined->failLacking({"category"}, missing);
    }
    const auto typeId = category->member("typeid");
    if (!typeId) {
        return category->failLacking({"typeid"}, missing);
    }
    return Ostra::readTypeId(*typeId);
}

struct SpecReference {
    std::string_view spec;
    std::optional<std::string_view> category; // of a family type
};

SpecReference readSpec(const Ostra::Schema& schema, const Ostra::Constants& constants) {
    const auto typedValue = constants.find("spec");
    if (!typedValue) {
        return {ReferenceSpecKind::base.full(), std::nullopt};
    }
    const auto typeId = typedValue->member("typeid");
    if (!typeId) {
        const auto& missing = ReferenceParameterKind::messages("reference-spec-typeid-missing");
        typedValue->notePassedOver();
        return {typedValue->failLacking({"typeid"}, missing, {schema.typeId()}), std::nullopt};
    }
    const std::string_view spec = Ostra::readTypeId(*typeId);
    if (spec.empty()) {
        typedValue->notePassedOver(); // what should stand beside it is not known
        return {spec, std::nullopt};
    }
    if (isFamilyType(spec)) {
        return {spec, readCategory(spec, *typedValue)};
    }
    for (const std::string_view name : {"value", "typedValue"}) {
        if (const auto inlined = typedValue->member(name)) {
            inlined->report(ReferenceParameterKind::messages("inline-spec-misplaced"), {spec});
        }
    }
    return {spec, std::nullopt};
}

ReferenceSpec buildFamilyType(const ReferenceParameterData& data, const References& named, const Finder& finder) {
    if (named.added() == nullptr) {
        throw ValidationException(ReferenceParameterKind::messages("given-category-missing").with({}));
    }
    const auto category = finder.require<CategoryKind>(*named.added(), data.typeId());
    return ReferenceSpecKind::familyType(
        finder.binds() ? ReferenceSpecKind::familyTypeBase.full() : named.spec().typeId, category);
}

} // namespace

std::optional<ReferenceParameterKind::Record> ReferenceParameterKind::read(const Ostra::Schema& schema) {
    const bool ranged = schema.inherits(rangedBase);
    if (!ranged && !schema.inherits(plainBase)) {
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    const auto common = ParameterConstants::read(constants);
    const auto [spec, category] = readSpec(schema, constants);
    return recordFrom(schema, common, {common.group, spec, category}, ranged, Access::none<ReferenceSpec>());
}

ReferenceParameterKind::Record ReferenceParameterKind::recordOf(const ReferenceParameter& parameter) {
    const auto& data = Access::data(parameter);
    const auto& category = Access::data(data.spec).category;
    std::optional<Name> named;
    if (category && isFamilyType(typeIdOf(data.spec))) { // another spec brings its own category
        named = typeIdOf(*category);
    }
    return {Access::share(parameter), {typeIdOf(data.group), typeIdOf(data.spec), named}};
}

ReferenceParameterKind::Links ReferenceParameterKind::find(const Data& data, const References& named,
                                                           const Finder& finder, const ReferenceParameter*) {
    const auto group = findGroup(data, named, finder);
    return Links{group, isFamilyType(named.spec().typeId)
                            ? buildFamilyType(data, named, finder)
                            : finder.requireOrUsualStandIn<ReferenceSpecKind>(named.spec(), data.typeId())};
}

std::string ReferenceParameterKind::write(const ReferenceParameter& parameter) {
    const auto& data = Access::data(parameter);
    const auto& base = data.ranged ? rangedBase : plainBase;
    Ostra::SchemaWriter writer = schemaWriter(data.typeId(), base);
    writeParameterConstants(writer, data);
    const auto& category = Access::data(data.spec).category;
    if (category && isFamilyType(typeIdOf(data.spec))) {
        writer.typedConstant("spec").beginTypedValue(ReferenceSpecKind::familyTypeBase.full());
        writer.name("typedValue");
        writer.beginObject();
        writer.name("category");
        writer.typedValue(typeIdOf(*category));
        writer.endObject();
        writer.endObject();
    } else {
        writeSpecConstant<ReferenceSpecKind>(writer, data.spec);
    }
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
