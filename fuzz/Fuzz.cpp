#include "Fuzz.h"

#include <cstdio>
#include <cstdlib>

namespace Fuzz {

namespace {

template <class Objects>
void insertKeys(std::set<std::string>& typeIds, const Objects& objects) {
    for (const auto& entry : objects) {
        require(typeIds.insert(entry.first).second, "a typeid names one object");
    }
}

} // namespace

void require(bool holds, const std::string& what) {
    if (!holds) {
        std::fprintf(stderr, "This does not hold: %s.\n", what.c_str());
        std::abort();
    }
}

std::set<std::string> objectsIn(const Parameters::ParametersEngine& engine) {
    std::set<std::string> typeIds;
    insertKeys(typeIds, engine.getAllEnumerations());
    insertKeys(typeIds, engine.getAllFloatRanges());
    insertKeys(typeIds, engine.getAllIntRanges());
    insertKeys(typeIds, engine.getAllStringRanges());
    insertKeys(typeIds, engine.getAllDisciplines());
    insertKeys(typeIds, engine.getAllBoolSpecs());
    insertKeys(typeIds, engine.getAllGeneralSpecs());
    insertKeys(typeIds, engine.getAllIntSpecs());
    insertKeys(typeIds, engine.getAllMeasurableSpecs());
    insertKeys(typeIds, engine.getAllReferenceSpecs());
    insertKeys(typeIds, engine.getAllStringSpecs());
    insertKeys(typeIds, engine.getAllGroups());
    insertKeys(typeIds, engine.getAllEnumerationParameters());
    insertKeys(typeIds, engine.getAllBoolParameters());
    insertKeys(typeIds, engine.getAllIntParameters());
    insertKeys(typeIds, engine.getAllMeasurableParameters());
    insertKeys(typeIds, engine.getAllReferenceParameters());
    insertKeys(typeIds, engine.getAllStringParameters());
    insertKeys(typeIds, engine.getAllDomains());
    insertKeys(typeIds, engine.getAllCategories());
    return typeIds;
}

} // namespace Fuzz
