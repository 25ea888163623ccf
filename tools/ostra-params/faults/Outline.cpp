#include "faults/Outline.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <utility>

namespace Tool {

/// Follows the reader through a text. The reader tells where a part ends; it began behind the last one, after blanks
/// and punctuation.
class OutlineBuilder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, OutlineBuilder> {
public:
    OutlineBuilder(const std::string& json, const rapidjson::MemoryStream& stream, std::vector<Outline::Node>& nodes)
        : json_(json), stream_(stream), nodes_(nodes) {}

    bool StartObject() { return open(Outline::Type::object); }
    bool EndObject(rapidjson::SizeType) { return close(); }
    bool StartArray() { return open(Outline::Type::array); }
    bool EndArray(rapidjson::SizeType) { return close(); }
    bool Key(const char* text, rapidjson::SizeType length, bool) {
        name_.assign(text, length);
        end_ = stream_.Tell();
        return true;
    }
    bool String(const char* text, rapidjson::SizeType length, bool) {
        add(Outline::Type::string).text.assign(text, length);
        return true;
    }
    bool RawNumber(const char*, rapidjson::SizeType, bool) { return Default(); }
    bool Default() {
        add(Outline::Type::other);
        return true;
    }

private:
    Outline::Node& add(Outline::Type type) {
        const std::size_t begin = json_.find_first_not_of(" \t\r\n,:", end_);
        end_ = stream_.Tell();
        if (!open_.empty()) {
            nodes_[open_.back()].children.push_back(nodes_.size());
        }
        nodes_.push_back({type, begin, end_, std::exchange(name_, {})});
        return nodes_.back();
    }
    /// The reader stands before a bracket when it tells of one, and behind everything else.
    bool open(Outline::Type type) {
        add(type);
        end_ = stream_.Tell() + 1;
        open_.push_back(nodes_.size() - 1);
        return true;
    }
    bool close() {
        end_ = stream_.Tell() + 1;
        nodes_[open_.back()].end = end_;
        open_.pop_back();
        return true;
    }

    const std::string& json_;
    const rapidjson::MemoryStream& stream_;
    std::vector<Outline::Node>& nodes_;
    std::vector<std::size_t> open_; // the objects and arrays around what comes next
    std::string name_;
    std::size_t end_ = 0; // of the last part
};

Outline::Outline(const std::string& json) {
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::MemoryStream stream(json.data(), json.size());
    OutlineBuilder builder(json, stream, nodes_);
    rapidjson::Reader().Parse<flags>(stream, builder);
    if (nodes_.empty()) {
        nodes_.push_back({Type::other, 0, json.size()});
    }
}

const Outline::Node* Outline::member(const Node* node, std::string_view name) const {
    if (node == nullptr || node->type != Type::object) {
        return nullptr;
    }
    const auto found = std::find_if(node->children.begin(), node->children.end(),
                                    [&](std::size_t child) { return nodes_[child].name == name; });
    return found == node->children.end() ? nullptr : &nodes_[*found];
}

std::vector<const Outline::Node*> Outline::children(const Node* node) const {
    std::vector<const Node*> children;
    if (node != nullptr) {
        for (const std::size_t child : node->children) {
            children.push_back(&nodes_[child]);
        }
    }
    return children;
}

bool Outline::mentions(const Node& node, std::string_view text) const {
    // What is in a node follows it and begins before its end.
    const auto first = nodes_.begin() + (&node - nodes_.data());
    const auto last = std::find_if(first, nodes_.end(), [&](const Node& other) { return other.begin >= node.end; });
    return std::any_of(first, last, [&](const Node& part) { return part.type == Type::string && part.text == text; });
}

} // namespace Tool
