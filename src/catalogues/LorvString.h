#pragma once
// The component's string: a std::string whose comparisons ignore case.
//
// The original string class had a process-wide switch that made every comparison ignore
// case. C++ has no such switch, so the rule lives in types and functions instead:
//  - LorvString compares with ==, !=, <, <=, >, >= and Compare() without regard to case
//    (ASCII letters; other bytes compare as unsigned chars), against another LorvString,
//    a std::string or a C string, on either side.
//  - Code that holds plain std::string compares through EqualNoCase / CompareNoCase, and
//    ordered containers keyed by names use NoCaseLess.
// Nothing else in the component compares texts, so every comparison ignores case.
#include <string>
#include <string_view>

// Compares two texts ignoring ASCII case: negative, zero or positive as strcmp.
int CompareNoCase(std::string_view a, std::string_view b);
bool EqualNoCase(std::string_view a, std::string_view b);
// Finds `needle` in `text` from `from` on, ignoring case; npos when absent.
std::size_t FindNoCase(std::string_view text, std::string_view needle, std::size_t from = 0);

// Strict weak order on texts ignoring case, for std::map and std::sort.
struct NoCaseLess
{
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const
    {
        return CompareNoCase(a, b) < 0;
    }
};

class LorvString : public std::string
{
public:
    LorvString() = default;
    LorvString(const char* text) : std::string(text ? text : "") {}
    LorvString(const std::string& text) : std::string(text) {}
    LorvString(std::string&& text) : std::string(std::move(text)) {}
    LorvString(const std::string& text, size_type pos, size_type count = npos)
        : std::string(text, pos, count)
    {}
    LorvString(const char* text, size_type count) : std::string(text, count) {}

    int Compare(std::string_view other) const { return CompareNoCase(*this, other); }
};

inline bool operator==(const LorvString& a, const LorvString& b)
{
    return EqualNoCase(a, b);
}
inline bool operator==(const LorvString& a, const std::string& b)
{
    return EqualNoCase(a, b);
}
inline bool operator==(const LorvString& a, const char* b)
{
    return EqualNoCase(a, b ? b : "");
}
inline bool operator<(const LorvString& a, const LorvString& b)
{
    return a.Compare(b) < 0;
}
inline bool operator<(const LorvString& a, const std::string& b)
{
    return a.Compare(b) < 0;
}
inline bool operator<(const std::string& a, const LorvString& b)
{
    return b.Compare(a) > 0;
}
inline bool operator<(const LorvString& a, const char* b)
{
    return a.Compare(b ? b : "") < 0;
}
inline bool operator>(const LorvString& a, const LorvString& b)
{
    return b < a;
}
inline bool operator<=(const LorvString& a, const LorvString& b)
{
    return !(b < a);
}
inline bool operator>=(const LorvString& a, const LorvString& b)
{
    return !(a < b);
}
