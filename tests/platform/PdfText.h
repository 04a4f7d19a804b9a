#pragma once
// A PDF file read back with poppler's tools (pdfinfo, pdftotext, pdftoppm), as the printing
// tests of the platform layer and of the whole program look at what they wrote.
#include <cstdio>
#include <sstream>
#include <string>

// What a tool writes to its standard output when run on a file, with `after` behind the file.
inline std::string Poppler(const std::string& tool, const std::string& file,
                           const std::string& after = "")
{
    std::string text;
    const std::string command = tool + " '" + file + "' " + after + " 2>/dev/null";
    if (FILE* pipe = ::popen(command.c_str(), "r")) {
        char buffer[4096];
        std::size_t n;
        while ((n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) {
            text.append(buffer, n);
        }
        ::pclose(pipe);
    }
    return text;
}

// The value of a "Name: value" line of pdfinfo for the file.
inline std::string PdfInfo(const std::string& file, const std::string& name)
{
    std::istringstream lines(Poppler("pdfinfo", file));
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind(name + ":", 0) == 0) {
            const std::size_t start = line.find_first_not_of(' ', name.size() + 1);
            return start == std::string::npos ? std::string() : line.substr(start);
        }
    }
    return std::string();
}
