#pragma once

#include <stdexcept>

namespace Units {

class ValidationException : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    ~ValidationException() override;
};

} // namespace Units
