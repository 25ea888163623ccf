#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Kind.h"
#include "model/ParameterCore.h"
#include "model/RangeConstant.h"
#include "model/Writing.h"
#include "schema/Constants.h"
#include "schema/Schema.h"

#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace Parameters::Internal {

/// The data of a parameter that has a range.
template <class Spec, class Range>
struct RangedParameterData : ParameterCoreData {
    Spec spec;
    Range range;

    auto links() { return std::tie(group, spec, range); }
};

/// The kind of a parameter that has a range. Where its spec has no built-in object, it must be named. The range of its
/// own that it may have in place of a registered one is made when it is read.
///
/// Traits has the kind's entry in the public list, the kinds of its spec and its range, how the spec is found, and
/// whether binding looks for the range first.
template <class Traits>
class RangedParameterKind
    : public ParameterKind<RangedParameterKind<Traits>, typename Traits::Public,
                           RangedParameterData<typename Traits::SpecKind::Object, typename Traits::RangeKind::Object>> {
    using Base =
        ParameterKind<RangedParameterKind<Traits>, typename Traits::Public,
                      RangedParameterData<typename Traits::SpecKind::Object, typename Traits::RangeKind::Object>>;

public:
    using SpecKind = typename Traits::SpecKind;
    using RangeKind = typename Traits::RangeKind;
    using Spec = typename SpecKind::Object;
    using Range = typename RangeKind::Object;
    using Names = KindList<GroupKind, SpecKind, RangeKind>;
    using Base::base;
    using typename Base::Data;
    using typename Base::Links;
    using typename Base::Object;
    using typename Base::Record;

    static std::optional<Record> read(const Ostra::Schema& schema) {
        if (!schema.inherits(base)) {
            return std::nullopt;
        }
        const Ostra::Constants constants(schema);
        const auto common = ParameterConstants::read(constants);
        const auto spec = readSpec(constants);
        const auto range = RangeKind::readConstant(schema, constants);
        return Base::recordFrom(schema, common, {common.group, spec, range.named}, Access::none<Spec>(), range.own);
    }

    static Record recordOf(const Object& parameter) {
        const auto& data = Access::data(parameter);
        const auto range = RangeKind::referenceTo(data.range);
        return {Access::share(parameter), {typeIdOf(data.group), typeIdOf(data.spec), range.named}};
    }

    static Links find(const Data& data, const References& named, const Finder& finder, const Object* given) {
        const auto group = findGroup(data, named, finder);
        const auto findSpec = [&] {
            return Traits::findSpec(named.spec(), data.typeId(), finder,
                                    given != nullptr ? &Access::data(*given).spec : nullptr);
        };
        const auto findRange = [&] { return rangeOf(data, named, finder); };
        if constexpr (Traits::bindsRangeFirst) {
            const auto [spec, range] = findBoth(finder, findSpec, findRange);
            return Links{group, spec, range};
        } else {
            return Links{group, findSpec(), findRange()};
        }
    }

    static std::string write(const Object& parameter) {
        const auto& data = Access::data(parameter);
        Ostra::SchemaWriter writer = schemaWriter(data.typeId(), base);
        writeParameterConstants(writer, data);
        writeSpecConstant<SpecKind>(writer, data.spec);
        RangeKind::writeConstant(writer, data.range);
        return std::move(writer).finish();
    }

private:
    static std::string_view readSpec(const Ostra::Constants& constants) {
        if constexpr (KindWithStandIn<SpecKind>) {
            return constants.optional<Ostra::TypedValue>("spec", SpecKind::base.full());
        } else {
            return constants.required<Ostra::TypedValue>("spec");
        }
    }

    static Range rangeOf(const Data& data, const References& named, const Finder& finder) {
        const Range& own = data.range;
        if constexpr (requires { RangeKind::check(own); }) {
            if (finder.binds() && !Access::isNone(own)) {
                RangeKind::check(own); // whether it is the parameter's or, made in code, another's
            }
        }
        const Name* const range = named.added();
        return range != nullptr ? finder.require<RangeKind>(*range, data.typeId()) : own;
    }
};

} // namespace Parameters::Internal
