#pragma once

#include <parameters/Fault.h>
#include <parameters/ParametersEngine.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace Support {

/// Schema texts by their keys.
using Texts = std::map<std::string, std::string>;

/// Returns the bytes of a place.
inline std::string bytesOf(const Parameters::Fault::Place& place, const Texts& texts) {
    return texts.at(place.text).substr(place.begin, place.end - place.begin);
}

inline std::string shownPlace(const Parameters::Fault::Place& place) { return place.text + ":" + place.pointer; }

/// Returns a fault as one line: "warning CODE NAME near NAME needs KIND at TEXT:POINTER BYTES beside TEXT:POINTER after
/// TEXT:POINTER", without what it does not have. The last is the place of the fault that it is a consequence of.
inline std::string lineOf(const Parameters::Fault& fault, const Texts& texts) {
    std::string line = fault.isError() ? "" : "warning ";
    line += fault.code();
    const auto add = [&line](const std::string& word, const std::string& part) {
        if (!part.empty()) {
            line += word + part;
        }
    };
    add(" ", fault.name());
    add(" near ", fault.nearestName());
    add(" needs ", std::string(fault.expectedKind()));
    line += " at " + shownPlace(fault.place()) + " " + bytesOf(fault.place(), texts);
    add(" beside ", fault.otherPlace() ? shownPlace(*fault.otherPlace()) : "");
    add(" after ", fault.root() ? shownPlace(*fault.root()) : "");
    return line;
}

using Lines = std::vector<std::string>;

inline Lines linesOf(const std::vector<Parameters::Fault>& faults, const Texts& texts) {
    Lines lines;
    std::transform(faults.begin(), faults.end(), std::back_inserter(lines),
                   [&texts](const Parameters::Fault& fault) { return lineOf(fault, texts); });
    return lines;
}

/// Returns the faults that texts have in an engine, an empty one by default, as lines.
inline Lines faultsOf(const Texts& texts, const Parameters::ParametersEngine& engine = {}) {
    return linesOf(engine.findFaults(texts), texts);
}

/// Returns the messages of the errors among faults as exceptions say them, whose what() ends with a byte 0.
inline Lines errorsAmong(const std::vector<Parameters::Fault>& faults) {
    Lines messages;
    for (const Parameters::Fault& fault : faults) {
        if (fault.isError()) {
            messages.emplace_back(fault.message().c_str());
        }
    }
    return messages;
}

} // namespace Support
