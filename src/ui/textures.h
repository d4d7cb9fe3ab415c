#pragma once

#include "app/table.h"

// 0 the board, 1 to 5 the riders, 6 the score sheet, 7 the working texture of section and course
// pictures.
extern Table<unsigned, 8> textureNames;

// Generates the names, reads the seven picture files of the current directory and builds their
// textures. False if one of the first six can't be read; the reader has said why on the error
// stream. A score sheet that can't be read shows whatever the buffer held.
bool loadTextures();
