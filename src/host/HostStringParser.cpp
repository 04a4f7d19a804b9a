#include "host/HostStringParser.h"

std::string HostStringParser::GetNext(const char* delimiters)
{
    if (AtEnd()) {
        return std::string();
    }
    std::size_t end =
        (delimiters && *delimiters) ? Text.find_first_of(delimiters, nPosition) : std::string::npos;
    if (end == std::string::npos) {
        end = Text.size();
    }
    static const char* const kBlanks = " \t\r\n";
    std::size_t first = Text.find_first_not_of(kBlanks, nPosition);
    std::string piece;
    if (first != std::string::npos && first < end) {
        std::size_t last = Text.find_last_not_of(kBlanks, end - 1);
        piece = Text.substr(first, last - first + 1);
    }
    nPosition = end + 1;
    return piece;
}
