#include "debuggers/Gdb.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <stdexcept>

namespace {

std::string outputOf(const std::string& command) {
    const auto close = [](std::FILE* stream) { ::pclose(stream); };
    const std::unique_ptr<std::FILE, decltype(close)> stream(::popen((command + " 2>&1").c_str(), "r"), close);
    if (!stream) {
        throw std::runtime_error("Cannot run a command.");
    }
    std::string output;
    std::array<char, 4096> buffer{};
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), stream.get())) {
        output.append(buffer.data(), count);
    }
    return output;
}

std::string option(const std::string& name, const std::string& command) { return " " + name + " \"" + command + "\""; }

// Nobody's settings, nothing from the network, and nothing that depends on the width of a terminal.
const std::string gdb = "env -u DEBUGINFOD_URLS gdb -nx -batch -iex 'set width 0'";
const std::string mark = "==shown==";

} // namespace

std::string Debugger::python(const std::string& lines) { return outputOf(gdb + option("-ex", "python " + lines)); }

std::string Debugger::whyNot() {
    static const std::string reason = [] {
        if (python("print('ready')") != "ready\n") {
            return std::string("There is no gdb with Python here.");
        }
        const std::string started = outputOf(gdb + " -ex starti /bin/true"); // containers may forbid it
        return started.find("Program stopped.") == std::string::npos ? "gdb may run no program here: " + started : "";
    }();
    return reason;
}

std::string Debugger::run(const std::vector<std::string>& variables) const {
    std::string command = "LC_ALL=" + locale + " " + gdb;
    for (const std::string& each : before) {
        command += option("-iex", each);
    }
    if (!libraries.empty()) {
        command += option("-ex", "set environment LD_LIBRARY_PATH " + libraries);
    }
    command += " -ex 'break stop' -ex run -ex up";
    for (const std::string& variable : variables) {
        command += option("-ex", "echo " + mark + "\\n") + option("-ex", "output " + variable) + " -ex 'echo \\n'";
    }
    command += option("-ex", "echo " + mark + "\\n");
    for (const std::string& each : after) {
        command += option("-ex", each);
    }
    return outputOf(command + " " OSTRA_DEBUGGEE);
}

std::vector<std::string> Debugger::show(const std::vector<std::string>& variables) const {
    const std::string output = run(variables);
    std::vector<std::string> shown;
    const std::string line = mark + "\n";
    std::size_t begin = output.find(line);
    for (std::size_t end = 0; begin != std::string::npos; begin = end) {
        begin += line.size();
        end = output.find(line, begin);
        if (end != std::string::npos) {
            shown.push_back(output.substr(begin, end - begin - 1)); // without the end of its line
        }
    }
    EXPECT_EQ(shown.size(), variables.size()) << output;
    return shown;
}
