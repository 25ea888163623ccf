#include "server/Outline.h"

#include "edit/Syntax.h"
#include "output/Text.h"

#include <algorithm>

namespace Tool::Lsp {

namespace {

/// Returns what a string says that stands in quotation marks, of which the last may not be there yet.
std::string contentOf(std::string_view string) {
    std::string closed(string);
    if (string.size() < 2 || string.back() != '"') {
        closed += '"';
    }
    const std::string content = unquoted(closed);
    return content.empty() ? closed.substr(1, closed.size() - 2) : content; // as its escapes may be half typed, too
}

} // namespace

class Outline::Reader {
public:
    Reader(std::string_view text, std::vector<Node>& nodes) : text_(text), nodes_(nodes) {}

    void read() {
        for (std::size_t i = text_.find_first_not_of(blanks); i < text_.size();
             i = text_.find_first_not_of(blanks, i)) {
            i = readToken(i);
        }
        while (!open_.empty()) {
            close(text_.size());
        }
    }

private:
    std::size_t readToken(std::size_t begin) {
        switch (text_[begin]) {
        case '{':
        case '[':
            leaveUnfinished(begin);
            open_.push_back(add(text_[begin] == '{' ? Type::object : Type::array, begin, begin + 1));
            return begin + 1;
        case '}':
        case ']':
            closeLike(text_[begin] == '}' ? Type::object : Type::array, begin);
            return begin + 1;
        case ',':
            member_ = none;
            isValue_ = false;
            return begin + 1;
        case ':':
            isValue_ = member_ != none;
            return begin + 1;
        case '"':
            return readString(begin);
        default:
            return readWord(begin);
        }
    }

    bool isInObject() const { return !open_.empty() && nodes_[open_.back()].type == Type::object; }

    std::size_t add(Type type, std::size_t begin, std::size_t end) {
        std::size_t node = member_;
        if (isInObject() && isValue_ && node != none) { // the member is there already
            nodes_[node].type = type;
            nodes_[node].begin = begin;
            nodes_[node].end = end;
        } else {
            node = nodes_.size();
            nodes_.push_back({type, open_.empty() ? none : open_.back(), begin, begin, begin, end});
            if (!open_.empty()) {
                nodes_[open_.back()].children.push_back(node);
            }
        }
        member_ = none;
        isValue_ = false;
        return node;
    }

    /// A value that begins where a name should is the next one behind an object that is not closed yet.
    void leaveUnfinished(std::size_t begin) {
        const bool isBehind = isInObject() && !isValue_ && open_.size() > 1;
        if (isBehind && nodes_[nodes_[open_.back()].parent].type == Type::array) {
            close(begin);
        }
    }

    void close(std::size_t end) {
        nodes_[open_.back()].end = end;
        open_.pop_back();
        member_ = none;
        isValue_ = false;
    }

    void closeLike(Type type, std::size_t begin) {
        const auto isLike = [&](std::size_t node) { return nodes_[node].type == type; };
        const auto found = std::find_if(open_.rbegin(), open_.rend(), isLike);
        if (found == open_.rend()) {
            return; // nothing of this type is open
        }
        const std::size_t node = *found;
        while (open_.back() != node) {
            close(begin);
        }
        close(begin + 1);
    }

    std::size_t readString(std::size_t begin) {
        std::size_t end = begin + 1;
        while (end < text_.size() && text_[end] != '"' && text_[end] != '\n' && text_[end] != '\r') {
            end += text_[end] == '\\' && end + 1 < text_.size() && text_[end + 1] != '\n' ? 2 : 1;
        }
        end = std::min(end, text_.size());
        end += end < text_.size() && text_[end] == '"' ? 1 : 0;
        if (isInObject() && !isValue_) {
            member_ = nodes_.size();
            nodes_.push_back({Type::nothing, open_.back(), begin, end, end, end});
            nodes_[open_.back()].children.push_back(member_);
        } else {
            add(Type::string, begin, end);
        }
        return end;
    }

    std::size_t readWord(std::size_t begin) {
        const std::size_t end = std::min(text_.find_first_of(" \t\r\n,:\"{}[]", begin), text_.size());
        if (!isInObject() || isValue_) {
            add(Type::other, begin, end);
        }
        return end;
    }

    std::string_view text_;
    std::vector<Node>& nodes_;
    std::vector<std::size_t> open_;
    std::size_t member_ = none; ///< That has a name and no value yet.
    bool isValue_ = false;      ///< Behind its colon.
};

Outline::Outline(std::string_view text) : text_(text) { Reader(text, nodes_).read(); }

std::size_t Outline::find(std::size_t object, std::string_view name) const {
    if (object == none || nodes_[object].type != Type::object) {
        return none;
    }
    const std::vector<std::size_t>& members = nodes_[object].children;
    const auto found =
        std::find_if(members.begin(), members.end(), [&](std::size_t member) { return nameOf(member) == name; });
    return found == members.end() ? none : *found;
}

std::string Outline::nameOf(std::size_t node) const {
    const Node& member = nodes_[node];
    return member.hasName() ? contentOf(text_.substr(member.nameBegin, member.nameEnd - member.nameBegin))
                            : std::string();
}

std::string Outline::stringOf(std::size_t node) const {
    if (node == none || nodes_[node].type != Type::string) {
        return {};
    }
    return contentOf(text_.substr(nodes_[node].begin, nodes_[node].end - nodes_[node].begin));
}

std::size_t Outline::containerAt(std::size_t offset) const {
    std::size_t found = none;
    for (std::size_t node = 0; node < nodes_.size(); ++node) {
        const Node& each = nodes_[node];
        const bool isOpen =
            each.isContainer() && each.begin < offset && (offset < each.end || (offset == each.end && !isClosed(node)));
        found = isOpen ? node : found; // those further inside come later
    }
    return found;
}

std::size_t Outline::leafAt(std::size_t offset) const {
    for (std::size_t node = 0; node < nodes_.size(); ++node) {
        const Node& each = nodes_[node];
        const bool isInName = each.hasName() && each.nameBegin <= offset && offset <= each.nameEnd;
        const bool isInValue =
            (each.type == Type::string || each.type == Type::other) && each.begin <= offset && offset <= each.end;
        if (isInName || isInValue) {
            return node;
        }
    }
    return none;
}

bool Outline::isClosed(std::size_t node) const {
    const char last = nodes_[node].end == nodes_[node].begin ? ' ' : text_[nodes_[node].end - 1];
    return nodes_[node].end - nodes_[node].begin > 1 && last == (nodes_[node].type == Type::object ? '}' : ']');
}

} // namespace Tool::Lsp
