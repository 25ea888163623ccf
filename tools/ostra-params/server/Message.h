#pragma once

#include "output/Json.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace Tool::Lsp {

/// What is wrong with a request, by the codes of JSON-RPC and of the protocol.
enum class ErrorCode : int {
    parseError = -32700,
    invalidRequest = -32600,
    methodNotFound = -32601,
    invalidParams = -32602,
    internalError = -32603,
    serverNotInitialized = -32002,
    requestFailed = -32803,
    requestCancelled = -32800
};

/// A request that cannot be answered.
struct Refusal : std::runtime_error {
    Refusal(ErrorCode why, const std::string& message) : std::runtime_error(message), code(why) {}

    ErrorCode code;
};

/// A request, a notification, or a reply of the client's.
struct Message {
    std::string method = {}; ///< Empty for a reply.
    Json params = Json::object();
    Json id = {}; ///< Null for a notification.
    bool isRequest = false;
    bool isCancelled = false; ///< By the client, before anybody looked at it.

    bool isReply() const { return method.empty(); }
};

/// Reads a message. Text that is no UTF-8, and halves of characters of UTF-16, are mended, as editors may have them.
/// @throws Refusal
Message read(const std::string& body);

/// Returns the text of what goes to the client. Bytes that are no UTF-8 become replacement characters.
/// @{
std::string reply(const Json& id, Json result);
std::string refusal(const Json& id, ErrorCode code, const std::string& message);
std::string request(const std::string& id, const std::string& method, Json params);
std::string notification(const std::string& method, Json params);
/// @}

/// Returns a number of a position; one below zero counts as zero.
/// @throws Refusal if it is none
std::size_t countOf(const Json& number);

} // namespace Tool::Lsp
