#include <units/Unit.h>

#include <utility>

namespace Units {

struct Unit::Data {
    std::string typeId;
    std::string name;
    std::string symbol;
};

Unit::Unit(std::string typeId, std::string name, std::string symbol)
    : data_(std::make_shared<const Data>(Data{std::move(typeId), std::move(name), std::move(symbol)})) {}

Unit::~Unit() = default;

std::string Unit::getTypeId() const { return data_->typeId; }

std::string Unit::getName() const { return data_->name; }

std::string Unit::getSymbol() const { return data_->symbol; }

std::string_view Unit::typeId() const noexcept { return data_->typeId; }

std::string_view Unit::name() const noexcept { return data_->name; }

std::string_view Unit::symbol() const noexcept { return data_->symbol; }

bool Unit::operator==(const Unit& other) const noexcept { return data_->typeId == other.data_->typeId; }

bool Unit::operator!=(const Unit& other) const noexcept { return !(*this == other); }

bool Unit::operator<(const Unit& other) const noexcept { return data_->typeId < other.data_->typeId; }

bool Unit::operator>(const Unit& other) const noexcept { return *this != other && !(*this < other); }

} // namespace Units
