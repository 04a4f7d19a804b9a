#include "host/HostFonts.h"

#include <algorithm>
#include <array>
#include <memory>

#include "platform/TFont.h"

namespace {

// Character heights in pixels at the screen's 96 dots per inch; 5 is the text of lists.
constexpr std::array<int, kHostFontCount> kCharacterHeights = {9,  10, 11, 12, 12,
                                                               13, 14, 16, 18, 20};

int Clamp(int index)
{
    return std::clamp(index, 0, kHostFontCount - 1);
}

} // namespace

int HostFontCharacterHeight(int index)
{
    return kCharacterHeights[static_cast<std::size_t>(Clamp(index))];
}

TFont* getHostFont(int /*group*/, int index)
{
    static std::array<std::unique_ptr<TFont>, kHostFontCount> fonts;
    std::unique_ptr<TFont>& font = fonts[static_cast<std::size_t>(Clamp(index))];
    if (!font) {
        font = std::make_unique<TFont>("Arial", -HostFontCharacterHeight(index));
    }
    return font.get();
}
