#pragma once
// One row of the finder's list of objects: the object's name as lists show it
// (AstroObject::GetListName).
#include <string>
#include <utility>

class AstroListBoxItem
{
public:
    explicit AstroListBoxItem(std::string name) : Name(std::move(name)) {}

    const std::string& GetName() const { return Name; }

private:
    std::string Name;
};
