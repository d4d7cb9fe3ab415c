#pragma once

// The strength cards of the team in view, with the four team tabs below them.
void drawCardPanel();
