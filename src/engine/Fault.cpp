#include "engine/FaultData.h"

namespace Parameters {

std::string_view Fault::code() const noexcept { return data_->code; }

Fault::Severity Fault::severity() const noexcept { return data_->severity; }

const std::string& Fault::message() const noexcept { return data_->message; }

const std::string& Fault::typeId() const noexcept { return data_->typeId; }

const Fault::Place& Fault::place() const noexcept { return data_->place; }

const std::string& Fault::name() const noexcept { return data_->name; }

std::string_view Fault::expectedKind() const noexcept { return data_->expectedKind; }

const std::string& Fault::nearestName() const noexcept { return data_->nearestName; }

const std::optional<Fault::Place>& Fault::otherPlace() const noexcept { return data_->otherPlace; }

const std::optional<Fault::Place>& Fault::root() const noexcept { return data_->root; }

} // namespace Parameters
