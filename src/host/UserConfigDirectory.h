#pragma once
// Where the user's own settings live: the profile that overrides the shipped defaults and the
// settings store behind the registry calls.
//
// The directory is $ORBISCOPE_HOME when that is set (tests point it at a temporary
// directory), otherwise $XDG_CONFIG_HOME/orbiscope, otherwise ~/.config/orbiscope.
#include <string>

// The directory, without a trailing slash. With `create` set, missing directories on the way
// are made (mode 0700); the result is the same whether or not that worked.
std::string UserConfigDirectory(bool create = false);

// Makes `directory` and its missing parents; true when it exists afterwards.
bool MakeDirectories(const std::string& directory);
