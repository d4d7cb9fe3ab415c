#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Writes a picture of three bytes a pixel, row after row from the top. The colours keep their full
// resolution: thin marks in strong colours would bleed otherwise. False if it can't be written.
bool writeJpeg(const std::string& fileName, int width, int height, int quality,
               const std::vector<std::uint8_t>& bytes);
