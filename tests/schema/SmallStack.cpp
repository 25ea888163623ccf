#include "SmallStack.h"

#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#else
#include <pthread.h>
#endif

namespace Ostra {

#ifdef _WIN32

namespace {

DWORD WINAPI run(void* work) {
    (*static_cast<const std::function<void()>*>(work))();
    return 0;
}

} // namespace

void runOnSmallStack(const std::function<void()>& work) {
    const HANDLE thread = ::CreateThread(nullptr, 131'072, &run, const_cast<std::function<void()>*>(&work),
                                         STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
    ASSERT_NE(thread, nullptr);
    ASSERT_EQ(::WaitForSingleObject(thread, INFINITE), WAIT_OBJECT_0);
    ::CloseHandle(thread);
}

#else

namespace {

void* run(void* work) {
    (*static_cast<const std::function<void()>*>(work))();
    return nullptr;
}

} // namespace

void runOnSmallStack(const std::function<void()>& work) {
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 131'072), 0);
    pthread_t thread{};
    ASSERT_EQ(pthread_create(&thread, &attributes, &run, const_cast<std::function<void()>*>(&work)), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
}

#endif

} // namespace Ostra
