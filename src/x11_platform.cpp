#include "x11_platform.h"

#if defined(__unix__) && !defined(__APPLE__)

#include <GL/glx.h>
#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/keysym.h>

void reportHeldKeysOnce()
{
    if (Display* display = glXGetCurrentDisplay())
        XkbSetDetectableAutoRepeat(display, True, nullptr);
}

// With Shift the Tab key is another keysym, which has no character of its own. A rebinding holds
// for exactly the modifiers named, so that the locks have to be counted in.
void reportShiftTab()
{
    Display* display = glXGetCurrentDisplay();
    if (!display)
        return;
    // The keyboard map must be there before: rebinding would fetch it while it holds the lock that
    // fetching waits for.
    XkbKeysymToModifiers(display, XK_Shift_L);
    const unsigned char tab[] = {'\t'};
    for (unsigned held = 0; held < 8; ++held) {
        KeySym modifiers[3];
        int count = 0;
        if (held & 1)
            modifiers[count++] = XK_Shift_L;
        if (held & 2)
            modifiers[count++] = XK_Num_Lock;
        if (held & 4)
            modifiers[count++] = XK_Caps_Lock;
        XRebindKeysym(display, XK_ISO_Left_Tab, modifiers, count, tab, 1);
    }
}

#else

void reportHeldKeysOnce() {}
void reportShiftTab() {}

#endif
