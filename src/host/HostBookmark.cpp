#include "host/HostBookmark.h"

HostBookmark::HostBookmark(const std::string& command) : Command(command)
{}

HostBookmark::HostBookmark(const char* type, const std::string& title, const std::string& command)
    : Type(type ? type : ""), Title(title), Command(command)
{}
