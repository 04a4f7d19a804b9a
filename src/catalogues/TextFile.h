#pragma once
// Reads and writes line-based text files: the catalogue, city and index files.
//
// A line is read whole up to 1999 characters; a longer line goes on as the next line, and the
// line number counts both parts. Errors go to the diagnostic stream as the message,
// " On file: " and the path, and reading then behaves as at the end of the file.
#include <cstdint>
#include <cstdio>

#include "catalogues/LorvString.h"

class TextFile
{
public:
    static constexpr unsigned kLineBufferSize = 2000;
    static constexpr unsigned kUpToTerminator = 0xFFFF;

    TextFile() = default;
    virtual ~TextFile();
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;

    // From the current line on, reads until a line holds something besides blanks.
    virtual bool SkipBlankLines();
    // The current line if one is valid, otherwise the next one.
    virtual const char* GetCurrentLine();
    // Reads the next line without its line end; null at the end of the file.
    virtual const char* GetNextLine();

    // Joins `directory` (when given) before `name`, resolves the logical path and opens it
    // with the C mode text. A null name fails quietly.
    bool Open(const char* name, const char* directory, const char* mode);
    bool OpenForReading(const char* name, const char* directory = nullptr);
    bool OpenForWriting(const char* name, const char* directory = nullptr);
    bool OpenForAppending(const char* name, const char* directory = nullptr);
    void Close();
    bool IsOpen() const { return pFile != nullptr; }

    bool Rewind();
    bool WriteChar(char c);
    // Writes `length` bytes, or up to the terminator when length is kUpToTerminator.
    bool Write(const char* text, unsigned length = kUpToTerminator);

    long GetLineNumber() const { return nLineNumber; }
    const LorvString& GetPath() const { return Path; }

private:
    void Report(const char* message) const;

    std::FILE* pFile = nullptr;
    bool bLineValid = false;
    char aLine[kLineBufferSize] = {};
    LorvString Path;
    std::uint32_t nOpenMode = 0; // 0 reading, 1 writing
    long nLineNumber = 0;
};
