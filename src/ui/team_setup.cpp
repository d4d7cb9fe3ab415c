#include "ui/team_setup.h"

TeamSetup teamSetup;
