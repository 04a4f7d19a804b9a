#pragma once
// Where an object's state goes: a tree of levels holding keys holding text values.
//
// A class with state writes itself as one chain, for instance
//   sc << AstroKey("Center") << NewLevel << AstroKey("RA") << ra << AstroKey("Dec") << dec
//      << EndLevel;
// and reads itself with the same chain using GoToLevel and >>. Every value is text: numbers
// pass through their decimal form, doubles with six significant digits. Extraction always
// writes its target; a missing key reads as the empty text, hence 0, false or "".
#include <string>
#include <vector>

#include "state/AstroKey.h"

class StateContainer
{
public:
    // Appends the names of the levels below the current one; false when the container cannot.
    virtual bool ListKeyNames(std::vector<std::string>& names);
    virtual ~StateContainer() = default;
    // Stores `value` under the current key.
    virtual void Write(std::string& value) = 0;
    // The value under the current key, empty when there is none.
    virtual std::string GetValue() = 0;
    // Opens a new level named by the current key, for writing.
    virtual void CreateLevel() = 0;
    // Leaves the current level.
    virtual void GoToParentLevel() = 0;
    // Enters an existing level named by the current key, for reading.
    virtual void MoveToLevel() = 0;

    const AstroKey& GetKey() const { return Key; }
    void SetKey(const AstroKey& key) { Key = key; }

protected:
    AstroKey Key;
};

using StateManipulator = StateContainer& (*)(StateContainer&);

StateContainer& NewLevel(StateContainer& sc);
StateContainer& EndLevel(StateContainer& sc);
StateContainer& GoToLevel(StateContainer& sc);

StateContainer& operator<<(StateContainer& sc, StateManipulator manipulator);
StateContainer& operator>>(StateContainer& sc, StateManipulator manipulator);

StateContainer& operator<<(StateContainer& sc, const AstroKey& key);
StateContainer& operator>>(StateContainer& sc, const AstroKey& key);

StateContainer& operator<<(StateContainer& sc, const std::string& value);
StateContainer& operator<<(StateContainer& sc, const char* value);
StateContainer& operator<<(StateContainer& sc, long value);
StateContainer& operator<<(StateContainer& sc, int value);
StateContainer& operator<<(StateContainer& sc, unsigned value);
StateContainer& operator<<(StateContainer& sc, bool value);
StateContainer& operator<<(StateContainer& sc, double value);

StateContainer& operator>>(StateContainer& sc, std::string& value);
StateContainer& operator>>(StateContainer& sc, long& value);
StateContainer& operator>>(StateContainer& sc, int& value);
StateContainer& operator>>(StateContainer& sc, unsigned& value);
StateContainer& operator>>(StateContainer& sc, bool& value);
StateContainer& operator>>(StateContainer& sc, double& value);

// The text forms the typed operators use, for containers and tests.
std::string StateText(double value);
long StateLong(const std::string& text);
double StateDouble(const std::string& text);
