#include "catalogues/StringParser.h"

StringParser::StringParser(const std::string& text, const char* separators, bool strip)
    : Text(text), Separators(separators), bStrip(strip)
{}

bool StringParser::IsSeparator(char c) const
{
    return Separators.find(c) != std::string::npos;
}

void StringParser::SkipSeparators()
{
    while (nPosition < Text.size() && IsSeparator(Text[nPosition])) {
        ++nPosition;
    }
}

LorvString* StringParser::Default(const char* defaultValue)
{
    if (defaultValue == nullptr) {
        return nullptr;
    }
    Token = defaultValue;
    return &Token;
}

LorvString* StringParser::TakeToken(std::size_t start, std::size_t length)
{
    nTokenStart = start;
    Token.assign(Text, start, length);
    if (bStrip) {
        Token = StripBlanks(Token);
    }
    return &Token;
}

LorvString* StringParser::GetNextToken(const char* defaultValue)
{
    if (nPosition >= Text.size()) {
        return Default(defaultValue);
    }
    SkipSeparators();
    if (nPosition >= Text.size()) {
        return Default(defaultValue);
    }
    std::size_t start = nPosition;
    std::size_t length = 0;
    while (start + length < Text.size() && !IsSeparator(Text[start + length])) {
        ++length;
    }
    nPosition = start + length + 1;
    return TakeToken(start, length);
}

LorvString* StringParser::GetRestOfLine(const char* defaultValue)
{
    if (nPosition >= Text.size()) {
        return Default(defaultValue);
    }
    SkipSeparators();
    if (nPosition >= Text.size()) {
        return Default(defaultValue);
    }
    std::size_t start = nPosition;
    nPosition = Text.size();
    return TakeToken(start, Text.size() - start);
}

std::string StripBlanks(const std::string& text)
{
    std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) {
        return std::string();
    }
    std::size_t last = text.find_last_not_of(' ');
    return text.substr(first, last - first + 1);
}
