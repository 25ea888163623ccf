#pragma once

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

} // namespace Tool
