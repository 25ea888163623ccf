#include <parameters/UnrecognizedIdentifierException.h>
#include <parameters/ValidationException.h>

namespace Parameters {

// Out of line, so that the classes' type information lives in this library alone and a host catches what it threw.
ValidationException::~ValidationException() = default;
UnrecognizedIdentifierException::~UnrecognizedIdentifierException() = default;

} // namespace Parameters
