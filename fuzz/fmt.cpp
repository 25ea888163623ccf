#include "Fuzz.h"

#include "edit/Layout.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

// What is laid out means the same, with all that is repeated in its order and each number and string as it was written,
// and is not changed when it is laid out again. What the library takes for JSON is laid out, and nothing else.

namespace {

/// A value with its members by name, those of one name in their order, and its elements by what they are a definition
/// of: what may change places is not told apart, all else is.
struct Value {
    std::string text = {}; // of what holds nothing
    std::map<std::string, std::vector<Value>> members = {};
    std::map<std::string, std::vector<Value>> definitions = {};
    std::vector<Value> elements = {};

    bool operator==(const Value&) const = default;
};

/// Builds values with an explicit stack.
struct Builder : nlohmann::json_sax<nlohmann::json> {
    struct Open {
        Value value;
        std::string name;
        std::string place; ///< The name in the object around it.
        std::string id;    ///< The first one.
        bool isArray;
    };
    std::vector<Open> open = std::vector<Open>(1);
    std::size_t deepest = 0;

    bool add(Value value, const std::string& id = {}) {
        Open& parent = open.back();
        if (!parent.isArray && open.size() > 1) {
            if (parent.name == "id" && parent.id.empty()) {
                parent.id = value.text;
            }
            parent.value.members[parent.name].push_back(std::move(value));
        } else if (parent.isArray && (parent.place == "constants" || parent.place == "properties")) {
            parent.value.definitions[id].push_back(std::move(value));
        } else {
            parent.value.elements.push_back(std::move(value));
        }
        return true;
    }
    bool begin(bool isArray) {
        const std::string place = open.back().isArray ? std::string() : open.back().name;
        open.push_back({{isArray ? "[" : "{"}, {}, place, {}, isArray});
        deepest = std::max(deepest, open.size());
        return true;
    }
    bool end() {
        Open done = std::move(open.back());
        open.pop_back();
        return add(std::move(done.value), done.id);
    }

    bool null() override { return add({"null"}); }
    bool boolean(bool value) override { return add({value ? "true" : "false"}); }
    bool number_integer(std::int64_t value) override { return add({std::to_string(value)}); }
    bool number_unsigned(std::uint64_t value) override { return add({std::to_string(value)}); }
    bool number_float(double, const std::string& text) override { return add({text}); }
    bool string(std::string& text) override { return add({"\"" + text}); }
    bool binary(nlohmann::json::binary_t&) override { return false; }
    bool start_object(std::size_t) override { return begin(false); }
    bool key(std::string& name) override {
        open.back().name = name;
        return true;
    }
    bool end_object() override { return end(); }
    bool start_array(std::size_t) override { return begin(true); }
    bool end_array() override { return end(); }
    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception&) override { return false; }
};

/// Returns all bytes but blanks between values, sorted.
std::string bytesOf(const std::string& text) {
    std::string bytes;
    bool isInString = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isInString && text[i] == '\\') {
            bytes += text[i++];
        } else if (text[i] == '"') {
            isInString = !isInString;
        }
        if (isInString || (text[i] != ' ' && text[i] != '\t' && text[i] != '\r' && text[i] != '\n')) {
            bytes += text[i];
        }
    }
    std::sort(bytes.begin(), bytes.end());
    return bytes;
}

bool isJson(const std::string& text) {
    const auto faults = Parameters::ParametersEngine().findFaults({{"x", text}});
    return std::none_of(faults.begin(), faults.end(), [](const auto& fault) { return fault.code() == "json-syntax"; });
}

void requireTheSame(const std::string& text, const std::string& laidOut) {
    Fuzz::require(bytesOf(text) == bytesOf(laidOut), "each name and value is as it was written");
    Builder before;
    Builder after;
    if (nlohmann::json::sax_parse(text, &before)) { // which takes no broken UTF-8
        Fuzz::require(nlohmann::json::sax_parse(laidOut, &after), "what is laid out is JSON");
        constexpr std::size_t most = 1000; // values are compared by recursion
        Fuzz::require(before.deepest > most || before.open.back().value == after.open.back().value,
                      "it means the same");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    const auto file = Tool::Layout::ofFile(text);
    const auto line = Tool::Layout::ofLine(text);
    Fuzz::require(file.has_value() == isJson(text) && line.has_value() == file.has_value(), "JSON is laid out");
    if (!file) {
        return 0;
    }
    requireTheSame(text, *file);
    requireTheSame(text, *line);
    Fuzz::require(file->ends_with('\n') && line->find('\n') == std::string::npos, "lines end where they must");
    Fuzz::require(Tool::Layout::ofFile(*file) == file, "a file that is laid out stays as it is");
    Fuzz::require(Tool::Layout::ofLine(*line) == line, "a line that is laid out stays as it is");
    Fuzz::require(Tool::Layout::ofFile(*line) == file, "a line and a file are the same in the end");
    Fuzz::require(Tool::Layout::ofLine(*file) == line, "a file and a line are the same in the end");
    return 0;
}
