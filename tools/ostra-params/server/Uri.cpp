#include "server/Uri.h"

#include "output/Text.h"

#include <charconv>

namespace Tool::Lsp {

namespace {

constexpr std::string_view scheme = "file://";

bool hasDrive(std::string_view path) {
    return path.size() >= 2 && path[1] == ':' && ((path[0] | 0x20) >= 'a' && (path[0] | 0x20) <= 'z');
}

std::string decoded(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned byte = 0;
        const char* const code = text.data() + i + 1;
        if (text[i] == '%' && i + 2 < text.size() && std::from_chars(code, code + 2, byte, 16).ptr == code + 2) {
            result += static_cast<char>(byte);
            i += 2;
        } else {
            result += text[i];
        }
    }
    return result;
}

} // namespace

std::string pathOf(std::string_view uri) {
    if (lower(uri.substr(0, scheme.size())) != scheme) {
        return {};
    }
    uri.remove_prefix(scheme.size());
    std::string path = decoded(uri.substr(0, uri.find_first_of("?#")));
    if (path.starts_with("localhost/")) {
        path.erase(0, path.find('/'));
    }
    if (path.empty() || path.front() != '/') {
        return path.empty() ? path : "//" + path; // of another host
    }
    return hasDrive(std::string_view(path).substr(1)) ? path.substr(1) : path;
}

std::string uriOf(std::string_view path) {
    constexpr std::string_view plain = "/-._~";
    if (path.starts_with("//")) {
        return "file:" + percentEncoded(path, plain);
    }
    return (hasDrive(path) ? "file:///" : "file://") + percentEncoded(path, plain);
}

} // namespace Tool::Lsp
