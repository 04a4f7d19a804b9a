#include "catalogues/TextFile.h"

#include <cstring>
#include <string>

#include "host/HostFile.h"
#include "platform/DebugStream.h"

TextFile::~TextFile()
{
    Close();
}

void TextFile::Report(const char* message) const
{
    dbstream << message << " On file: " << Path << dbendl;
}

bool TextFile::Open(const char* name, const char* directory, const char* mode)
{
    Close();
    if (name == nullptr) {
        return false;
    }
    std::string path = directory ? std::string(directory) + name : std::string(name);
    HostFile::ResolvePath(path, true, false);
    Path = path;
    nLineNumber = 0;
    bLineValid = false;
    pFile = std::fopen(path.c_str(), mode);
    if (pFile == nullptr) {
        dbstream << "Could not open file: " << Path << dbendl;
        return false;
    }
    return true;
}

bool TextFile::OpenForReading(const char* name, const char* directory)
{
    nOpenMode = 0;
    return Open(name, directory, "r");
}

bool TextFile::OpenForWriting(const char* name, const char* directory)
{
    nOpenMode = 1;
    return Open(name, directory, "wb");
}

bool TextFile::OpenForAppending(const char* name, const char* directory)
{
    nOpenMode = 1;
    return Open(name, directory, "ab");
}

void TextFile::Close()
{
    if (pFile != nullptr) {
        std::fclose(pFile);
        pFile = nullptr;
    }
    bLineValid = false;
}

const char* TextFile::GetNextLine()
{
    bLineValid = false;
    if (pFile == nullptr) {
        return nullptr;
    }
    if (std::fgets(aLine, static_cast<int>(kLineBufferSize), pFile) == nullptr) {
        if (std::ferror(pFile)) {
            Report("Read failed");
        }
        return nullptr;
    }
    // One line end goes; a reader in text mode would also have dropped the carriage return.
    std::size_t length = std::strlen(aLine);
    if (length > 0 && aLine[length - 1] == '\n') {
        aLine[--length] = '\0';
        if (length > 0 && aLine[length - 1] == '\r') {
            aLine[--length] = '\0';
        }
    }
    ++nLineNumber;
    bLineValid = true;
    return aLine;
}

const char* TextFile::GetCurrentLine()
{
    return bLineValid ? aLine : GetNextLine();
}

bool TextFile::SkipBlankLines()
{
    for (const char* line = GetCurrentLine(); line != nullptr; line = GetNextLine()) {
        if (std::strspn(line, " ") != std::strlen(line)) {
            return true;
        }
    }
    return false;
}

bool TextFile::Rewind()
{
    bLineValid = false;
    if (pFile == nullptr || std::fseek(pFile, 0, SEEK_SET) != 0) {
        Report("Seek to start of file failed");
        return false;
    }
    nLineNumber = 0;
    return true;
}

bool TextFile::WriteChar(char c)
{
    if (pFile == nullptr || std::fputc(c, pFile) == EOF) {
        Report("Attempt to write 1 char to file failed.");
        return false;
    }
    return true;
}

bool TextFile::Write(const char* text, unsigned length)
{
    std::size_t count = length == kUpToTerminator ? std::strlen(text) : length;
    if (pFile == nullptr || std::fwrite(text, 1, count, pFile) != count) {
        Report("Write attempt failed.");
        return false;
    }
    return true;
}
