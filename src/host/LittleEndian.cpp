#include "host/LittleEndian.h"

#include <cstring>

namespace {

void PutBytes(unsigned char* bytes, std::uint64_t value, int count)
{
    for (int i = 0; i < count; ++i) {
        bytes[i] = static_cast<unsigned char>(value >> (8 * i));
    }
}

std::uint64_t GetBytes(const unsigned char* bytes, int count)
{
    std::uint64_t value = 0;
    for (int i = 0; i < count; ++i) {
        value |= std::uint64_t(bytes[i]) << (8 * i);
    }
    return value;
}

} // namespace

void LittleEndian::PutUInt32(unsigned char* bytes, std::uint32_t value)
{
    PutBytes(bytes, value, 4);
}

std::uint32_t LittleEndian::GetUInt32(const unsigned char* bytes)
{
    return static_cast<std::uint32_t>(GetBytes(bytes, 4));
}

void LittleEndian::PutDouble(unsigned char* bytes, double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    PutBytes(bytes, bits, 8);
}

double LittleEndian::GetDouble(const unsigned char* bytes)
{
    const std::uint64_t bits = GetBytes(bytes, 8);
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}
