#include "input/text_field.h"

#include <algorithm>

static int lengthOf(const TextField& field)
{
    return static_cast<int>(field.text.size());
}

static int lastPlace(const TextField& field)
{
    return std::min(lengthOf(field), field.capacity - 1);
}

static std::size_t place(const TextField& field)
{
    return static_cast<std::size_t>(std::clamp(field.cursor, 0, lengthOf(field)));
}

// What no longer fits falls off at the end, so that in a full field the last character is replaced.
void typeCharacter(TextField field, char character)
{
    field.text.insert(place(field), 1, character);
    field.text.resize(static_cast<std::size_t>(std::min(lengthOf(field), field.capacity)));
    moveTextCursor(field, 1);
}

void eraseBefore(TextField field)
{
    if (field.cursor <= 0 || field.text.empty())
        return;
    moveTextCursor(field, -1);
    eraseAt(field);
}

void eraseAt(TextField field)
{
    if (place(field) < field.text.size())
        field.text.erase(place(field), 1);
}

void moveTextCursor(TextField field, int characters)
{
    field.cursor = std::clamp(field.cursor + characters, 0, lastPlace(field));
}

void cursorToStart(TextField field)
{
    field.cursor = 0;
}

void cursorToEnd(TextField field)
{
    field.cursor = lastPlace(field);
}

void cursorFromClick(TextField field, int x, int boxX, int boxW)
{
    const int characterW = std::max(1, boxW / field.capacity);
    const int hit = (x - boxX) / characterW;
    field.cursor = hit >= 0 && hit <= lengthOf(field) ? std::min(hit, lastPlace(field)) : 0;
}
