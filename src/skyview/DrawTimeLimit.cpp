#include "skyview/DrawTimeLimit.h"

#include "platform/WindowCalls.h"

namespace {

// What a scrolling frame leaves to the copy to the screen, and the least time it gets.
constexpr std::int32_t kScrollMarginMs = 10;

} // namespace

void DrawTimeLimit::Start(std::uint32_t milliseconds)
{
    nLimit = milliseconds;
    nStartTick = GetTickCount();
    bRunning = true;
}

bool DrawTimeLimit::IsExpired() const
{
    // Unsigned difference: right across the wrap of the 32-bit tick count.
    return bRunning && nLimit > 0 && std::uint32_t(GetTickCount() - nStartTick) >= nLimit;
}

std::uint32_t DrawTimeLimit::ForScrollInterval(std::int32_t intervalMs)
{
    std::int64_t limit = std::int64_t(intervalMs) - kScrollMarginMs;
    return limit > kScrollMarginMs ? std::uint32_t(limit) : std::uint32_t(kScrollMarginMs);
}
