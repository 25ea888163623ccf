#include "catalogue/Loader.h"

#include "catalogue/Heading.h"
#include "catalogue/Registration.h"
#include "faults/FaultPlace.h"

#include <stdexcept>

namespace Tool {

void Loader::add(const Source& source) {
    const std::size_t number = schemas_++;
    const Heading heading = headingOf(source.text);
    try {
        registerWith(engine_, source.text);
        entries_.insert_or_assign(heading.typeId, Entry{source, heading.base, number});
    } catch (const std::logic_error& fault) {
        refuse(number, source, fault.what(), Stage::reading);
        entries_.try_emplace(heading.typeId, Entry{source, heading.base, number, false});
    }
}

void Loader::resolve() {
    try {
        const std::map<std::string, std::string> unresolvable = engine_.findUnresolvable();
        for (const auto& [typeId, message] : unresolvable) {
            entries_.find(typeId)->second.isSound = false;
            engine_.discardPending(typeId);
        }
        for (const auto& [typeId, message] : unresolvable) {
            const Entry& entry = entries_.find(typeId)->second;
            refuse(entry.number, entry.source, message, Stage::resolution);
        }
        engine_.resolveSchemas();
        isResolved_ = true;
    } catch (const std::logic_error& fault) { // of the units engine, which may have faults of its own
        faults_.emplace(schemas_, Fault{std::nullopt, fault.what(), {}, Stage::resolution});
    }
}

void Loader::refuse(std::size_t number, const Source& source, const std::string& message, Stage stage) {
    const Place place = placeOf(source, offsetOfFault(source.text, message));
    faults_.emplace(number, Fault{place, message, hints_.hintFor(source, headingOf(source.text), message), stage});
}

std::vector<Fault> Loader::faults() const {
    std::vector<Fault> faults;
    for (const auto& [number, fault] : faults_) {
        faults.push_back(fault);
    }
    return faults;
}

} // namespace Tool
