#pragma once

#include "model/Access.h"

#include <cstddef>
#include <tuple>
#include <utility>

namespace Parameters::Internal {

/// What an object names, found and not yet put into its data. It has the handles of the data's links(), in their order;
/// none of them as long as they are not found.
template <class... Handles>
class Links {
public:
    Links() noexcept : handles_(Access::none<Handles>()...) {}
    explicit Links(Handles... handles) noexcept : Links() { take(std::tie(handles...)); }
    Links(Links&& other) noexcept : Links() { take(other.handles_); }
    Links& operator=(Links&& other) noexcept {
        take(other.handles_);
        return *this;
    }

    bool isNone() const noexcept { return Access::isNone(std::get<0>(handles_)); }

    /// Puts them into the data of an object that nobody sees yet.
    template <class Data>
    void moveInto(Data& data) noexcept {
        moveTo(handles_, data.links());
    }

private:
    template <class From>
    void take(From&& from) noexcept {
        moveTo(from, handles_);
    }
    template <class From, class To>
    static void moveTo(From& from, To&& to) noexcept {
        [&]<std::size_t... places>(std::index_sequence<places...>) {
            (Access::put(std::move(std::get<places>(from)), std::get<places>(to)), ...);
        }
        (std::index_sequence_for<Handles...>{});
    }

    std::tuple<Handles...> handles_;
};

namespace Detail {

template <class... Handles>
Links<Handles...> linksOf(std::tuple<Handles&...>);

} // namespace Detail

/// The links of data.
template <class Data>
using LinksOf = decltype(Detail::linksOf(std::declval<Data&>().links()));

} // namespace Parameters::Internal
