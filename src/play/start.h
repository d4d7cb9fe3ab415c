#pragma once

// Starts a race, or the next stage of one, on the course of courseText: everything but teams,
// options, settings and stage results is set afresh. A race that is running is discarded.
void startRace();
