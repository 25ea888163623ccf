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

#include <cstddef>
#include <type_traits>

namespace Parameters::Internal {

template <Kind... Ks>
struct KindList {
    static constexpr std::size_t size = sizeof...(Ks);
};

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

// The order of the kinds is stated here, once for each thing that depends on it, and nowhere else.

/// How stores are counted and listed.
using StoreOrder =
    KindList<EnumerationKind, FloatRangeKind, IntRangeKind, StringRangeKind, DisciplineKind, BoolSpecKind,
             GeneralSpecKind, IntSpecKind, MeasurableSpecKind, ReferenceSpecKind, StringSpecKind, GroupKind,
             EnumerationParameterKind, BoolParameterKind, IntParameterKind, MeasurableParameterKind,
             ReferenceParameterKind, StringParameterKind, DomainKind, CategoryKind>;

/// Who may accept a schema first: kinds that name nothing, then kinds that name others.
using OfferingOrder =
    KindList<EnumerationKind, FloatRangeKind, IntRangeKind, StringRangeKind, DisciplineKind, GroupKind, DomainKind,
             BoolSpecKind, GeneralSpecKind, IntSpecKind, MeasurableSpecKind, ReferenceSpecKind, StringSpecKind,
             EnumerationParameterKind, BoolParameterKind, IntParameterKind, MeasurableParameterKind,
             ReferenceParameterKind, StringParameterKind, CategoryKind>;

/// What is built first: kinds that are named come before kinds that name them.
using ResolutionOrder =
    KindList<EnumerationKind, FloatRangeKind, IntRangeKind, StringRangeKind, DisciplineKind, DomainKind, GroupKind,
             CategoryKind, BoolSpecKind, GeneralSpecKind, IntSpecKind, MeasurableSpecKind, ReferenceSpecKind,
             StringSpecKind, EnumerationParameterKind, BoolParameterKind, IntParameterKind, MeasurableParameterKind,
             ReferenceParameterKind, StringParameterKind>;

/// The parameters that have a value type, in the order in which a text is tried.
using ValueTypeOrder =
    KindList<BoolParameterKind, IntParameterKind, MeasurableParameterKind, ReferenceParameterKind, StringParameterKind>;

namespace Detail {

template <class K, class... Ks>
constexpr std::size_t countOf(KindList<Ks...>) {
    return (std::size_t{std::is_same_v<K, Ks>} + ... + 0);
}

template <class... Ks, class Other>
constexpr bool holdsEachOnce(KindList<Ks...>, Other other) {
    return ((countOf<Ks>(other) == 1) && ...);
}

} // namespace Detail

template <class A, class B>
inline constexpr bool isPermutation = A::size == B::size&& Detail::holdsEachOnce(A{}, B{});

static_assert(isPermutation<StoreOrder, OfferingOrder>);
static_assert(isPermutation<StoreOrder, ResolutionOrder>);

/// Returns the place of a kind in the store order.
template <class K, class... Ks>
constexpr std::size_t indexOf(KindList<Ks...>) {
    std::size_t index = 0;
    static_cast<void>(((std::is_same_v<K, Ks> || (++index, false)) || ...));
    return index;
}

template <class K>
inline constexpr std::size_t kindIndex = indexOf<K>(StoreOrder{});

/// Calls visit.operator()<K>() with the kind of that place in the store order.
template <class Visitor>
void withKind(std::size_t index, Visitor&& visit) {
    anyKind(StoreOrder{}, [&]<class K>() {
        if (kindIndex<K> == index) {
            visit.template operator()<K>();
        }
        return kindIndex<K> == index;
    });
}

} // namespace Parameters::Internal
