#include "server/Session.h"

#include <chrono>
#include <utility>

namespace Tool::Lsp {

bool Session::can(const std::string& pointer) const {
    const Json::json_pointer path(pointer);
    return capabilities.contains(path) && capabilities.at(path) == true;
}

void Session::learn(const std::function<void()>& whenDone) {
    if (job_.valid()) {
        return;
    }
    job_ = std::async(std::launch::async, [snapshot = workspace.snapshot(), before = knowledge_, whenDone] {
        struct Announcer { // of a failure, too
            const std::function<void()>& announce;
            ~Announcer() { announce(); }
        } const announcer{whenDone};
        return std::make_shared<const Knowledge>(snapshot, before.get());
    });
}

void Session::adopt() {
    if (job_.valid() && job_.wait_for(std::chrono::seconds(1)) == std::future_status::ready) {
        take(job_.get());
    }
}

const Knowledge& Session::current() {
    if (isBehind() && job_.valid()) {
        take(job_.get());
    }
    if (isBehind()) {
        take(std::make_shared<const Knowledge>(workspace.snapshot(), knowledge_.get()));
    }
    return *knowledge_;
}

Trials& Session::trials() {
    current();
    return trials_ ? *trials_ : trials_.emplace(knowledge_);
}

void Session::take(std::shared_ptr<const Knowledge> knowledge) {
    knowledge_ = std::move(knowledge);
    trials_.reset();
}

const Knowledge& Session::latest() { return knowledge_ == nullptr ? current() : *knowledge_; }

File Session::fileIn(const Json& params) const {
    const auto file = workspace.find(params.at("textDocument").at("uri").get<std::string>());
    if (!file) {
        throw Refusal(ErrorCode::invalidParams, "There is no such document.");
    }
    return *file;
}

std::pair<File, std::size_t> Session::placeIn(const Json& params) const {
    File file = fileIn(params);
    const Json& position = params.at("position");
    const std::size_t offset =
        Lines(*file.text, encoding).offsetOf({countOf(position.at("line")), countOf(position.at("character"))});
    return {std::move(file), offset};
}

Json asJson(Position position) { return {{"line", position.line}, {"character", position.character}}; }

Json rangeOf(const Lines& lines, std::size_t begin, std::size_t end) {
    return {{"start", asJson(lines.positionOf(begin))}, {"end", asJson(lines.positionOf(end))}};
}

Json Locations::of(const File& file, std::size_t begin, std::size_t end) {
    const Lines& lines = lines_.try_emplace(file.text, *file.text, encoding_).first->second;
    return {{"uri", file.uri}, {"range", rangeOf(lines, begin, end)}};
}

} // namespace Tool::Lsp
