#pragma once

#include <parameters/Export.h>

#include <stdexcept>

namespace Parameters {

/// A look-up by a type identifier under which there is no object. Carries its message only.
/// @ingroup exceptions
class PARAMETERS_EXPORT UnrecognizedIdentifierException : public std::logic_error {
public:
    using std::logic_error::logic_error;
    /// Copies share their message.
    /// @{
    UnrecognizedIdentifierException(const UnrecognizedIdentifierException&) noexcept = default;
    UnrecognizedIdentifierException& operator=(const UnrecognizedIdentifierException&) noexcept = default;
    /// @}
    /// Defined in the library, so that a host catches the very class that the library throws.
    ~UnrecognizedIdentifierException() override;
};

} // namespace Parameters
