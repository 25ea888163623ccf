#pragma once

#include "model/Finder.h"
#include "model/Texts.h"
#include "schema/BuiltIn.h"
#include "schema/Schema.h"

#include <concepts>
#include <optional>
#include <string>
#include <string_view>

namespace Parameters::Internal {

/// A kind of object: how its schemas are read, its objects built and its schemas written.
///
/// Its record is what a text or an object says, with the objects that it names still typeids. The first of the record's
/// texts is the typeid.
template <class K>
concept Kind = requires(const Ostra::Schema& schema, const typename K::Record& record, const typename K::Object& object,
                        const Finder& finder) {
    { K::word } -> std::convertible_to<std::string_view>;
    { record.texts[0] } -> std::same_as<std::string_view>;
    { K::read(schema) } -> std::same_as<std::optional<typename K::Record>>; // empty: not this kind
    { K::recordOf(object) } -> std::same_as<typename K::Record>;
    { K::build(record, finder) } -> std::same_as<typename K::Object>;
    { K::write(object) } -> std::same_as<std::string>; // the text
};

/// A kind whose objects name other objects: its record holds their typeids.
template <class K>
concept DependentKind = Kind<K> && requires(const typename K::Record& record) {
    { record.references } -> std::convertible_to<const Texts&>;
};

/// A kind with an object that stands in, without registration, for typeids of its built-in identifier.
template <class K>
concept KindWithStandIn = Kind<K> && requires(std::string_view typeId) {
    { K::builtIn } -> std::convertible_to<const Ostra::BuiltIn::Identifier&>;
    { K::standIn(typeId) } -> std::same_as<typename K::Object>;
};

/// A kind whose objects name others of it: what is named is built in an earlier pass.
template <class K>
concept KindWithPasses = Kind<K> && requires(const typename K::Record& record) {
    { K::passOf(record) } -> std::same_as<int>;
};

/// A kind whose records name units beside other objects.
template <class K>
concept KindWithUnits = Kind<K> && requires(const typename K::Record& record) {
    { record.units } -> std::convertible_to<const Texts&>;
};

} // namespace Parameters::Internal
