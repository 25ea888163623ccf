#pragma once

#include <string>
#include <vector>

/// A session of gdb, which lets the program run into its function stop().
struct Debugger {
    std::string libraries;           ///< The folder of the shared libraries; empty is where they were built.
    std::string locale = "C.UTF-8";  ///< In which gdb runs.
    std::vector<std::string> before; ///< Commands before the program runs.
    std::vector<std::string> after;  ///< Commands after all else.

    /// Returns why no program can be looked at here: there is no gdb, or it may not; empty when it can.
    static std::string whyNot();
    /// Returns what lines of Python in gdb print.
    static std::string python(const std::string& lines);

    /// Returns what is printed of each variable of main(); what else gdb says of it fails the test.
    std::vector<std::string> show(const std::vector<std::string>& variables) const;
    /// Returns all that gdb says.
    std::string run(const std::vector<std::string>& variables) const;
};
