#include "report/CutText.h"

#include <cstddef>

namespace Tool {

namespace {

constexpr std::string_view inNumbers = "+-.0123456789Ee";

std::size_t endOfString(std::string_view text, std::size_t begin) {
    std::size_t end = begin + 1;
    while (text[end] != '"') {
        end += text[end] == '\\' ? 2 : 1;
    }
    return end + 1;
}

std::size_t endOfNumber(std::string_view text, std::size_t begin) {
    const std::size_t end = text.find_first_not_of(inNumbers, begin);
    return end == std::string_view::npos ? text.size() : end;
}

} // namespace

CutText cut(std::string_view schemaText) {
    CutText result;
    std::size_t depth = 0;
    std::string_view part;   // the member of the schema
    std::string_view member; // the member of whatever is innermost
    std::size_t done = 0;
    for (std::size_t begin = 0; begin < schemaText.size();) {
        const char first = schemaText[begin];
        const bool isString = first == '"';
        if (!isString && first != '-' && (first < '0' || first > '9')) {
            depth += first == '{' || first == '[' ? 1 : 0;
            depth -= first == '}' || first == ']' ? 1 : 0;
            ++begin;
            continue;
        }
        const std::size_t end = isString ? endOfString(schemaText, begin) : endOfNumber(schemaText, begin);
        const std::string_view token = schemaText.substr(begin, end - begin);
        if (end < schemaText.size() && schemaText[end] == ':') {
            member = token;
            part = depth == 1 ? token : part;
        } else if (part != "\"inherits\"" && (part != "\"constants\"" || member != "\"id\"")) {
            result.pieces.push_back(schemaText.substr(done, begin - done));
            result.values.push_back(token);
            done = end;
        }
        begin = end;
    }
    result.pieces.push_back(schemaText.substr(done));
    return result;
}

} // namespace Tool
