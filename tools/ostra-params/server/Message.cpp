#include "server/Message.h"

#include "output/Text.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace Tool::Lsp {

namespace {

/// Returns whether brackets stand deeper within each other than in any message of the protocol: what is copied or
/// written goes down with them.
bool isDeep(std::string_view text) {
    constexpr std::size_t deepest = 200;
    std::size_t depth = 0;
    bool isInString = false;
    for (std::size_t i = 0; i < text.size() && depth <= deepest; ++i) {
        const char byte = text[i];
        if (isInString) {
            isInString = byte != '"';
            i += byte == '\\' ? 1 : 0;
        } else if (byte == '"') {
            isInString = true;
        } else if (byte == '{' || byte == '[') {
            ++depth;
        } else if (byte == '}' || byte == ']') {
            depth -= std::min<std::size_t>(depth, 1);
        }
    }
    return depth > deepest;
}

/// Returns the number of the escape sequence \uXXXX at an offset; 0 when there is none.
unsigned escapeAt(std::string_view text, std::size_t offset) {
    unsigned number = 0;
    if (offset + 6 > text.size() || text[offset] != '\\' || text[offset + 1] != 'u') {
        return 0;
    }
    std::from_chars(text.data() + offset + 2, text.data() + offset + 6, number, 16);
    return number;
}

constexpr bool isFirstHalf(unsigned number) { return number >= 0xD800 && number < 0xDC00; }
constexpr bool isSecondHalf(unsigned number) { return number >= 0xDC00 && number < 0xE000; }

/// Returns a JSON text with replacement characters for halves of characters that stand alone.
std::string withoutHalves(std::string text) {
    for (std::size_t i = text.find('\\'); i != std::string::npos; i = text.find('\\', i)) {
        const unsigned number = escapeAt(text, i);
        if (isFirstHalf(number) && isSecondHalf(escapeAt(text, i + 6))) {
            i += 12;
        } else if (isFirstHalf(number) || isSecondHalf(number)) {
            text.replace(i, 6, "\\ufffd");
            i += 6;
        } else {
            i += 2;
        }
    }
    return text;
}

Json parse(const std::string& body) {
    if (isDeep(body)) {
        throw Refusal(ErrorCode::invalidRequest, "The message is nested too deeply.");
    }
    Json json = Json::parse(body, nullptr, false);
    if (json.is_discarded()) {
        json = Json::parse(withoutHalves(readable(body)), nullptr, false);
    }
    if (json.is_discarded()) {
        throw Refusal(ErrorCode::parseError, "The message is no JSON.");
    }
    return json;
}

std::string written(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

} // namespace

Message read(const std::string& body) {
    Json json = parse(body);
    const auto refuse = [](const char* why) { throw Refusal(ErrorCode::invalidRequest, why); };
    if (!json.is_object()) {
        refuse("The message is no object.");
    }
    Message message;
    if (const auto id = json.find("id"); id != json.end()) {
        if (!id->is_string() && !id->is_number_integer() && !id->is_null()) {
            refuse("The id of a message must be a string or an integer.");
        }
        message.id = *id;
        message.isRequest = true;
    }
    const auto method = json.find("method");
    if (method == json.end() && (json.contains("result") || json.contains("error"))) {
        return message;
    }
    if (method == json.end() || !method->is_string() || method->get_ref<const std::string&>().empty()) {
        refuse("The message has no method.");
    }
    message.method = *method;
    if (const auto params = json.find("params"); params != json.end()) {
        message.params = std::move(*params);
    }
    return message;
}

std::string reply(const Json& id, Json result) {
    return written({{"jsonrpc", "2.0"}, {"id", id}, {"result", std::move(result)}});
}

std::string refusal(const Json& id, ErrorCode code, const std::string& message) {
    return written({{"jsonrpc", "2.0"}, {"id", id}, {"error", {{"code", code}, {"message", message}}}});
}

std::string request(const std::string& id, const std::string& method, Json params) {
    return written({{"jsonrpc", "2.0"}, {"id", id}, {"method", method}, {"params", std::move(params)}});
}

std::string notification(const std::string& method, Json params) {
    return written({{"jsonrpc", "2.0"}, {"method", method}, {"params", std::move(params)}});
}

std::size_t countOf(const Json& number) {
    if (!number.is_number_integer()) {
        throw Refusal(ErrorCode::invalidParams, "A line or character must be an integer.");
    }
    return number.is_number_unsigned() ? number.get<std::size_t>() : 0;
}

} // namespace Tool::Lsp
