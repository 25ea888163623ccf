#pragma once

#include <units/Unit.h>
#include <units/ValidationException.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// What is asked of a units engine beyond what every units library has (docs/units.md): in the better way where its
/// engine has it, as ours does, else in the way of all.
namespace Parameters::Internal::AnyUnits {

/// Whether there is a schema of that typeid, resolved or not.
template <class Engine>
bool isRegistered(const Engine& units, std::string_view typeId) {
    if constexpr (requires { units.isRegistered(typeId); }) {
        return units.isRegistered(typeId);
    } else {
        return units.isRegistered(std::string(typeId));
    }
}

/// Returns the unit of that typeid, unless it is unknown or not resolved.
template <class Engine>
std::optional<Units::Unit> find(const Engine& units, const std::string& typeId) {
    if constexpr (requires { units.findUnit(typeId); }) {
        return units.findUnit(typeId);
    } else {
        try {
            return units.getUnit(typeId);
        } catch (const Units::ValidationException&) {
            return std::nullopt;
        }
    }
}

/// Whether a units engine tells each fault of a text that it refuses, and not only the first by an exception.
template <class Engine>
constexpr bool tellsFaults = requires(Engine& units, const std::string& text) {
    units.registerSoundSchema(text);
};

/// Registers a unit schema unless something is wrong with it. Each fault that the engine tells is taken by the first
/// function; of an engine that tells none the message of its refusal is taken by the second.
template <class Engine, class TakeFault, class TakeRefusal>
void registerSound(Engine& units, const std::string& text, TakeFault&& takeFault, TakeRefusal&& takeRefusal) {
    if constexpr (tellsFaults<Engine>) {
        for (auto& fault : units.registerSoundSchema(text)) {
            takeFault(fault);
        }
    } else {
        try {
            units.registerSchema(text);
        } catch (const Units::ValidationException& refusal) {
            takeRefusal(refusal.what());
        }
    }
}

} // namespace Parameters::Internal::AnyUnits
