#pragma once

/// Prepares the program on fresh records, before the first event of the user: defaults that are not the
/// records' own, key settings, cues, picture. Files that are missing are told and the program goes on with
/// less: without key settings the built-in map is in force and nothing sounds; without a cue nothing sounds
/// and the built-in map is in force.
void Form_Load();

/// True if the twelve reference keys of the key settings have been told apart.
bool isKeyboardIdentified();
