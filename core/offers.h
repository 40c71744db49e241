#pragma once

/// What the main window offers by a button and a menu entry alike. Where a handler touches one of the two
/// alone, the two differ on purpose: a count closes the entry of the next sample and leaves its button.

void offerSave(bool offered);
void offerNextSample(bool offered);
void offerReset(bool offered);
