#include "system/System.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// What it needs stands above.
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <random>

namespace Tool::System {

namespace {

namespace fs = std::filesystem;

/// Returns a text as the system takes it. What is no UTF-8 becomes a replacement character, so that nothing fails here.
std::wstring wide(std::string_view text) {
    const auto convert = [&](wchar_t* result, int size) {
        return ::MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result, size);
    };
    std::wstring result(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
    convert(result.data(), static_cast<int>(result.size()));
    return result;
}

std::string narrow(std::wstring_view text) {
    const auto convert = [&](char* result, int size) {
        return ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result, size, nullptr,
                                     nullptr);
    };
    std::string result(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(result.data(), static_cast<int>(result.size()));
    return result;
}

/// Makes something under a name beside another one that nothing has yet.
fs::path makeBeside(const fs::path& target, const std::function<bool(const wchar_t*)>& make) {
    static std::random_device random;
    for (;;) {
        const fs::path path = target.native() + L"." + std::to_wstring(random());
        if (make(path.c_str())) {
            return path;
        }
        const DWORD reason = ::GetLastError();
        if (reason != ERROR_FILE_EXISTS && reason != ERROR_ALREADY_EXISTS) {
            throw std::system_error(static_cast<int>(reason), std::system_category());
        }
    }
}

/// Quotes a word of a command line so that programs read it as it is: backslashes are doubled before quotation marks
/// alone.
std::wstring asWord(std::wstring_view word) {
    std::wstring result = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t character : word) {
        if (character == L'"') {
            result.append(backslashes + 1, L'\\');
        }
        backslashes = character == L'\\' ? backslashes + 1 : 0;
        result += character;
    }
    return result.append(backslashes, L'\\') + L"\"";
}

/// Returns the file of a program on the path; empty when there is none. The system itself would look in the working
/// folder first, where anybody may have put a program of that name.
std::wstring findProgram(const std::wstring& name) {
    const wchar_t* const folders = ::_wgetenv(L"PATH");
    const auto search = [&](wchar_t* result, DWORD size) {
        return folders == nullptr ? 0 : ::SearchPathW(folders, name.c_str(), L".exe", size, result, nullptr);
    };
    std::wstring file(search(nullptr, 0), L'\0');
    file.resize(search(file.data(), static_cast<DWORD>(file.size())));
    return file;
}

/// Runs a program to its end and returns its exit code; nothing if it could not be started.
std::optional<int> start(const std::string& program, const std::vector<std::string>& arguments, STARTUPINFOW& startup) {
    const std::wstring file = findProgram(wide(program));
    std::wstring commandLine = asWord(file);
    for (const std::string& argument : arguments) {
        commandLine += L" " + asWord(wide(argument));
    }
    PROCESS_INFORMATION process{};
    if (file.empty() || ::CreateProcessW(file.c_str(), commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                                         &startup, &process) == 0) {
        return std::nullopt;
    }
    DWORD exitCode = 1;
    ::WaitForSingleObject(process.hProcess, INFINITE);
    ::GetExitCodeProcess(process.hProcess, &exitCode);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return static_cast<int>(exitCode);
}

struct CloseHandleOf {
    void operator()(void* handle) const { ::CloseHandle(handle); }
};

/// A handle that is open; none if it could not be opened.
using Handle = std::unique_ptr<void, CloseHandleOf>;

/// Opens a file that is there so that a program that is started has it, too.
Handle openFor(const fs::path& path, DWORD access) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const HANDLE file = ::CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    return Handle(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

} // namespace

std::vector<std::string> begin(int, const char* const*) {
    for (std::FILE* stream : {stdin, stdout, stderr}) {
        ::_setmode(::_fileno(stream), _O_BINARY);
    }
    static const UINT encoding = ::GetConsoleOutputCP(); // which is the console's, and stays when the program is gone
    if (encoding != 0 && ::SetConsoleOutputCP(CP_UTF8) != 0) {
        std::atexit([] { ::SetConsoleOutputCP(encoding); });
    }
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&::LocalFree)> words(::CommandLineToArgvW(::GetCommandLineW(), &count),
                                                                  &::LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.push_back(narrow(words.get()[i]));
    }
    return arguments;
}

fs::path pathOf(std::string_view name) { return wide(name); }

std::optional<std::string> environment(const char* name) {
    const wchar_t* const value = ::_wgetenv(wide(name).c_str());
    return value != nullptr ? std::optional(narrow(value)) : std::nullopt;
}

std::string textOf(const fs::path& path) { return narrow(path.generic_wstring()); }

bool canDraw() {
    const HANDLE console = ::GetStdHandle(STD_ERROR_HANDLE);
    DWORD mode = 0;
    return ::GetConsoleMode(console, &mode) != 0 &&
           ::SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

File open(const fs::path& path) { return {::_wfopen(path.c_str(), L"rb"), std::fclose}; }

std::size_t readInput(char* buffer, std::size_t size) {
    DWORD count = 0;
    const auto most = static_cast<DWORD>(std::min<std::size_t>(size, 1U << 20U));
    return ::ReadFile(::GetStdHandle(STD_INPUT_HANDLE), buffer, most, &count, nullptr) != 0 ? count : 0;
}

bool isDevice(const fs::path& path) {
    const Handle file = openFor(path, GENERIC_WRITE);
    return file && ::GetFileType(file.get()) != FILE_TYPE_DISK;
}

fs::path makeFileBeside(const fs::path& target) {
    return makeBeside(target, [](const wchar_t* path) {
        const HANDLE file = ::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        return file != INVALID_HANDLE_VALUE && ::CloseHandle(file) != 0;
    });
}

fs::path makeFolderBeside(const fs::path& target) {
    return makeBeside(target, [](const wchar_t* path) { return ::CreateDirectoryW(path, nullptr) != 0; });
}

bool run(const std::string& program, const std::vector<std::string>& arguments) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    return start(program, arguments, startup) == 0;
}

std::optional<int> run(const std::string& program, const std::vector<std::string>& arguments, const Streams& streams) {
    const Handle input = openFor(streams.input, GENERIC_READ);
    const Handle output = openFor(streams.output, GENERIC_WRITE);
    const Handle errors = openFor(streams.errors, GENERIC_WRITE);
    if (!input || !output || !errors) {
        return std::nullopt;
    }
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = input.get();
    startup.hStdOutput = output.get();
    startup.hStdError = errors.get();
    return start(program, arguments, startup);
}

} // namespace Tool::System
