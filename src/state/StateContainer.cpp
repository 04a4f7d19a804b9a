#include "state/StateContainer.h"

#include <cstdlib>
#include <locale>
#include <sstream>

bool StateContainer::ListKeyNames(std::vector<std::string>& /*names*/)
{
    return false;
}

StateContainer& NewLevel(StateContainer& sc)
{
    sc.CreateLevel();
    return sc;
}

StateContainer& EndLevel(StateContainer& sc)
{
    sc.GoToParentLevel();
    return sc;
}

StateContainer& GoToLevel(StateContainer& sc)
{
    sc.MoveToLevel();
    return sc;
}

StateContainer& operator<<(StateContainer& sc, StateManipulator manipulator)
{
    return manipulator(sc);
}

StateContainer& operator>>(StateContainer& sc, StateManipulator manipulator)
{
    return manipulator(sc);
}

StateContainer& operator<<(StateContainer& sc, const AstroKey& key)
{
    sc.SetKey(key);
    return sc;
}

StateContainer& operator>>(StateContainer& sc, const AstroKey& key)
{
    sc.SetKey(key);
    return sc;
}

namespace {

template <typename T>
std::string Streamed(T value)
{
    std::ostringstream out;
    out.imbue(std::locale::classic());
    out << value;
    return out.str();
}

StateContainer& WriteText(StateContainer& sc, std::string text)
{
    sc.Write(text);
    return sc;
}

} // namespace

std::string StateText(double value)
{
    return Streamed(value);
}

long StateLong(const std::string& text)
{
    return std::strtol(text.c_str(), nullptr, 10);
}

double StateDouble(const std::string& text)
{
    // strtod follows the C locale, which the component never changes.
    return std::strtod(text.c_str(), nullptr);
}

StateContainer& operator<<(StateContainer& sc, const std::string& value)
{
    return WriteText(sc, value);
}

StateContainer& operator<<(StateContainer& sc, const char* value)
{
    return WriteText(sc, value ? value : "");
}

StateContainer& operator<<(StateContainer& sc, long value)
{
    return WriteText(sc, Streamed(value));
}

StateContainer& operator<<(StateContainer& sc, int value)
{
    return WriteText(sc, Streamed(value));
}

StateContainer& operator<<(StateContainer& sc, unsigned value)
{
    return WriteText(sc, Streamed(value));
}

StateContainer& operator<<(StateContainer& sc, bool value)
{
    return WriteText(sc, value ? "1" : "0");
}

StateContainer& operator<<(StateContainer& sc, double value)
{
    return WriteText(sc, StateText(value));
}

StateContainer& operator>>(StateContainer& sc, std::string& value)
{
    value = sc.GetValue();
    return sc;
}

StateContainer& operator>>(StateContainer& sc, long& value)
{
    value = StateLong(sc.GetValue());
    return sc;
}

StateContainer& operator>>(StateContainer& sc, int& value)
{
    value = static_cast<int>(StateLong(sc.GetValue()));
    return sc;
}

StateContainer& operator>>(StateContainer& sc, unsigned& value)
{
    value = static_cast<unsigned>(StateLong(sc.GetValue()));
    return sc;
}

StateContainer& operator>>(StateContainer& sc, bool& value)
{
    value = StateLong(sc.GetValue()) != 0;
    return sc;
}

StateContainer& operator>>(StateContainer& sc, double& value)
{
    value = StateDouble(sc.GetValue());
    return sc;
}
