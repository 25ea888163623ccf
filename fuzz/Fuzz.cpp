#include "Fuzz.h"

#include <parameters/Kinds.h>

#include <cstdio>
#include <cstdlib>

namespace Fuzz {

void require(bool holds, const std::string& what) {
    if (!holds) {
        std::fprintf(stderr, "This does not hold: %s.\n", what.c_str());
        std::abort();
    }
}

std::set<std::string> objectsIn(const Parameters::ParametersEngine& engine) {
    std::set<std::string> typeIds;
    Parameters::forEachKind([&](auto kind) {
        for (const auto& [typeId, object] : kind.getAll(engine)) {
            require(typeIds.insert(typeId).second, "a typeid names one object");
        }
    });
    return typeIds;
}

} // namespace Fuzz
