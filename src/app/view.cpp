#include "app/view.h"

View view;
