#include "Fuzz.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

// Round trip: what was loaded from texts and exported must load and export to the same texts. The input is any number
// of texts, separated by bytes 0.

namespace {

using Parameters::ParametersEngine;

std::vector<std::string> textsIn(const std::string& input) {
    std::vector<std::string> texts;
    for (std::size_t begin = 0; begin <= input.size();) {
        const std::size_t end = std::min(input.find('\0', begin), input.size());
        texts.push_back(input.substr(begin, end - begin));
        begin = end + 1;
    }
    return texts;
}

/// Returns an engine with all objects that come of the texts.
ParametersEngine load(const std::vector<std::string>& texts) {
    ParametersEngine engine;
    for (const std::string& text : texts) {
        // Not straight into the units engine, which knows nothing of the typeids that are taken beside it.
        Fuzz::refusalOf([&] { engine.registerSchemas({{"", text}}); });
    }
    for (const auto& [typeId, message] : engine.findUnresolvable()) {
        Fuzz::require(engine.discardPending(typeId), "what cannot be resolved is pending");
    }
    engine.resolveSchemas();
    return engine;
}

std::map<std::string, std::string> exportsOf(const ParametersEngine& engine) {
    std::map<std::string, std::string> exports;
    for (const std::string& typeId : Fuzz::objectsIn(engine)) {
        exports.emplace(typeId, engine.getSchema(typeId));
    }
    return exports;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ParametersEngine first = load(textsIn(std::string(data, data + size)));
    const auto exports = exportsOf(first);
    ParametersEngine second;
    second.getUnitsEngine() = first.getUnitsEngine();
    second.registerSchemas(exports);
    Fuzz::require(exportsOf(second) == exports, "what was exported loads and exports to the same texts");
    return 0;
}
