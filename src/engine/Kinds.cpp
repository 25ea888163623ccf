#include "schema/BuiltIn.h"

#include <parameters/Kinds.h>

#include <algorithm>

namespace Parameters {

namespace {

/// Returns the first kind of which that holds.
template <class Holds>
std::optional<KindInfo> findKind(Holds holds) {
    std::optional<KindInfo> found;
    forEachKind([&](auto kind) {
        if (!found && holds(kind.info)) {
            found = kind.info;
        }
    });
    return found;
}

} // namespace

bool KindInfo::isInheritedBy(std::string_view base) const noexcept {
    return std::any_of(bases().begin(), bases().end(), [base](std::string_view own) {
        const bool hasVersion = own.find('-') != std::string_view::npos;
        return hasVersion ? Ostra::BuiltIn::Identifier(own).isIn(base) : own == base;
    });
}

std::optional<KindInfo> findKindOfBase(std::string_view base) noexcept {
    // As schemas are offered: to kinds that name nothing first.
    for (const bool hasDependencies : {false, true}) {
        const auto kind = findKind(
            [&](KindInfo info) { return info.hasDependencies() == hasDependencies && info.isInheritedBy(base); });
        if (kind) {
            return kind;
        }
    }
    return std::nullopt;
}

std::optional<KindInfo> findKindOfId(std::string_view id) noexcept {
    return findKind([id](KindInfo info) { return info.id() == id; });
}

} // namespace Parameters
