// until_pixel X Y RRGGBB [COMMAND...]
//
// Waits until a pixel of the screen has a colour. With a command it starts that first, takes its
// time until the pixel shows and ends it: prints the milliseconds that have passed and those that
// the command has used the processor for.

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

constexpr int POLL_US = 500;
constexpr int PATIENCE_MS = 30000;

using Clock = std::chrono::steady_clock;

struct Awaited {
    int x, y;
    unsigned long colour;
};

static double msSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

static bool shows(Display* display, const Awaited& awaited)
{
    XImage* image = XGetImage(display, DefaultRootWindow(display), awaited.x, awaited.y, 1, 1,
                              AllPlanes, ZPixmap);
    if (!image)
        return false;
    const unsigned long pixel = XGetPixel(image, 0, 0) & 0xffffffUL;
    XDestroyImage(image);
    return pixel == awaited.colour;
}

static bool awaitPixel(Display* display, const Awaited& awaited, Clock::time_point start)
{
    while (!shows(display, awaited)) {
        if (msSince(start) > PATIENCE_MS)
            return false;
        usleep(POLL_US);
    }
    return true;
}

static pid_t startCommand(Display* display, char** command)
{
    const pid_t child = fork();
    if (child == 0) {
        close(ConnectionNumber(display));
        execvp(command[0], command);
        std::perror(command[0]);
        _exit(127);
    }
    return child;
}

static double msOf(const timeval& time)
{
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) * 1e-3;
}

int main(int argc, char** argv)
{
    Display* display = argc >= 4 ? XOpenDisplay(nullptr) : nullptr;
    if (!display) {
        std::fputs("until_pixel X Y RRGGBB [COMMAND...], on a display\n", stderr);
        return 2;
    }
    const Awaited awaited = {std::atoi(argv[1]), std::atoi(argv[2]),
                             std::strtoul(argv[3], nullptr, 16)};
    const Clock::time_point start = Clock::now();
    if (argc == 4)
        return awaitPixel(display, awaited, start) ? 0 : 1;

    const pid_t child = startCommand(display, argv + 4);
    const bool shown = awaitPixel(display, awaited, start);
    const double passed = msSince(start);
    kill(child, SIGKILL);
    rusage usage{};
    wait4(child, nullptr, 0, &usage);
    if (!shown)
        return 1;
    std::printf("%.1f %.1f\n", passed, msOf(usage.ru_utime) + msOf(usage.ru_stime));
    return 0;
}
