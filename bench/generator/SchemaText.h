#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Bench {

/// Writes one schema, constant by constant. Texts are given as they stand between the quotes of JSON.
class SchemaText {
public:
    SchemaText(std::string_view typeId, std::string_view base);

    /// A constant with a text as its value.
    SchemaText& text(std::string_view id, std::string_view escaped);
    /// A constant with any JSON as its value.
    SchemaText& value(std::string_view id, std::string_view json);
    /// A constant that names one object; more is what follows the typeid within the braces.
    SchemaText& reference(std::string_view id, std::string_view typeId, std::string_view more = {});
    /// A constant that names a list of objects.
    SchemaText& references(std::string_view id, const std::vector<std::string>& typeIds);
    /// Constants are complete; the properties that follow are given as JSON.
    SchemaText& properties(std::string_view json);

    /// Returns the whole text.
    std::string finish();

private:
    void open(std::string_view id);

    std::string text_;
    bool hasConstants_ = false;
    std::string properties_;
};

/// Returns a text in quotes.
std::string quoted(std::string_view escaped);

} // namespace Bench
