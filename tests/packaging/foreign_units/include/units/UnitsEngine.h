#pragma once

#include <units/Unit.h>
#include <units/ValidationException.h>

#include <map>
#include <set>
#include <string>

namespace Units {

class UnitsEngine {
public:
    bool isRegistered(const std::string& typeId) const;
    std::set<std::string> registerSchema(const std::string& text);
    void resolveSchemas();
    Unit getUnit(const std::string& typeId) const;
    std::map<std::string, Unit> getAllUnits() const;

private:
    std::map<std::string, Unit> registered_;
    std::map<std::string, Unit> resolved_;
};

} // namespace Units
