#include "app/x11_window.h"

#if defined(__unix__) && !defined(__APPLE__)

#include <GL/glx.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <iterator>

// For each size its width, its height and its pixels as alpha, red, green and blue. Made from
// packaging/icon/window_icon.argb, which the painter paints. X11 wants longs, whatever their size.
static const unsigned long ICON[] = {
#include "window_icon.inc"
};

static void putProperty(Display* display, Window window, const char* name, const char* type,
                        int bits, const void* values, std::size_t count)
{
    XChangeProperty(display, window, XInternAtom(display, name, False),
                    XInternAtom(display, type, False), bits, PropModeReplace,
                    static_cast<const unsigned char*>(values), static_cast<int>(count));
}

void introduceWindow()
{
    Display* display = glXGetCurrentDisplay();
    if (!display)
        return;
    const Window window = glXGetCurrentDrawable();
    char name[] = "gravelon";
    char title[] = "Gravelon";
    XClassHint names{name, title};
    XSetClassHint(display, window, &names);
    putProperty(display, window, "_NET_WM_NAME", "UTF8_STRING", 8, title, sizeof title - 1);
    putProperty(display, window, "_NET_WM_ICON", "CARDINAL", 32, ICON, std::size(ICON));
}

#else

void introduceWindow() {}

#endif
