#pragma once

#include "schema/ExceptionFactory.h"

#include <exception>
#include <string>
#include <utility>

namespace Support {

/// An exception of neither library: what arrives as one was raised through the factory that the test handed over.
class Complaint : public std::exception {
public:
    explicit Complaint(std::string text) : message(std::move(text)) {}
    const char* what() const noexcept override { return message.c_str(); }

    std::string message; // whole, where what() ends at a NUL
};

using Complaints = Ostra::ExceptionFactoryOf<Complaint>;

/// Returns the whole message of the complaint that the call throws, or a text that says that there was none.
template <class Call>
std::string complaintOf(Call&& call) {
    try {
        std::forward<Call>(call)();
    } catch (const Complaint& complaint) {
        return complaint.message;
    }
    return "(no complaint)";
}

} // namespace Support
