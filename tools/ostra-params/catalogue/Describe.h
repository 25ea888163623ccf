#pragma once

#include <parameters/ParametersEngine.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

struct Section;

/// One value of a property: a text or, when it has a typeid, another object with the name that it goes by.
struct Value {
    std::string text;
    std::string typeId = {};

    /// What makes the value this one: for an object its typeid, as renaming it changes nothing here.
    const std::string& identity() const { return typeId.empty() ? text : typeId; }
};

struct Property {
    std::string_view name;
    std::vector<Value> values;
    bool isOwn = true; ///< False for what a reader wants to see here, but another object says.
};

/// What a catalogue says of one object, in a form that serves every section.
struct Object {
    std::string typeId;
    std::string name;                 ///< Empty for the kinds that have none.
    std::vector<Property> properties; ///< In the order in which a person wants to read them.
    const Section* section = nullptr;
};

/// Describes each object of an engine and of its units engine in turn, by section, then by typeid; those of sections
/// that are not wanted are passed over.
void describeEach(Parameters::ParametersEngine& engine, const std::function<bool(const Section&)>& isWanted,
                  const std::function<void(Object)>& visit);

/// Returns all objects of an engine and of its units engine, by section, then by typeid: in texts, what each says by
/// its accessors.
std::vector<Object> describeAll(Parameters::ParametersEngine& engine);

/// Returns how many objects there are in each section.
std::vector<std::size_t> countAll(Parameters::ParametersEngine& engine);

} // namespace Tool
