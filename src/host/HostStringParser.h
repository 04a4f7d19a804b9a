#pragma once
// Splits a text into pieces at delimiter characters, trimming each piece.
//
// Unlike StringParser, two delimiters in a row give an empty piece between them, and the
// delimiters may differ from call to call. Once the text is used up every call gives "".
//   HostStringParser p("Eastern | US Eastern||x");
//   p.GetNext("|") -> "Eastern", then "US Eastern", then "", then "x", then "".
#include <string>

class HostStringParser
{
public:
    explicit HostStringParser(const std::string& text) : Text(text) {}

    // The text up to the first of `delimiters` (or to the end), without blanks, tabs or
    // line breaks at its ends; the delimiter itself is passed over. Null or empty
    // delimiters take the rest of the text.
    std::string GetNext(const char* delimiters);
    // True when nothing is left to read.
    bool AtEnd() const { return nPosition >= Text.size(); }
    // What is left, untrimmed.
    std::string GetRest() const { return AtEnd() ? std::string() : Text.substr(nPosition); }

private:
    std::string Text;
    std::size_t nPosition = 0;
};
