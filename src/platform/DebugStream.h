#pragma once
// The diagnostic stream: messages for developers that never reach the user.
//
// `dbstream` collects one message in a fixed 2048-byte buffer (text beyond that is dropped);
// the manipulator `dbendl` appends "\r\n", hands the message to OutputDebugStringA and starts
// the next one. OutputDebugStringA writes to stderr when ORBISCOPE_DEBUG is set in the
// environment and nowhere otherwise; a test can install a sink to see the messages.
#include <functional>
#include <ostream>
#include <streambuf>
#include <string>

// Hands one finished message to the diagnostic output.
void OutputDebugStringA(const char* text);

// Replaces the diagnostic output (tests); an empty function restores the default.
// Returns the sink that was installed before.
using DebugSink = std::function<void(const char*)>;
DebugSink SetDebugSink(DebugSink sink);

class DebugStreamBuffer : public std::streambuf
{
public:
    static constexpr std::size_t kCapacity = 2048;

    DebugStreamBuffer();
    // Sends the collected text with "\r\n" and empties the buffer.
    void Flush();

protected:
    int_type overflow(int_type ch) override;

private:
    char aBuffer[kCapacity];
};

class DebugStream : public std::ostream
{
public:
    DebugStream();
    void EndMessage() { Buffer.Flush(); }

private:
    DebugStreamBuffer Buffer;
};

extern DebugStream dbstream;

// Ends the current message on the diagnostic stream.
std::ostream& dbendl(std::ostream& stream);
