#include "ProjectFolder.h"
#include "documentation/Pages.h"
#include "engine/Messages.h"
#include "units/src/Messages.h"

#include <parameters/Kinds.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <rapidjson/error/en.h>

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using Documentation::contentOf;
using testing::IsEmpty;

const std::filesystem::path top = OSTRA_SOURCE_DIR;

/// A sentence and the code of its rule; reasons of the parser have no code.
using Row = std::pair<std::string, std::string>;

/// Returns the messages of both libraries.
std::set<Row> messagesOfTheLibraries() {
    std::set<Row> rows;
    const auto add = [&](const Ostra::Message& message) { rows.emplace(message.sentence, message.code); };
    Parameters::Internal::forEachMessage(add);
    std::for_each(Units::Internal::messages.begin(), Units::Internal::messages.end(), add);
    return rows;
}

/// Returns the messages that the page lists: rows that begin with a sentence and its code.
std::set<Row> messagesOfThePage() {
    std::set<Row> rows;
    const std::regex row("\\| `([^`]*)` \\| `([a-z-]*)` \\| .* \\| .* \\|");
    for (const std::string& line : Documentation::linesOf(contentOf(top / "docs/errors.md"))) {
        if (std::smatch match; std::regex_match(line, match, row)) {
            rows.emplace(match[1].str(), match[2].str());
        }
    }
    return rows;
}

/// Returns the reasons that the parser has for refusing a text.
std::set<std::string> reasonsOfTheParser() {
    std::set<std::string> reasons;
    for (int code = rapidjson::kParseErrorNone + 1; code <= rapidjson::kParseErrorUnspecificSyntaxError + 1; ++code) {
        reasons.insert(rapidjson::GetParseError_En(static_cast<rapidjson::ParseErrorCode>(code)));
    }
    return reasons;
}

/// Returns those of some codes in a page that are sentences, with "*" for what is inserted.
std::set<std::string> sentencesAmong(const std::vector<std::string>& codes) {
    std::set<std::string> sentences;
    for (const std::string& code : codes) {
        if (code.find(' ') != std::string::npos && code.back() == '.') {
            sentences.insert(std::regex_replace(code, std::regex("<[^>]*>"), "*"));
        }
    }
    return sentences;
}

std::set<std::string> allSentences() {
    std::vector<std::string> sentences;
    for (const auto& [sentence, code] : messagesOfTheLibraries()) {
        sentences.push_back(sentence);
    }
    auto all = sentencesAmong(sentences);
    all.merge(reasonsOfTheParser());
    return all;
}

template <class T>
std::set<T> difference(const std::set<T>& a, const std::set<T>& b) {
    std::set<T> result;
    std::set_difference(a.begin(), a.end(), b.begin(), b.end(), std::inserter(result, result.end()));
    return result;
}

TEST(PageOfErrors, ListsEveryMessageWithItsCode) {
    EXPECT_THAT(difference(messagesOfTheLibraries(), messagesOfThePage()), IsEmpty());
}

TEST(PageOfErrors, ListsNoOtherMessage) {
    EXPECT_THAT(difference(messagesOfThePage(), messagesOfTheLibraries()), IsEmpty());
}

TEST(PageOfErrors, ListsEveryReasonOfTheParser) {
    const auto codes = Documentation::codesOfFirstColumn(contentOf(top / "docs/errors.md"));
    EXPECT_THAT(difference(reasonsOfTheParser(), std::set<std::string>(codes.begin(), codes.end())), IsEmpty());
}

TEST(PageOfErrors, ListsTheWordOfEachKind) {
    const std::string page = contentOf(top / "docs/errors.md");
    const std::size_t begin = page.find("`<kind>` in \"Could not find\"");
    const auto codes = Documentation::codesOf(page.substr(begin, page.find("\n\n", begin) - begin));
    const std::set<std::string> listed(codes.begin() + 1, codes.end());
    std::set<std::string> words;
    Parameters::forEachKind([&](auto kind) { words.emplace(kind.info.word()); });
    EXPECT_EQ(listed, words);
}

/// Returns all sources in a folder as one text, with literals of several lines in one.
std::string textOf(const char* folder) {
    std::string text;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(top / folder)) {
        const std::string extension = entry.path().extension().string();
        if ((extension == ".cpp" || extension == ".h") && entry.path().parent_path().filename() != "documentation") {
            text += contentOf(entry.path());
        }
    }
    return std::regex_replace(text, std::regex("\"\\s*\n\\s*\""), "");
}

/// Returns whether each part of a sentence, between what is inserted, stands in a text.
bool isQuoted(const std::string& sentence, const std::string& text) {
    const std::regex inserted("<[^>]*>");
    return std::all_of(std::sregex_token_iterator(sentence.begin(), sentence.end(), inserted, -1), {},
                       [&](const auto& part) { return text.find(part.str()) != std::string::npos; });
}

TEST(Messages, AreQuotedByTests) {
    const std::string tests = textOf("tests");
    std::vector<std::string> missing;
    for (const auto& [sentence, code] : messagesOfTheLibraries()) {
        if (!isQuoted(sentence, tests)) {
            missing.push_back(code);
        }
    }
    EXPECT_THAT(missing, testing::ElementsAre("engine-full")); // which takes more memory than there is
}

/// Returns the headings of the pages of the schema language.
std::set<std::string> headingsOfTheSchemaLanguage() {
    std::set<std::string> headings;
    for (const auto& entry : std::filesystem::directory_iterator(top / "docs")) {
        if (entry.path().filename().string().starts_with("schema-")) {
            for (const std::string& line : Documentation::linesOf(contentOf(entry.path()))) {
                headings.insert(line.starts_with("## ") ? line.substr(3) : "");
            }
        }
    }
    return headings;
}

TEST(PagesOfTheSchemaLanguage, HaveASectionForEachKind) {
    const auto headings = headingsOfTheSchemaLanguage();
    Parameters::forEachKind([&](auto kind) {
        std::string plural(kind.info.plural());
        plural.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(plural.front())));
        EXPECT_EQ(headings.count(plural), 1U) << plural;
    });
}

TEST(Changelog, TellsOfEachKind) {
    const std::string page = std::regex_replace(contentOf(top / "CHANGELOG.md"), std::regex("\\s+"), " ");
    Parameters::forEachKind([&](auto kind) {
        EXPECT_NE(page.find(" " + std::string(kind.info.plural())), std::string::npos) << kind.info.plural();
    });
}

TEST(PageOfTheSchemaLanguage, ListsEveryBase) {
    const auto codes = Documentation::codesOf(contentOf(top / "docs/schema-language.md"));
    std::set<std::string> bases;
    Parameters::forEachKind([&](auto kind) { bases.insert(kind.info.bases().begin(), kind.info.bases().end()); });
    EXPECT_THAT(difference(bases, std::set<std::string>(codes.begin(), codes.end())), IsEmpty());
}

/// The two libraries may say the same, under one code.
TEST(Messages, HaveACodeEach) {
    std::map<std::string, std::string> sentenceOfCode;
    for (const auto& [sentence, code] : messagesOfTheLibraries()) {
        EXPECT_EQ(sentenceOfCode.try_emplace(code, sentence).first->second, sentence) << code;
    }
    EXPECT_EQ(sentenceOfCode.size(), messagesOfTheLibraries().size()) << "a sentence has two codes";
}

TEST(Messages, AreThrownFromTheirTablesAlone) {
    const std::regex phrased("(fail|raise|Exception|_error)\\(\\s*(std::string\\(|\")");
    for (const char* folder : {"src", "units/src"}) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(top / folder)) {
            if (entry.is_regular_file()) {
                EXPECT_FALSE(std::regex_search(contentOf(entry.path()), phrased)) << entry.path();
            }
        }
    }
}

TEST(Guides, QuoteNoMessageThatTheSourcesDoNotHave) {
    const std::string tool = textOf("tools/ostra-params/faults");
    for (const auto& entry : std::filesystem::directory_iterator(top / "docs")) {
        if (entry.path().extension() == ".md") {
            const auto quoted = sentencesAmong(Documentation::codesOf(contentOf(entry.path())));
            auto unknown = difference(quoted, allSentences());
            if (entry.path().filename() == "tool.md") { // which tells what the tool says itself, too
                std::erase_if(unknown, [&](const std::string& sentence) {
                    return isQuoted(std::regex_replace(sentence, std::regex("\\*"), "<>"), tool);
                });
            }
            EXPECT_THAT(unknown, IsEmpty()) << entry.path();
        }
    }
}

} // namespace
