#include "edit/Syntax.h"

#include "output/Json.h"
#include "output/Text.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace Tool {

/// Keeps where each token begins and ends: behind the last one, and where the stream is.
struct Syntax::Reader : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Reader> {
    Reader(Syntax& all, const rapidjson::MemoryStream& input) : syntax(all), stream(input) {}

    bool Null() { return addLeaf(Type::other); }
    bool Bool(bool) { return addLeaf(Type::other); }
    bool RawNumber(const char* number, rapidjson::SizeType length, bool) {
        // The parser refuses by the exponent alone what no double can hold.
        const std::string_view written(number, length);
        const bool isPlain = length < 300 && written.find_first_of("eE") == std::string_view::npos;
        return (isPlain || Json::accept(written)) && addLeaf(Type::other);
    }
    bool String(const char*, rapidjson::SizeType, bool) { return addLeaf(Type::string); }
    bool Key(const char*, rapidjson::SizeType, bool) {
        name = take(stream.Tell());
        return true;
    }
    bool StartObject() { return open(Type::object); }
    bool StartArray() { return open(Type::array); }
    bool EndObject(rapidjson::SizeType) { return close(); }
    bool EndArray(rapidjson::SizeType) { return close(); }

    std::size_t begin() const { return syntax.text_.find_first_not_of(" \t\r\n,:", end); }
    std::string_view take(std::size_t newEnd) {
        const std::size_t from = begin();
        end = newEnd;
        return syntax.text_.substr(from, end - from);
    }
    std::size_t add(Type type, std::string_view text) {
        const std::size_t node = syntax.nodes_.size();
        if (last != none) {
            syntax.nodes_[last].next = node;
        } else if (parent != none) {
            syntax.nodes_[parent].first = node;
        }
        syntax.nodes_.push_back({type, parent, name, text});
        name = {};
        return last = node;
    }
    bool addLeaf(Type type) {
        add(type, take(stream.Tell()));
        return true;
    }
    bool open(Type type) {
        parent = add(type, take(begin() + 1));
        last = none;
        return true;
    }
    bool close() {
        take(begin() + 1);
        Node& closed = syntax.nodes_[parent];
        closed.text = {closed.text.data(), end - syntax.offsetOf(closed.text)};
        last = parent;
        parent = closed.parent;
        return true;
    }

    Syntax& syntax;
    const rapidjson::MemoryStream& stream;
    std::size_t end = 0; ///< Of the last token.
    std::string_view name = {};
    std::size_t parent = none;
    std::size_t last = none; ///< Of what the parent holds so far.
};

std::optional<Syntax> Syntax::read(std::string_view text) {
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    Syntax syntax(text);
    rapidjson::MemoryStream stream(text.data(), text.size());
    Reader reader(syntax, stream);
    const bool isRead = !rapidjson::Reader().Parse<flags>(stream, reader).IsError();
    // The parser takes a null character for the end.
    return isRead && text.find_first_not_of(blanks, reader.end) == std::string_view::npos ? std::optional(syntax)
                                                                                          : std::nullopt;
}

std::vector<std::size_t> Syntax::childrenOf(std::size_t node) const {
    std::vector<std::size_t> children;
    for (std::size_t child = nodes_[node].first; child != none; child = nodes_[child].next) {
        children.push_back(child);
    }
    return children;
}

void Syntax::reorder(std::size_t node, const std::vector<std::size_t>& children) {
    std::size_t* link = &nodes_[node].first;
    for (const std::size_t child : children) {
        *link = child;
        link = &nodes_[child].next;
    }
    *link = none;
}

std::size_t Syntax::find(std::size_t node, std::string_view name) const {
    if (node == none || nodes_[node].type != Type::object) {
        return none;
    }
    std::size_t child = nodes_[node].first;
    while (child != none && !isNamed(child, name)) {
        child = nodes_[child].next;
    }
    return child;
}

bool Syntax::isNamed(std::size_t node, std::string_view name) const {
    const std::string_view written = nodes_[node].name;
    return !written.empty() && (written.substr(1, written.size() - 2) == name ||
                                (written.find('\\') != std::string_view::npos && unquoted(written) == name));
}

std::optional<std::string> Syntax::stringOf(std::size_t node) const {
    return node != none && nodes_[node].type == Type::string ? std::optional(unquoted(nodes_[node].text))
                                                             : std::nullopt;
}

std::string unquoted(std::string_view string) {
    struct : rapidjson::BaseReaderHandler<rapidjson::UTF8<>> {
        bool String(const char* characters, rapidjson::SizeType length, bool) {
            text.assign(characters, length);
            return true;
        }
        std::string text;
    } content;
    if (string.find('\\') == std::string_view::npos) {
        return std::string(string.substr(1, string.size() - 2));
    }
    rapidjson::MemoryStream stream(string.data(), string.size());
    rapidjson::Reader().Parse(stream, content);
    return content.text;
}

std::string quoted(std::string_view text) {
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer>(buffer).String(text.data(),
                                                              static_cast<rapidjson::SizeType>(text.size()));
    return {buffer.GetString(), buffer.GetSize()};
}

} // namespace Tool
