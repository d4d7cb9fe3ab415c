#include "app/view.h"

View view;

void lookFromAbove()
{
    const View fresh;
    view.viewMode = fresh.viewMode;
    view.cameraIndex = fresh.cameraIndex;
    view.otherCameraIndex = fresh.otherCameraIndex;
}
