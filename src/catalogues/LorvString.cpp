#include "catalogues/LorvString.h"

#include <algorithm>

namespace {

unsigned char Fold(char c)
{
    unsigned char u = static_cast<unsigned char>(c);
    return (u >= 'A' && u <= 'Z') ? static_cast<unsigned char>(u + ('a' - 'A')) : u;
}

} // namespace

int CompareNoCase(std::string_view a, std::string_view b)
{
    std::size_t n = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < n; ++i) {
        unsigned char x = Fold(a[i]);
        unsigned char y = Fold(b[i]);
        if (x != y) {
            return x < y ? -1 : 1;
        }
    }
    if (a.size() == b.size()) {
        return 0;
    }
    return a.size() < b.size() ? -1 : 1;
}

bool EqualNoCase(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && CompareNoCase(a, b) == 0;
}

std::size_t FindNoCase(std::string_view text, std::string_view needle, std::size_t from)
{
    if (needle.size() > text.size()) {
        return std::string_view::npos;
    }
    for (std::size_t i = from; i + needle.size() <= text.size(); ++i) {
        if (EqualNoCase(text.substr(i, needle.size()), needle)) {
            return i;
        }
    }
    return std::string_view::npos;
}
