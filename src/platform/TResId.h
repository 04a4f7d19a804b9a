#pragma once
// The name of a module resource: a text, or a number (written "#123" as a name).
#include <string>

class TResId
{
public:
    TResId(const char* name) : Name(name ? name : "") {}
    TResId(const std::string& name) : Name(name) {}
    TResId(int id) : Name("#" + std::to_string(id)), nId(id), bNumber(true) {}

    bool IsString() const { return !bNumber; }
    int GetInt() const { return nId; }
    const std::string& GetName() const { return Name; }

private:
    std::string Name;
    int nId = 0;
    bool bNumber = false;
};
