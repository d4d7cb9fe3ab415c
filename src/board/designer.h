#pragma once

#include "app/table.h"

#include <string_view>

// The courses that are ready to race, and what the course screens keep.

constexpr Table<std::string_view, 4> fixedCourses = {"64S5F12", "01S23S7S8F12", "67S8F12",
                                                     "01S23S4S5F12"};

struct CourseScreens {
    int courseHover = -1; // fixed course under the mouse, 0 to 3
};

extern CourseScreens courseScreens;
