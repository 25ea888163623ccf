#include "output/OutputFile.h"

#include "output/Text.h"
#include "system/System.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <tuple>
#include <utility>

namespace Tool {

namespace fs = std::filesystem;

namespace {

/// Returns what a link leads to, so that the link is kept; other paths are as they are.
fs::path followed(fs::path path) {
    std::error_code error;
    fs::path target = fs::is_symlink(path, error) ? fs::canonical(path, error) : fs::path();
    return target.empty() ? std::move(path) : std::move(target);
}

} // namespace

OutputFile::OutputFile(fs::path target) : target_(followed(std::move(target))) {
    if (System::isDevice(target_)) {
        return;
    }
    try {
        aside_ = System::makeFileBeside(target_);
    } catch (const std::system_error& error) {
        failToWrite(target_, error.code());
    }
}

OutputFile::~OutputFile() {
    if (!aside_.empty()) {
        std::error_code ignored; // a file that is left over is no reason to fail
        fs::remove(aside_, ignored);
    }
}

void OutputFile::write(std::string_view content) const {
    if (const std::error_code error = writeAt(path(), content)) {
        failToWrite(target_, error);
    }
}

void OutputFile::commit() {
    if (aside_.empty()) {
        return;
    }
    std::error_code error;
    fs::rename(aside_, target_, error);
    if (error) {
        failToWrite(target_, error);
    }
    aside_.clear();
}

std::error_code writeAt(const fs::path& path, std::string_view content) {
    errno = 0;
    std::ofstream stream(path, std::ios::binary);
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    stream.close();
    return stream ? std::error_code() : std::error_code(errno, std::generic_category());
}

void writeTo(const std::string& file, std::string_view content) {
    if (file == standardOutput) {
        print(content);
        return;
    }
    OutputFile output(System::pathOf(file));
    output.write(content);
    output.commit();
}

void print(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) {
        throw OutputError("Cannot write the result.");
    }
}

void printError(std::string_view text) { std::ignore = std::fwrite(text.data(), 1, text.size(), stderr); }

void failToWrite(const fs::path& path, const std::error_code& reason) {
    throw OutputError(fmt::format("Cannot write {}: {}.", printable(System::textOf(path)), System::messageOf(reason)));
}

} // namespace Tool
