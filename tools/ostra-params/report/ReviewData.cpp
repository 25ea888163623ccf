#include "report/ReviewData.h"

#include "catalogue/Catalogue.h"
#include "compare/Breaking.h"
#include "compare/Comparison.h"
#include "report/Columns.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace Tool {

namespace {

using Compare::Change;
using Compare::ConstantChange;
using Compare::Severity;
using Compare::Verdict;

struct ValueData {
    Json operator()(std::monostate) const { return nullptr; }
    Json operator()(bool value) const { return value ? "yes" : "no"; }
    Json operator()(std::int64_t value) const { return fmt::format("{}", value); }
    Json operator()(double value) const { return fmt::format("{}", value); }
    Json operator()(const std::string& value) const { return value; }
    Json operator()(const Compare::Reference& value) const { return {{"typeId", value.typeId}}; }
    Json operator()(const Compare::Choice& value) const { return fmt::format("{} = {}", value.id, value.integer); }
    template <class Element>
    Json operator()(const std::vector<Element>& list) const {
        Json values = Json::array();
        for (const Element& element : list) {
            values.push_back((*this)(element));
        }
        return values;
    }
};

Json dataOf(const Compare::Value& value) { return std::visit(ValueData(), value); }

Json dataOf(const ConstantChange& constant) {
    Json elements = Json::array();
    for (const Compare::ElementChange& element : constant.elements) {
        elements.push_back(Json::array({dataOf(element.before), dataOf(element.after)}));
    }
    Json data{{"id", constant.id}};
    if (!constant.from.empty()) {
        data["from"] = constant.from;
    }
    if (constant.isReordered) {
        data["isReordered"] = true;
    }
    if (elements.empty()) {
        data["before"] = dataOf(constant.before);
        data["after"] = dataOf(constant.after);
    } else {
        data["elements"] = std::move(elements);
    }
    return data;
}

/// A change with what is to be thought of it, the worst first.
struct Judged {
    const Change* change;
    std::vector<const Verdict*> verdicts = {};

    Severity severity() const { return verdicts.empty() ? Severity::safe : verdicts.front()->rule->severity; }
};

std::vector<Judged> judged(const std::vector<Change>& changes, const std::vector<Verdict>& verdicts) {
    std::map<const Change*, std::size_t> numbers;
    std::vector<Judged> all;
    for (const Change& change : changes) {
        numbers.emplace(&change, all.size());
        all.push_back({&change});
    }
    for (const Verdict& verdict : verdicts) {
        all[numbers.at(verdict.atom.change)].verdicts.push_back(&verdict);
    }
    std::stable_sort(all.begin(), all.end(),
                     [](const Judged& one, const Judged& other) { return one.severity() > other.severity(); });
    return all;
}

/// The rules that apply, each once.
class Rules {
public:
    std::size_t numberOf(const Compare::BreakingRule& rule) {
        const auto [found, isNew] = numbers_.emplace(rule.code, data_.size());
        if (isNew) {
            data_.push_back({{"code", rule.code},
                             {"severity", Compare::wordOf(rule.severity)},
                             {"isBreaking", Compare::isBreaking(rule.severity)},
                             {"what", rule.what},
                             {"why", rule.why}});
        }
        return found->second;
    }

    Json take() { return std::move(data_); }

private:
    std::map<std::string_view, std::size_t> numbers_;
    Json data_ = Json::array();
};

/// Returns a text as what it has in common with another at both ends, and what it has between them.
Json differenceOf(std::string_view text, std::string_view other) {
    const std::size_t begin = sharedBeginning(text, other);
    const std::size_t most = std::min(text.size(), other.size()) - begin;
    const std::size_t end =
        sharedBeginning(std::string(text.rbegin(), text.rbegin() + static_cast<std::ptrdiff_t>(most)),
                        std::string(other.rbegin(), other.rbegin() + static_cast<std::ptrdiff_t>(most)));
    return Json::array({begin, text.substr(begin, text.size() - begin - end), end});
}

Json dataOf(const Judged& each, const Catalogue& before, const Catalogue& after, Rules& rules) {
    const Change& change = *each.change;
    const Object& object = change.object();
    Json data{{"fate", Compare::wordOf(change.fate)}, {"typeId", object.typeId}, {"rules", Json::array()}};
    for (const Verdict* verdict : each.verdicts) {
        const std::size_t rule = rules.numberOf(*verdict->rule);
        if (std::find(data["rules"].begin(), data["rules"].end(), rule) == data["rules"].end()) {
            data["rules"].push_back(rule);
        }
    }
    for (const ConstantChange& constant : change.constants) {
        data["constants"].push_back(dataOf(constant));
    }
    if (change.before != nullptr) {
        const std::string text = before.schemaOf(*change.before);
        data["before"] = change.after == nullptr ? Json(text) : differenceOf(text, after.schemaOf(*change.after));
    }
    if (change.after == nullptr) {
        data["name"] = object.name;
        data["kind"] = object.section->id;
    } else if (change.before != nullptr && change.before->typeId != object.typeId) {
        data["typeIdBefore"] = change.before->typeId;
    }
    if (!each.verdicts.empty() && each.verdicts.front()->dependents.total > 0) {
        const Compare::Dependents& dependents = each.verdicts.front()->dependents;
        data["dependents"] = {
            {"direct", dependents.direct}, {"total", dependents.total}, {"isMore", dependents.isMore}};
    }
    return data;
}

} // namespace

Json reviewDataOf(const Catalogue& before, const Catalogue& after, const std::string& name) {
    const std::vector<Change> changes = Compare::compare(before, after);
    const std::vector<Verdict> verdicts = Compare::judge(changes, before, after);
    Rules rules;
    Json data{{"name", name}, {"leftOut", before.leftOut()}, {"changes", Json::array()}};
    for (const Judged& each : judged(changes, verdicts)) {
        data["changes"].push_back(dataOf(each, before, after, rules));
    }
    data["rules"] = rules.take();
    return data;
}

} // namespace Tool
