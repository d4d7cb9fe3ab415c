#include "input/text_field.h"

#include <gtest/gtest.h>

namespace
{

struct Edited {
    std::string text;
    int cursor = 0;
    TextField field() { return {text, cursor, 12}; }
};

void type(Edited& edited, const char* letters)
{
    for (; *letters; ++letters)
        typeCharacter(edited.field(), *letters);
}

} // namespace

TEST(TextFields, TakeCharactersAtTheCursorAndLoseTheTwelfth)
{
    Edited name;
    type(name, "Rockets");
    EXPECT_EQ(name.text, "Rockets");
    EXPECT_EQ(name.cursor, 7);
    cursorToStart(name.field());
    type(name, "The ");
    EXPECT_EQ(name.text, "The Rockets");
    type(name, "!?");
    EXPECT_EQ(name.text, "The !?Rocket");
    EXPECT_EQ(name.cursor, 6);
    cursorToEnd(name.field());
    EXPECT_EQ(name.cursor, 11);
    type(name, "xyz"); // on the last place each overwrites the one before
    EXPECT_EQ(name.text, "The !?Rockez");
    EXPECT_EQ(name.cursor, 11);
}

TEST(TextFields, EraseOnBothSidesAndStopAtTheEnds)
{
    Edited name{"abc", 0};
    eraseBefore(name.field());
    EXPECT_EQ(name.text, "abc");
    eraseAt(name.field());
    EXPECT_EQ(name.text, "bc");
    moveTextCursor(name.field(), 1);
    eraseBefore(name.field());
    EXPECT_EQ(name.text, "c");
    EXPECT_EQ(name.cursor, 0);
    moveTextCursor(name.field(), 5);
    EXPECT_EQ(name.cursor, 1);
    eraseAt(name.field());
    EXPECT_EQ(name.text, "c");
    eraseBefore(name.field());
    EXPECT_EQ(name.text, "");
    moveTextCursor(name.field(), -1);
    EXPECT_EQ(name.cursor, 0);
}

TEST(TextFields, PutTheCursorWhereTheyAreClicked)
{
    Edited name{"Belgium", 3};
    cursorFromClick(name.field(), 100 + 2 * 8 + 3, 100, 97);
    EXPECT_EQ(name.cursor, 2);
    cursorFromClick(name.field(), 100 + 7 * 8, 100, 97);
    EXPECT_EQ(name.cursor, 7);
    cursorFromClick(name.field(), 100 + 9 * 8, 100, 97);
    EXPECT_EQ(name.cursor, 0);
    name.text = "twelve chars";
    cursorFromClick(name.field(), 100 + 97, 100, 97);
    EXPECT_EQ(name.cursor, 11);
}
