#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The manual on its pages. Its text is Latin-1 with a small mark-up:
//
//     <1> </1>   the title, in yellow; two lines down behind it
//     <2> </2>   a section's heading, in yellow; two lines down before it, one at a line start;
//                one line down behind it
//     <l> <ll>   a line break, a blank line

extern std::string manualText;
extern std::vector<std::size_t> manualPageStarts; // places in manualText, the first one 0
extern int manualPageCount;                       // 1 or more
extern int manualPage;                            // the page shown, from 0

struct ManualWord {
    std::string_view text; // with the blank before it, but for the first of a line
    int x = 0;             // pixels from the margin
    int line = 0;          // from the page's first line, which is 0
    bool heading = false;
};

struct ManualPageWords {
    std::vector<ManualWord> words;
    std::size_t end = 0; // where the next page starts; the text's size on the last page
};

// Lays out the page that starts at a place in the text. wrapWidth is the width in pixels that a
// line may fill exactly; a word that is wider by itself is broken. linesPerPage is the last line
// that a page may use, counted from 0, and taken as 1 if it is less. Every page ends behind its
// start, or at the text's end.
ManualPageWords layOutManualPage(std::string_view text, std::size_t start, int wrapWidth,
                                 float linesPerPage);

// Finds the pages of manualText for the present layout; without a drawing area it is one page.
// A page shown that no longer exists becomes the last one.
void paginateManual();

// Takes the text of another language and finds its pages.
void setManual(std::string text);

// Draws the page shown inside the manual's frame. Leaves the current colour changed.
void drawManualPage();
