#pragma once

// How the players look at the race: nothing here changes a rule.

constexpr int VIEW_PERSPECTIVE = 0;
constexpr int VIEW_FLAT = 1;

constexpr int EXPORT_NONE = 0;
constexpr int EXPORT_WRITTEN = 1;
constexpr int EXPORT_FAILED = 2;

struct View {
    int viewMode = VIEW_FLAT;
    int cameraIndex = 1;            // 1 or 2 in flat view, 3 to 10 in perspective view
    int otherCameraIndex = 3;       // what the other view mode will use
    int shownTeam = 0;              // team whose cards the panel shows, 0 to 3
    bool scorecardGeneral = false;  // the general classification instead of a stage
    int scorecardStage = 0;         // stage on the scorecard, from 0
    int exportStatus = EXPORT_NONE; // what the scorecard says of the last export
    bool dragActive = false;        // a dialog or the scorecard is being dragged
    int dragOffsetX = 0;            // mouse relative to the box's corner at the press
    int dragOffsetY = 0;

    friend bool operator==(const View&, const View&) = default;
};

extern View view;

// Back to the flat view as a race begins with it, whatever was chosen before.
void lookFromAbove();
