#include "soak/Soak.h"

#include <stdexcept>
#include <utility>

namespace Bench {

namespace {

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

/// Returns how many objects there are of the kinds that are most numerous and of one that is named by others.
std::size_t sizeOf(const ParametersEngine& engine) {
    return engine.getAllMeasurableParameters().size() + engine.getAllBoolParameters().size() +
           engine.getAllStringRanges().size() + engine.getAllDisciplines().size();
}

} // namespace

const std::array<Soak::Operation, 13> Soak::operations{{{"register a text", &Soak::registerText, 20},
                                                        {"register a hundred texts", &Soak::registerTexts, 10},
                                                        {"register a broken text", &Soak::registerBrokenText, 20},
                                                        {"register a batch", &Soak::registerBatch, 5},
                                                        {"register an object", &Soak::registerObject, 10},
                                                        {"resolve", &Soak::resolve, 10},
                                                        {"discard what cannot be resolved", &Soak::discard, 4},
                                                        {"read a parameter", &Soak::read, 10},
                                                        {"list", &Soak::list, 4},
                                                        {"export", &Soak::exportObjects, 5},
                                                        {"copy", &Soak::copy, 5},
                                                        {"move", &Soak::move, 4},
                                                        {"drop", &Soak::drop, 4}}};

Soak::Soak(std::uint64_t seed) : random_(seed) {
    for (const std::size_t size : {minCatalogueSize, std::size_t{200}, std::size_t{1000}}) {
        catalogues_.push_back(makeCatalogue(size, seed));
    }
}

void Soak::round() {
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

Soak::Engine& Soak::engine() {
    if (engines_.empty()) {
        engines_.emplace_back();
    }
    return engines_[random_.below(static_cast<std::uint32_t>(engines_.size()))];
}

const Schema& Soak::schema() { return catalogue()[random_.below(static_cast<std::uint32_t>(catalogue().size()))]; }

std::vector<std::string> Soak::someTypeIds() {
    std::vector<std::string> typeIds(20);
    for (std::string& typeId : typeIds) {
        typeId = schema().typeId;
    }
    return typeIds;
}

bool Soak::registerText() {
    Engine& target = engine();
    const Schema& added = schema();
    const bool taken = target.isRegistered(added.typeId);
    const bool accepted = accepts([&] { target.registerSchema(added.text); });
    require(accepted == (!taken && added.kind != Kind::unit), "a text is registered when its typeid is free");
    return accepted;
}

bool Soak::registerTexts() {
    Engine& target = engine();
    bool all = true;
    for (int i = 0; i < 100; ++i) {
        const Schema& added = schema();
        all = accepts([&] {
                  added.kind == Kind::unit ? static_cast<void>(target.getUnitsEngine().registerSchema(added.text))
                                           : static_cast<void>(target.registerSchema(added.text));
              }) &&
              all;
    }
    return all;
}

bool Soak::registerBrokenText() {
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

bool Soak::registerBatch() {
    std::map<std::string, std::string> batch;
    for (const Schema& added : catalogue()) {
        if (random_.percent(80)) {
            batch.emplace(added.typeId, added.text);
        }
    }
    Engine& target = engine();
    return accepts([&] { target.registerSchemas(batch); });
}

bool Soak::registerObject() {
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

bool Soak::resolve() {
    Engine& target = engine();
    const std::size_t before = sizeOf(target);
    const bool resolves = target.findUnresolvable().empty();
    const bool resolved = accepts([&] { target.resolveSchemas(); });
    require(resolved == resolves, "what cannot be resolved is found beforehand");
    require(resolved || sizeOf(target) == before, "resolution that fails adds nothing");
    return resolved;
}

bool Soak::discard() {
    Engine& target = engine();
    for (const auto& [typeId, message] : target.findUnresolvable()) {
        require(target.discardPending(typeId), "what cannot be resolved is pending");
    }
    const bool resolved = accepts([&] { target.resolveSchemas(); });
    require(resolved, "what is left can be resolved");
    return resolved;
}

bool Soak::read() {
    const Engine& source = engine();
    const std::string& text = schema().text;
    const Parameters::ValueType type = source.readValueType(text);
    const bool isMeasurable = accepts([&] { source.readMeasurableParameter(text); });
    require(!isMeasurable || type == Parameters::Measurable, "a measurable parameter has numbers");
    return isMeasurable || accepts([&] { source.readStringParameter(text); });
}

bool Soak::list() {
    const Engine& source = engine();
    const auto measurable = source.getAllMeasurableParameters();
    const auto categories = source.getAllCategories();
    const auto ranges = source.getAllStringRanges();
    return !measurable.empty() || !categories.empty() || !ranges.empty();
}

bool Soak::exportObjects() {
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

bool Soak::copy() {
    const Engine& source = engine();
    if (engines_.size() < maxEngines) {
        engines_.emplace_back(source);
        return true;
    }
    engine() = source;
    return true;
}

bool Soak::move() {
    Engine& source = engine();
    Engine moved(std::move(source));
    source = Engine(); // a moved-from engine may only be assigned to
    engine() = std::move(moved);
    return true;
}

bool Soak::drop() {
    engine();
    engines_.erase(engines_.begin() +
                   static_cast<std::ptrdiff_t>(random_.below(static_cast<std::uint32_t>(engines_.size()))));
    return true;
}

} // namespace Bench
