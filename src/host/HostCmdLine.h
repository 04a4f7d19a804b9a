#pragma once
// A command string of key=value parameters separated by blanks.
//
// Grammar of the text (words without "=" before, between or after the parameters are ignored):
//   value  := '<' ... '>'      a nested parameter text, taken whole with its inner brackets
//           | '"' ... '"'      quoted text; inside it \" stands for " and \\ for \ .
//           | plain            everything up to the next blank
// AddParam with quoting on writes a value in quotes when it is empty or holds a blank, a
// bracket, a quote or a backslash, so every text comes back from GetValue unchanged. Keys are
// matched without regard to case; the first parameter with the key wins.
#include <string>
#include <vector>

class HostCmdLine
{
public:
    HostCmdLine() = default;
    explicit HostCmdLine(const std::string& text);

    // True when the key is present; `value` then holds its value (brackets of a level
    // removed, quotes undone). An absent key leaves `value` empty.
    bool GetValue(const std::string& key, std::string& value) const;
    // Appends one parameter. With `quote` off the value is written as it stands, which is how
    // a level's "<...>" text goes in.
    void AddParam(const std::string& key, const std::string& value, bool quote = true);
    // Appends a whole parameter text as it stands.
    void AddParam(const std::string& parameters);

    const std::string& GetRawText() const { return Text; }
    bool IsEmpty() const { return Text.empty(); }

    struct Parameter
    {
        std::string Key;
        std::string Value;
    };
    // Every key=value pair of the text, in order.
    std::vector<Parameter> GetParameters() const;

private:
    std::string Text;
};
