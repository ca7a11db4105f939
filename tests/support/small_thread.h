#pragma once

#include <gtest/gtest.h>

#include <pthread.h>

#include <functional>

namespace tavrik::test {

// Runs code to its end on a thread of its own with a stack of that many bytes.
inline void run_on_stack_of(std::size_t bytes, std::function<void()> code) {
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, bytes), 0);
    const auto run = [](void* function) -> void* {
        (*static_cast<std::function<void()>*>(function))();
        return nullptr;
    };
    pthread_t thread{};
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &code), 0);
    pthread_attr_destroy(&attributes);
    pthread_join(thread, nullptr);
}

}  // namespace tavrik::test
