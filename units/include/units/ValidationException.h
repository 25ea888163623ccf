#pragma once

#include <units/Export.h>

#include <stdexcept>
#include <string>

namespace Units {

/// Says what is wrong with a unit schema, or that no unit of a typeid is to be had. Carries its message only.
/// @ingroup exceptions
class UNITS_EXPORT ValidationException : public std::logic_error {
public:
    /// Makes an exception with that message.
    explicit ValidationException(const std::string& message);
    /// Copies share their message.
    /// @{
    ValidationException(const ValidationException&) noexcept = default;
    ValidationException& operator=(const ValidationException&) noexcept = default;
    /// @}
    /// Defined in the library, so that a host catches the very class that the library throws.
    ~ValidationException() override;
};

} // namespace Units
