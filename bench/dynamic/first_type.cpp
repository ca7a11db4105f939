// How long the first look-up of a window's type takes in a fresh process, in nanoseconds.
#include "introspection/introspection.h"
#include "maptool/initialize.h"
#include "maptool/window1.h"

#include <tavrik/runtime.h>

#include <chrono>
#include <cstdio>

int main() {
    using Clock = std::chrono::steady_clock;
    tavrik::RuntimeInit();
    tavrik::initialize();
    const auto window = tavrik::static_ref<tavrik::Object>(tavrik::make<tavrik::Window1::Window1>());
    const auto begin = Clock::now();
    tavrik::Introspection::GetType(window);
    const std::chrono::nanoseconds first = Clock::now() - begin;
    std::printf("%lld\n", static_cast<long long>(first.count()));
    std::fflush(stdout);
    std::_Exit(0);
}
