#include "documentation/SourceMessages.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <map>
#include <utility>

namespace Documentation {

namespace {

struct Token {
    enum class Type { word, literal, sign };
    Type type;
    std::string text;

    bool is(std::string_view sign) const { return type != Type::literal && text == sign; }
    bool isLiteral() const { return type == Type::literal; }
};

using Tokens = std::vector<Token>;
using Range = std::pair<std::size_t, std::size_t>;

bool isWordCharacter(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }

/// Cuts a source into tokens; comments and preprocessor lines are left out.
class Tokenizer {
public:
    explicit Tokenizer(std::string_view source) : rest_(source) {}

    Tokens run() {
        while (!rest_.empty()) {
            step();
        }
        return std::move(tokens_);
    }

private:
    void step() {
        if (rest_.starts_with("//") || rest_.front() == '#') {
            rest_.remove_prefix(std::min(rest_.find('\n'), rest_.size()));
        } else if (rest_.front() == '"') {
            takeLiteral();
        } else if (rest_.front() == '\'') {
            rest_.remove_prefix(rest_.find('\'', rest_[1] == '\\' ? 3 : 1) + 1);
        } else if (isWordCharacter(rest_.front())) {
            takeWord();
        } else {
            if (std::isspace(static_cast<unsigned char>(rest_.front())) == 0) {
                tokens_.push_back({Token::Type::sign, std::string(1, rest_.front())});
            }
            rest_.remove_prefix(1);
        }
    }

    void takeLiteral() {
        std::string text;
        std::size_t end = 1;
        for (; rest_[end] != '"'; ++end) {
            end += rest_[end] == '\\' ? 1 : 0;
            text += rest_[end];
        }
        rest_.remove_prefix(end + 1);
        if (!tokens_.empty() && tokens_.back().isLiteral()) {
            tokens_.back().text += text;
        } else {
            tokens_.push_back({Token::Type::literal, text});
        }
    }

    void takeWord() {
        std::size_t length = 0;
        while (length < rest_.size() && (isWordCharacter(rest_[length]) || rest_[length] == '\'')) {
            ++length; // a digit separator belongs to its number
        }
        tokens_.push_back({Token::Type::word, std::string(rest_.substr(0, length))});
        rest_.remove_prefix(length);
    }

    std::string_view rest_;
    Tokens tokens_;
};

class Collector {
public:
    explicit Collector(Tokens tokens) : tokens_(std::move(tokens)), used_(tokens_.size()) {}

    SourceMessages run() {
        for (std::size_t i = 0; i + 1 < tokens_.size(); ++i) {
            if (tokens_[i].type == Token::Type::word && tokens_[i + 1].is("=")) {
                const Range value{i + 2, endOf(i + 2, ";")};
                if (value.first < value.second && tokens_[value.first].isLiteral()) {
                    variables_[tokens_[i].text] = value;
                }
            }
            if (isThrown(i)) {
                collect({i + 2, endOf(i + 2, ",")});
            }
        }
        return {std::move(patterns_), strays()};
    }

private:
    /// Whether the token is the name of what is called with a message.
    bool isThrown(std::size_t i) const {
        if (!tokens_[i + 1].is("(")) {
            return false;
        }
        if (tokens_[i].is("fail") || tokens_[i].is("raise")) {
            return true;
        }
        while (i >= 3 && tokens_[i - 1].is(":")) {
            i -= 3; // a namespace and "::"
        }
        return i >= 1 && tokens_[i - 1].is("throw");
    }

    /// Returns where an expression ends: at the sign, or at the bracket that closes around it.
    std::size_t endOf(std::size_t i, std::string_view sign) const {
        int depth = 0;
        for (; i < tokens_.size(); ++i) {
            const bool opens = tokens_[i].is("(") || tokens_[i].is("{") || tokens_[i].is("[");
            const bool closes = tokens_[i].is(")") || tokens_[i].is("}") || tokens_[i].is("]");
            if (depth == 0 && (closes || tokens_[i].is(sign))) {
                return i;
            }
            depth += opens ? 1 : closes ? -1 : 0;
        }
        return i;
    }

    void collect(Range expression) {
        for (const std::string& pattern : patternsOf(expression)) {
            if (pattern != "*") { // what only hands a message on
                patterns_.insert(pattern);
            }
        }
    }

    std::vector<std::string> patternsOf(Range sum) {
        std::vector<std::string> patterns{""};
        while (sum.first < sum.second) {
            const std::size_t end = std::min(endOf(sum.first, "+"), sum.second);
            std::vector<std::string> longer;
            for (const std::string& tail : alternativesOf({sum.first, end})) {
                for (const std::string& pattern : patterns) {
                    longer.push_back(pattern + tail);
                }
            }
            patterns = std::move(longer);
            sum.first = end + 1;
        }
        return patterns;
    }

    std::vector<std::string> alternativesOf(Range summand) {
        const auto [first, last] = summand;
        if (last - first == 1) {
            if (const auto variable = variables_.find(tokens_[first].text); variable != variables_.end()) {
                return patternsOf(variable->second);
            }
        }
        std::vector<std::string> literals;
        bool isConditional = false;
        bool isConverted = true; // to a std::string, and nothing else
        for (std::size_t i = first; i < last; ++i) {
            const Token& token = tokens_[i];
            if (token.isLiteral()) {
                literals.push_back(token.text);
            }
            isConditional = isConditional || token.is("?");
            isConverted = isConverted && (token.isLiteral() || token.is("std") || token.is("string") || token.is(":") ||
                                          token.is("(") || token.is(")"));
        }
        if (literals.empty() || (!isConditional && !isConverted)) {
            return {"*"};
        }
        std::fill(used_.begin() + static_cast<std::ptrdiff_t>(first), used_.begin() + static_cast<std::ptrdiff_t>(last),
                  true);
        return literals;
    }

    std::set<std::string> strays() const {
        std::set<std::string> strays;
        for (std::size_t i = 0; i < tokens_.size(); ++i) {
            const bool isKindWord = i >= 2 && tokens_[i - 1].is("=") && tokens_[i - 2].is("word");
            if (tokens_[i].isLiteral() && !used_[i] && !isKindWord && tokens_[i].text.find(' ') != std::string::npos) {
                strays.insert(tokens_[i].text);
            }
        }
        return strays;
    }

    Tokens tokens_;
    std::vector<bool> used_;
    std::map<std::string, Range> variables_;
    std::set<std::string> patterns_;
};

} // namespace

SourceMessages messagesIn(std::string_view source) { return Collector(Tokenizer(source).run()).run(); }

} // namespace Documentation
