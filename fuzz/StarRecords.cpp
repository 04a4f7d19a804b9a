// Star catalogue input from any bytes: as a text line and as a run of binary records. Reading,
// writing the line back and reading it again must never fault.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "catalogues/Star.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Star star;
    std::string text(reinterpret_cast<const char*>(data), size);
    if (star.Initialize(text)) {
        std::ostringstream line;
        star.Dump(line);
        Star again;
        again.Initialize(line.str());
        (void)again.GetInfoName();
    }

    const void* next = data;
    std::size_t left = size;
    while (left > 0) {
        Star record;
        const void* after = record.Load(next, left);
        if (after == nullptr) {
            break;
        }
        std::size_t length = std::size_t(static_cast<const std::uint8_t*>(after) -
                                         static_cast<const std::uint8_t*>(next));
        (void)record.GetInfoName();
        next = after;
        left -= length;
    }
    return 0;
}
