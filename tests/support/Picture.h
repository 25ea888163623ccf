#pragma once

#include "support/Samples.h"

#include <parameters/ParametersEngine.h>

#include <set>
#include <stdexcept>
#include <string>

namespace Support {

namespace Detail {

using Engine = Parameters::ParametersEngine;

inline std::string dependenciesOf(const Engine& engine, const std::string& typeId) {
    try {
        std::string result;
        for (const std::string& named : engine.getDependencies(typeId)) {
            result += " " + shown(named);
        }
        return result;
    } catch (const Parameters::UnrecognizedIdentifierException&) {
        return " not searched";
    }
}

inline std::string dependentsOf(const Engine& engine, const std::string& typeId) {
    std::string result;
    for (const auto& [dependent, kind] : engine.dependentsOf(typeId)) {
        result += " " + std::string(kind.id()) + " " + shown(std::string(dependent));
    }
    return result;
}

/// Returns all lists with all that can be asked about each object in them.
inline std::string resolvedOf(const Engine& engine) {
    std::string result;
    Parameters::forEachKind([&](auto kind) {
        auto walked = kind.all(engine).begin();
        for (const auto& [typeId, object] : kind.getAll(engine)) {
            result += std::string(kind.info.word()) + " " + shown(typeId) + "\n";
            result += "  listed  " + describe(same(*walked++, object)) + "\n";
            result += "  got     " + describe(same(kind.find(engine, typeId).value(), kind.get(engine, typeId))) + "\n";
            result += "  schema  " + shown(engine.getSchema(typeId)) + "\n";
            result += "  depends" + dependenciesOf(engine, typeId) + "\n";
            result += "  named by" + dependentsOf(engine, typeId) + "\n";
        }
    });
    Engine copy(engine); // the units engine is handed out for changing only
    for (const auto& [typeId, unit] : copy.getUnitsEngine().getAllUnits()) {
        result += "unit " + shown(typeId) + "\n  listed  " + describe(unit) + "\n";
    }
    return result;
}

inline std::string pendingOf(const Engine& engine) {
    Engine copy(engine);
    try {
        copy.resolveSchemas();
    } catch (const std::logic_error& exception) {
        return std::string("fails with ") + shown(exception.what()) + "\n";
    }
    return resolvedOf(copy);
}

} // namespace Detail

/// Returns everything that can be observed of an engine as one text: all lists and what their objects, schemas,
/// dependencies and dependents are, which of the given type identifiers are taken, and what resolving would make of
/// what is pending. Two engines with equal pictures cannot be told apart.
inline std::string pictureOf(const Parameters::ParametersEngine& engine, const std::set<std::string>& typeIds = {}) {
    std::string result = Detail::resolvedOf(engine);
    for (const std::string& typeId : typeIds) {
        const auto kind = engine.kindOf(typeId);
        result += (engine.isRegistered(typeId) ? "taken " : "free ") + shown(typeId) + " " +
                  std::string(kind ? kind->id() : "") + (engine.isPending(typeId) ? " pending" : "") + "\n";
    }
    return result + "after resolution:\n" + Detail::pendingOf(engine);
}

} // namespace Support
