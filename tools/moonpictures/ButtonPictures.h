#pragma once
// The pictures of the finder's button bar (see ButtonPictures.cpp).
#include <string>

// Writes them into <root>/src/shell/resources/; false when a file cannot be written.
bool WriteButtonPictures(const std::string& root);
