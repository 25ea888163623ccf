#pragma once

namespace Parameters {

/// What values a parameter schema describes, as far as its text tells.
enum ValueType {
    None = 0,       ///< No parameter of the kinds below; enumeration parameters have no value type of their own.
    Bool = 1,       ///< Boolean parameter
    Int = 2,        ///< Integer parameter
    Measurable = 3, ///< Measurable parameter
    Reference = 4,  ///< Reference parameter
    String = 5      ///< String parameter
};

} // namespace Parameters
