#include "board/designer.h"

CourseScreens courseScreens;
