#pragma once

#include <cstdint>
#include <string_view>

/// Enough of a text to tell it from any other: its length and its checksum.
struct Fingerprint {
    std::uint64_t size = 0;     ///< bytes
    std::uint64_t checksum = 0; ///< checksumOf() them

    friend bool operator==(const Fingerprint&, const Fingerprint&) = default;
};

constexpr std::uint64_t checksumOfNothing = 0xcbf29ce484222325;

/// FNV-1a of 64 bits: one changed byte always changes it. Not against people who want to deceive. `before`:
/// the checksum of what stands before the bytes.
/// (Fowler, Noll, Vo, Eastlake: The FNV Non-Cryptographic Hash Algorithm, IETF draft.)
constexpr std::uint64_t checksumOf(std::string_view bytes, std::uint64_t before = checksumOfNothing)
{
    std::uint64_t sum = before;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    return sum;
}

constexpr Fingerprint fingerprintOf(std::string_view bytes)
{
    return {bytes.size(), checksumOf(bytes)};
}
