#pragma once

#include <parameters/Export.h>

#include <stdexcept>

namespace Parameters {

/// A malformed schema, a failed check or a refused registration. Carries its message only.
/// @ingroup exceptions
class PARAMETERS_EXPORT ValidationException : public std::logic_error {
public:
    using std::logic_error::logic_error;
    /// Copies share their message.
    /// @{
    ValidationException(const ValidationException&) noexcept = default;
    ValidationException& operator=(const ValidationException&) noexcept = default;
    /// @}
    /// Defined in the library, so that a host catches the very class that the library throws.
    ~ValidationException() override;
};

} // namespace Parameters
