#include <parameters/Ref.h>

#include <cassert>

namespace Parameters::Internal {

namespace {

void nothing(Owners*) noexcept {}

std::intptr_t placeOf(Owners::Destroy function) noexcept { return reinterpret_cast<std::intptr_t>(function); }

} // namespace

Owners::Owners(Destroy function) noexcept : destroy_(static_cast<std::int32_t>(placeOf(function) - placeOf(&nothing))) {
    assert(placeOf(&nothing) + destroy_ == placeOf(function)); // no library is that large
}

void Owners::destroy() noexcept {
    reinterpret_cast<Destroy>(placeOf(&nothing) + destroy_)(this); // NOLINT(performance-no-int-to-ptr): a function
}

} // namespace Parameters::Internal
