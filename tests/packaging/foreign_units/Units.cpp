#include <units/UnitsEngine.h>

#include <regex>

namespace Units {

namespace {

/// Returns the first part of a text that matches in parentheses, or "": texts are not parsed here.
std::string partOf(const std::string& text, const std::string& expression) {
    std::smatch found;
    return std::regex_search(text, found, std::regex(expression)) ? found[1].str() : "";
}

std::string constantOf(const std::string& text, const std::string& id) {
    return partOf(text, "\"id\":\\s*\"" + id + "\",\\s*\"value\":\\s*\"([^\"]*)\"");
}

} // namespace

ValidationException::~ValidationException() = default;

bool UnitsEngine::isRegistered(const std::string& typeId) const { return registered_.count(typeId) != 0; }

std::set<std::string> UnitsEngine::registerSchema(const std::string& text) {
    const Unit unit(partOf(text, "\"typeid\":\\s*\"([^\"]*)\""), constantOf(text, "name"), constantOf(text, "symbol"));
    if (text.find("norvex.unit:unit-1.") == std::string::npos || unit.getName().empty()) {
        throw ValidationException("Not a unit to us: " + unit.getTypeId());
    }
    if (!registered_.emplace(unit.getTypeId(), unit).second) {
        throw ValidationException("We have that: " + unit.getTypeId());
    }
    return {};
}

void UnitsEngine::resolveSchemas() { resolved_ = registered_; }

Unit UnitsEngine::getUnit(const std::string& typeId) const {
    const auto found = resolved_.find(typeId);
    if (found == resolved_.end()) {
        throw ValidationException("We know no " + typeId);
    }
    return found->second;
}

std::map<std::string, Unit> UnitsEngine::getAllUnits() const { return resolved_; }

} // namespace Units
