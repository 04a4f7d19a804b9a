#pragma once
// Cuts a text into tokens at any of a set of separator characters.
//
// A run of separators counts as one, so no empty token is ever produced between two of them.
// With stripping on, blanks at both ends of a token are removed. The token returned is held
// by the parser and stays valid until the next call.
#include <cstddef>
#include <string>

#include "catalogues/LorvString.h"

class StringParser
{
public:
    StringParser(const std::string& text, const char* separators, bool strip);

    // The next token, or `defaultValue` (null when it is null) at the end of the text.
    LorvString* GetNextToken(const char* defaultValue = nullptr);
    // Everything after the leading separators, to the end of the text.
    LorvString* GetRestOfLine(const char* defaultValue = nullptr);

    std::size_t GetPosition() const { return nPosition; }
    std::size_t GetTokenStart() const { return nTokenStart; }

private:
    bool IsSeparator(char c) const;
    void SkipSeparators();
    LorvString* TakeToken(std::size_t start, std::size_t length);
    LorvString* Default(const char* defaultValue);

    std::string Text;
    LorvString Separators;
    LorvString Token;
    std::size_t nPosition = 0;
    std::size_t nTokenStart = 0;
    bool bStrip = false;
};

// Removes leading and trailing blanks.
std::string StripBlanks(const std::string& text);
