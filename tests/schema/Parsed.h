#pragma once

#include "schema/ExceptionFactory.h"
#include "schema/JSON.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace Ostra {

/// The exception of a library that reads documents.
struct Refusal : std::logic_error {
    using std::logic_error::logic_error;
};

/// A text and what is read of it.
struct Parsed {
    std::string text;
    JSON json{text, ExceptionFactoryOf<Refusal>::shared()};

    JSONView view() const { return json.view(); }
    std::string toText() const { return json.toText(); }
};

inline Parsed parse(std::string text) { return {std::move(text)}; }

} // namespace Ostra
