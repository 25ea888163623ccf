#include "output/OutputFile.h"

#include "output/Text.h"

#include <fmt/format.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>

namespace Tool {

namespace fs = std::filesystem;

OutputFile::OutputFile(fs::path target) : target_(std::move(target)) {
    std::string name = target_.string() + ".XXXXXX";
    const int descriptor = ::mkstemp(name.data());
    if (descriptor < 0) {
        failToWrite(target_, {errno, std::generic_category()});
    }
    // As any new file, not for its owner alone.
    const mode_t mask = ::umask(0);
    ::umask(mask);
    ::fchmod(descriptor, 0666U & ~mask);
    ::close(descriptor);
    aside_ = name;
}

OutputFile::~OutputFile() {
    if (!aside_.empty()) {
        std::error_code ignored; // a file that is left over is no reason to fail
        fs::remove(aside_, ignored);
    }
}

void OutputFile::write(std::string_view content) const {
    errno = 0;
    std::ofstream stream(aside_, std::ios::binary);
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    stream.close();
    if (!stream) {
        failToWrite(target_, {errno, std::generic_category()});
    }
}

void OutputFile::commit() {
    std::error_code error;
    fs::rename(aside_, target_, error);
    if (error) {
        failToWrite(target_, error);
    }
    aside_.clear();
}

void writeFile(const fs::path& file, std::string_view content) {
    OutputFile output(file);
    output.write(content);
    output.commit();
}

void failToWrite(const fs::path& path, const std::error_code& reason) {
    throw OutputError(fmt::format("Cannot write {}: {}.", printable(path.string()), reason.message()));
}

} // namespace Tool
