#include "board/rider_motion.h"

RiderMotion motion;

void restMotion()
{
    motion = {};
}
