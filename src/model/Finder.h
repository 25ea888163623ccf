#pragma once

#include "model/Access.h"
#include "model/References.h"
#include "schema/Bytes.h"
#include "schema/Immortal.h"
#include "schema/Message.h"

#include <parameters/Kinds.h>
#include <units/Unit.h>

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Parameters::Internal {

/// The number of a kind: its place in the public list.
template <class K>
inline constexpr std::size_t kindIndex = Kinds::indexOf<typename K::Public>;

/// Returns the object that stands in for a typeid of the kind's base.
template <class K>
typename K::Object standInOf(std::string_view typeId = K::base.full()) {
    if (typeId == K::base.full()) {
        static const auto& usual = Ostra::immortal(K::standIn(typeId)); // nearly all that name a built-in name this one
        return usual;
    }
    return K::standIn(typeId);
}

/// Something that a record names and that is not there, or does not fit.
struct Unresolved {
    const Ostra::Message* message;
    std::string sentence;
    Name named;
    std::string_view expected; // the word of what had to be there
};

/// Answers what object a typeid names. Kinds build their objects with it and know nothing of where it looks.
///
/// There are two purposes, which differ in where a finder looks and in how it fails: resolution builds what is pending
/// from objects that are registered or built in the same pass, and keeps what is wrong with it; binding checks one
/// object against what is registered, and throws.
class Finder {
public:
    enum class Purpose { resolution, binding };
    static constexpr std::string_view unitWord = "unit"; // where kinds have their own

    explicit Finder(Purpose purpose) : purpose_(purpose) {}
    Finder(const Finder&) = delete;
    Finder& operator=(const Finder&) = delete;
    virtual ~Finder() = default;

    bool binds() const { return purpose_ == Purpose::binding; }

    /// Returns the object of that kind and name, or null.
    template <class K>
    const typename K::Object* find(const Name& name) const {
        return static_cast<const typename K::Object*>(lookUp(kindIndex<K>, name));
    }

    /// Returns the object of that kind and name, which the schema names. Fails when there is none; what resolution
    /// then returns is a handle without data, and what is built with it must not leave the library.
    template <class K>
    typename K::Object require(const Name& name, std::string_view schemaTypeId) const {
        if (const auto* object = find<K>(name)) {
            return *object;
        }
        failMissing(K::word, name, schemaTypeId);
        return Access::none<typename K::Object>();
    }

    /// As require, but a typeid of the kind's base needs no object: for it stands the given one or else
    /// the built-in object of exactly that typeid.
    template <class K>
    typename K::Object requireOrStandIn(const Name& name, std::string_view schemaTypeId,
                                        const typename K::Object* given = nullptr) const {
        if (given == nullptr && Ostra::isSame(name.typeId, K::base.full())) {
            return standInOf<K>(); // which nothing that is registered can have in its place
        }
        if (const auto* object = find<K>(name)) {
            return *object;
        }
        if (!K::base.isIn(name.typeId)) {
            failMissing(K::word, name, schemaTypeId);
            return Access::none<typename K::Object>();
        }
        return given != nullptr ? *given : standInOf<K>(name.typeId);
    }

    /// As requireOrStandIn, but binding takes the stand-in of the full identifier whatever version is named.
    template <class K>
    typename K::Object requireOrUsualStandIn(const Name& name, std::string_view schemaTypeId) const {
        const bool usual = binds() && K::base.isIn(name.typeId);
        return requireOrStandIn<K>(usual ? K::base.full() : name, schemaTypeId);
    }

    /// Returns the unit of that typeid, which a measurable spec's schema names in a constant. Fails when there is none;
    /// resolution then returns nothing.
    std::optional<Units::Unit> requireUnit(std::string_view typeId, std::string_view inConstant,
                                           std::string_view schemaTypeId) const;

    /// Fails because of what a record names. What its text does not say in a readable way is no fault of the finder's.
    /// @throws ValidationException when binding.
    void fail(const Ostra::Message& message, std::initializer_list<std::string_view> inserted, const Name& named,
              std::string_view expected) const;

    /// Returns what failed since it was last asked, in the order in which it was looked for.
    std::vector<Unresolved> takeUnresolved() const { return std::exchange(unresolved_, {}); }
    bool hasUnresolved() const { return !unresolved_.empty(); }

private:
    /// Returns the unit of that typeid, unless it is unknown or not resolved.
    virtual std::optional<Units::Unit> findUnit(const std::string& typeId) const = 0;
    /// Returns the object of the kind of that number and of that name, or null.
    virtual const void* lookUp(std::size_t kind, const Name& name) const = 0;

    void failMissing(std::string_view word, const Name& name, std::string_view schemaTypeId) const;

    Purpose purpose_;
    mutable std::vector<Unresolved> unresolved_;
};

/// Two things that were found, each made in its place: handles can only be copied, and a copy costs a count.
template <class First, class Second>
struct Both {
    First first;
    Second second;

    template <class FindFirst, class FindSecond>
    Both(FindFirst findFirst, FindSecond findSecond) : first(findFirst()), second(findSecond()) {}
};

/// Finds two things that a record names, by calls without arguments. Of two that are missing, resolution names the
/// first, binding the second.
template <class FindFirst, class FindSecond>
auto findBoth(const Finder& finder, FindFirst findFirst, FindSecond findSecond) {
    using Found = Both<decltype(findFirst()), decltype(findSecond())>;
    if (finder.binds()) {
        auto second = findSecond();
        return Found(findFirst, [&] { return second; });
    }
    return Found(findFirst, findSecond);
}

} // namespace Parameters::Internal
