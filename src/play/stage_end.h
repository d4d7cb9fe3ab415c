#pragma once

// The end of a stage: the final scorecard; a race of several stages is added to and written.
void closeStage();

// "Retry" and "Abort" in STATE_SAVE_FAILED.
void retrySave();
void abortSave();
