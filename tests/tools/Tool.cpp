#include "tools/Tool.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char character : text) {
        result += character == '\'' ? std::string("'\\''") : std::string(1, character);
    }
    return result + "'";
}

fs::path makeTemporaryFolder() {
    std::string name = (fs::temp_directory_path() / "ostra-params-test-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("Cannot make a temporary folder.");
    }
    return name;
}

} // namespace

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string pathOfTool() {
    const char* const given = std::getenv("OSTRA_TOOL");
    return given != nullptr ? given : OSTRA_PARAMS_TOOL;
}

bool isToolForWindows() {
    const char* const system = std::getenv("OSTRA_TOOL_SYSTEM");
    return system != nullptr && std::string(system) == "Windows";
}

Folder::Folder() : path_(makeTemporaryFolder()) {}

Folder::~Folder() {
    std::error_code ignored; // what remains of a temporary folder is no reason to fail
    fs::remove_all(path_, ignored);
}

void Folder::write(const std::string& name, const std::string& bytes) const {
    fs::create_directories((path_ / name).parent_path());
    std::ofstream(path_ / name, std::ios::binary) << bytes;
}

void Folder::makeFolder(const std::string& name) const { fs::create_directories(path_ / name); }

void Folder::makeSocket(const std::string& name) const {
    const std::string file = (path_ / name).string();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    file.copy(address.sun_path, sizeof address.sun_path - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const int result = ::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    ::close(socket);
    if (result != 0) {
        throw std::runtime_error("Cannot make a socket.");
    }
}

std::vector<std::string> Folder::files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(path_)) {
        const std::string name = entry.path().lexically_relative(path_).string();
        if (!entry.is_directory() && name.front() != '.') {
            names.push_back(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

Outcome Folder::run(const std::vector<std::string>& arguments, const std::string& output,
                    const std::string& input) const {
    return runProgram(pathOfTool(), arguments, output, input);
}

Outcome Folder::runProgram(const std::string& program, const std::vector<std::string>& arguments,
                           const std::string& output, const std::string& input) const {
    write(".in", input);
    std::string command = "cd " + quoted(path_.string()) + " && " + quoted(program);
    for (const std::string& argument : arguments) {
        command.append(" ").append(quoted(argument));
    }
    const int status = std::system((command + " >" + output + " 2>.err <.in").c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf(path_ / ".out"), contentOf(path_ / ".err")};
}
