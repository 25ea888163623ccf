#include "Fuzz.h"
#include "ProjectFolder.h"
#include "support/Catalogue.h"

#include <parameters/Kinds.h>

#include <map>
#include <string>

// One text into registration, resolution and export, with an engine that holds a whole catalogue to name.

namespace {

using Parameters::ParametersEngine;

ParametersEngine loaded() {
    std::map<std::string, std::string> batch;
    for (const std::string& text : Support::textsIn(OSTRA_SOURCE_DIR "/examples/catalogue")) {
        batch.emplace(std::to_string(batch.size()), text);
    }
    ParametersEngine engine;
    engine.registerSchemas(batch);
    return engine;
}

void exportObject(ParametersEngine& engine, const std::string& typeId) {
    const std::string schema = engine.getSchema(typeId);
    Fuzz::require(!schema.empty(), "an object has a schema");
    try {
        engine.getDependencies(typeId);
    } catch (const Parameters::UnrecognizedIdentifierException&) {
        return; // of a kind that names nothing
    }
}

/// Reads the text in the other ways that there are; what registration refuses, they refuse.
void readAsParameter(const ParametersEngine& engine, const std::string& text) {
    Fuzz::refusalOf([&] { engine.readValueType(text); });
    Parameters::forEachKind(Parameters::Kinds::Readable{},
                            [&](auto kind) { Fuzz::refusalOf([&] { kind.read(engine, text); }); });
}

void registerAndResolve(ParametersEngine engine, const std::string& text) {
    static const auto before = Fuzz::objectsIn(engine); // the same in each run
    const bool accepted = Fuzz::refusalOf([&] { engine.registerSchema(text); }).empty();
    const auto unresolvable = engine.findUnresolvable();
    Fuzz::require(unresolvable.size() <= (accepted ? 1U : 0U), "what is refused leaves nothing pending");
    const std::string fault = Fuzz::refusalOf([&] { engine.resolveSchemas(); });
    Fuzz::require(fault.empty() == unresolvable.empty(), "what cannot be resolved is found beforehand");
    auto added = Fuzz::objectsIn(engine);
    if (!fault.empty()) {
        Fuzz::require(Fuzz::asThrown(unresolvable.begin()->second) == fault,
                      "the fault that is found is the one that is raised");
        Fuzz::require(added == before, "resolution that fails adds nothing");
        Fuzz::require(engine.discardPending(unresolvable.begin()->first), "what cannot be resolved is pending");
        engine.resolveSchemas();
        return;
    }
    for (const std::string& typeId : before) {
        Fuzz::require(added.erase(typeId) == 1, "objects stay");
    }
    Fuzz::require(added.size() == (accepted ? 1U : 0U), "each schema that is accepted becomes one object");
    for (const std::string& typeId : added) {
        exportObject(engine, typeId);
    }
}

/// Whether a pointer begins with a member or element of the whole, or is the whole.
bool isPointer(const std::string& pointer) { return pointer.empty() || pointer[0] == '/'; }

void checkPlace(const Parameters::Fault::Place& place, const std::string& text) {
    Fuzz::require(place.text == "text" && isPointer(place.pointer), "a place is in the text");
    Fuzz::require(place.begin <= place.end && place.end <= text.size(), "a place lies within the text");
    const bool isBlank =
        place.begin < place.end && std::string(" \t\n\r,:").find(text[place.begin]) != std::string::npos;
    Fuzz::require(!isBlank || place.pointer.empty(), "a place begins with a value");
}

/// Compares what is told of a text with what happens when it is registered.
void findFaults(ParametersEngine engine, const std::string& text) {
    const std::map<std::string, std::string> batch{{"text", text}};
    const auto faults = engine.findFaults(batch);
    std::string first;
    for (const Parameters::Fault& fault : faults) {
        checkPlace(fault.place(), text);
        Fuzz::require(!fault.root(), "a text alone has no consequences");
        Fuzz::require(!fault.code().empty() && !fault.message().empty(), "a fault says what is wrong");
        if (fault.otherPlace()) {
            checkPlace(*fault.otherPlace(), text);
        }
        if (fault.isError() && first.empty()) {
            first = fault.message();
        }
    }
    ParametersEngine sound = engine;
    Fuzz::require(sound.registerSoundSchemas(batch).size() == faults.size(), "registering tells the same faults");
    const auto before = Fuzz::objectsIn(engine);
    const std::string refusal = Fuzz::refusalOf([&] { engine.registerSchemas(batch); });
    Fuzz::require(Fuzz::asThrown(first) == refusal, "the first error is the one that is thrown");
    Fuzz::require(Fuzz::objectsIn(sound) == (refusal.empty() ? Fuzz::objectsIn(engine) : before),
                  "what is sound is registered");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ParametersEngine catalogue = loaded();
    const std::string text(data, data + size);
    readAsParameter(catalogue, text);
    registerAndResolve(catalogue, text);
    findFaults(catalogue, text);
    return 0;
}
