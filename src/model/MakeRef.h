#pragma once

#include <parameters/Ref.h>

#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace Parameters::Internal {

/// Makes data behind its owners, of whom the reference that is returned is the first.
template <class Data>
Ref<const Data> makeRef(Data data) {
    static_assert(alignof(Data) <= alignof(Owners) && std::is_nothrow_move_constructible_v<Data>);
    const auto destroy = [](Owners* owners) noexcept {
        std::destroy_at(std::launder(reinterpret_cast<Data*>(owners + 1)));
        std::destroy_at(owners);
        ::operator delete(owners);
    };
    void* const memory = ::operator new(sizeof(Owners) + sizeof(Data));
    auto* const owners = new (memory) Owners(destroy);
    return Ref<const Data>::of(new (owners + 1) Data(std::move(data)));
}

} // namespace Parameters::Internal
