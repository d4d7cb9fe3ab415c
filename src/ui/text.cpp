#include "ui/text.h"

#include "ui/letters.h"

#include <GL/gl.h>

#include <algorithm>

static constexpr int CHAR_WIDTH_OTHER = 6;
static constexpr float BASE_LINE_DROP = 3.0f;

static std::uint8_t codeOf(char c)
{
    return static_cast<std::uint8_t>(c);
}

int textWidth(std::string_view text, Font font)
{
    if (font != FONT_BODY && font != FONT_TITLE)
        return CHAR_WIDTH_OTHER * static_cast<int>(text.size());
    const Table<std::uint8_t, 256>& widths = font == FONT_BODY ? bodyWidths : titleWidths;
    int width = 0;
    for (const char c : text)
        width += widths[codeOf(c)];
    return width;
}

// The double quote has a width on the screen, if none in the tables.
static float widthWithQuotes(std::string_view text, Font font)
{
    constexpr int quoteW = 6;
    const auto quotes = std::ranges::count(text, '"');
    return static_cast<float>(textWidth(text, font) + quoteW * static_cast<int>(quotes));
}

std::string cutToWidth(std::string_view text, float room, Font font)
{
    if (widthWithQuotes(text, font) <= room)
        return std::string(text);
    constexpr std::string_view dots = "...";
    const float left = room - static_cast<float>(textWidth(dots, font));
    while (!text.empty() && widthWithQuotes(text, font) > left)
        text.remove_suffix(1);
    return std::string(text) + std::string(dots);
}

static float leftEnd(float x, Align align, std::string_view text, Font font)
{
    if (align == ALIGN_LEFT)
        return x;
    const float width = static_cast<float>(textWidth(text, font));
    const float nudge = font == FONT_BODY ? 1.0f : 0.0f;
    return x - (align == ALIGN_CENTRE ? width * 0.5f : width) + nudge;
}

void drawText(float x, float y, Align align, std::string_view text, Font font)
{
    glRasterPos2f(leftEnd(x, align, text, font), y + BASE_LINE_DROP);
    drawLetters(text, font);
}
