#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Kind.h"
#include "model/Links.h"
#include "model/MakeRef.h"
#include "model/Taxon.h"
#include "model/Texts.h"
#include "model/TrailingStrings.h"
#include "schema/Constants.h"
#include "schema/SchemaWriter.h"

#include <parameters/ParameterCore.h>
#include <parameters/Taxon.h>

#include <optional>
#include <string_view>
#include <utility>

namespace Parameters::Internal {

/// The data of a core, from which those of parameters derive: a parameter holds them as its core.
struct ParameterCoreData {
    using Strings = TrailingStrings<4>::Views; // typeid, name, description, sampleText

    Taxon group;
    TrailingStrings<4> strings;
    bool readOnly;

    std::string_view typeId() const { return strings[0]; }
    std::string_view name() const { return strings[1]; }
    std::string_view description() const { return strings[2]; }
    std::string_view sampleText() const { return strings[3]; }
};

/// The constants that all parameter schemas share, as the text has them.
struct ParameterConstants {
    std::string_view name;
    std::string_view description;
    std::string_view sampleText;
    std::string_view group;
    bool readOnly;

    static ParameterConstants read(const Ostra::Constants& constants);
};

/// The record of a parameter: its data and the typeids of what it names. It is made by its constructor alone: g++ 12
/// destroys the first part of an aggregate twice when making the second one throws.
template <class Data>
struct ParameterRecord {
    Ref<const Data> data; // of a schema text, without what is named
    Texts references;     // group, spec, then what the kind adds

    ParameterRecord(Ref<const Data> itsData, Texts named) : data(std::move(itsData)), references(std::move(named)) {}

    std::string_view typeId() const { return data->typeId(); }
    std::string_view group() const { return references[0]; }
    std::string_view spec() const { return references[1]; }
    /// What the kind names beside group and spec, if it does.
    std::optional<std::string_view> added() const {
        return references.size() > 2 ? std::optional(references[2]) : std::nullopt;
    }

    /// Makes the data this record's alone; returns whether it was not, so that it lies elsewhere now.
    bool makeSole() {
        if (data.isSole()) {
            return false;
        }
        data = makeRefWith<Data>(data->strings.views(), *data);
        return true;
    }
};

/// The kind of a parameter. It is made when its schema is read; what it names is put into it when that is found.
///
/// Self has reading and writing, and finds what a record names.
template <class Self, class P, class D>
struct ParameterKind : DescribedKind<P> {
    using Object = typename P::Value;
    using Data = D;
    using Links = LinksOf<Data>;
    using Record = ParameterRecord<Data>;

    /// Makes a parameter of a core, what the kind adds of its own, and what it names.
    template <class... Parts>
    static Object make(const ParameterCore& core, const Parts&... parts) {
        const ParameterCoreData& data = Access::data(core);
        return Access::make<Object>(makeRefWith<Data>(data.strings.views(), data, parts...));
    }

    static Object build(Record record, const Finder& finder, const Object* given) {
        Links links = Self::find(record, finder, given);
        record.makeSole();
        return link(std::move(record), std::move(links));
    }

    /// Returns the parameter of a record, whose data is its alone, with what it names.
    static Object link(Record&& record, Links&& links) noexcept {
        links.moveInto(const_cast<Data&>(*record.data)); // which nobody else sees
        return Access::make<Object>(std::move(record.data));
    }

protected:
    /// Returns the record of a schema; parts is what the kind adds to a core.
    template <class... Parts>
    static Record recordFrom(const Ostra::Schema& schema, const ParameterConstants& constants, Texts references,
                             Parts&&... parts) {
        return {makeRefWith<Data>({schema.typeId(), constants.name, constants.description, constants.sampleText},
                                  ParameterCoreData{Access::none<Taxon>(), {}, constants.readOnly},
                                  std::forward<Parts>(parts)...),
                std::move(references)};
    }

    /// Returns what all parameters name: group, spec, and what the kind adds.
    static Texts referencesOf(std::string_view group, std::string_view spec,
                              std::optional<std::string_view> added = {}) {
        return added ? Texts{group, spec, *added} : Texts{group, spec};
    }
};

/// Returns the group that a record names.
template <class Record>
Taxon findGroup(const Record& record, const Finder& finder) {
    return finder.requireOrStandIn<GroupKind>(record.group(), record.typeId());
}

/// Writes the constants that all parameters share, those that differ from their defaults.
void writeParameterConstants(Ostra::SchemaWriter& writer, const ParameterCoreData& core);

/// Writes the constant that names a parameter's spec, unless that is the built-in one.
template <class SpecKind>
void writeSpecConstant(Ostra::SchemaWriter& writer, const typename SpecKind::Object& spec) {
    const std::string_view typeId = typeIdOf(spec);
    if constexpr (KindWithStandIn<SpecKind>) {
        if (typeId == SpecKind::base.full()) {
            return;
        }
    }
    writer.typedConstant("spec").typedValue(typeId);
}

} // namespace Parameters::Internal
