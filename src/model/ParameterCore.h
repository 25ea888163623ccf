#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Kind.h"
#include "model/Links.h"
#include "model/MakeRef.h"
#include "model/References.h"
#include "model/Taxon.h"
#include "model/TrailingStrings.h"
#include "schema/Constants.h"
#include "schema/SchemaWriter.h"

#include <parameters/ParameterCore.h>
#include <parameters/Taxon.h>

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

/// The record of a parameter: its data, and what it names. It is good as long as the schema, or the object, that it is
/// of.
template <class Data>
struct ParameterRecord {
    Ref<const Data> data; // of a schema, without what is named
    References references;

    std::string_view typeId() const { return data->typeId(); }
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
        Links links = Self::find(*record.data, record.references, finder, given);
        makeSole(record.data);
        return link(std::move(record.data), std::move(links));
    }

    /// Sees to it that nobody else has data of a parameter; returns whether somebody had, so that it lies elsewhere
    /// now.
    static bool makeSole(Ref<const Data>& data) {
        if (data.isSole()) {
            return false;
        }
        data = makeRefWith<Data>(data->strings.views(), *data);
        return true;
    }

    /// Returns the parameter of data that nobody else has, with what it names.
    static Object link(Ref<const Data>&& data, Links&& links) noexcept {
        links.moveInto(const_cast<Data&>(*data));
        return Access::make<Object>(std::move(data));
    }

protected:
    /// Returns the record of a schema; parts is what the kind adds to a core.
    template <class... Parts>
    static Record recordFrom(const Ostra::Schema& schema, const ParameterConstants& constants,
                             const References& references, Parts&&... parts) {
        return {makeRefWith<Data>({schema.typeId(), constants.name, constants.description, constants.sampleText},
                                  ParameterCoreData{Access::none<Taxon>(), {}, constants.readOnly},
                                  std::forward<Parts>(parts)...),
                references};
    }
};

/// Returns the group that a parameter names.
inline Taxon findGroup(const ParameterCoreData& data, const References& named, const Finder& finder) {
    return finder.requireOrStandIn<GroupKind>(named.group(), data.typeId());
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
