#include "screen/support/drawn_texts.h"

#include "ui/frame.h"
#include "ui/text.h"

#include <GL/gl.h>

#include <algorithm>

static std::vector<DrawnText>* noting = nullptr;
static bool boxed = false;

// The two by the names that the linker knows them by.
extern "C" void __real__Z13drawDialogBoxffff(float x, float y, float w, float h);
extern "C" void __wrap__Z13drawDialogBoxffff(float x, float y, float w, float h);
#define LINKED(name) name##_Z8drawTextff5AlignSt17basic_string_viewIcSt11char_traitsIcEE4Font
extern "C" void LINKED(__real_)(float x, float y, Align align, std::string_view text, Font font);
extern "C" void LINKED(__wrap_)(float x, float y, Align align, std::string_view text, Font font);

extern "C" void LINKED(__wrap_)(float x, float y, Align align, std::string_view text, Font font)
{
    LINKED(__real_)(x, y, align, text, font);
    if (!noting)
        return;
    float colour[4];
    glGetFloatv(GL_CURRENT_COLOR, colour);
    const float width = static_cast<float>(textWidth(text, font));
    const float left = align == ALIGN_LEFT     ? x
                       : align == ALIGN_CENTRE ? x - width * 0.5f
                                               : x - width;
    const float height = font == FONT_BODY || font == FONT_FIXED ? 9.0f : 13.0f;
    noting->push_back({std::string(text),
                       {left, y + 3.0f - height, width, height},
                       pixelOf({colour[0], colour[1], colour[2]}),
                       boxed});
}

extern "C" void __wrap__Z13drawDialogBoxffff(float x, float y, float w, float h)
{
    boxed = true;
    __real__Z13drawDialogBoxffff(x, y, w, h);
}

std::vector<DrawnText> drawnTexts()
{
    std::vector<DrawnText> texts;
    boxed = false;
    noting = &texts;
    drawFrame();
    noting = nullptr;
    return texts;
}

std::vector<DrawnText> textsAt(const Rect& place)
{
    std::vector<DrawnText> texts = drawnTexts();
    std::erase_if(
        texts, [&](const DrawnText& text) { return !place.contains(text.place.x, text.place.y); });
    return texts;
}

std::string wordsAt(const Rect& place)
{
    std::string words;
    for (const DrawnText& text : textsAt(place))
        words += (words.empty() ? "" : "|") + text.words;
    return words;
}

bool screenSays(const std::string& words)
{
    return std::ranges::count(drawnTexts(), words, &DrawnText::words) > 0;
}
