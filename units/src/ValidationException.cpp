#include <units/ValidationException.h>

namespace Units {

ValidationException::ValidationException(const std::string& message) : std::logic_error(message) {}

// Out of line, so that the type is known by one symbol and a host catches the very type that was thrown.
ValidationException::~ValidationException() = default;

} // namespace Units
