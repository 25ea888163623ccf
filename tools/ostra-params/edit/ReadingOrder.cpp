#include "edit/ReadingOrder.h"

#include "edit/Syntax.h"

#include <parameters/ParametersEngine.h>

#include <fmt/format.h>

#include <algorithm>
#include <unordered_map>

namespace Tool {

std::vector<std::size_t> ReadingOrder::ranksOf(std::string_view base, std::string_view table,
                                               const std::vector<std::string_view>& ids) {
    std::unordered_map<std::string, std::size_t> ranks; // of what is written once, then of what is read
    std::string definitions;
    for (const std::string_view id : ids) {
        const std::string name = unquoted(id);
        if (ranks.try_emplace(name, ids.size()).second && !name.empty()) { // which would be a fault of its own
            definitions += fmt::format(R"({}{{"id":{}}})", definitions.empty() ? "" : ",", id);
        }
    }
    const std::string question = fmt::format(R"({{"typeid":"x","inherits":[{}],"{}":[{}]}})", base, table, definitions);
    const auto [answer, isNew] = asked_.try_emplace(question);
    if (!isNew) {
        return answer->second;
    }
    // Definitions without values are faults in the order of reading, and only of those that are read by name: the
    // values of an enumeration lack something else.
    std::size_t rank = 0;
    for (const Parameters::Fault& fault : Parameters::ParametersEngine().findFaults({{"x", question}})) {
        if (!fault.code().ends_with("value-missing")) {
            continue;
        }
        const std::string_view element =
            std::string_view(question).substr(fault.place().begin, fault.place().end - fault.place().begin);
        const auto syntax = Syntax::read(element);
        const auto id = syntax ? syntax->stringOf(syntax->find(Syntax::root, "id")) : std::nullopt;
        if (const auto found = id ? ranks.find(*id) : ranks.end(); found != ranks.end()) {
            found->second = rank++;
        }
    }
    for (const std::string_view id : ids) {
        answer->second.push_back(ranks.at(unquoted(id)));
    }
    return answer->second;
}

} // namespace Tool
