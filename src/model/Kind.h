#pragma once

#include "model/Finder.h"
#include "model/References.h"
#include "model/Texts.h"
#include "schema/Identifier.h"
#include "schema/Schema.h"

#include <parameters/Kinds.h>

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Parameters::Internal {

/// Kinds in an order.
template <class... Ks>
struct KindList {
    static constexpr std::size_t size = sizeof...(Ks);
};

template <class... As, class... Bs>
constexpr KindList<As..., Bs...> operator+(KindList<As...>, KindList<Bs...>) {
    return {};
}

/// Returns the one base of a kind; does not compile for a kind of several, whose first is none to be taken for all.
consteval std::string_view soleBaseOf(KindInfo info) {
    if (info.bases().size() != 1) {
        throw "This kind has several bases.";
    }
    return info.bases()[0];
}

/// What a kind has from its entry in the public list.
template <class P>
struct DescribedKind {
    using Public = P;
    using Object = typename P::Value;

    static constexpr std::string_view word = P::info.word();
    /// What its schemas inherit. Kinds of several bases have them under names of their own.
    static constexpr Ostra::Identifier base{soleBaseOf(P::info)};
    static constexpr bool hasBuiltIn = !P::info.builtInName().empty();
};

/// A kind of object: how its schemas are read, its objects built and its schemas written.
///
/// Its record is what a text or an object says, with the objects that it names still typeids. Names lists the kinds of
/// these objects.
template <class K>
concept Kind = requires(const Ostra::Schema& schema, const typename K::Record& record, const typename K::Object& object,
                        const Finder& finder) {
    typename K::Public;
    typename K::Names;
    { K::word } -> std::convertible_to<std::string_view>;
    { record.typeId() } -> std::same_as<std::string_view>;
    { K::read(schema) } -> std::same_as<std::optional<typename K::Record>>; // empty: not this kind
    { K::recordOf(object) } -> std::same_as<typename K::Record>;
    { K::build(record, finder, &object) } -> std::same_as<typename K::Object>; // of an object made in code, or null
    { K::write(object) } -> std::same_as<std::string>;                         // the text
};

/// A kind whose objects name other objects: its record holds their typeids.
template <class K>
concept DependentKind = requires(const typename K::Record& record) {
    { *record.references.begin() } -> std::convertible_to<Name>;
};

/// A kind with an object that stands in, without registration, for typeids of its base.
template <class K>
concept KindWithStandIn = requires(std::string_view typeId) {
    { K::standIn(typeId) } -> std::same_as<typename K::Object>;
};

/// A kind whose objects name others of it: what is named is built in an earlier pass.
template <class K>
concept KindWithPasses = requires(const typename K::Record& record) {
    { K::passOf(record) } -> std::same_as<int>;
};

/// A kind whose objects are made when they are read: resolution finds what they name, and puts it into them.
template <class K>
concept LinkedKind = requires(Ref<const typename K::Data> data, const References& named, const Finder& finder,
                              const typename K::Object& object, typename K::Links links) {
    { K::find(*data, named, finder, &object) } -> std::same_as<typename K::Links>;
    { K::makeSole(data) } -> std::same_as<bool>;
    { K::link(std::move(data), std::move(links)) }
    noexcept->std::same_as<typename K::Object>;
};

/// A kind whose records name units beside other objects.
template <class K>
concept KindWithUnits = requires(const typename K::Record& record) {
    { record.units } -> std::convertible_to<const Texts&>;
};

/// A kind that takes more typeids for itself than its entry in the public list tells.
template <class K>
concept KindWithReserved = requires(std::string_view typeId) {
    { K::reserves(typeId) } -> std::same_as<bool>;
};

/// Calls visit(name) for all that a record names, in the order of reading, what it names again again.
template <class Record, class Visit>
void forEachNamed(const Record& record, Visit visit) {
    if constexpr (requires { record.references; }) {
        std::for_each(record.references.begin(), record.references.end(), visit);
    }
    if constexpr (requires { record.units; }) {
        std::for_each(record.units.begin(), record.units.end(), visit);
    }
}

/// Compiles for what is a kind, and says of what is none, by its name, what it lacks.
template <class K>
constexpr bool isKind() {
    static_assert(
        requires { typename K::Public; }, "This kind lacks Public, its entry in the public list.");
    static_assert(
        requires { typename K::Names; }, "This kind lacks Names, the list of the kinds that it names.");
    static_assert(
        requires { typename K::Record; }, "This kind lacks its Record.");
    static_assert(
        requires(const typename K::Record& record) { record.typeId(); }, "This kind's Record lacks typeId().");
    static_assert(
        requires(const Ostra::Schema& schema) { K::read(schema); }, "This kind lacks read(schema).");
    static_assert(
        requires(const typename K::Object& object) { K::recordOf(object); }, "This kind lacks recordOf.");
    static_assert(
        requires(const typename K::Record& record, const Finder& finder) { K::build(record, finder, nullptr); },
        "This kind lacks build(record, finder, given).");
    static_assert(
        requires(const typename K::Object& object) { K::write(object); }, "This kind lacks write(object).");
    static_assert(Kind<K>, "A function of this kind returns something else than it must.");
    static_assert(DependentKind<K> == (K::Names::size > 0),
                  "This kind's Record has references, or it has Names: both.");
    static_assert(DependentKind<K> == K::Public::info.hasDependencies(),
                  "The public list and this kind differ in whether its objects name others.");
    static_assert(KindWithStandIn<K> == !K::Public::info.builtInName().empty(),
                  "The public list and this kind differ in whether it has a built-in object.");
    return true;
}

} // namespace Parameters::Internal
