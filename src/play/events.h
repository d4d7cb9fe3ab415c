#pragma once

// What each event card does.

// "OK" in STATE_EVENT_CARD: carries out the card in hand, for persons and computer riders alike.
void applyEventCard();

// "OK" in STATE_EVENT_NO_CARD: the rider moves with his plain throw.
void goOnWithoutEventCard();
