// Feeds arbitrary text to the profile reader, and checks that setting a key in any text reads
// back as set while every other key keeps its value.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "host/HostProf.h"

namespace {

void Check(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

// The last three lines of the input name a section, a key and a value to set.
void SplitRequest(const std::string& input, std::string& text, std::string& section,
                  std::string& key, std::string& value)
{
    std::string parts[3];
    std::size_t end = input.size();
    for (int i = 2; i >= 0; --i) {
        std::size_t newline = end == 0 ? std::string::npos : input.rfind('\n', end - 1);
        std::size_t start = newline == std::string::npos ? 0 : newline + 1;
        parts[i] = input.substr(start, end - start);
        end = newline == std::string::npos ? 0 : newline;
    }
    text = input.substr(0, end);
    section = parts[0];
    key = parts[1];
    value = parts[2];
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(reinterpret_cast<const char*>(data), size);
    HostProf whole = HostProf::FromText(input);
    for (const std::string& section : whole.GetSections()) {
        for (const std::string& key : whole.GetKeys(section)) {
            whole.GetInt(section, key, 0);
            whole.GetBool(section, key, false);
            whole.GetColor(section, key, 0);
            Check(whole.Has(section, key));
        }
    }

    std::string text, section, key, value;
    SplitRequest(input, text, section, key, value);
    HostProf before = HostProf::FromText(text);
    std::string changed = HostProf::SetInText(text, section, key, value);
    HostProf after = HostProf::FromText(changed);
    if (!HostProf::CanHold(section, key, value)) {
        Check(changed == text);
        return 0;
    }
    Check(after.Get(section, key, "\x01missing") == value);
    for (const std::string& s : before.GetSections()) {
        for (const std::string& k : before.GetKeys(s)) {
            bool isTheKey = EqualNoCase(s, section) && EqualNoCase(k, key);
            Check(isTheKey || after.Get(s, k) == before.Get(s, k));
        }
    }
    for (const std::string& s : after.GetSections()) {
        for (const std::string& k : after.GetKeys(s)) {
            bool isTheKey = EqualNoCase(s, section) && EqualNoCase(k, key);
            Check(isTheKey || before.Has(s, k));
        }
    }
    return 0;
}
