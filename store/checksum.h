#pragma once
// CRC-32 (the IEEE polynomial, as zip and PNG use it) of a run of bytes:
// what tells a file Dicemill wrote whole from one damaged since.

#include <cstdint>
#include <string_view>

uint32_t Crc32(std::string_view bytes);
