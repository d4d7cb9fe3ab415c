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
#include <vector>

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

// Taking up the same window once more changes nothing, so OpenGL holds another one in between.
void takeUpWindowAnew()
{
    Display* display = glXGetCurrentDisplay();
    if (!display)
        return;
    const GLXContext context = glXGetCurrentContext();
    const Window window = glXGetCurrentDrawable();
    const Window other = XCreateSimpleWindow(display, window, 0, 0, 1, 1, 0, 0, 0);
    if (glXMakeCurrent(display, other, context))
        glXMakeCurrent(display, window, context);
    XDestroyWindow(display, other);
}

double dotsPerInch()
{
    Display* display = glXGetCurrentDisplay();
    const char* resource = display ? XGetDefault(display, "Xft", "dpi") : nullptr;
    return resource ? std::atof(resource) : 0.0;
}

// The value of a property whose values are atoms, or windows; empty if it isn't set.
static std::vector<unsigned long> readProperty(Display* display, Window window, const char* name)
{
    constexpr long MOST_VALUES = 1024;
    Atom type = None;
    int bits = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* value = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, MOST_VALUES, False,
                       AnyPropertyType, &type, &bits, &count, &left, &value);
    std::vector<unsigned long> values;
    if (value && bits == 32) {
        const auto* first = reinterpret_cast<const unsigned long*>(value);
        values.assign(first, first + count);
    }
    if (value)
        XFree(value);
    return values;
}

static bool namesFullScreen(Display* display, Window window, const char* property)
{
    const auto values = readProperty(display, window, property);
    const Atom fullScreen = XInternAtom(display, "_NET_WM_STATE_FULLSCREEN", False);
    return std::find(values.begin(), values.end(), fullScreen) != values.end();
}

static bool hasWindowManager(Display* display)
{
    return !readProperty(display, DefaultRootWindow(display), "_NET_SUPPORTING_WM_CHECK").empty();
}

bool managerMakesFullScreen()
{
    Display* display = glXGetCurrentDisplay();
    return display && hasWindowManager(display) &&
           namesFullScreen(display, DefaultRootWindow(display), "_NET_SUPPORTED");
}

void askForFullScreen(bool full)
{
    Display* display = glXGetCurrentDisplay();
    constexpr long FROM_AN_APPLICATION = 1;
    XEvent event{};
    event.type = ClientMessage;
    event.xclient.window = glXGetCurrentDrawable();
    event.xclient.message_type = XInternAtom(display, "_NET_WM_STATE", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = full;
    event.xclient.data.l[1] =
        static_cast<long>(XInternAtom(display, "_NET_WM_STATE_FULLSCREEN", False));
    event.xclient.data.l[3] = FROM_AN_APPLICATION;
    XSendEvent(display, DefaultRootWindow(display), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &event);
    XFlush(display);
}

bool managerShowsFullScreen()
{
    return namesFullScreen(glXGetCurrentDisplay(), glXGetCurrentDrawable(), "_NET_WM_STATE");
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
void takeUpWindowAnew() {}
bool managerMakesFullScreen()
{
    return false;
}
void askForFullScreen(bool) {}
bool managerShowsFullScreen()
{
    return false;
}
bool coverMainMonitor()
{
    return false;
}
double dotsPerInch()
{
    return 0.0;
}

#endif
