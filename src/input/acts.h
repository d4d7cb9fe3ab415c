#pragma once

#include "ui/controls.h"

// Does what a control is for. What a rule forbids does not happen.
void actOn(Control control);
