#pragma once
// The name of the next value or level in a StateContainer chain. Its type is what tells
// `operator<<` that a text is a key and not a value.
#include <string>

class AstroKey
{
public:
    AstroKey() = default;
    explicit AstroKey(const std::string& name) : Name(name) {}
    explicit AstroKey(const char* name) : Name(name ? name : "") {}

    const std::string& GetName() const { return Name; }
    bool IsEmpty() const { return Name.empty(); }

private:
    std::string Name;
};
