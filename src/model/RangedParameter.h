#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Kind.h"
#include "model/MakeRef.h"
#include "model/ParameterCore.h"
#include "model/RangeConstant.h"
#include "model/Writing.h"
#include "schema/Constants.h"
#include "schema/Schema.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Parameters::Internal {

/// The data of a parameter that has a range.
template <class Spec, class Range>
struct RangedParameterData : ParameterCoreData {
    Spec spec;
    Range range;
};

/// The record of a parameter that has a range.
template <class Range>
struct RangedParameterRecord : ParameterRecord {
    Range ownRange; // none when a registered range is named

    template <class... Parts> // of a ParameterRecord before what it adds: the range that is named
    explicit RangedParameterRecord(const RangeReference<Range>& range, Parts&&... parts)
        : ParameterRecord(std::forward<Parts>(parts)..., range.named), ownRange(range.own) {}

    /// The range that is named, if one is.
    std::optional<std::string_view> range() const { return added(); }
};

/// The kind of a parameter that has a range. Where its spec has no built-in object, it must be named.
///
/// Traits has the kind's entry in the public list, the kinds of its spec and its range, how the spec is found, and
/// whether binding looks for the range first.
template <class Traits>
class RangedParameterKind : public DescribedKind<typename Traits::Public> {
public:
    using Object = typename Traits::Public::Value;
    using SpecKind = typename Traits::SpecKind;
    using RangeKind = typename Traits::RangeKind;
    using Spec = typename SpecKind::Object;
    using Range = typename RangeKind::Object;
    using Names = KindList<GroupKind, SpecKind, RangeKind>;
    using Record = RangedParameterRecord<Range>;
    using DescribedKind<typename Traits::Public>::base;

    static std::optional<Record> read(const Ostra::Schema& schema) {
        if (!schema.inherits(base)) {
            return std::nullopt;
        }
        const Ostra::Constants constants(schema);
        const auto common = ParameterConstants::read(constants);
        const auto spec = readSpec(constants);
        return Record(RangeKind::readConstant(schema, constants), schema.typeId(), common, spec);
    }

    static Record recordOf(const Object& parameter) {
        const auto& data = Access::data(parameter);
        return Record(RangeKind::referenceTo(data.range), data, typeIdOf(data.spec));
    }

    static Object build(const Record& record, const Finder& finder, const Object* given) {
        auto core = buildParameterCore(record, finder);
        const auto findSpec = [&] {
            return Traits::findSpec(record, finder, given != nullptr ? &Access::data(*given).spec : nullptr);
        };
        const auto findRange = [&] { return rangeOf(record, finder); };
        if constexpr (Traits::bindsRangeFirst) {
            const auto [spec, range] = findBoth(finder, findSpec, findRange);
            return make(std::move(core), spec, range);
        } else {
            const auto spec = findSpec();
            return make(std::move(core), spec, findRange());
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

    static Object make(ParameterCoreData&& core, const Spec& spec, const Range& range) {
        using Data = RangedParameterData<Spec, Range>;
        return Access::make<Object>(makeRef<Data>(Data{std::move(core), spec, range}));
    }

private:
    static std::string_view readSpec(const Ostra::Constants& constants) {
        if constexpr (KindWithStandIn<SpecKind>) {
            return constants.optional<Ostra::TypedValue>("spec", SpecKind::base.full());
        } else {
            return constants.required<Ostra::TypedValue>("spec");
        }
    }

    static Range rangeOf(const Record& record, const Finder& finder) {
        if constexpr (requires { RangeKind::check(record.ownRange); }) {
            if (finder.binds() && !Access::isNone(record.ownRange)) {
                RangeKind::check(record.ownRange); // whether it is the parameter's or, made in code, another's
            }
        }
        const auto named = record.range();
        return named ? finder.require<RangeKind>(*named, record.typeId()) : record.ownRange;
    }
};

} // namespace Parameters::Internal
