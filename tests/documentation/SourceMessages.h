#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Documentation {

/// What a source says to its users, found by reading its text.
struct SourceMessages {
    /// The messages that are thrown, with "*" for each thing that is inserted.
    std::set<std::string> patterns;
    /// Literals with a blank in them that are part of no such message: either they are no messages, or they are thrown
    /// in a way that is not seen here.
    std::set<std::string> strays;
};

/// Finds what is handed to fail and raise and to the constructor of what is thrown. Variables that begin with a literal
/// are followed, and both sides of a conditional count.
SourceMessages messagesIn(std::string_view source);

} // namespace Documentation
