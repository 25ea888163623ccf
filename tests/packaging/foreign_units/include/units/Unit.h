#pragma once

#include <string>

namespace Units {

class Unit {
public:
    Unit(const std::string& typeId, const std::string& name, const std::string& symbol)
        : typeId_(typeId), name_(name), symbol_(symbol) {}

    const std::string& getTypeId() const { return typeId_; }
    const std::string& getName() const { return name_; }
    const std::string& getSymbol() const { return symbol_; }

    bool operator==(const Unit& other) const { return typeId_ == other.typeId_; }
    bool operator!=(const Unit& other) const { return typeId_ != other.typeId_; }

private:
    std::string typeId_; // its own: moving leaves nothing behind, and copying may throw
    std::string name_;
    std::string symbol_;
};

} // namespace Units
