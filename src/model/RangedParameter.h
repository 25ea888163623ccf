#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/ParameterCore.h"
#include "model/RangeConstant.h"
#include "model/Texts.h"

#include <memory>
#include <optional>
#include <string_view>
#include <utility>

namespace Parameters::Internal {

/// The data of a parameter that has a range.
template <class Spec, class Range>
struct RangedParameterData {
    ParameterCoreData core;
    Spec spec;
    Range range;

    std::string_view typeId() const { return core.typeId(); }
};

template <class Parameter, class Spec, class Range>
Parameter makeRanged(ParameterCoreData core, const Spec& spec, const Range& range) {
    using Data = RangedParameterData<Spec, Range>;
    return Access::make<Parameter>(std::make_shared<const Data>(Data{std::move(core), spec, range}));
}

/// The record of a parameter that has a range.
template <class Range>
struct RangedParameterRecord : ParameterRecord {
    Range ownRange; // none when a registered range is named

    // NOLINTBEGIN(clang-analyzer-optin.cplusplus.UninitializedObject): the analyzer loses sight of what the base is
    // made of
    /// Of a schema text.
    RangedParameterRecord(std::string_view typeId, const ParameterConstants& constants, std::string_view spec,
                          const RangeReference<Range>& range)
        : ParameterRecord{constants.texts(typeId), referencesOf(constants.group, spec, range.named),
                          constants.readOnly},
          ownRange(range.own) {}
    /// Of an object.
    template <class Spec>
    RangedParameterRecord(const RangedParameterData<Spec, Range>& data, const RangeReference<Range>& range)
        : ParameterRecord{data.core.texts, referencesOf(typeIdOf(data.core.group), typeIdOf(data.spec), range.named),
                          data.core.readOnly},
          ownRange(range.own) {}

    // NOLINTEND(clang-analyzer-optin.cplusplus.UninitializedObject)

    /// Returns the registered range that the record names, or else the parameter's own.
    template <class RangeKind>
    Range findRange(const Finder& finder) const {
        return references.size() > 2 ? finder.require<RangeKind>(references[2], typeId()) : ownRange;
    }

private:
    static Texts referencesOf(std::string_view group, std::string_view spec, std::optional<std::string_view> range) {
        return range ? Texts{group, spec, *range} : Texts{group, spec};
    }
};

} // namespace Parameters::Internal
