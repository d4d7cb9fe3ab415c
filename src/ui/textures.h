#pragma once

#include "app/table.h"
#include "ui/rect.h"

// 0 the board, 1 to 5 the riders, 6 the score sheet.
extern Table<unsigned, 7> textureNames;

// Generates the names, reads the seven picture files of the current directory and builds their
// textures. False if one of the first six can't be read; the reader has said why on the error
// stream. A score sheet that can't be read shows whatever the buffer held.
bool loadTextures();

// Builds the smaller copies of the board that a view at a slant takes its far half from. To be
// called before each such view; all but the first cost nothing.
void buildBoardMipmaps();

// Draws the picture of a section (0 to 8) or of a fixed course (0 to 3), which have been painted by
// then. It becomes a texture when it is first looked at; most never are.
void drawSectionPicture(int section, const Rect& at);
void drawCoursePicture(int index, const Rect& at);
