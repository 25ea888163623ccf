#pragma once

#include "model/Texts.h"

#include <parameters/Ref.h>

#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace Parameters::Internal {

/// Makes data of its parts behind its owners, of whom the reference that is returned is the first, and leaves room for
/// so many bytes behind it.
template <class Data, class... Parts>
Ref<Data> makeRefBefore(std::size_t room, Parts&&... parts) {
    static_assert(alignof(Data) <= alignof(Owners) && std::is_nothrow_move_constructible_v<Data>);
    const auto destroy = [](Owners* owners) noexcept {
        std::destroy_at(std::launder(reinterpret_cast<Data*>(owners + 1)));
        std::destroy_at(owners);
        ::operator delete(owners);
    };
    void* const memory = ::operator new(sizeof(Owners) + sizeof(Data) + room);
    auto* const owners = new (memory) Owners(destroy);
    return Ref<Data>::of(new (owners + 1) Data{std::forward<Parts>(parts)...});
}

template <class Data>
Ref<const Data> makeRef(Data data) {
    return makeRefBefore<Data>(0, std::move(data));
}

/// Makes data of its parts with its strings behind it.
/// @throws std::length_error when the strings are longer than 4 GiB together.
template <class Data, class... Parts>
Ref<Data> makeRefWith(const typename Data::Strings& strings, Parts&&... parts) {
    const std::size_t length =
        Texts::lengthWith(strings, sizeof(Owners) + sizeof(Data)) - sizeof(Owners) - sizeof(Data);
    auto data = makeRefBefore<Data>(length, std::forward<Parts>(parts)...);
    data->strings.put(strings, reinterpret_cast<char*>(&*data + 1));
    return data;
}

} // namespace Parameters::Internal
