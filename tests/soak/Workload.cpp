#include "soak/Workload.h"

#include <parameters/Kinds.h>

#include <stdexcept>
#include <utility>

namespace Soak {

namespace {

using Bench::Schema;
using Parameters::ParametersEngine;

constexpr std::size_t maxEngines = 8;
constexpr int operationsOfARound = 300;

template <class Call>
bool accepts(Call&& call) {
    try {
        call();
        return true;
    } catch (const Parameters::ValidationException&) {
        return false;
    } catch (const Units::ValidationException&) {
        return false;
    }
}

void require(bool holds, const char* what) {
    if (!holds) {
        throw std::logic_error(what);
    }
}

/// Returns how many objects there are.
std::size_t sizeOf(const ParametersEngine& engine) {
    std::size_t size = 0;
    Parameters::forEachKind([&](auto kind) { size += kind.getAll(engine).size(); });
    return size;
}

} // namespace

const std::array<Workload::Operation, 13> Workload::operations{
    {{"register a text", &Workload::registerText, 20},
     {"register a hundred texts", &Workload::registerTexts, 10},
     {"register a broken text", &Workload::registerBrokenText, 20},
     {"register a batch", &Workload::registerBatch, 5},
     {"register an object", &Workload::registerObject, 10},
     {"resolve", &Workload::resolve, 10},
     {"discard what cannot be resolved", &Workload::discard, 4},
     {"read a parameter", &Workload::read, 10},
     {"list", &Workload::list, 4},
     {"export", &Workload::exportObjects, 5},
     {"copy", &Workload::copy, 5},
     {"move", &Workload::move, 4},
     {"drop", &Workload::drop, 4}}};

Workload::Workload(std::uint64_t seed) : random_(seed) {
    for (const std::size_t size : {Bench::minCatalogueSize, std::size_t{200}, std::size_t{1000}}) {
        catalogues_.push_back(Bench::makeCatalogue(size, seed));
    }
}

void Workload::round() {
    std::uint32_t weights = 0;
    for (const Operation& operation : operations) {
        weights += operation.weight;
    }
    catalogue_ = random_.below(static_cast<std::uint32_t>(catalogues_.size()));
    for (int i = 0; i < operationsOfARound; ++i) {
        std::uint32_t pick = random_.below(weights);
        std::size_t chosen = 0;
        while (pick >= operations[chosen].weight) {
            pick -= operations[chosen++].weight;
        }
        ++counts_[chosen].done;
        counts_[chosen].refused += (this->*operations[chosen].apply)() ? 0 : 1;
    }
    std::vector<Engine>().swap(engines_);
}

Workload::Engine& Workload::engine() {
    if (engines_.empty()) {
        engines_.emplace_back();
    }
    return engines_[random_.below(static_cast<std::uint32_t>(engines_.size()))];
}

const Schema& Workload::schema() { return catalogue()[random_.below(static_cast<std::uint32_t>(catalogue().size()))]; }

std::vector<std::string> Workload::someTypeIds() {
    std::vector<std::string> typeIds(20);
    for (std::string& typeId : typeIds) {
        typeId = schema().typeId;
    }
    return typeIds;
}

bool Workload::registerText() {
    Engine& target = engine();
    const Schema& added = schema();
    const bool taken = target.isRegistered(added.typeId);
    const bool accepted = accepts([&] { target.registerSchema(added.text); });
    require(accepted == (!taken && !added.isUnit()), "a text is registered when its typeid is free");
    return accepted;
}

bool Workload::registerTexts() {
    Engine& target = engine();
    bool all = true;
    for (int i = 0; i < 100; ++i) {
        const Schema& added = schema();
        all = accepts([&] {
                  added.isUnit() ? static_cast<void>(target.getUnitsEngine().registerSchema(added.text))
                                 : static_cast<void>(target.registerSchema(added.text));
              }) &&
              all;
    }
    return all;
}

bool Workload::registerBrokenText() {
    std::string text = schema().text;
    const std::size_t place = random_.below(static_cast<std::uint32_t>(text.size()));
    if (random_.percent(50)) {
        text.resize(place);
    } else {
        text[place] = static_cast<char>(random_.below(256));
    }
    Engine& target = engine();
    return accepts([&] { target.registerSchema(text); });
}

bool Workload::registerBatch() {
    std::map<std::string, std::string> batch;
    for (const Schema& added : catalogue()) {
        if (random_.percent(80)) {
            batch.emplace(added.typeId, added.text);
        }
    }
    Engine& target = engine();
    return accepts([&] { target.registerSchemas(batch); });
}

bool Workload::registerObject() {
    const auto parameters = engine().getAllBoolParameters();
    const auto specs = engine().getAllMeasurableSpecs();
    Engine& target = engine();
    bool all = true;
    for (const auto& [typeId, parameter] : parameters) {
        all = accepts([&, &object = parameter] { target.registerBoolParameter(object); }) && all;
    }
    for (const auto& [typeId, spec] : specs) {
        all = accepts([&, &object = spec] { target.registerMeasurableSpec(object); }) && all;
    }
    return all;
}

bool Workload::resolve() {
    Engine& target = engine();
    const std::size_t before = sizeOf(target);
    const bool resolves = target.findUnresolvable().empty();
    const bool resolved = accepts([&] { target.resolveSchemas(); });
    require(resolved == resolves, "what cannot be resolved is found beforehand");
    require(resolved || sizeOf(target) == before, "resolution that fails adds nothing");
    return resolved;
}

bool Workload::discard() {
    Engine& target = engine();
    for (const auto& [typeId, message] : target.findUnresolvable()) {
        require(target.discardPending(typeId), "what cannot be resolved is pending");
    }
    const bool resolved = accepts([&] { target.resolveSchemas(); });
    require(resolved, "what is left can be resolved");
    return resolved;
}

bool Workload::read() {
    const Engine& source = engine();
    const std::string& text = schema().text;
    const Parameters::ValueType type = source.readValueType(text);
    const bool isMeasurable = accepts([&] { source.readMeasurableParameter(text); });
    require(!isMeasurable || type == Parameters::Measurable, "a measurable parameter has numbers");
    return isMeasurable || accepts([&] { source.readStringParameter(text); });
}

bool Workload::list() {
    const Engine& source = engine();
    const auto measurable = source.getAllMeasurableParameters();
    const auto categories = source.getAllCategories();
    const auto ranges = source.getAllStringRanges();
    return !measurable.empty() || !categories.empty() || !ranges.empty();
}

bool Workload::exportObjects() {
    const Engine& source = engine();
    bool all = true;
    for (const std::string& typeId : someTypeIds()) {
        try {
            require(!source.getSchema(typeId).empty(), "an object has a schema");
            source.getDependencies(typeId);
        } catch (const Parameters::UnrecognizedIdentifierException&) {
            all = false;
        }
    }
    return all;
}

bool Workload::copy() {
    const Engine& source = engine();
    if (engines_.size() < maxEngines) {
        engines_.emplace_back(source);
        return true;
    }
    engine() = source;
    return true;
}

bool Workload::move() {
    Engine& source = engine();
    Engine moved(std::move(source));
    source = Engine(); // a moved-from engine may only be assigned to
    engine() = std::move(moved);
    return true;
}

bool Workload::drop() {
    engine();
    engines_.erase(engines_.begin() +
                   static_cast<std::ptrdiff_t>(random_.below(static_cast<std::uint32_t>(engines_.size()))));
    return true;
}

} // namespace Soak
