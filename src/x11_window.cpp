#include "x11_window.h"

#if defined(__unix__) && !defined(__APPLE__)

#include <GL/glx.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xrandr.h>

#include <algorithm>
#include <cstdlib>
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

double dotsPerInch()
{
    Display* display = glXGetCurrentDisplay();
    const char* resource = display ? XGetDefault(display, "Xft", "dpi") : nullptr;
    return resource ? std::atof(resource) : 0.0;
}

static bool hasWindowManager(Display* display)
{
    Atom type = None;
    int bits = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* value = nullptr;
    XGetWindowProperty(display, DefaultRootWindow(display),
                       XInternAtom(display, "_NET_SUPPORTING_WM_CHECK", False), 0, 1, False,
                       AnyPropertyType, &type, &bits, &count, &left, &value);
    if (value)
        XFree(value);
    return count > 0;
}

static bool knowsMonitors(Display* display)
{
    int event = 0;
    int error = 0;
    int major = 0;
    int minor = 0;
    return XRRQueryExtension(display, &event, &error) && XRRQueryVersion(display, &major, &minor) &&
           (major > 1 || (major == 1 && minor >= 5));
}

bool coverMainMonitor()
{
    Display* display = glXGetCurrentDisplay();
    if (!display || !knowsMonitors(display))
        return false;
    int count = 0;
    XRRMonitorInfo* monitors = XRRGetMonitors(display, DefaultRootWindow(display), True, &count);
    bool covered = false;
    if (count > 1) {
        const XRRMonitorInfo* chosen =
            std::find_if(monitors, monitors + count, [](const auto& m) { return m.primary; });
        if (chosen == monitors + count)
            chosen = monitors;
        XMoveResizeWindow(display, glXGetCurrentDrawable(), chosen->x, chosen->y,
                          static_cast<unsigned>(chosen->width),
                          static_cast<unsigned>(chosen->height));
        covered = !hasWindowManager(display);
    }
    if (monitors)
        XRRFreeMonitors(monitors);
    return covered;
}

#else

void introduceWindow() {}
bool coverMainMonitor()
{
    return false;
}
double dotsPerInch()
{
    return 0.0;
}

#endif
