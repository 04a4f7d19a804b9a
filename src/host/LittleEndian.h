#pragma once
// The byte order of the component's binary files: least significant byte first, doubles as
// their IEEE 754 bits, whatever the machine's own order.
#include <cstdint>

class LittleEndian
{
public:
    static void PutUInt32(unsigned char* bytes, std::uint32_t value);
    static std::uint32_t GetUInt32(const unsigned char* bytes);
    static void PutDouble(unsigned char* bytes, double value);
    static double GetDouble(const unsigned char* bytes);
};
