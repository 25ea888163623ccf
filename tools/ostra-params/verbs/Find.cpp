#include "verbs/Find.h"

#include "catalogue/Catalogue.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <string_view>
#include <vector>

namespace Tool {

namespace {

std::string severalHave(const std::string& text, const std::vector<const Object*>& objects) {
    constexpr std::size_t most = 10;
    std::string message = fmt::format("{} typeids have {} in them:", objects.size(), printable(text));
    for (std::size_t i = 0; i < std::min(objects.size(), most); ++i) {
        message += "\n  " + printable(objects[i]->typeId);
    }
    return message + (objects.size() > most ? "\n  ..." : "");
}

} // namespace

void addTypeId(CLI::App& verb, std::string& typeId) {
    verb.add_option("TYPEID", typeId, "The typeid of an object, or a part that no other has")
        ->required()
        ->check(refuseEmpty)
        ->type_name("");
}

const Object& findObject(const Catalogue& catalogue, const std::string& text) {
    if (const Object* object = catalogue.find(text)) {
        return *object;
    }
    std::vector<const Object*> having;
    std::vector<std::string_view> typeIds;
    for (const Object& object : catalogue.objects()) {
        typeIds.emplace_back(object.typeId);
        if (object.typeId.find(text) != std::string::npos) {
            having.push_back(&object);
        }
    }
    if (having.size() == 1) {
        return *having.front();
    }
    if (having.size() > 1) {
        throw NotFound(severalHave(text, having));
    }
    warnOfFaults(catalogue); // what is looked for may be among what was left out
    const std::string question = didYouMean(text, typeIds);
    throw NotFound(fmt::format("There is no object with typeid {}.{}", printable(text),
                               question.empty() ? "" : " " + printable("Did" + question.substr(3))));
}

} // namespace Tool
