#pragma once

#include "schema/Message.h"

#include <parameters/Fault.h>

#include <optional>
#include <string>
#include <string_view>

namespace Parameters::Internal {

struct FaultData {
    std::string_view code;
    Fault::Severity severity;
    std::string message;
    std::string typeId;
    Fault::Place place;
    std::string name;
    std::string_view expectedKind;
    std::string nearestName;
    std::optional<Fault::Place> otherPlace;
    std::optional<Fault::Place> root;
};

inline Fault::Severity severityOf(const Ostra::Message& message) {
    return message.severity == Ostra::Severity::error ? Fault::Severity::error : Fault::Severity::warning;
}

} // namespace Parameters::Internal
