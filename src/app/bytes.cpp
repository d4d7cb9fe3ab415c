#include "app/bytes.h"

#include <algorithm>
#include <bit>

static std::uint64_t takeNumber(ByteReader& reader, std::size_t size)
{
    std::uint64_t value = 0;
    const std::size_t present = std::min(size, reader.rest.size());
    for (std::size_t i = 0; i < present; ++i)
        value |= static_cast<std::uint64_t>(reader.rest[i]) << (8 * i);
    reader.rest = reader.rest.subspan(present);
    return value;
}

int takeByte(ByteReader& reader)
{
    if (reader.rest.empty())
        return -1;
    return static_cast<int>(takeNumber(reader, 1));
}

std::int32_t takeInt32(ByteReader& reader)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(takeNumber(reader, 4)));
}

float takeFloat(ByteReader& reader)
{
    return std::bit_cast<float>(static_cast<std::uint32_t>(takeNumber(reader, 4)));
}

double takeDouble(ByteReader& reader)
{
    return std::bit_cast<double>(takeNumber(reader, 8));
}

static bool isPrintable(int character)
{
    return (character >= 0x20 && character <= 0x7E) || character >= 0xA0;
}

std::string takeText(ByteReader& reader, std::size_t size)
{
    const auto field = reader.rest.first(std::min(size, reader.rest.size()));
    reader.rest = reader.rest.subspan(field.size());
    std::string text;
    for (const std::uint8_t character : field.first(std::min(field.size(), size - 1))) {
        if (character == 0)
            break;
        if (isPrintable(character))
            text += static_cast<char>(character);
    }
    return text;
}

static void putNumber(std::vector<std::uint8_t>& bytes, std::uint64_t value, int size)
{
    for (int i = 0; i < size; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

void putByte(std::vector<std::uint8_t>& bytes, int value)
{
    bytes.push_back(static_cast<std::uint8_t>(value));
}

void putInt32(std::vector<std::uint8_t>& bytes, std::int32_t value)
{
    putNumber(bytes, static_cast<std::uint32_t>(value), 4);
}

void putFloat(std::vector<std::uint8_t>& bytes, float value)
{
    putNumber(bytes, std::bit_cast<std::uint32_t>(value), 4);
}

void putDouble(std::vector<std::uint8_t>& bytes, double value)
{
    putNumber(bytes, std::bit_cast<std::uint64_t>(value), 8);
}

void putText(std::vector<std::uint8_t>& bytes, std::string_view text, std::size_t size)
{
    const std::string_view kept = text.substr(0, size - 1);
    bytes.insert(bytes.end(), kept.begin(), kept.end());
    bytes.insert(bytes.end(), size - kept.size(), 0);
}
