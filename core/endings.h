#pragma once

/// The ways to throw work away, and the ways out of the program.

/// "Reset": back to the last save, after a question; a sample without counts resets at once and says nothing.
/// Only the newest 101 entries of the undo stack lose their slots.
void AbortCount();

/// "Quit": asks, then ends the program without saving.
void mnuQuit_Click();

/// The main window is being closed. Asks about unsaved work; Cancel sets `cancel`, and the program goes on.
/// After any other answer it ends, on purpose also when a save was asked for and failed (`cancel` is set then
/// too): a backup of the sheet is taken first. Only if neither that nor the recovery copy can be written, the
/// program stays open and says so.
void Form_Unload(bool& cancel);

/// Takes down all other windows. They read `sheet.Unloading` so as not to bring up the main window again.
void UnloadAll();

/// The main window is gone.
void Form_Terminate();

/// Keeps the sheet as it is as what a reset goes back to, and saves it.
void CheckIfReallyEnd();
