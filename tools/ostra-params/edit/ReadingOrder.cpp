#include "edit/ReadingOrder.h"

#include "edit/Syntax.h"

#include <parameters/ParametersEngine.h>

#include <fmt/format.h>

#include <unordered_set>

namespace Tool {

std::vector<std::size_t> ReadingOrder::ranksOf(std::string_view base, std::string_view table,
                                               const std::vector<std::string_view>& ids) {
    std::unordered_set<std::string> names;
    std::string definitions;
    for (const std::string_view id : ids) {
        const std::string name = unquoted(id);
        if (!name.empty() && names.insert(name).second) { // what is empty or repeated would be a fault of its own
            definitions += fmt::format(R"({}{{"id":{}}})", definitions.empty() ? "" : ",", id);
        }
    }
    const Ranks& known = ask(fmt::format(R"({{"typeid":"x","inherits":[{}],"{}":[{}]}})", base, table, definitions));
    std::vector<std::size_t> ranks;
    for (const std::string_view id : ids) {
        const auto found = known.find(unquoted(id));
        ranks.push_back(found == known.end() ? known.size() : found->second);
    }
    return ranks;
}

const ReadingOrder::Ranks& ReadingOrder::ask(const std::string& question) {
    const auto [answer, isNew] = answers_.try_emplace(question);
    Ranks& ranks = answer->second;
    if (!isNew) {
        return ranks;
    }
    // Definitions without values are faults in the order of reading, and only of those that are read by name: the
    // values of an enumeration lack something else.
    for (const Parameters::Fault& fault : Parameters::ParametersEngine().findFaults({{"x", question}})) {
        const Parameters::Fault::Place& place = fault.place();
        if (fault.code().ends_with("value-missing")) {
            const auto syntax = Syntax::read(std::string_view(question).substr(place.begin, place.end - place.begin));
            if (const auto id = syntax ? syntax->stringOf(syntax->find(Syntax::root, "id")) : std::nullopt) {
                ranks.emplace(*id, ranks.size());
            }
        }
    }
    return ranks;
}

} // namespace Tool
