#pragma once
// A bookmark as the host keeps it: a record of a type word naming the module it belongs to
// ("PLNT" for the planetarium), a title for the user, and the command string that brings
// the view back.
#include <string>

class HostBookmark
{
public:
    // A bookmark that only carries a command, such as a request to start another module;
    // its type and title are empty.
    explicit HostBookmark(const std::string& command);
    // A null type reads as "".
    HostBookmark(const char* type, const std::string& title, const std::string& command);

    std::string Type;
    std::string Title;
    std::string Command;
};
