#include "generator/SchemaText.h"

#include <utility>

namespace Bench {

namespace {

std::string nameOf(std::string_view typeId, std::string_view more) {
    std::string json = R"({"typeid":)";
    json += quoted(typeId);
    json += more;
    return json += '}';
}

} // namespace

std::string quoted(std::string_view escaped) {
    std::string result;
    result.reserve(escaped.size() + 2);
    result += '"';
    result += escaped;
    return result += '"';
}

SchemaText::SchemaText(std::string_view typeId, std::string_view base) {
    text_.reserve(1024);
    text_ += R"({"typeid":)";
    text_ += quoted(typeId);
    text_ += R"(,"inherits":[)";
    text_ += quoted(base);
    text_ += ']';
}

void SchemaText::open(std::string_view id) {
    text_ += hasConstants_ ? "," : R"(,"constants":[)";
    hasConstants_ = true;
    text_ += R"({"id":)";
    text_ += quoted(id);
}

SchemaText& SchemaText::text(std::string_view id, std::string_view escaped) { return value(id, quoted(escaped)); }

SchemaText& SchemaText::value(std::string_view id, std::string_view json) {
    open(id);
    text_ += R"(,"value":)";
    text_ += json;
    text_ += '}';
    return *this;
}

SchemaText& SchemaText::reference(std::string_view id, std::string_view typeId, std::string_view more) {
    open(id);
    text_ += R"(,"typedValue":)";
    text_ += nameOf(typeId, more);
    text_ += '}';
    return *this;
}

SchemaText& SchemaText::references(std::string_view id, const std::vector<std::string>& typeIds) {
    open(id);
    text_ += R"(,"typedValue":[)";
    for (const std::string& typeId : typeIds) {
        text_ += &typeId == &typeIds.front() ? "" : ",";
        text_ += nameOf(typeId, {});
    }
    text_ += "]}";
    return *this;
}

SchemaText& SchemaText::properties(std::string_view json) {
    properties_ = json;
    return *this;
}

std::string SchemaText::finish() {
    text_ += hasConstants_ ? "]" : "";
    if (!properties_.empty()) {
        text_ += R"(,"properties":[)";
        text_ += properties_;
        text_ += ']';
    }
    text_ += '}';
    return std::move(text_);
}

} // namespace Bench
