#include "ui/manual_pages.h"

#include "ui/layout.h"
#include "ui/text.h"
#include "ui/widgets.h"

#include <algorithm>
#include <utility>

std::string manualText;
std::vector<std::size_t> manualPageStarts = {0};
int manualPageCount = 1;
int manualPage = 0;

static constexpr float TOP_INSET = 20.0f;
static constexpr float LINE_HEIGHT = 20.0f;

enum Tint { TINT_SAME, TINT_HEADING, TINT_PLAIN };

struct Tag {
    std::string_view mark;
    Tint tint;
    int lines;
    int linesAtLineStart;
    bool startsNextPage; // a page that ends here begins with the tag, not behind it
};

// clang-format off
//   mark    tint          lines  at a line start  starts next page
static constexpr Tag TAGS[] = {
    {"<1>",  TINT_HEADING, 0,     0,               false},
    {"</1>", TINT_PLAIN,   2,     2,               false},
    {"<2>",  TINT_HEADING, 2,     1,               true},
    {"</2>", TINT_PLAIN,   1,     1,               true},
    {"<l>",  TINT_SAME,    1,     1,               false},
    {"<ll>", TINT_SAME,    2,     2,               false},
};
// clang-format on

// How far the layout of a page has come. Drawing and the search for page starts both take it from
// here, so that they can't disagree.
struct PageWalk {
    std::string_view text;
    std::size_t at = 0;
    int lineWidth = 0; // pixels used on the current line
    int linesUsed = 0;
    bool heading = false;
};

static const Tag* tagAt(const PageWalk& walk)
{
    for (const Tag& tag : TAGS)
        if (walk.text.substr(walk.at).starts_with(tag.mark))
            return &tag;
    return nullptr;
}

static void breakLine(PageWalk& walk, int lines)
{
    if (lines == 0)
        return;
    walk.lineWidth = 0;
    walk.linesUsed += lines;
}

static void applyTag(PageWalk& walk, const Tag& tag, float linesPerPage)
{
    if (tag.tint != TINT_SAME)
        walk.heading = tag.tint == TINT_HEADING;
    breakLine(walk, walk.lineWidth == 0 ? tag.linesAtLineStart : tag.lines);
    const bool pageFull = static_cast<float>(walk.linesUsed) > linesPerPage;
    if (!pageFull || !tag.startsNextPage)
        walk.at += tag.mark.size();
}

// Takes the word at hand, with a blank before it, onto the current line if it fits there, else
// breaks the line before it. A word too wide for any line is cut where the line is full, after one
// letter at least.
static void takeWord(PageWalk& walk, int wrapWidth, std::vector<ManualWord>& words)
{
    const bool lineStart = walk.lineWidth == 0;
    std::size_t end = walk.at;
    int width = walk.lineWidth;
    bool fits = true;
    do {
        const int letter = textWidth(walk.text.substr(end, 1), FONT_TITLE);
        fits = width + letter <= wrapWidth || (lineStart && end == walk.at);
        if (!fits)
            break;
        width += letter;
        ++end;
    } while (end < walk.text.size() && walk.text[end] != ' ' && walk.text[end] != '<');

    if (fits || lineStart) {
        words.push_back({.text = walk.text.substr(walk.at, end - walk.at),
                         .x = walk.lineWidth,
                         .line = walk.linesUsed,
                         .heading = walk.heading});
        walk.at = end;
        walk.lineWidth = width;
    }
    if (!fits)
        breakLine(walk, 1);
}

static void skipBlanks(PageWalk& walk)
{
    while (walk.at < walk.text.size() && walk.text[walk.at] == ' ')
        ++walk.at;
}

ManualPageWords layOutManualPage(std::string_view text, std::size_t start, int wrapWidth,
                                 float linesPerPage)
{
    const float lastLine = std::max(linesPerPage, 1.0f);
    ManualPageWords page;
    PageWalk walk{.text = text, .at = start};
    while (static_cast<float>(walk.linesUsed) <= lastLine) {
        if (walk.lineWidth == 0)
            skipBlanks(walk);
        if (walk.at >= text.size())
            break;
        if (const Tag* tag = tagAt(walk))
            applyTag(walk, *tag, lastLine);
        else
            takeWord(walk, wrapWidth, page.words);
    }
    if (walk.lineWidth == 0)
        skipBlanks(walk);
    page.end = walk.at;
    return page;
}

// The page of manualText that starts there, by the present layout.
static ManualPageWords pageFrom(std::size_t start)
{
    const float width =
        static_cast<float>(layout.viewW) - 2.0f * (layout.manualX + layout.manualInset);
    return layOutManualPage(manualText, start, static_cast<int>(width), layout.linesPerPage);
}

void paginateManual()
{
    manualPageStarts = {0};
    if (layout.viewW > 0)
        for (std::size_t end = pageFrom(0).end; end < manualText.size(); end = pageFrom(end).end)
            manualPageStarts.push_back(end);
    manualPageCount = static_cast<int>(manualPageStarts.size());
    manualPage = std::clamp(manualPage, 0, manualPageCount - 1);
}

void setManual(std::string text)
{
    manualText = std::move(text);
    paginateManual();
}

void drawManualPage()
{
    const float left = layout.manualX + layout.manualInset;
    const float top = layout.manualY + TOP_INSET;
    const std::size_t start = manualPageStarts[static_cast<std::size_t>(manualPage)];
    for (const ManualWord& word : pageFrom(start).words) {
        setColour(word.heading ? YELLOW : WHITE);
        drawText(left + static_cast<float>(word.x),
                 top + static_cast<float>(word.line) * LINE_HEIGHT, ALIGN_LEFT, word.text,
                 FONT_TITLE);
    }
}
