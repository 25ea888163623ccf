#include "engine/Kinds.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace Parameters {

namespace Internal {

namespace {

/// What an identifier that schemas of a kind inherit begins with, its minor version aside.
struct Beginning {
    std::string_view prefix;
    std::size_t kind;
};

template <class... Ks>
consteval auto beginningsOf(KindList<Ks...>) {
    const auto isVersioned = [](std::string_view base) { return base != EnumerationKind::base; };
    std::array<Beginning, (Ks::Public::info.bases().size() + ...) - 1> beginnings{};
    std::size_t place = 0;
    const auto add = [&]<class K>() {
        for (const std::string_view base : K::Public::info.bases()) {
            if (isVersioned(base)) {
                beginnings[place++] = {Ostra::Identifier::prefixOf(base), kindIndex<K>};
            }
        }
    };
    (add.template operator()<Ks>(), ...);
    return beginnings;
}

/// True when the text begins with the version prefix of an identifier that stands for an object of the kind.
template <class K>
bool reserves(std::string_view text) {
    // Ranges stand in the schemas of parameters, each under its base.
    if constexpr (K::Public::info.isRange() || KindWithStandIn<K>) {
        for (const std::string_view base : K::Public::info.bases()) {
            const std::string_view prefix = Ostra::Identifier::prefixOf(base);
            if (text.starts_with(prefix)) {
                return true;
            }
        }
    }
    if constexpr (KindWithReserved<K>) {
        return K::reserves(text);
    }
    return false;
}

} // namespace

std::optional<std::size_t> soleKindFor(const Ostra::Schema& schema) {
    if (!schema.beginsOnly()) {
        return std::nullopt;
    }
    static constexpr auto beginnings = beginningsOf(StoreOrder{});
    for (const Beginning& beginning : beginnings) {
        if (Ostra::Identifier::begins(schema.base(), beginning.prefix)) {
            return beginning.kind;
        }
    }
    return std::nullopt;
}

bool isReserved(std::string_view typeId) {
    using Ostra::Identifier;
    for (std::size_t start = Identifier::findStart(typeId); start != std::string_view::npos;
         start = Identifier::findStart(typeId, start + 1)) {
        const auto startsHere = [tail = typeId.substr(start)]<class K>() { return reserves<K>(tail); };
        if (anyKind(StoreOrder{}, startsHere)) {
            return true;
        }
    }
    return false;
}

} // namespace Internal

bool KindInfo::isInheritedBy(std::string_view base) const noexcept {
    return std::any_of(bases().begin(), bases().end(), [base](std::string_view own) {
        const bool hasVersion = own != Internal::EnumerationKind::base;
        return hasVersion ? base.find(Ostra::Identifier::prefixOf(own)) != std::string_view::npos : own == base;
    });
}

std::optional<KindInfo> findKindOfBase(std::string_view base) noexcept {
    std::optional<KindInfo> found;
    Internal::anyKind(Internal::OfferingOrder{}, [&]<class K>() {
        if (K::Public::info.isInheritedBy(base)) {
            found = K::Public::info;
        }
        return found.has_value();
    });
    return found;
}

std::optional<KindInfo> findKindOfId(std::string_view id) noexcept {
    std::optional<KindInfo> found;
    forEachKind([&](auto kind) {
        if (kind.info.id() == id) {
            found = kind.info;
        }
    });
    return found;
}

} // namespace Parameters
