#include "SmallStack.h"

#include <gtest/gtest.h>
#include <pthread.h>

namespace Ostra {

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

} // namespace Ostra
