// The lists of a dialog: all parameters by name, those of each group, and the specs of each discipline.

#include "Files.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <locale>
#include <set>
#include <string_view>
#include <vector>

using namespace Parameters;

namespace {

//! [names]
/// Orders values by name. Names are for people: which comes first is for the application's locale to say, or for
/// whatever else it sorts words with.
struct ByName {
    std::locale locale; // the global one, unless another is given

    template <class Named>
    bool operator()(const Named& one, const Named& other) const {
        const std::string_view left = one.name();
        const std::string_view right = other.name();
        const auto& collate = std::use_facet<std::collate<char>>(locale);
        const int order =
            collate.compare(left.data(), left.data() + left.size(), right.data(), right.data() + right.size());
        return order != 0 ? order < 0 : one < other; // by typeid, so that equal names come in the same order everywhere
    }
};

/// Returns what all objects of these kinds have in common, by name.
template <class Core, class... Ks>
std::vector<Core> allByName(const ParametersEngine& engine, Kinds::List<Ks...> kinds) {
    std::vector<Core> cores;
    forEachObject(engine, kinds, [&](auto, const auto& object) { cores.push_back(object.core()); });
    std::sort(cores.begin(), cores.end(), ByName{});
    return cores;
}
//! [names]

//! [dependents]
/// Returns what all that names this has in common, by name. Of other kinds than these it is left out: a discipline is
/// named by categories, too.
template <class Core, class... Ks>
std::vector<Core> dependentsByName(const ParametersEngine& engine, Kinds::List<Ks...> kinds, std::string_view typeId) {
    std::vector<Core> cores;
    for (const Identity& dependent : engine.dependentsOf(typeId)) {
        forEachKind(kinds, [&](auto kind) {
            if (kind.info == dependent.kind) {
                cores.push_back(kind.find(engine, dependent.typeId)->core());
            }
        });
    }
    std::sort(cores.begin(), cores.end(), ByName{});
    return cores;
}
//! [dependents]

template <class Core>
void print(const std::vector<Core>& cores) {
    for (const Core& core : cores) {
        std::cout << "  " << core.name() << '\n';
    }
}

/// Prints the objects of these kinds below their taxa. Built-in ones are in no list of an engine, and there may be
/// several of one name, so that they are got from the objects.
template <class Core, class... Ks>
void printByTaxon(const ParametersEngine& engine, Kinds::List<Ks...> kinds,
                  const Taxon& (Core::*taxonOf)() const noexcept) {
    std::set<Taxon> known;
    for (const Core& core : allByName<Core>(engine, kinds)) {
        known.insert((core.*taxonOf)());
    }
    std::vector<Taxon> taxa(known.begin(), known.end());
    std::sort(taxa.begin(), taxa.end(), ByName{});
    for (const Taxon& taxon : taxa) {
        std::cout << taxon.name() << " (" << taxon << ")\n";
        print(dependentsByName<Core>(engine, kinds, taxon.typeId()));
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: dialog_lists FOLDER\n";
        return 2;
    }
    try {
        ParametersEngine engine;
        printErrors(std::cerr, engine.registerSoundSchemas(textsIn(argv[1])));
        std::cout << "all parameters\n";
        print(allByName<ParameterCore>(engine, Kinds::Parameters{}));
        printByTaxon(engine, Kinds::Parameters{}, &ParameterCore::group);
        printByTaxon(engine, Kinds::Specs{}, &SpecCore::discipline);
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
}
