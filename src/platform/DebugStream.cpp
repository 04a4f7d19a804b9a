#include "platform/DebugStream.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

DebugSink& CurrentSink()
{
    static DebugSink sink;
    return sink;
}

} // namespace

void OutputDebugStringA(const char* text)
{
    if (const DebugSink& sink = CurrentSink()) {
        sink(text);
        return;
    }
    static const bool enabled = std::getenv("ORBISCOPE_DEBUG") != nullptr;
    if (enabled) {
        std::fputs(text, stderr);
    }
}

DebugSink SetDebugSink(DebugSink sink)
{
    DebugSink previous = std::move(CurrentSink());
    CurrentSink() = std::move(sink);
    return previous;
}

DebugStreamBuffer::DebugStreamBuffer()
{
    // Two bytes stay free for the line end, one for the terminator.
    setp(aBuffer, aBuffer + kCapacity - 3);
}

DebugStreamBuffer::int_type DebugStreamBuffer::overflow(int_type ch)
{
    // The buffer is full: the rest of the message is dropped, the stream stays good.
    return traits_type::not_eof(ch);
}

void DebugStreamBuffer::Flush()
{
    char* end = pptr();
    std::memcpy(end, "\r\n", 3);
    OutputDebugStringA(aBuffer);
    setp(aBuffer, aBuffer + kCapacity - 3);
}

DebugStream::DebugStream() : std::ostream(nullptr)
{
    rdbuf(&Buffer);
}

DebugStream dbstream;

std::ostream& dbendl(std::ostream& stream)
{
    if (auto* buffer = dynamic_cast<DebugStreamBuffer*>(stream.rdbuf())) {
        buffer->Flush();
    } else {
        stream << "\r\n" << std::flush;
    }
    return stream;
}
