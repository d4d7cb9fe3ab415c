#pragma once

// Doping: an extra strength card for this throw, and a number that may come up in the control at
// the end of the stage. Only persons dope.

// Whether the rider on turn can still dope: in STATE_TURN, once a stage.
bool mayDope();

// "Doping" in STATE_TURN: asks for confirmation. Without a free place for the card nothing happens.
void askDoping();

// "Yes" in STATE_CONFIRM_DOPING: draws the rider's doping number. "No" is closeOverlay.
void confirmDoping();

// "OK" in STATE_DOPING_NUMBER: the card goes to the first place that is free for it.
void takeDopingCard();

// The end of a stage: draws two numbers.
void startDopingControl();

// Whether the rider's number is one of those drawn.
bool isCaught(int rider);

// Whether the die of the countercheck in hand acquits the rider of currentRider.
bool counterDieAcquits();

// "OK" in STATE_DOPING_DRAW and in STATE_DOPING_COUNTERCHECK: the next rider caught, whose
// verdict takes effect at once; behind the last one the stage is closed.
void afterDopingDraw();
void nextCountercheck();
