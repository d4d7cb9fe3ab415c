#include "input/text_field.h"

#include <gtest/gtest.h>

namespace
{

struct Edited {
    std::string text;
    int cursor = 0;
    TextField field() { return {text, cursor, 12}; }

    void type(const char* letters)
    {
        for (; *letters; ++letters)
            typeCharacter(field(), *letters);
    }

    void expect(const char* expected, int at) const
    {
        EXPECT_EQ(text, expected);
        EXPECT_EQ(cursor, at) << text;
    }
};

} // namespace

TEST(TextFields, TakeCharactersAtTheCursorAndLoseTheTwelfth)
{
    Edited name;
    name.type("Rockets");
    name.expect("Rockets", 7);
    cursorToStart(name.field());
    name.type("The !?");
    name.expect("The !?Rocket", 6);
    cursorToEnd(name.field());
    name.expect("The !?Rocket", 11);
    name.type("xyz"); // on the last place each overwrites the one before
    name.expect("The !?Rockez", 11);
}

TEST(TextFields, EraseOnBothSidesAndStopAtTheEnds)
{
    Edited name{"abc", 0};
    eraseBefore(name.field());
    eraseAt(name.field());
    name.expect("bc", 0);
    moveTextCursor(name.field(), 1);
    eraseBefore(name.field());
    moveTextCursor(name.field(), 5);
    eraseAt(name.field());
    name.expect("c", 1);
    eraseBefore(name.field());
    moveTextCursor(name.field(), -1);
    name.expect("", 0);
}

TEST(TextFields, PutTheCursorWhereTheyAreClicked)
{
    Edited name{"Belgium", 3};
    for (const auto& [x, cursor] : {std::pair{2 * 8 + 3, 2}, {7 * 8, 7}, {9 * 8, 0}}) {
        cursorFromClick(name.field(), 100 + x, 100, 97);
        name.expect("Belgium", cursor);
    }
    name.text = "twelve chars";
    cursorFromClick(name.field(), 100 + 97, 100, 97);
    name.expect("twelve chars", 11);
}
