#pragma once

#include "model/BoolParameter.h"
#include "model/BoolSpec.h"
#include "model/Category.h"
#include "model/Enumeration.h"
#include "model/EnumerationParameter.h"
#include "model/FloatRange.h"
#include "model/GeneralSpec.h"
#include "model/IntParameter.h"
#include "model/IntRange.h"
#include "model/IntSpec.h"
#include "model/Kind.h"
#include "model/MeasurableParameter.h"
#include "model/MeasurableSpec.h"
#include "model/ReferenceParameter.h"
#include "model/ReferenceSpec.h"
#include "model/StringParameter.h"
#include "model/StringRange.h"
#include "model/StringSpec.h"
#include "model/Taxon.h"

#include <parameters/Kinds.h>

#include <cstddef>
#include <optional>
#include <string_view>
#include <type_traits>

namespace Parameters::Internal {

/// Calls visit.operator()<K>() for each kind of the list in order.
template <class... Ks, class Visitor>
void forEachKind(KindList<Ks...>, Visitor&& visit) {
    (visit.template operator()<Ks>(), ...);
}

/// Calls test.operator()<K>() for each kind of the list in order, until one returns true; returns whether one did.
template <class... Ks, class Test>
bool anyKind(KindList<Ks...>, Test&& test) {
    return (test.template operator()<Ks>() || ...);
}

/// What is built first: kinds that are named come before kinds that name them. This is the list of the kinds; every
/// other order is made of it and of the public list.
using ResolutionOrder =
    KindList<EnumerationKind, FloatRangeKind, IntRangeKind, StringRangeKind, DisciplineKind, DomainKind, GroupKind,
             CategoryKind, BoolSpecKind, GeneralSpecKind, IntSpecKind, MeasurableSpecKind, ReferenceSpecKind,
             StringSpecKind, EnumerationParameterKind, BoolParameterKind, IntParameterKind, MeasurableParameterKind,
             ReferenceParameterKind, StringParameterKind>;

namespace Detail {

template <class K>
struct HasNames : std::bool_constant<DependentKind<K>> {};
template <class K>
struct HasNoNames : std::bool_constant<!DependentKind<K>> {};
template <class K>
struct HasValueType : std::bool_constant<K::Public::valueType != None> {};

/// The kinds of a list for which a predicate holds.
template <template <class> class Holds, class... Ks>
constexpr auto filter(KindList<Ks...>) {
    return (KindList<>{} + ... + std::conditional_t<Holds<Ks>::value, KindList<Ks>, KindList<>>{});
}

template <class P, class... Ks>
constexpr auto find(KindList<Ks...>) {
    constexpr auto found =
        (KindList<>{} + ... + std::conditional_t<std::is_same_v<typename Ks::Public, P>, KindList<Ks>, KindList<>>{});
    static_assert(found.size == 1, "This entry in the public list has no kind in the resolution order, or several.");
    return found;
}

template <class... Ps>
constexpr auto kindsOf(Kinds::List<Ps...>) {
    return (KindList<>{} + ... + find<Ps>(ResolutionOrder{}));
}

} // namespace Detail

/// How stores are counted and listed: the order of the public list.
using StoreOrder = decltype(Detail::kindsOf(Kinds::All{}));

/// Who may accept a schema first: kinds that name nothing, then kinds that name others.
using OfferingOrder =
    decltype(Detail::filter<Detail::HasNoNames>(StoreOrder{}) + Detail::filter<Detail::HasNames>(StoreOrder{}));

/// The parameters that have a value type, in the order in which a text is tried.
using ValueTypeOrder = decltype(Detail::filter<Detail::HasValueType>(StoreOrder{}));

namespace Detail {

/// Where a kind stands in a list; behind its end when it does not.
template <class K, class... Ks>
constexpr std::size_t placeIn(KindList<Ks...>) {
    std::size_t place = 0;
    static_cast<void>(((std::is_same_v<K, Ks> || (++place, false)) || ...));
    return place;
}

template <class K, class Named>
constexpr bool isBuiltBefore() {
    constexpr bool isItself = std::is_same_v<K, Named> && KindWithPasses<K>;
    static_assert(isItself || placeIn<Named>(ResolutionOrder{}) < placeIn<K>(ResolutionOrder{}),
                  "The second kind is named by the first, and must stand before it in the resolution order.");
    static_assert(!LinkedKind<Named>,
                  "What is named must be whole while what names it is resolved: no linked kind is.");
    return true;
}

template <class K, class... Named>
constexpr bool areBuiltBefore(KindList<Named...>) {
    return (isBuiltBefore<K, Named>() && ...);
}

template <class K, class... Ps>
constexpr bool isListed(Kinds::List<Ps...>) {
    static_assert((std::is_same_v<typename K::Public, Ps> || ...), "This kind is not in the public list, Kinds::All.");
    return true;
}

template <class... Ks>
constexpr bool areSound(KindList<Ks...>) {
    return ((isKind<Ks>() && isListed<Ks>(Kinds::All{}) && areBuiltBefore<Ks>(typename Ks::Names{})) && ...);
}

static_assert(areSound(ResolutionOrder{}));

} // namespace Detail

/// Calls visit.operator()<K>() with the kind of that number.
template <class Visitor>
void withKind(std::size_t index, Visitor&& visit) {
    anyKind(StoreOrder{}, [&]<class K>() {
        if (kindIndex<K> == index) {
            visit.template operator()<K>();
        }
        return kindIndex<K> == index;
    });
}

/// Returns the number of the one kind that can accept the schema, where its base tells that; else nothing.
std::optional<std::size_t> soleKindFor(const Ostra::Schema& schema);

/// Calls accept.operator()<K>() for the kinds that may accept the schema in the order of offering, until one returns
/// true; returns whether one did.
template <class Accept>
bool offer(const Ostra::Schema& schema, Accept&& accept) {
    const auto sole = soleKindFor(schema);
    if (!sole) {
        return anyKind(OfferingOrder{}, accept);
    }
    bool isAccepted = false;
    withKind(*sole, [&]<class K>() { isAccepted = accept.template operator()<K>(); });
    return isAccepted;
}

/// True when the typeid contains the version prefix of an identifier that needs no registration: no schema or object
/// may have such a typeid, and naming one is never naming something that is missing.
bool isReserved(std::string_view typeId);

} // namespace Parameters::Internal
