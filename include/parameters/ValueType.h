#pragma once

// Headers of window systems make macros of such names, which are put aside here.
#pragma push_macro("None")
#pragma push_macro("Bool")
#pragma push_macro("Int")
#pragma push_macro("String")
#undef None
#undef Bool
#undef Int
#undef String

namespace Parameters {

/// What values a parameter schema describes, as far as its text tells.
///
/// Where a header such as X11/Xlib.h has made macros of None and Bool, those stay: undefine them to name the constants.
enum ValueType {
    None = 0,       ///< No parameter of the kinds below; enumeration parameters have no value type of their own.
    Bool = 1,       ///< Boolean parameter
    Int = 2,        ///< Integer parameter
    Measurable = 3, ///< Measurable parameter
    Reference = 4,  ///< Reference parameter
    String = 5      ///< String parameter
};

} // namespace Parameters

#pragma pop_macro("String")
#pragma pop_macro("Int")
#pragma pop_macro("Bool")
#pragma pop_macro("None")
