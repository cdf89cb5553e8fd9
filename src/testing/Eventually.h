#pragma once
// Waiting for something another thread or process does, without asserting how fast it is.

#include <chrono>
#include <thread>

// Returns whether the condition became true, polling it every millisecond for up to
// timeoutMs milliseconds (ten seconds by default: generous, since only correctness is tested).
template <class F>
bool Eventually(F condition, int timeoutMs = 10000) {
    auto const deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    while (std::chrono::steady_clock::now() < deadline) {
        if (condition()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return condition();
}
