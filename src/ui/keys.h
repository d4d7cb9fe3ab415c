#pragma once

// Characters that come from keys without a letter.

constexpr unsigned char KEY_BACKSPACE = 8;
constexpr unsigned char KEY_TAB = 9;
constexpr unsigned char KEY_ENTER = 13;
constexpr unsigned char KEY_ESCAPE = 27;
constexpr unsigned char KEY_SPACE = 32;
constexpr unsigned char KEY_DELETE = 127;

// Whether the key means "OK" where there is something to confirm.
constexpr bool isConfirming(unsigned char key)
{
    return key == KEY_ENTER || key == KEY_SPACE || key == 'o' || key == 'O';
}
