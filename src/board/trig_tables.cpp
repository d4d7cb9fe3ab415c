#include "board/trig_tables.h"

#include <cmath>

static Table<float, 361> fill(double (*function)(double))
{
    Table<float, 361> table{};
    for (int degree = 0; degree <= 360; ++degree)
        table[degree] = static_cast<float>(function(2 * degree * 3.14159265 / 360));
    return table;
}

const Table<float, 361> sinTable = fill([](double angle) { return std::sin(angle); });
const Table<float, 361> cosTable = fill([](double angle) { return std::cos(angle); });
