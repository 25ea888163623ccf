#pragma once

#include <units/Export.h>

#include <stdexcept>
#include <string>

namespace Units {

/// Says what is wrong with a unit schema, or that no unit of a typeid is to be had. Carries its message only.
class UNITS_EXPORT ValidationException : public std::logic_error {
public:
    explicit ValidationException(const std::string& message);
    ValidationException(const ValidationException&) noexcept = default;
    ValidationException& operator=(const ValidationException&) noexcept = default;
    ~ValidationException() override;
};

} // namespace Units
