#include "server/Frames.h"
#include "server/Lines.h"
#include "server/Message.h"
#include "server/Uri.h"
#include "support/RowNames.h"
#include "tools/Editor.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using namespace Tool::Lsp;
using testing::HasSubstr;

/// Returns what a stream is taken for that comes so many bytes at a time: bodies, and "!" for each broken header.
std::vector<std::string> bodiesIn(const std::string& stream, std::size_t step) {
    std::size_t offset = 0;
    FrameReader frames([&](char* buffer, std::size_t size) {
        const std::size_t count = std::min({step, size, stream.size() - offset});
        stream.copy(buffer, count, offset);
        offset += count;
        return count;
    });
    std::vector<std::string> bodies;
    while (const auto frame = frames.next()) {
        bodies.push_back(frame->fault.empty() ? frame->body : "!");
    }
    return bodies;
}

struct Stream {
    const char* name;
    std::string bytes;
    std::vector<std::string> bodies;
};

class Frames : public testing::TestWithParam<Stream> {};

TEST_P(Frames, AreTakenApartHoweverTheyCome) {
    for (const std::size_t step : {1U, 7U, 100000U}) {
        EXPECT_EQ(bodiesIn(GetParam().bytes, step), GetParam().bodies) << step;
    }
}

INSTANTIATE_TEST_SUITE_P(
    LanguageServer, Frames,
    testing::Values(Stream{"Two", framed("{}") + framed("[1]"), {"{}", "[1]"}},
                    Stream{"WithAnotherField", "Content-Type: a\r\nContent-Length: 2\r\n\r\n{}", {"{}"}},
                    Stream{"InSmallLetters", "content-length:2 \r\n\r\n{}", {"{}"}},
                    Stream{"WithNothingInIt", framed("") + framed("{}"), {"", "{}"}},
                    Stream{"CutOff", framed("{}") + "Content-Length: 9\r\n\r\n{}", {"{}"}},
                    Stream{"CutOffInTheHeader", framed("{}") + "Content-Len", {"{}"}},
                    Stream{"WithoutLength", "Content-Type: a\r\n\r\n{}" + framed("[]"), {"!", "[]"}},
                    Stream{"OfNegativeLength", "Content-Length: -2\r\n\r\n{}" + framed("[]"), {"!", "[]"}},
                    Stream{"OfALengthThatIsNoNumber", "Content-Length: 2x\r\n\r\n{}" + framed("[]"), {"!", "[]"}},
                    Stream{"OfALengthBeyondAllNumbers",
                           "Content-Length: 99999999999999999999\r\n\r\n{}" + framed("[]"),
                           {"!", "[]"}},
                    Stream{"OfALengthBeyondTheBound", "Content-Length: 67108865\r\n\r\n{}" + framed("[]"), {"!", "[]"}},
                    Stream{"OfAnythingElse", std::string(10000, 'x') + framed("[]"), {"!", "[]"}}),
    Support::nameOfRow);

struct Body {
    const char* name;
    std::string text;
    ErrorCode code;
};

class BrokenMessage : public testing::TestWithParam<Body> {};

TEST_P(BrokenMessage, IsRefusedWithTheCodeForIt) {
    try {
        read(GetParam().text);
        FAIL() << "nothing was refused";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.code, GetParam().code) << refusal.what();
    }
}

INSTANTIATE_TEST_SUITE_P(
    LanguageServer, BrokenMessage,
    testing::Values(Body{"Empty", "", ErrorCode::parseError}, Body{"NoJson", "{\"id\":1", ErrorCode::parseError},
                    Body{"NoObject", "[]", ErrorCode::invalidRequest},
                    Body{"WithoutMethod", R"({"id":1})", ErrorCode::invalidRequest},
                    Body{"WithAMethodThatIsNoText", R"({"id":1,"method":2})", ErrorCode::invalidRequest},
                    Body{"WithAnIdThatIsNone", R"({"id":{},"method":"a"})", ErrorCode::invalidRequest},
                    Body{"NestedDeeply", std::string(1000000, '['), ErrorCode::invalidRequest}),
    Support::nameOfRow);

TEST(Message, HasReplacementCharactersForWhatIsNoText) {
    EXPECT_EQ(read(R"({"method":"a","params":{"text":"1 \ud83d\ude00 2 \ud83d 3 \ude00 \\ud83d"}})").params["text"],
              "1 \U0001F600 2 \uFFFD 3 \uFFFD \\ud83d");
    EXPECT_EQ(read("{\"method\":\"a\",\"params\":{\"text\":\"\xFF\"}}").params["text"], "\uFFFD");
}

struct Spot {
    const char* name;
    const char* text;
    std::size_t offset;
    Position utf16;
    Position utf8;
};

class Positions : public testing::TestWithParam<Spot> {};

TEST_P(Positions, LeadThereAndBack) {
    const auto& [name, text, offset, utf16, utf8] = GetParam();
    EXPECT_EQ(Lines(text, Encoding::utf16).positionOf(offset), utf16);
    EXPECT_EQ(Lines(text, Encoding::utf16).offsetOf(utf16), offset);
    EXPECT_EQ(Lines(text, Encoding::utf8).positionOf(offset), utf8);
    EXPECT_EQ(Lines(text, Encoding::utf8).offsetOf(utf8), offset);
}

INSTANTIATE_TEST_SUITE_P(LanguageServer, Positions,
                         testing::Values(Spot{"InNothing", "", 0, {0, 0}, {0, 0}},
                                         Spot{"BehindATab", "\ta", 1, {0, 1}, {0, 1}},
                                         Spot{"BehindALine", "a\nb", 2, {1, 0}, {1, 0}},
                                         Spot{"BehindALineOfWindows", "a\r\nb", 3, {1, 0}, {1, 0}},
                                         Spot{"BehindAnOldLine", "a\rb", 2, {1, 0}, {1, 0}},
                                         Spot{"BehindTheLastLine", "a\n", 2, {1, 0}, {1, 0}},
                                         Spot{"BehindTwoBytes", "\u00E9a", 2, {0, 1}, {0, 2}},
                                         Spot{"BehindFourBytes", "\U0001F600a", 4, {0, 2}, {0, 4}},
                                         Spot{"BehindWhatIsNoUtf8", "\xFF\xC3\x28z", 3, {0, 3}, {0, 3}},
                                         Spot{"BehindHalfACharacter", "\xF0\x9F", 2, {0, 2}, {0, 2}}),
                         Support::nameOfRow);

TEST(Positions, ThatAreNoneAreThoseNearest) {
    const Lines lines("a\U0001F600\r\nb", Encoding::utf16);
    EXPECT_EQ(lines.offsetOf({0, 2}), 1U); // in the middle of a character
    EXPECT_EQ(lines.offsetOf({0, 99}), 5U);
    EXPECT_EQ(lines.offsetOf({1, 99}), 8U);
    EXPECT_EQ(lines.offsetOf({99, 0}), 8U);
    EXPECT_EQ(Lines("ab", Encoding::utf16).positionOf(99), (Position{0, 2}));
}

struct Address {
    const char* name;
    const char* uri;
    const char* path;
};

class Uris : public testing::TestWithParam<Address> {};

TEST_P(Uris, AreThoseOfPaths) { EXPECT_EQ(pathOf(GetParam().uri), GetParam().path); }

INSTANTIATE_TEST_SUITE_P(
    LanguageServer, Uris,
    testing::Values(Address{"Plain", "file:///a/b.json", "/a/b.json"},
                    Address{"Encoded", "file:///a%20%C3%A9/%25.json", "/a \u00E9/%.json"},
                    Address{"OfADrive", "file:///C:/a", "C:/a"}, Address{"OfAnEncodedDrive", "file:///c%3A/a", "c:/a"},
                    Address{"OfAHost", "file://host/share/a", "//host/share/a"},
                    Address{"OfThisHost", "file://localhost/a", "/a"}, Address{"WithMore", "file:///a?b#c", "/a"},
                    Address{"HalfEncoded", "file:///a%2", "/a%2"}, Address{"Shouted", "FILE:///a", "/a"},
                    Address{"OfNoFile", "untitled:Untitled-1", ""}, Address{"Empty", "", ""}),
    Support::nameOfRow);

TEST(Uris, ArePercentEncoded) {
    EXPECT_EQ(uriOf("/a b/\u00E9%.json"), "file:///a%20b/%C3%A9%25.json");
    EXPECT_EQ(uriOf("C:/a"), "file:///C%3A/a");
    EXPECT_EQ(uriOf("//host/a"), "file://host/a");
}

/// What the program says to messages, and with which exit code it ends.
Outcome conversation(const std::vector<std::string>& bodies, const std::string& more = "") {
    std::string input;
    for (const std::string& body : bodies) {
        input += framed(body);
    }
    return Folder().run({"lsp"}, ".out", input + more);
}

constexpr const char* initialize = R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{"capabilities":{}}})";
constexpr const char* shutdown = R"({"jsonrpc":"2.0","id":2,"method":"shutdown"})";
constexpr const char* quit = R"({"jsonrpc":"2.0","method":"exit"})";

TEST(LanguageServer, EndsWellWhenItIsShutDown) {
    const Outcome outcome = conversation({initialize, shutdown, quit});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.out, HasSubstr(R"("textDocumentSync":{"openClose":true,"change":2,"save":true})"));
    EXPECT_THAT(outcome.out, HasSubstr(framed(R"({"jsonrpc":"2.0","id":2,"result":null})")));
    EXPECT_EQ(outcome.err, "");
}

TEST(LanguageServer, EndsBadlyWhenItsClientDies) {
    EXPECT_EQ(conversation({}).exitCode, 1);
    EXPECT_EQ(conversation({initialize}).exitCode, 1);
    EXPECT_EQ(conversation({initialize}, "Content-Length: 100\r\n\r\n{").exitCode, 1);
    EXPECT_EQ(conversation({initialize, quit}).exitCode, 1);
    EXPECT_EQ(conversation({initialize, shutdown}).exitCode, 1);
}

TEST(LanguageServer, GoesOnBehindBrokenFrames) {
    const Outcome outcome =
        Folder().run({"lsp"}, ".out",
                     "Content-Length: -1\r\n\r\n" + framed("{") + framed(initialize) + framed(shutdown) + framed(quit));
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(
        outcome.out,
        HasSubstr(
            R"({"jsonrpc":"2.0","id":null,"error":{"code":-32700,"message":"A message must have a header with the field Content-Length."}})"));
    EXPECT_THAT(
        outcome.out,
        HasSubstr(R"({"jsonrpc":"2.0","id":null,"error":{"code":-32700,"message":"The message is no JSON."}})"));
}

int codeOf(const Tool::Json& answer) { return answer.contains("error") ? answer["error"]["code"].get<int>() : 0; }

TEST(LanguageServer, RefusesRequestsAtTheWrongTime) {
    const Folder folder;
    Editor editor(folder);
    EXPECT_EQ(codeOf(editor.ask("textDocument/hover")), -32002);
    EXPECT_EQ(codeOf(editor.ask("shutdown")), -32002);
    editor.begin();
    EXPECT_EQ(codeOf(editor.ask("initialize")), -32600);
    EXPECT_EQ(codeOf(editor.ask("shutdown")), 0);
    EXPECT_EQ(codeOf(editor.ask("shutdown")), -32600);
}

TEST(LanguageServer, RefusesWhatItDoesNotKnow) {
    const Folder folder;
    Editor editor(folder);
    editor.begin();
    EXPECT_EQ(codeOf(editor.ask("textDocument/unheardOf")), -32601);
    editor.tell("textDocument/unheardOf"); // to which there is no answer
    editor.tell("textDocument/didOpen");
    editor.tell("textDocument/didChange", {{"textDocument", {{"uri", "file:///none"}}}, {"contentChanges", {1}}});
    EXPECT_EQ(codeOf(editor.ask("shutdown")), 0);
}

TEST(LanguageServer, AnswersNoRequestThatWasCancelled) {
    const Folder folder;
    Editor editor(folder);
    editor.begin();
    Message message = read(R"({"id":77,"method":"shutdown"})");
    message.isCancelled = true;
    editor.server().handle(message);
    EXPECT_FALSE(editor.server().isShutDown());
}

TEST(Mailbox, MarksTheRequestThatIsCancelled) {
    Mailbox mailbox;
    mailbox.put(read(R"({"id":1,"method":"a"})"));
    mailbox.put(read(R"({"id":"1","method":"b"})"));
    mailbox.cancel("1");
    EXPECT_FALSE(std::get<Message>(*mailbox.take({})).isCancelled);
    EXPECT_TRUE(std::get<Message>(*mailbox.take({})).isCancelled);
    EXPECT_FALSE(mailbox.take(Mailbox::Clock::now()).has_value());
}

TEST(LanguageServer, CountsBytesForThoseWhoDo) {
    const Folder folder;
    EXPECT_EQ(Editor(folder).begin()["capabilities"]["positionEncoding"], "utf-16");
    const Tool::Json both{{"general", {{"positionEncodings", {"utf-16", "utf-8"}}}}};
    EXPECT_EQ(Editor(folder).begin(both)["capabilities"]["positionEncoding"], "utf-8");
}

} // namespace
